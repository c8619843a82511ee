// SPDX-License-Identifier: MIT
#include "tests/limit.h"
#include "tests/main_frame_errand.h"
#include "tests/page_damage.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QTableView>
#include <QTimer>

namespace {

/// Taps the button of a bar that shows how far work is; false if it is not seen.
bool TapCancel(const QProgressDialog* progress)
{
    if (progress == nullptr || !progress->isVisible())
        return false;
    QTest::mouseClick(progress->findChild<QAbstractButton*>(), Qt::LeftButton);
    return true;
}

} // namespace

class MainFrameSafetyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDeletedListComesBack()
    {
        FrameErrand errand({ u"Attic"_s, u"Pantry"_s });
        Act(kDeleteList);
        auto* bar = errand.pages->Top()->findChild<QWidget*>(u"undoBar"_s);
        QVERIFY(bar->isVisible());
        const auto* keys = errand.pages->Top()->findChild<QWidget*>(u"softKeys"_s);
        QCOMPARE(bar->geometry().bottom() + 1, keys->y());
        Act(u"tap undo; see Attic, Pantry; on Attic"_s);
        QVERIFY(!bar->isVisible());
        // The offer goes of itself, and the keys undo all the same.
        bar->findChild<QTimer*>()->setInterval(1);
        Act(kDeleteList);
        QTRY_VERIFY(!bar->isVisible());
        Act(u"see Pantry; press Ctrl+Z; see Attic, Pantry"_s);
        QCOMPARE(errand.ListsAtEnd(), u"Attic 0, Pantry 0"_s);
    }

    void deletedRowsComeBackWhereTheyMayBeWritten()
    {
        const FrameErrand errand(u"Pantry"_s, "Tea\t3\r\nSalt\t5\r\n");
        const QString deleteRow = u"press Del; tap Yes; see Tea; "_s;
        Act(deleteRow + u"press Ctrl+Z; see Salt, Tea; on Salt"_s);
        QVERIFY(!errand.pages->Top()->findChild<QWidget*>(u"undoBar"_s)->isVisible());
        Act(deleteRow
            + u"tap OK; tap Menu; tap Open Read Only; tap Pantry; press Ctrl+Z; see Tea; "
              "tap OK; tap Menu; tap Open Read Only; tap Pantry; press Ctrl+Z; see Salt, Tea"_s);
        // All of them, deleted from outside the list and brought back inside it.
        Act(u"tap OK; tap Menu; tap Delete All Records...; tap Yes; "
            "tap Pantry; see nothing; press Ctrl+Z; see Salt, Tea"_s);
    }

    void aFailedWriteIsToldOnceAndWorkGoesOn()
    {
        FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
        const QString away = errand.DataPath() + u".away"_s;
        // As when the card is pulled out, and put back.
        QVERIFY(QFile::rename(errand.DataPath(), away));
        const QString rename = u"press F2; type Barn; press Return; "_s;
        Act(u"press End; "_s + rename + u"tap Cancel; see Attic, Zoo; on Zoo; "_s + rename
            + u"see The change could not be saved…"_s);
        QVERIFY(QFile::rename(away, errand.DataPath()));
        Act(u"tap Retry; see Attic, Zoo; on Zoo; "_s + kDeleteList);
        QCOMPARE(errand.ListsAtEnd(), u"Attic 0"_s);
    }

    void whatCouldNotBeStoredIsTypedOnlyOnce()
    {
        const FrameErrand errand({ u"Pantry"_s });
        const QString away = errand.DataPath() + u".away"_s;
        Act(u"tap Pantry; tap New; type Tea"_s);
        QVERIFY(QFile::rename(errand.DataPath(), away));
        Act(u"tap OK"_s);
        QVERIFY(QFile::rename(away, errand.DataPath()));
        Act(u"tap Retry; see valueEdit: Tea; tap OK; see Tea; at Pantry"_s);
    }

    void aSheetThatCouldNotBeStoredComesBack()
    {
        for (const auto& [command, lists] : { std::pair(u"tap New"_s, u"Attic 0, Pantry 0"_s),
                 std::pair(u"tap Menu; tap List Properties..."_s, u"Pantry 0"_s) }) {
            FrameErrand errand({ u"Attic"_s });
            Act(command + u"; fill listName: Pantry"_s);
            QStringList told;
            {
                // For the journal of a new list there is room, not for the list.
                const bool isNew = command == u"tap New";
                const auto size = static_cast<rlim_t>(FileBytes(errand.DataPath()).size());
                const NoRoom full(isNew ? size : 512);
                Act(u"tap OK"_s);
                QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
                while (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    // One at a time, and the one that is seen has the keyboard.
                    QTRY_VERIFY(box->isAncestorOf(QApplication::focusWidget()));
                    told << box->text().left(10);
                    QTest::keyClick(box, Qt::Key_Escape);
                    QCoreApplication::processEvents();
                }
            }
            QCOMPARE(told.last(), u"The change"_s);
            QCOMPARE(told.count(u"The change"_s), 1);
            Act(u"see listName: Pantry"_s);
            QVERIFY(errand.pages->Top()->HasUnsavedInput());
            Act(u"tap OK; see "_s + QString(lists).remove(u" 0"_s));
            QCOMPARE(errand.ListsAtEnd(), lists);
        }
    }

    void whatWasChangedBeforeAWriteFailedIsKept()
    {
        FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
        Act(kDeleteList + u"; tap Zoo"_s);
        auto* header = errand.pages->Top()->findChild<QTableView*>()->horizontalHeader();
        header->resizeSection(0, header->sectionSize(0) + 10);
        {
            const NoRoom full;
            QVERIFY(!errand.frame->close());
        }
        Act(u"tap Cancel"_s);
        QTRY_VERIFY(!errand.frame->isVisible());
        QCOMPARE(errand.NewestCopy(), u"Zoo 0"_s);
    }

    void aFileReplacedUnderAnEditorTakesWhatIsTyped()
    {
        FrameErrand errand;
        errand.MakeLists({ u"Pantry"_s });
        const QString older = errand.DataPath() + u".older"_s;
        QVERIFY(QFile::copy(errand.DataPath(), older));
        errand.Start();
        errand.Import("Rice\t2\r\nSalt\t5\r\n");
        Act(u"tap OK; see Rice, Salt; press Del; tap Yes; tap New; type Tea"_s);
        errand.ReplaceDataFile(older);
        Act(u"tap OK; tap Retry; see Another file was put in the place of the data file. "
            "The old one is kept as a copy…"_s);
        QCOMPARE(errand.NewestCopy(), u"Pantry 1"_s);
        // Nothing that was deleted from the old one comes back in this one.
        Act(u"tap OK; see valueEdit: Tea; tap OK; see Tea; press Ctrl+Z; see Tea"_s);
        QVERIFY(!errand.pages->Top()->findChild<QWidget*>(u"undoBar"_s)->isVisible());
    }

    void cancelledWorkEndsWhereItIs()
    {
        // Until it takes so long that it shows how far it is.
        bool isCancelled = false;
        for (int rows = 200'000; !isCancelled && rows <= 6'400'000; rows *= 2) {
            FrameErrand errand({ u"Pantry"_s });
            errand.Import(QByteArray("Tea\t3\r\n").repeated(rows));
            QTimer timer;
            timer.callOnTimeout([&] {
                isCancelled = isCancelled || TapCancel(errand.frame->findChild<QProgressDialog*>());
            });
            timer.start(0);
            Act(u"tap OK"_s);
            timer.stop();
            if (!isCancelled)
                continue;
            const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            const QString told = box->text();
            Act(u"tap OK"_s);
            const QString count = errand.ListsAtEnd().section(u' ', 1);
            QVERIFY(told.startsWith(u"The import was cancelled. %1 row"_s.arg(count)));
            // Not when the last one was in.
            isCancelled = count.toInt() < rows;
        }
        QVERIFY(isCancelled);
    }

    void aCopyThatCannotBeKeptIsTold()
    {
        const FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
        WriteFileBytes(errand.CopiesFolder(), {});
        Act(kDeleteList);
        QVERIFY(!errand.frame->close());
        Act(u"see No copy of the data file could be kept. Error: 5; tap OK"_s);
        QTRY_VERIFY(!errand.frame->isVisible());
    }

    void aDamagedFileIsReplacedByItsCopyOrItsRest_data()
    {
        const Table<QString> add;
        add("nothing", u"tap No; tap No"_s);
        add("copy", u"see The data file is damaged. There is a good copy of…; tap Yes"_s);
        add("rest",
            u"tap No; see What can still be read of the damaged file: 0 row(s), 1 list(s).…; tap Yes"_s);
    }
    void aDamagedFileIsReplacedByItsCopyOrItsRest()
    {
        const auto [steps] = Table<QString>::Row();
        FrameErrand errand({ u"Attic"_s, u"Barn"_s, u"Zoo"_s });
        Act(kDeleteList);
        errand.Restart();
        // The newest copy it is.
        Act(kDeleteList);
        QCOMPARE(errand.ListsAtEnd(), u"Zoo 0"_s);
        WriteFileBytes(errand.DataPath(), FileBytes(errand.DataPath()).replace(40, 8, "xxxxxxxx"));

        errand.chosenPath = errand.DataPath() + u".new.idb"_s;
        errand.Start();
        WriteFileBytes(errand.chosenPath, {});
        Act(u"see Unable to open data file. Error: 1392; tap OK; "_s + steps);
        if (steps.endsWith(u"No"_s)) {
            QTRY_VERIFY(!errand.frame->isVisible());
            return;
        }
        Act(u"see The new file could not be written. Error: 80"_s);
        QVERIFY(QFile::remove(errand.chosenPath));
        Act(u"tap OK; see Zoo"_s);
        errand.Restart();
        Act(u"see Zoo"_s);
    }

    void aListReadInPartSaysSo()
    {
        // Where the order of names is lost, the rows can be exported all the same.
        for (const auto& [page, told] :
            { std::pair(kIndexLeaf, QStringList { u"are shown"_s, u"are shown"_s }),
                std::pair(kTableLeaf, QStringList { u"summed up"_s, u"are in the file"_s }) }) {
            QByteArray rows;
            for (int i = 0; i < 1000; ++i)
                rows += "Row " + QByteArray::number(10'000 + i) + "\t1\r\n";
            FrameErrand errand(u"Pantry"_s, rows);
            Act(u"tap OK"_s);
            QCOMPARE(errand.ListsAtEnd(), u"Pantry 1000"_s);
            DamagePage(errand.DataPath(), page, u"Row 10500"_s);
            errand.Start();
            QStringList heard;
            const auto hear = [&heard] {
                QCoreApplication::processEvents();
                while (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    if (box->text().contains(u"in part"_s))
                        heard << box->text();
                    Act(u"tap OK"_s);
                }
            };
            for (const QString& steps : { u"tap Pantry"_s, u"tap Menu; tap View Summary..."_s,
                     u"tap OK; tap Menu; tap Find...; type Row; press Return"_s }) {
                Act(steps);
                hear();
            }
            Act(u"tap OK; tap Menu; tap Set Filters...; tap Add; fill valueEdit: Row; tap OK; tap OK"_s);
            const auto* left = errand.pages->Top()->findChild<QLabel*>(u"filterText"_s);
            QCOMPARE(left->text().section(u' ', 0, 0), left->text().section(u' ', 2, 2));
            while (errand.pages->Depth() > 1)
                Act(u"tap OK"_s);
            errand.ChooseFileFor(u"Export List..."_s, errand.DataPath() + u".txt"_s);
            hear();
            QCOMPARE(heard.size(), told.size());
            for (qsizetype i = 0; i < told.size(); ++i)
                QVERIFY2(heard.at(i).contains(told.at(i)), qPrintable(heard.at(i)));
        }
    }
};

QUILLORY_TEST(QApplication, MainFrameSafetyTest)
#include "main_frame_safety_test.moc"
