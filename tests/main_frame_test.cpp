#include "app/home_list.h"
#include "app/main_frame.h"
#include "listdef/display_options_page.h"
#include "tests/list_fixture.h"
#include "widgets/icon_picker.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <QTreeView>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// The program with settings and data file of its own, and what a person does with it.
class Errand
{
    QTemporaryDir m_folder;

public:
    QString DataPath() const { return m_folder.filePath(u"Quillory.idb"_s); }
    void MakeLists(const QStringList& names)
    {
        DataVolume volume;
        QCOMPARE(volume.Mount(DataPath(), Disposition::OpenAlways), ErrorNumber::None);
        ListCatalogue catalogue(volume);
        QCOMPARE(catalogue.OpenCatalogue(), ListCatalogue::OpenOutcome::Opened);
        for (const QString& name : names) {
            InventoryList list = NewInventoryList();
            list.Name = name;
            QVERIFY(catalogue.CreateList(list).isCommitted);
        }
        WriteSettings(Conf(), { DataPath(), {}, kLandscapeRightHanded, {}, {}, {} });
    }
    void Start(const QString& listName = {})
    {
        Settings settings;
        ReadSettings(Conf(), settings);
        frame = std::make_unique<MainFrame>(
            settings, MainFrame::Places { Conf(), m_folder.filePath(u"copies"_s) });
        frame->SetFileChooser([this](const auto& then) { then(chosenPath); });
        frame->show();
        frame->OpenDataFile(listName);
        pages = frame->findChild<PageStack*>();
        home = frame->findChild<HomeList*>();
        view = home->findChild<QTreeView*>();
        QVERIFY(QTest::qWaitForWindowActive(frame.get()));
    }
    void Restart()
    {
        QVERIFY(frame->close());
        frame.reset();
        Start();
    }
    /// What a soft key, a menu entry or a shortcut does; fails where a person could not.
    void Choose(Command command) const
    {
        QVERIFY(home->ActionOf(command)->isEnabled());
        home->Trigger(command);
    }
    void Answer(QMessageBox::StandardButton button)
    {
        QTRY_VERIFY(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr);
        const QPointer box(qobject_cast<QMessageBox*>(QApplication::activeModalWidget()));
        QVERIFY(box->button(button) != nullptr);
        question = box->text();
        QTest::mouseClick(box->button(button), Qt::LeftButton);
        // Another question may follow at once.
        QTRY_VERIFY(box == nullptr || !box->isVisible());
    }
    void Tap(int line) const
    {
        const QRect place = view->visualRect(view->model()->index(line, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
    }
    ObjectId ListNamed(const QString& name) const
    {
        const auto* model = qobject_cast<HomeListModel*>(view->model());
        for (int i = 0; i < model->rowCount(); ++i) {
            if (model->NameAt(model->index(i)) == name)
                return model->OidAt(model->index(i));
        }
        return kNoObject;
    }
    /// Chooses a file of this content for import, up to the order of its columns.
    void Import(const QByteArray& content)
    {
        QFile file(m_folder.filePath(u"in.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        Choose(Command::Import);
        auto* dialog = frame->findChild<QFileDialog*>();
        QVERIFY(dialog != nullptr);
        dialog->selectFile(file.fileName());
        static_cast<QDialog*>(dialog)->accept();
    }
    QString Lines() const
    {
        QStringList names;
        for (int i = 0; i < view->model()->rowCount(); ++i)
            names << view->model()->index(i, 0).data().toString();
        return names.join(u", "_s);
    }

    std::unique_ptr<MainFrame> frame;
    PageStack* pages = nullptr;
    HomeList* home = nullptr;
    QTreeView* view = nullptr;
    QString question;
    /// What the file dialog for the data file answers.
    QString chosenPath = DataPath();

private:
    QString Conf() const { return m_folder.filePath(u"quillory.conf"_s); }
};

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartMakesTheDataFile();
    void aNewListIsThereAfterARestart();
    void aListIsDeletedOnlyOnYes();
    void recordsAreDeletedOnlyOnYes();
    void aListIsRenamedInPlace();
    void theHeaderTurnsTheOrderRound();
    void commandsOnAListNeedOne();
    void readOnlySurvivesARestart();
    void aTapOpensAListAndComingBackKeepsItSelected();
    void aLaterStartOpensTheListItNames();
    void theSelectedListIsExported();
    void propertiesChangeNameIconAndPlace();
    void optionsSurviveARestart();
    void landscapeLastsAsLongAsTheListIsShown();
    void anImportAsksForTheOrderAndShowsTheRows();
    void aFailedImportIsToldAndTheListOpened();
    void closingAsksBeforeInputIsLost();
    void aDeletedListComesBack();
    void aDeletedRowComesBack();
    void aFailedWriteIsToldOnceAndWorkGoesOn();
    void whatCouldNotBeStoredIsTypedOnlyOnce();
    void aDamagedFileIsReplacedByItsCopy();
    void helpOpensAtThePageItWasAskedFrom();
};

void MainFrameTest::theFirstStartMakesTheDataFile()
{
    Errand errand;
    errand.Start();
    QCOMPARE(errand.pages->Top()->Title(), u"Welcome to Quillory"_s);
    QVERIFY(!QFile::exists(errand.DataPath()));
    errand.pages->Top()->End(PageResult::Ok);
    QVERIFY(QFile::exists(errand.DataPath()));
    QCOMPARE(errand.pages->Top(), errand.home);
    errand.Restart();
    QCOMPARE(errand.pages->Top(), errand.home);
}

void MainFrameTest::aNewListIsThereAfterARestart()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Zoo"_s });
    errand.Start();
    errand.Choose(Command::New);
    auto* name = errand.pages->Top()->findChild<QLineEdit*>(u"listName"_s);
    QVERIFY(name != nullptr);
    QTest::keyClicks(name, u"Pantry"_s);
    errand.pages->Top()->End(PageResult::Ok);
    QCOMPARE(errand.Lines(), u"Attic, Pantry, Zoo"_s);
    QCOMPARE(errand.home->SelectedName(), u"Pantry"_s);

    errand.Choose(Command::New);
    errand.pages->Top()->End(PageResult::Cancel);
    errand.Restart();
    QCOMPARE(errand.Lines(), u"Attic, Pantry, Zoo"_s);
    QCOMPARE(errand.home->SelectedName(), u"Attic"_s);
}

void MainFrameTest::aListIsDeletedOnlyOnYes()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
    errand.Start();
    errand.Choose(Command::Delete);
    errand.Answer(QMessageBox::No);
    QCOMPARE(errand.question, u"Do you want to delete list 'Attic' and all its data?"_s);
    QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
    errand.Choose(Command::Delete);
    errand.Answer(QMessageBox::Yes);
    QCOMPARE(errand.Lines(), u"Pantry"_s);
    errand.Restart();
    QCOMPARE(errand.Lines(), u"Pantry"_s);
}

void MainFrameTest::recordsAreDeletedOnlyOnYes()
{
    Errand errand;
    errand.MakeLists({ u"Pantry"_s });
    const auto count = [&errand](bool addsRow) {
        DataVolume volume;
        ListCatalogue catalogue(volume);
        InventoryList list;
        if (volume.Mount(errand.DataPath(), Disposition::OpenExisting) != ErrorNumber::None
            || catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened
            || !catalogue.OpenList(catalogue.FindList(u"Pantry"_s), list))
            return qsizetype(-1);
        const ValueContext context = TestContext();
        RowStore rows(volume, list, context);
        if (addsRow)
            rows.WriteNewRow(std::array { u"Tea"_s, u"3"_s });
        return static_cast<qsizetype>(rows.FillRows().size());
    };
    QCOMPARE(count(true), 1);
    for (const auto& [answer, rows] :
        { std::pair(QMessageBox::No, 1), std::pair(QMessageBox::Yes, 0) }) {
        errand.Start();
        errand.Choose(Command::DeleteAllRecords);
        errand.Answer(answer);
        QCOMPARE(errand.question, u"Do you want to delete all rows in list 'Pantry'?"_s);
        QCOMPARE(errand.Lines(), u"Pantry"_s);
        errand.frame.reset();
        QCOMPARE(count(false), rows);
    }
}

void MainFrameTest::aListIsRenamedInPlace()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
    errand.Start();
    const auto rename = [&errand](const QString& name, Qt::Key end) {
        errand.Choose(Command::Rename);
        auto* editor = errand.view->findChild<QLineEdit*>();
        QVERIFY(editor != nullptr);
        editor->selectAll();
        QTest::keyClick(editor, Qt::Key_Backspace);
        QTest::keyClicks(editor, name);
        QTest::keyClick(editor, end);
        QTRY_VERIFY(errand.view->findChild<QLineEdit*>() == nullptr);
    };
    rename(QString(), Qt::Key_Return);
    rename(u"Barn"_s, Qt::Key_Escape);
    QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
    rename(u"Shed"_s, Qt::Key_Return);
    QTRY_COMPARE(errand.Lines(), u"Pantry, Shed"_s);
    QCOMPARE(errand.home->SelectedName(), u"Shed"_s);
    QCOMPARE(errand.pages->Top(), errand.home);
    errand.Restart();
    QCOMPARE(errand.Lines(), u"Pantry, Shed"_s);
}

