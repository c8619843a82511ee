// SPDX-License-Identifier: MIT
#include "tests/main_frame_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>

#include <sys/stat.h>

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartMakesTheDataFile()
    {
        FrameErrand errand;
        errand.Start();
        Act(u"at Welcome to Quillory"_s);
        QVERIFY(!QFile::exists(errand.DataPath()));
        Act(u"tap OK"_s);
        QVERIFY(QFile::exists(errand.DataPath()));
        Act(u"at nothing; see nothing"_s);
        errand.Restart();
        Act(u"at nothing; see nothing"_s);
    }

    void whatIsDoneIsThereAfterARestart_data()
    {
        const Table<QString, QString, QString> add;
        add("a new list is there and selected, a cancelled one is not", u"Attic Zoo"_s,
            u"tap New; type Pantry; tap OK; see Attic, Pantry, Zoo; on Pantry; tap New; tap Cancel"_s,
            u"see Attic, Pantry, Zoo; on Attic"_s);
        add("a list is renamed in place", u"Attic Pantry"_s,
            u"tap Menu; tap Rename List; press Del Return; see Attic, Pantry; "
            "tap Menu; tap Rename List; type Barn; press Esc; see Attic, Pantry; "
            "tap Menu; tap Rename List; type Barn; press Return; see Barn, Pantry"_s,
            u"see Barn, Pantry"_s);
        add("a command takes over what is typed before it begins", u"Attic Pantry"_s,
            u"tap Menu; tap Rename List; type Shed; tap Menu; tap List Properties...; tap OK; "
            "see Pantry, Shed; on Shed"_s,
            u"see Pantry, Shed"_s);
        add("the header turns the order round", u"apple cherry Banana"_s,
            u"tap Inventory List; see cherry, apple, Banana; on Banana; tap Inventory List"_s,
            u"see Banana, apple, cherry"_s);
        add("commands on a list need one", {},
            u"tap Menu; see (List Properties...), (Rename List), (Import List...), "
            "(Export List...), (Delete List...), (Delete All Records...), Open Read Only, "
            "Options..., About...; press Esc; tap New; tap Cancel"_s,
            u"see nothing"_s);
        add("a list that was open is selected", u"Attic Pantry"_s,
            u"tap Pantry; at Pantry; tap OK; at nothing; on Pantry; press Return; at Pantry"_s,
            u"see Attic, Pantry"_s);
        add("properties are the list's on OK alone", u"Attic Pantry"_s,
            u"tap Menu; tap List Properties...; at Inventory List Options; "
            "fill listName: Zoo; tap nextIcon; tap Cancel; see Attic, Pantry; "
            "tap Menu; tap List Properties...; see listIcon: List; "
            "fill listName: Zoo; tap nextIcon; tap OK; see Pantry, Zoo; on Zoo"_s,
            u"see Pantry, Zoo; press Down; tap Menu; tap List Properties...; see listIcon: Box"_s);
        add("options are kept on OK alone", u"Attic"_s,
            u"tap Menu; tap Options...; cannot landscapeLeft; tap landscape; tap landscapeLeft; "
            "tap alternateColour; tap OK; tap Menu; tap Options...; tap alternateColour; "
            "tap Cancel"_s,
            u"tap Menu; tap Options...; see landscape: ticked; see landscapeLeft: ticked; "
            "see alternateColour: ticked"_s);
        const QString ticked = u"tap Menu; see List Properties..., Rename List, Import List..., "
                               "Export List..., Delete List..., Delete All Records..., %1, "
                               "Options..., About..."_s;
        add("lists are opened read-only", u"Attic"_s, u"tap Menu; tap Open Read Only"_s,
            ticked.arg(u"*Open Read Only"_s) + u"; press Esc; tap Attic; cannot New"_s);
        add("and not any more", u"Attic"_s,
            u"tap Menu; tap Open Read Only; tap Menu; tap Open Read Only"_s,
            ticked.arg(u"Open Read Only"_s));
    }

    void whatIsDoneIsThereAfterARestart()
    {
        const auto [lists, done, seen] = Table<QString, QString, QString>::Row();
        FrameErrand errand(lists.split(u' ', Qt::SkipEmptyParts));
        Act(done);
        errand.Restart();
        Act(seen);
    }

    void listsAndRowsAreDeletedOnlyOnYes()
    {
        FrameErrand errand(u"Pantry"_s, "Tea\t3\r\n");
        const QString deleteRows = u"tap Menu; tap Delete All Records...; "
                                   "see Do you want to delete all rows in list 'Pantry'?; "_s;
        Act(u"tap OK; tap Menu; tap Delete List...; "
            "see Do you want to delete list 'Pantry' and all its data?; tap No; see Pantry; "_s
            + deleteRows + u"tap No"_s);
        QCOMPARE(errand.ListsAtEnd(), u"Pantry 1"_s);
        errand.Start();
        Act(deleteRows + u"tap Yes; see Pantry"_s);
        QCOMPARE(errand.ListsAtEnd(), u"Pantry 0"_s);
    }

    void aLaterStartOpensTheListItNames()
    {
        FrameErrand errand;
        errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
        errand.Start(u"Attic"_s);
        Act(u"at Attic"_s);
        QCOMPARE(errand.frame->TakeStartRequest({ u"Cellar"_s, {} }), StartAnswer::UnknownList);
        Act(u"at Attic"_s);
        QCOMPARE(errand.frame->TakeStartRequest({ u"Pantry"_s, {} }), StartAnswer::Done);
        Act(u"at Pantry; tap OK; on Pantry"_s);
        // One that comes while the data file is asked for waits for it.
        FrameErrand first;
        MakeLists(first.DataPath(), { u"Pantry"_s });
        errand.frame.reset();
        first.Start();
        QCOMPARE(first.frame->TakeStartRequest({ u"Pantry"_s, {} }), StartAnswer::Done);
        Act(u"tap OK; at Pantry"_s);
    }

    void theSelectedListIsExported()
    {
        FrameErrand errand({ u"Pantry"_s });
        Act(u"tap Menu; tap Export List..."_s);
        auto* dialog = errand.frame->findChild<QFileDialog*>();
        QVERIFY(dialog != nullptr);
        dialog->setDirectory(QFileInfo(errand.DataPath()).path());
        dialog->selectFile(u"pantry"_s);
        const QString path = QFileInfo(errand.DataPath()).dir().filePath(u"pantry.txt"_s);
        WriteFileBytes(path, "another's");
        for (const QString& answer : { u"tap No"_s, u"tap Yes"_s }) {
            QCOMPARE(FileBytes(path), "another's"_ba);
            QTimer::singleShot(0, dialog, [answer] { Act(answer); });
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        }
        QTRY_COMPARE(FileBytes(path), "\xff\xfe"_ba);
        // The list is free for other commands again.
        Act(u"tap Pantry; at Pantry"_s);
    }

    void landscapeLastsAsLongAsTheListIsShown()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.frame->resize(300, 500);
        Act(u"tap Menu; tap Options...; tap landscape; tap OK"_s);
        // One that is wide already, or has no room to become so, stays as it is.
        const QSize screen = errand.frame->screen()->availableSize();
        for (const auto& [size, shown] :
            { std::pair { QSize(300, 500), QSize(500, 300) }, { QSize(600, 400), QSize(600, 400) },
                { screen + QSize(0, 100), screen + QSize(0, 100) } }) {
            errand.frame->resize(size);
            Act(u"tap Pantry; at Pantry"_s);
            QCOMPARE(errand.frame->size(), shown);
            Act(u"tap OK; at nothing"_s);
            QCOMPARE(errand.frame->size(), size);
        }
        errand.frame->resize(420, 500);
        errand.Restart();
        QCOMPARE(errand.frame->size(), QSize(420, 500));
    }

    void anImportAsksForTheOrderAndShowsTheRows()
    {
        FrameErrand errand({ u"Pantry"_s });
        for (const QString& end : { u"tap Cancel; see Pantry"_s,
                 u"tap OK; at Pantry; see Salt, Tea; see Quantity: 5, 3"_s }) {
            errand.Import("3\tTea\r\n5\tSalt\r\nno end");
            Act(u"at Import Column Order; tap Move Down; "_s + end);
        }
    }

    void aPipeIsNoTextFile()
    {
        FrameErrand errand({ u"Pantry"_s });
        const QString pipe = QFileInfo(errand.DataPath()).path() + u"/pipe.txt"_s;
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        // Whoever opens one end waits for the other.
        errand.ChooseFileFor(u"Export List..."_s, pipe);
        Act(u"see The file could not be written: It is no plain file.; tap OK; see Pantry"_s);
        errand.ChooseFileFor(u"Import List..."_s, pipe);
        Act(u"tap OK; see Import is completed with errors. Data may not be imported properly.; "
            "tap OK; at Pantry"_s);
    }

    void helpOpensAtThePageItWasAskedFrom()
    {
        const FrameErrand errand(QStringList {});
        for (const auto& [steps, anchor] : { std::pair { u"press F1"_s, u"Main_Contents"_s },
                 { u"tap New; tap ?"_s, u"newlist"_s } }) {
            Act(steps);
            const auto* text = errand.pages->Top()->findChild<QTextBrowser*>();
            QVERIFY(text != nullptr);
            QCOMPARE(text->source().fragment(), anchor);
            QTRY_VERIFY(text->verticalScrollBar()->value() > 0);
            Act(u"tap OK"_s);
        }
    }
};

QUILLORY_TEST(QApplication, MainFrameTest)
#include "main_frame_test.moc"
