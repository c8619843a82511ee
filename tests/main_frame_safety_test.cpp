// SPDX-License-Identifier: MIT
#include "store/kept_copies.h"
#include "tests/main_frame_errand.h"
#include "tests/page_damage.h"
#include "tests/test_program.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>

#include <sys/resource.h>

#include <csignal>
#include <optional>

namespace {

/// Puts a file in the place of the data file, as programs do that keep folders alike.
void Replace(const FrameErrand& errand, const QString& by)
{
    QVERIFY(QFile::remove(errand.DataPath()));
    QVERIFY(QFile::rename(by, errand.DataPath()));
}

/// No file grows while it lives, as on a full disk.
class NoRoom
{
public:
    NoRoom()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit none { 512, m_before.rlim_max };
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoRoom() { setrlimit(RLIMIT_FSIZE, &m_before); }
    NoRoom(const NoRoom&) = delete;
    NoRoom& operator=(const NoRoom&) = delete;

private:
    rlimit m_before {};
};

/// The lists of the newest kept copy and how many rows each has.
QString NewestCopy(const FrameErrand& errand)
{
    const auto copies = ListKeptCopies(errand.DataPath(), errand.CopiesFolder());
    return copies.empty() ? u"no copy"_s : ListsIn(copies.front().path);
}

} // namespace

class MainFrameSafetyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDeletedListComesBack()
    {
        FrameErrand errand({ u"Attic"_s, u"Pantry"_s });
        errand.Choose(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        auto* bar = errand.home->findChild<QWidget*>(u"undoBar"_s);
        QVERIFY(bar->isVisible());
        QTest::mouseClick(bar->findChild<QWidget*>(u"undo"_s), Qt::LeftButton);
        QVERIFY(!bar->isVisible());
        QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
        QCOMPARE(errand.home->SelectedName(), u"Attic"_s);
        // The offer goes of itself, and the keys undo all the same.
        bar->findChild<QTimer*>()->setInterval(1);
        errand.Choose(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        QTRY_VERIFY(!bar->isVisible());
        errand.ComeBack();
        QTest::keyClick(errand.view, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
        errand.Restart();
        QCOMPARE(errand.Lines(), u"Attic, Pantry"_s);
    }

    void aDeletedRowComesBack()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.Import("Tea\t3\r\nSalt\t5\r\n");
        errand.PressOk();
        Page* rows = errand.pages->Top();
        auto* table = rows->findChild<QTableView*>();
        rows->Trigger(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        QCOMPARE(table->model()->rowCount(), 1);
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(table->model()->rowCount(), 2);
        QCOMPARE(table->currentIndex().data().toString(), u"Salt"_s);
        QVERIFY(!rows->findChild<QWidget*>(u"undoBar"_s)->isVisible());
        // All of them, deleted from outside the list and brought back inside it.
        errand.PressOk();
        errand.Choose(Command::DeleteAllRecords);
        errand.Answer(QMessageBox::Yes);
        errand.Tap(0);
        table = errand.pages->Top()->findChild<QTableView*>();
        QCOMPARE(table->model()->rowCount(), 0);
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(table->model()->rowCount(), 2);
    }

    void nothingComesBackIntoAListThatIsOnlyRead()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.Import("Tea\t3\r\nSalt\t5\r\n");
        errand.PressOk();
        errand.pages->Top()->Trigger(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        errand.ComeBack();
        QTest::keyClick(errand.frame->windowHandle(), Qt::Key_Escape);
        QCOMPARE(errand.pages->Top(), errand.home);
        errand.Choose(Command::OpenReadOnly);
        errand.Tap(0);
        const auto* model = errand.pages->Top()->findChild<QTableView*>()->model();
        QTest::keyClick(errand.frame->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(model->rowCount(), 1);
        // It does once the list may be written again.
        QTest::keyClick(errand.frame->windowHandle(), Qt::Key_Escape);
        errand.Choose(Command::OpenReadOnly);
        errand.Tap(0);
        model = errand.pages->Top()->findChild<QTableView*>()->model();
        QTest::keyClick(errand.frame->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(model->rowCount(), 2);
    }

    void aFailedWriteIsToldOnceAndWorkGoesOn()
    {
        FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
        const QString away = errand.DataPath() + u".away"_s;
        // As when the card is pulled out, and put back.
        QVERIFY(QFile::rename(errand.DataPath(), away));
        errand.Tap(1);
        QTest::keyClick(errand.pages->Top(), Qt::Key_Escape);
        errand.Answer(QMessageBox::Cancel);
        QCOMPARE(errand.Lines(), u"Attic, Zoo"_s);
        errand.Tap(1);
        QTest::keyClick(errand.pages->Top(), Qt::Key_Escape);
        QVERIFY(QFile::rename(away, errand.DataPath()));
        errand.Answer(QMessageBox::Retry);
        QVERIFY(errand.question.contains(u"could not be saved"_s));
        QCOMPARE(errand.Lines(), u"Attic, Zoo"_s);
        errand.Choose(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        errand.Restart();
        QCOMPARE(errand.Lines(), u"Attic"_s);
    }

    void whatCouldNotBeStoredIsTypedOnlyOnce()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.Tap(0);
        Page* rows = errand.pages->Top();
        rows->Trigger(Command::New);
        QTest::keyClicks(QApplication::focusWidget(), u"Tea"_s);
        const QString away = errand.DataPath() + u".away"_s;
        QVERIFY(QFile::rename(errand.DataPath(), away));
        errand.PressOk();
        QVERIFY(errand.pages->Top() != rows);
        QVERIFY(QFile::rename(away, errand.DataPath()));
        errand.Answer(QMessageBox::Retry);
        errand.PressOk();
        QCOMPARE(errand.pages->Top(), rows);
        const auto* model = rows->findChild<QTableView*>()->model();
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(model->index(0, 0).data().toString(), u"Tea"_s);
    }

    void aSheetThatCouldNotBeStoredComesBack()
    {
        for (const auto& [command, lists] : { std::pair(Command::New, u"Attic 0, Pantry 0"_s),
                 std::pair(Command::ListProperties, u"Pantry 0"_s) }) {
            FrameErrand errand({ u"Attic"_s });
            errand.Choose(command);
            auto* field = errand.pages->Top()->findChild<QLineEdit*>(u"listName"_s);
            field->selectAll();
            QTest::keyClicks(field, u"Pantry"_s);
            QStringList told;
            {
                const NoRoom full;
                errand.PressOk();
                QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
                while (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                    // One at a time, and the one that is seen has the keyboard.
                    QVERIFY(box->isAncestorOf(QApplication::focusWidget()));
                    told << box->text().left(10);
                    QTest::keyClick(box, Qt::Key_Escape);
                    QCoreApplication::processEvents();
                }
            }
            QCOMPARE(told.last(), u"The change"_s);
            QCOMPARE(told.count(u"The change"_s), 1);
            field = errand.pages->Top()->findChild<QLineEdit*>(u"listName"_s);
            QVERIFY(field != nullptr);
            QCOMPARE(field->text(), u"Pantry"_s);
            QVERIFY(errand.frame->HasUnsavedInput());
            errand.ComeBack();
            errand.PressOk();
            QVERIFY(errand.frame->close());
            errand.frame.reset();
            QCOMPARE(ListsIn(errand.DataPath()), lists);
        }
    }

    void closingIsNotHeldUpByAFailingWrite()
    {
        for (const bool isGone : { true, false }) {
            FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
            if (!isGone) {
                errand.Choose(Command::Delete);
                errand.Answer(QMessageBox::Yes);
            }
            errand.Tap(0);
            auto* header = errand.pages->Top()->findChild<QTableView*>()->horizontalHeader();
            header->resizeSection(0, header->sectionSize(0) + 10);
            std::optional<NoRoom> full;
            if (isGone)
                QVERIFY(QFile::remove(errand.DataPath()));
            else
                full.emplace();
            QVERIFY(!errand.frame->close());
            full.reset();
            errand.Answer(QMessageBox::Cancel);
            QVERIFY(errand.question.contains(u"could not be saved"_s));
            QTRY_VERIFY(!errand.frame->isVisible());
            QVERIFY(QApplication::activeModalWidget() == nullptr);
            // What was changed before it failed is worth a copy.
            QCOMPARE(NewestCopy(errand), isGone ? u"no copy"_s : u"Zoo 0"_s);
        }
    }

    void aFileReplacedUnderAnEditorTakesWhatIsTyped()
    {
        FrameErrand errand;
        errand.MakeLists({ u"Pantry"_s });
        const QString older = errand.DataPath() + u".older"_s;
        QVERIFY(QFile::copy(errand.DataPath(), older));
        errand.Start();
        errand.Import("Rice\t2\r\nSalt\t5\r\n");
        errand.PressOk();
        Page* rows = errand.pages->Top();
        const auto* model = rows->findChild<QTableView*>()->model();
        QCOMPARE(model->rowCount(), 2);
        rows->Trigger(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        rows->Trigger(Command::New);
        QTest::keyClicks(QApplication::focusWidget(), u"Tea"_s);
        Replace(errand, older);
        errand.PressOk();
        errand.Answer(QMessageBox::Retry);
        errand.Answer(QMessageBox::Ok);
        QVERIFY(errand.question.contains(u"kept as a copy"_s));
        QCOMPARE(NewestCopy(errand), u"Pantry 1"_s);
        QCOMPARE(model->rowCount(), 0);
        errand.PressOk();
        QCOMPARE(errand.pages->Top(), rows);
        // Nothing that was deleted from the old one comes back in this one.
        errand.ComeBack();
        QTest::keyClick(rows->findChild<QTableView*>(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(model->rowCount(), 1);
        QCOMPARE(model->index(0, 0).data().toString(), u"Tea"_s);
    }

    void aFileThatIsGoneBeforeTheEndIsTold()
    {
        enum Mischief
        {
            Replaced,
            Removed,
            FolderRemoved,
        };
        for (const Mischief mischief : { Replaced, Removed, FolderRemoved }) {
            FrameErrand errand;
            errand.MakeLists({ u"Attic"_s, u"Zoo"_s });
            const QString older = errand.DataPath() + u".older"_s;
            QVERIFY(QFile::copy(errand.DataPath(), older));
            errand.Start();
            errand.Choose(Command::Delete);
            errand.Answer(QMessageBox::Yes);
            if (mischief == Replaced)
                Replace(errand, older);
            else if (mischief == Removed)
                QVERIFY(QFile::remove(errand.DataPath()));
            else // With the card it lies on.
                QVERIFY(QDir(QFileInfo(errand.DataPath()).path()).removeRecursively());
            QVERIFY(!errand.frame->close());
            errand.Answer(QMessageBox::Ok);
            QVERIFY(errand.question.contains(
                mischief == FolderRemoved ? u"no longer in its place"_s : u"kept as a copy"_s));
            QTRY_VERIFY(!errand.frame->isVisible());
            if (mischief != FolderRemoved)
                QCOMPARE(NewestCopy(errand), u"Zoo 0"_s);
            errand.frame.reset();
            if (mischief == Replaced)
                QCOMPARE(ListsIn(errand.DataPath()), u"Attic 0, Zoo 0"_s);
        }
    }

    void aCopyThatCannotBeKeptIsTold()
    {
        FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
        errand.Choose(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        WriteFileBytes(errand.CopiesFolder(), {});
        QVERIFY(!errand.frame->close());
        errand.Answer(QMessageBox::Ok);
        QCOMPARE(errand.question, u"No copy of the data file could be kept. Error: 5"_s);
        QTRY_VERIFY(!errand.frame->isVisible());
    }

    void aDamagedFileIsReplacedByItsCopy()
    {
        FrameErrand errand({ u"Attic"_s, u"Zoo"_s });
        errand.Choose(Command::Delete);
        errand.Answer(QMessageBox::Yes);
        QVERIFY(errand.frame->close());
        errand.frame.reset();
        WriteFileBytes(errand.DataPath(), FileBytes(errand.DataPath()).replace(40, 8, "xxxxxxxx"));

        errand.chosenPath = errand.DataPath() + u".new.idb"_s;
        errand.Start();
        errand.Answer(QMessageBox::Ok);
        QCOMPARE(errand.question, u"Unable to open data file. Error: 1392"_s);
        errand.Answer(QMessageBox::Yes);
        QTRY_COMPARE(errand.Lines(), u"Zoo"_s);
        errand.Restart();
        QCOMPARE(errand.Lines(), u"Zoo"_s);
    }

    void aListReadInPartSaysSo()
    {
        // Where the order of names is lost, the rows can be exported all the same.
        for (const auto& [page, told] :
            { std::pair(kIndexLeaf, QStringList { u"are shown"_s, u"are shown"_s }),
                std::pair(kTableLeaf, QStringList { u"summed up"_s, u"are in the file"_s }) }) {
            FrameErrand errand({ u"Pantry"_s });
            QByteArray rows;
            for (int i = 0; i < 1000; ++i)
                rows += "Row " + QByteArray::number(10'000 + i) + "\t1\r\n";
            errand.Import(rows);
            errand.PressOk();
            errand.Restart();
            errand.frame.reset();
            DamagePage(errand.DataPath(), page, u"Row 10500"_s);
            errand.Start();
            QStringList heard;
            const auto hear = [&] {
                QCoreApplication::processEvents();
                while (QApplication::activeModalWidget() != nullptr) {
                    errand.Answer(QMessageBox::Ok);
                    if (errand.question.contains(u"in part"_s))
                        heard << errand.question;
                }
                errand.ComeBack();
            };
            errand.Tap(0);
            hear();
            errand.Choose(Command::ViewSummary);
            hear();
            errand.PressOk();
            errand.Choose(Command::Find);
            QTest::keyClicks(QApplication::focusWidget(), u"Row"_s);
            QTest::keyClick(errand.frame->windowHandle(), Qt::Key_Return);
            hear();
            while (errand.pages->Depth() > 1)
                errand.PressOk();
            errand.ChooseFileFor(Command::Export, errand.DataPath() + u".txt"_s);
            hear();
            QCOMPARE(heard.size(), told.size());
            for (qsizetype i = 0; i < told.size(); ++i)
                QVERIFY2(heard.at(i).contains(told.at(i)), qPrintable(heard.at(i)));
        }
    }
};

QUILLORY_TEST(QApplication, MainFrameSafetyTest)
#include "main_frame_safety_test.moc"