void MainFrameTest::theHeaderTurnsTheOrderRound()
{
    Errand errand;
    errand.MakeLists({ u"apple"_s, u"cherry"_s, u"Banana"_s });
    errand.Start();
    QCOMPARE(errand.Lines(), u"Banana, apple, cherry"_s);
    QWidget* header = errand.view->header()->viewport();
    QTest::mouseClick(header, Qt::LeftButton);
    QCOMPARE(errand.Lines(), u"cherry, apple, Banana"_s);
    QCOMPARE(errand.home->SelectedName(), u"Banana"_s);
    QTest::mouseClick(header, Qt::LeftButton);
    QCOMPARE(errand.Lines(), u"Banana, apple, cherry"_s);
}

void MainFrameTest::commandsOnAListNeedOne()
{
    Errand errand;
    errand.MakeLists({});
    errand.Start();
    for (const Command command : { Command::Rename, Command::Delete, Command::DeleteAllRecords,
             Command::ListProperties, Command::Import, Command::Export })
        QVERIFY(!errand.home->ActionOf(command)->isEnabled());
    for (const Command command : { Command::New, Command::OpenReadOnly, Command::About })
        QVERIFY(errand.home->ActionOf(command)->isEnabled());
}

void MainFrameTest::readOnlySurvivesARestart()
{
    Errand errand;
    errand.MakeLists({ u"Pantry"_s });
    errand.Start();
    const auto isChecked
        = [&errand] { return errand.home->ActionOf(Command::OpenReadOnly)->isChecked(); };
    QVERIFY(!isChecked());
    errand.Choose(Command::OpenReadOnly);
    errand.Restart();
    QVERIFY(isChecked());
    errand.Choose(Command::OpenReadOnly);
    errand.Restart();
    QVERIFY(!isChecked());
}

