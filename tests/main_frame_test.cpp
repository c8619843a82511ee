#include "app/home_list.h"
#include "app/main_frame.h"
#include "tests/list_fixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// The program with settings and data file of its own, and what a person does with it.
class Errand
{
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
        WriteSettings(Conf(), { DataPath(), {}, kLandscapeRightHanded, {}, {} });
    }
    void Start(const QString& listName = {})
    {
        frame = std::make_unique<MainFrame>(Conf());
        frame->SetFileChooser([this](const auto& then) { then(DataPath()); });
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
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box->button(button) != nullptr);
        question = box->text();
        QTest::mouseClick(box->button(button), Qt::LeftButton);
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    }
    void Tap(int line) const
    {
        const QRect place = view->visualRect(view->model()->index(line, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place.center());
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

private:
    QTemporaryDir m_folder;

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
    auto* name = errand.pages->Top()->findChild<QLineEdit*>();
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

QTEST_MAIN(MainFrameTest)

#include "main_frame_test.moc"
