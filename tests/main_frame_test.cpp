// SPDX-License-Identifier: MIT
#include "listdef/display_options_page.h"
#include "tests/main_frame_errand.h"
#include "tests/test_program.h"
#include "widgets/icon_picker.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableView>
#include <QTextBrowser>
#include <QTimer>

#include <sys/stat.h>

#include <tuple>

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartMakesTheDataFile()
    {
        FrameErrand errand;
        errand.Start();
        QCOMPARE(errand.pages->Top()->Title(), u"Welcome to Quillory"_s);
        QVERIFY(!QFile::exists(errand.DataPath()));
        errand.PressOk();
        QVERIFY(QFile::exists(errand.DataPath()));
        QCOMPARE(errand.pages->Top(), errand.home);
        errand.Restart();
        QCOMPARE(errand.pages->Top(), errand.home);
    }

    void aNewListIsThereAfterARestart()
    {
        FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
        errand.Choose(Command::New);
        auto* name = errand.pages->Top()->findChild<QLineEdit*>(u"listName"_s);
        QVERIFY(name != nullptr);
        QTest::keyClicks(name, u"Pantry"_s);
        errand.PressOk();
        QCOMPARE(errand.Lines(), u"Attic, Pantry, Zoo"_s);
        QCOMPARE(errand.home->SelectedName(), u"Pantry"_s);

        errand.Choose(Command::New);
        errand.PressCancel();
        errand.Restart();
        QCOMPARE(errand.Lines(), u"Attic, Pantry, Zoo"_s);
        QCOMPARE(errand.home->SelectedName(), u"Attic"_s);
    }

    void listsAndRowsAreDeletedOnlyOnYes()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.Import("Tea\t3\r\n");
        errand.PressOk();
        errand.frame.reset();
        const QString ofList = u"Do you want to delete list 'Pantry' and all its data?"_s;
        const QString ofRows = u"Do you want to delete all rows in list 'Pantry'?"_s;
        for (const auto& [command, question, answer, lists] :
            { std::tuple(Command::Delete, ofList, QMessageBox::No, u"Pantry 1"_s),
                std::tuple(Command::DeleteAllRecords, ofRows, QMessageBox::No, u"Pantry 1"_s),
                std::tuple(Command::DeleteAllRecords, ofRows, QMessageBox::Yes, u"Pantry 0"_s) }) {
            errand.Start();
            errand.Choose(command);
            errand.Answer(answer);
            QCOMPARE(errand.question, question);
            QCOMPARE(errand.Lines(), u"Pantry"_s);
            errand.frame.reset();
            QCOMPARE(ListsIn(errand.DataPath()), lists);
        }
    }

    void aListIsRenamedInPlace()
    {
        FrameErrand errand({ u"Attic"_s, u"Pantry"_s });
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
        rename(u"Barn"_s, Qt::Key_Return);
        // A command takes over what is typed before it begins.
        errand.Choose(Command::Rename);
        QTest::keyClicks(errand.view->findChild<QLineEdit*>(), u"Shed"_s);
        errand.Choose(Command::ListProperties);
        errand.PressOk();
        QTRY_COMPARE(errand.Lines(), u"Pantry, Shed"_s);
        QCOMPARE(errand.home->SelectedName(), u"Shed"_s);
        QCOMPARE(errand.pages->Top(), errand.home);
        errand.Restart();
        QCOMPARE(errand.Lines(), u"Pantry, Shed"_s);
    }

    void theHeaderTurnsTheOrderRound()
    {
        FrameErrand errand({ u"apple"_s, u"cherry"_s, u"Banana"_s });
        QCOMPARE(errand.Lines(), u"Banana, apple, cherry"_s);
        QWidget* header = errand.view->header()->viewport();
        QTest::mouseClick(header, Qt::LeftButton);
        QCOMPARE(errand.Lines(), u"cherry, apple, Banana"_s);
        QCOMPARE(errand.home->SelectedName(), u"Banana"_s);
        QTest::mouseClick(header, Qt::LeftButton);
        QCOMPARE(errand.Lines(), u"Banana, apple, cherry"_s);
    }

    void commandsOnAListNeedOne()
    {
        FrameErrand errand(QStringList {});
        for (const Command command : { Command::Rename, Command::Delete, Command::DeleteAllRecords,
                 Command::ListProperties, Command::Import, Command::Export })
            QVERIFY(!errand.home->ActionOf(command)->isEnabled());
        for (const Command command : { Command::New, Command::OpenReadOnly, Command::About })
            QVERIFY(errand.home->ActionOf(command)->isEnabled());
    }

    void aTapOpensAListAndComingBackKeepsItSelected()
    {
        FrameErrand errand({ u"Attic"_s, u"Pantry"_s });
        errand.Tap(1);
        QTRY_COMPARE(errand.pages->Depth(), 2);
        QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
        errand.PressOk();
        QCOMPARE(errand.pages->Top(), errand.home);
        QCOMPARE(errand.home->SelectedName(), u"Pantry"_s);
        QTest::keyClick(errand.view, Qt::Key_Return);
        QTRY_COMPARE(errand.pages->Depth(), 2);
        // Closing the window ends the pages first.
        errand.Restart();
        QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
    }

    void aLaterStartOpensTheListItNames()
    {
        FrameErrand errand;
        errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
        errand.Start(u"Attic"_s);
        QCOMPARE(errand.pages->Top()->Title(), u"Attic"_s);
        QCOMPARE(errand.frame->TakeStartRequest({ u"Cellar"_s, {} }), StartAnswer::UnknownList);
        QCOMPARE(errand.pages->Top()->Title(), u"Attic"_s);
        QCOMPARE(errand.frame->TakeStartRequest({ u"Pantry"_s, {} }), StartAnswer::Done);
        QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
        QCOMPARE(errand.pages->Depth(), 2);
        QCOMPARE(errand.home->SelectedName(), u"Pantry"_s);
        // One that comes while the data file is asked for waits for it.
        FrameErrand first;
        MakeLists(first.DataPath(), { u"Pantry"_s });
        first.Start();
        QCOMPARE(first.frame->TakeStartRequest({ u"Pantry"_s, {} }), StartAnswer::Done);
        first.PressOk();
        QCOMPARE(first.pages->Top()->Title(), u"Pantry"_s);
    }

    void theSelectedListIsExported()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.Choose(Command::Export);
        auto* dialog = errand.frame->findChild<QFileDialog*>();
        QVERIFY(dialog != nullptr);
        dialog->setDirectory(QFileInfo(errand.DataPath()).path());
        dialog->selectFile(u"pantry"_s);
        const QString path = QFileInfo(errand.DataPath()).dir().filePath(u"pantry.txt"_s);
        WriteFileBytes(path, "another's");
        for (const auto answer : { QMessageBox::No, QMessageBox::Yes }) {
            QCOMPARE(FileBytes(path), "another's"_ba);
            QTimer::singleShot(0, dialog, [&errand, answer] { errand.Answer(answer); });
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        }
        QTRY_COMPARE(FileBytes(path), "\xff\xfe"_ba);
        // The list is free for other commands again.
        errand.Tap(0);
        QTRY_COMPARE(errand.pages->Depth(), 2);
    }

    void propertiesChangeNameIconAndPlace()
    {
        FrameErrand errand({ u"Attic"_s, u"Pantry"_s });
        for (const PageResult result : { PageResult::Cancel, PageResult::Ok }) {
            errand.Choose(Command::ListProperties);
            auto* sheet = errand.pages->Top();
            QCOMPARE(sheet->Title(), u"Inventory List Options"_s);
            sheet->findChild<QLineEdit*>(u"listName"_s)->setText(u"Zoo"_s);
            QTest::mouseClick(sheet->findChild<QWidget*>(u"nextIcon"_s), Qt::LeftButton);
            result == PageResult::Ok ? errand.PressOk() : errand.PressCancel();
            QCOMPARE(
                errand.Lines(), result == PageResult::Ok ? u"Pantry, Zoo"_s : u"Attic, Pantry"_s);
        }
        QCOMPARE(errand.home->SelectedName(), u"Zoo"_s);
        errand.Restart();
        QCOMPARE(errand.Lines(), u"Pantry, Zoo"_s);
        errand.home->Select(errand.ListNamed(u"Zoo"_s));
        errand.Choose(Command::ListProperties);
        QCOMPARE(errand.pages->Top()->findChild<IconPicker*>(u"listIcon"_s)->Icon(), 1);
    }

    void optionsSurviveARestart()
    {
        FrameErrand errand(QStringList {});
        errand.Choose(Command::Options);
        auto* left = errand.pages->Top()->findChild<QRadioButton*>(u"landscapeLeft"_s);
        QVERIFY(!left->isEnabled());
        errand.pages->Top()->findChild<QCheckBox*>(u"landscape"_s)->click();
        left->click();
        errand.pages->Top()->findChild<QCheckBox*>(u"alternateColour"_s)->click();
        errand.PressOk();
        errand.Choose(Command::Options);
        errand.pages->Top()->findChild<QCheckBox*>(u"alternateColour"_s)->click();
        errand.PressCancel();
        errand.frame->resize(420, 500);
        for (const bool isReadOnly : { true, false }) {
            errand.Choose(Command::OpenReadOnly);
            errand.Restart();
            QCOMPARE(errand.home->ActionOf(Command::OpenReadOnly)->isChecked(), isReadOnly);
        }
        QCOMPARE(errand.frame->size(), QSize(420, 500));
        errand.Choose(Command::Options);
        const auto* page = qobject_cast<DisplayOptionsPage*>(errand.pages->Top());
        QVERIFY(page != nullptr);
        QCOMPARE(page->Result(), (DisplayOptions { true, false, true }));
    }

    void landscapeLastsAsLongAsTheListIsShown()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.frame->resize(300, 500);
        errand.Choose(Command::Options);
        errand.pages->Top()->findChild<QCheckBox*>(u"landscape"_s)->click();
        errand.PressOk();
        QCOMPARE(errand.frame->size(), QSize(300, 500));
        errand.Tap(0);
        QCOMPARE(errand.frame->size(), QSize(500, 300));
        errand.PressOk();
        QCOMPARE(errand.frame->size(), QSize(300, 500));
        // One that is wide already, or has no room to become so, stays as it is.
        const QSize screen = errand.frame->screen()->availableSize();
        for (const QSize size : { QSize(600, 400), screen + QSize(0, 100) }) {
            errand.frame->resize(size);
            errand.Tap(0);
            QCOMPARE(errand.frame->size(), size);
            errand.PressOk();
            QCOMPARE(errand.frame->size(), size);
        }
    }

    void anImportAsksForTheOrderAndShowsTheRows()
    {
        FrameErrand errand({ u"Attic"_s, u"Pantry"_s });
        errand.home->Select(errand.ListNamed(u"Pantry"_s));
        for (const PageResult result : { PageResult::Cancel, PageResult::Ok }) {
            errand.Import("3\tTea\r\n5\tSalt\r\nno end");
            auto* order = errand.pages->Top();
            QCOMPARE(order->Title(), u"Import Column Order"_s);
            QTest::mouseClick(order->findChild<QWidget*>(u"moveDown"_s), Qt::LeftButton);
            result == PageResult::Ok ? errand.PressOk() : errand.PressCancel();
            QCOMPARE(errand.pages->Top() == errand.home, result == PageResult::Cancel);
        }
        const auto* model = errand.pages->Top()->findChild<QTableView*>()->model();
        QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
        QCOMPARE(model->rowCount(), 2);
        QCOMPARE(model->index(1, 0).data().toString(), u"Tea"_s);
        QCOMPARE(model->index(1, 1).data().toString(), u"3"_s);
    }

    void aPipeIsNoTextFile()
    {
        FrameErrand errand;
        errand.MakeLists({ u"Pantry"_s });
        errand.Start();
        const QString pipe = QFileInfo(errand.DataPath()).path() + u"/pipe.txt"_s;
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        // Whoever opens one end waits for the other.
        errand.ChooseFileFor(Command::Export, pipe);
        errand.Answer(QMessageBox::Ok);
        QCOMPARE(errand.question, u"The file could not be written: It is no plain file."_s);
        QCOMPARE(errand.pages->Top(), errand.home);
        errand.ChooseFileFor(Command::Import, pipe);
        errand.PressOk();
        errand.Answer(QMessageBox::Ok);
        QCOMPARE(errand.question,
            u"Import is completed with errors. Data may not be imported properly."_s);
        QCOMPARE(errand.pages->Top()->Title(), u"Pantry"_s);
    }

    void helpOpensAtThePageItWasAskedFrom()
    {
        FrameErrand errand(QStringList {});
        QTest::keyClick(errand.view, Qt::Key_F1);
        auto* text = errand.pages->Top()->findChild<QTextBrowser*>();
        QVERIFY(text != nullptr);
        QCOMPARE(text->source().fragment(), u"Main_Contents"_s);
        errand.PressOk();
        errand.Choose(Command::New);
        QTest::mouseClick(errand.pages->Top()->findChild<QWidget*>(u"help"_s), Qt::LeftButton);
        text = errand.pages->Top()->findChild<QTextBrowser*>();
        QCOMPARE(text->source().fragment(), u"newlist"_s);
        QTRY_VERIFY(text->verticalScrollBar()->value() > 0);
    }
};

QUILLORY_TEST(QApplication, MainFrameTest)
#include "main_frame_test.moc"