void MainFrameTest::aTapOpensAListAndComingBackKeepsItSelected()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
    errand.Start();
    errand.Tap(1);
    QTRY_COMPARE(errand.pages->Depth(), 2);
    QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
    errand.pages->Top()->End(PageResult::Ok);
    QCOMPARE(errand.pages->Top(), errand.home);
    QCOMPARE(errand.home->SelectedName(), u"Pantry"_s);
    QTest::keyClick(errand.view, Qt::Key_Return);
    QTRY_COMPARE(errand.pages->Depth(), 2);
    // Closing the window ends the pages first.
    errand.Restart();
    QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
}

void MainFrameTest::aLaterStartOpensTheListItNames()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
    errand.Start(u"Attic"_s);
    QCOMPARE(errand.pages->Top()->Title(), u"Attic"_s);
    QCOMPARE(errand.frame->TakeStartRequest({ u"Cellar"_s, {} }), StartAnswer::UnknownList);
    QCOMPARE(errand.pages->Top()->Title(), u"Attic"_s);
    QCOMPARE(errand.frame->TakeStartRequest({ u"Pantry"_s, {} }), StartAnswer::Done);
    QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
    QCOMPARE(errand.pages->Depth(), 2);
    QCOMPARE(errand.home->SelectedName(), u"Pantry"_s);
}

void MainFrameTest::theSelectedListIsExported()
{
    Errand errand;
    errand.MakeLists({ u"Pantry"_s });
    errand.Start();
    errand.Choose(Command::Export);
    auto* dialog = errand.frame->findChild<QFileDialog*>();
    QVERIFY(dialog != nullptr);
    dialog->setDirectory(QFileInfo(errand.DataPath()).path());
    dialog->selectFile(u"pantry"_s);
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    QFile file(QFileInfo(errand.DataPath()).dir().filePath(u"pantry.txt"_s));
    QTRY_VERIFY(file.exists());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "\xff\xfe"_ba);
    // The list is free for other commands again.
    errand.Tap(0);
    QTRY_COMPARE(errand.pages->Depth(), 2);
}

} // namespace

void MainFrameTest::propertiesChangeNameIconAndPlace()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
    errand.Start();
    for (const PageResult result : { PageResult::Cancel, PageResult::Ok }) {
        errand.Choose(Command::ListProperties);
        auto* sheet = errand.pages->Top();
        QCOMPARE(sheet->Title(), u"Inventory List Options"_s);
        sheet->findChild<QLineEdit*>(u"listName"_s)->setText(u"Zoo"_s);
        QTest::mouseClick(sheet->findChild<QWidget*>(u"nextIcon"_s), Qt::LeftButton);
        sheet->End(result);
        QCOMPARE(errand.Lines(), result == PageResult::Ok ? u"Pantry, Zoo"_s : u"Attic, Pantry"_s);
    }
    QCOMPARE(errand.home->SelectedName(), u"Zoo"_s);
    errand.Restart();
    QCOMPARE(errand.Lines(), u"Pantry, Zoo"_s);
    errand.home->Select(errand.ListNamed(u"Zoo"_s));
    errand.Choose(Command::ListProperties);
    QCOMPARE(errand.pages->Top()->findChild<IconPicker*>(u"listIcon"_s)->Icon(), 1);
}

void MainFrameTest::optionsSurviveARestart()
{
    Errand errand;
    errand.MakeLists({});
    errand.Start();
    errand.Choose(Command::Options);
    errand.pages->Top()->findChild<QCheckBox*>(u"landscape"_s)->click();
    errand.pages->Top()->findChild<QRadioButton*>(u"landscapeLeft"_s)->click();
    errand.pages->Top()->End(PageResult::Ok);
    errand.Choose(Command::Options);
    errand.pages->Top()->findChild<QCheckBox*>(u"alternateColour"_s)->click();
    errand.pages->Top()->End(PageResult::Cancel);
    errand.Restart();
    errand.Choose(Command::Options);
    const auto* page = qobject_cast<DisplayOptionsPage*>(errand.pages->Top());
    QVERIFY(page != nullptr);
    QCOMPARE(page->Result(), (DisplayOptions { true, false, false }));
}

void MainFrameTest::landscapeLastsAsLongAsTheListIsShown()
{
    Errand errand;
    errand.MakeLists({ u"Pantry"_s });
    errand.Start();
    errand.frame->resize(300, 500);
    errand.Choose(Command::Options);
    errand.pages->Top()->findChild<QCheckBox*>(u"landscape"_s)->click();
    errand.pages->Top()->End(PageResult::Ok);
    QCOMPARE(errand.frame->size(), QSize(300, 500));
    errand.Tap(0);
    QCOMPARE(errand.frame->size(), QSize(500, 300));
    errand.pages->Top()->RequestEnd(PageResult::Ok);
    QCOMPARE(errand.frame->size(), QSize(300, 500));
}

void MainFrameTest::anImportAsksForTheOrderAndShowsTheRows()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
    errand.Start();
    errand.home->Select(errand.ListNamed(u"Pantry"_s));
    for (const PageResult result : { PageResult::Cancel, PageResult::Ok }) {
        errand.Import("3\tTea\r\n5\tSalt\r\nno end");
        auto* order = errand.pages->Top();
        QCOMPARE(order->Title(), u"Import Column Order"_s);
        QTest::mouseClick(order->findChild<QWidget*>(u"moveDown"_s), Qt::LeftButton);
        order->End(result);
        QCOMPARE(errand.pages->Top() == errand.home, result == PageResult::Cancel);
    }
    const auto* model = errand.pages->Top()->findChild<QTableView*>()->model();
    QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(model->index(1, 0).data().toString(), u"Tea"_s);
    QCOMPARE(model->index(1, 1).data().toString(), u"3"_s);
}

void MainFrameTest::aFailedImportIsToldAndTheListOpened()
{
    Errand errand;
    errand.MakeLists({ u"Pantry"_s });
    errand.Start();
    // Nothing but a byte-order mark.
    errand.Import(QByteArray::fromHex("fffe0000"));
    errand.pages->Top()->End(PageResult::Ok);
    errand.Answer(QMessageBox::Ok);
    QCOMPARE(
        errand.question, u"Import is completed with errors. Data may not be imported properly."_s);
    QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
}

void MainFrameTest::closingAsksBeforeInputIsLost()
{
    Errand errand;
    errand.MakeLists({});
    errand.Start();
    errand.Choose(Command::New);
    QTest::keyClicks(errand.pages->Top()->findChild<QLineEdit*>(u"listName"_s), u"Pantry"_s);
    QVERIFY(!errand.frame->close());
    errand.Answer(QMessageBox::No);
    QCOMPARE(errand.pages->Top()->findChild<QLineEdit*>(u"listName"_s)->text(), u"Pantry"_s);
    QVERIFY(!errand.frame->close());
    errand.Answer(QMessageBox::Yes);
    QVERIFY(!errand.frame->isVisible());
}

void MainFrameTest::aDeletedListComesBack()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
    errand.Start();
    errand.Choose(Command::Delete);
    errand.Answer(QMessageBox::Yes);
    auto* bar = errand.home->findChild<QWidget*>(u"undoBar"_s);
    QVERIFY(bar->isVisible());
    QTest::mouseClick(bar->findChild<QWidget*>(u"undo"_s), Qt::LeftButton);
    QVERIFY(!bar->isVisible());
    QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
    QCOMPARE(errand.home->SelectedName(), u"Attic"_s);
    errand.Choose(Command::Delete);
    errand.Answer(QMessageBox::Yes);
    QTest::keyClick(errand.view, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
    errand.Restart();
    QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
}

void MainFrameTest::aDeletedRowComesBack()
{
    Errand errand;
    errand.MakeLists({ u"Pantry"_s });
    errand.Start();
    errand.Import("Tea\t3\r\nSalt\t5\r\n");
    errand.pages->Top()->End(PageResult::Ok);
    Page* rows = errand.pages->Top();
    auto* table = rows->findChild<QTableView*>();
    rows->Trigger(Command::Delete);
    errand.Answer(QMessageBox::Yes);
    QCOMPARE(table->model()->rowCount(), 1);
    QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(table->model()->rowCount(), 2);
    QCOMPARE(table->currentIndex().data().toString(), u"Salt"_s);
    // All of them, deleted from outside the list and brought back inside it.
    rows->RequestEnd(PageResult::Ok);
    errand.Choose(Command::DeleteAllRecords);
    errand.Answer(QMessageBox::Yes);
    errand.Tap(0);
    table = errand.pages->Top()->findChild<QTableView*>();
    QCOMPARE(table->model()->rowCount(), 0);
    QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(table->model()->rowCount(), 2);
}

void MainFrameTest::aFailedWriteIsToldOnceAndWorkGoesOn()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s });
    errand.Start();
    const QString away = errand.DataPath() + u".away"_s;
    // As when the card is pulled out, and put back.
    QVERIFY(QFile::rename(errand.DataPath(), away));
    errand.Tap(0);
    QTest::keyClick(errand.pages->Top(), Qt::Key_Escape);
    errand.Answer(QMessageBox::Cancel);
    QCOMPARE(errand.Lines(), u"Attic"_s);
    errand.Tap(0);
    QTest::keyClick(errand.pages->Top(), Qt::Key_Escape);
    QVERIFY(QFile::rename(away, errand.DataPath()));
    errand.Answer(QMessageBox::Retry);
    QVERIFY(errand.question.contains(u"could not be saved"_s));
    QCOMPARE(errand.Lines(), u"Attic"_s);
    errand.Choose(Command::Delete);
    errand.Answer(QMessageBox::Yes);
    errand.Restart();
    QCOMPARE(errand.Lines(), QString());
}

void MainFrameTest::whatCouldNotBeStoredIsTypedOnlyOnce()
{
    Errand errand;
    errand.MakeLists({ u"Pantry"_s });
    errand.Start();
    errand.Tap(0);
    Page* rows = errand.pages->Top();
    rows->Trigger(Command::New);
    QTest::keyClicks(QApplication::focusWidget(), u"Tea"_s);
    const QString away = errand.DataPath() + u".away"_s;
    QVERIFY(QFile::rename(errand.DataPath(), away));
    errand.pages->Top()->RequestEnd(PageResult::Ok);
    QVERIFY(errand.pages->Top() != rows);
    QVERIFY(QFile::rename(away, errand.DataPath()));
    errand.Answer(QMessageBox::Retry);
    errand.pages->Top()->RequestEnd(PageResult::Ok);
    QCOMPARE(errand.pages->Top(), rows);
    const auto* model = rows->findChild<QTableView*>()->model();
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->index(0, 0).data().toString(), u"Tea"_s);
}

void MainFrameTest::aDamagedFileIsReplacedByItsCopy()
{
    Errand errand;
    errand.MakeLists({ u"Attic"_s, u"Zoo"_s });
    errand.Start();
    errand.Choose(Command::Delete);
    errand.Answer(QMessageBox::Yes);
    QVERIFY(errand.frame->close());
    errand.frame.reset();
    QFile damaged(errand.DataPath());
    QVERIFY(damaged.open(QIODevice::ReadWrite));
    damaged.seek(40);
    damaged.write("xxxxxxxx");
    damaged.close();

    errand.chosenPath = errand.DataPath() + u".new.idb"_s;
    errand.Start();
    errand.Answer(QMessageBox::Ok);
    QCOMPARE(errand.question, u"Unable to open data file. Error: 1392"_s);
    errand.Answer(QMessageBox::Yes);
    QTRY_COMPARE(errand.Lines(), u"Zoo"_s);
    errand.Restart();
    QCOMPARE(errand.Lines(), u"Zoo"_s);
}

void MainFrameTest::helpOpensAtThePageItWasAskedFrom()
{
    Errand errand;
    errand.MakeLists({});
    errand.Start();
    QTest::keyClick(errand.view, Qt::Key_F1);
    auto* text = errand.pages->Top()->findChild<QTextBrowser*>();
    QVERIFY(text != nullptr);
    QCOMPARE(text->source().fragment(), u"Main_Contents"_s);
    errand.pages->Top()->End(PageResult::Ok);
    errand.Choose(Command::New);
    QTest::mouseClick(errand.pages->Top()->findChild<QWidget*>(u"help"_s), Qt::LeftButton);
    text = errand.pages->Top()->findChild<QTextBrowser*>();
    QCOMPARE(text->source().fragment(), u"newlist"_s);
    QTRY_VERIFY(text->verticalScrollBar()->value() > 0);
}

QTEST_MAIN(MainFrameTest)

#include "main_frame_test.moc"
