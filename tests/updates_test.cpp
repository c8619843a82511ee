// SPDX-License-Identifier: MIT
#include "cli/command_line.h"
#include "tests/main_frame_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QScrollBar>
#include <QTableView>
#include <QTextBrowser>

namespace {

const QStringList kStock { u"Name=Rice Quantity=1"_s, u"Name=Salt Quantity=5"_s,
    u"Name=Tea Quantity=3"_s };
const QString kHearUpdate = u"hear Updated from another device; "_s;

void Run(const QString& path, const QString& command)
{
    QCOMPARE(RunCommandLine(command.split(u' ') + QStringList { u"--data"_s, path }), 0);
}

/// A window on a file that an earlier run left, and a second device that has the file as well.
class TwoDevices : public FrameErrand
{
public:
    explicit TwoDevices(const QStringList& rows = kStock)
    {
        MakeLists({ u"Pantry"_s, u"Tools"_s });
        for (const QString& row : rows)
            Run(DataPath(), u"add Pantry "_s + row);
        QVERIFY(QFile::copy(DataPath(), Other()));
        Start();
    }
    QString Other() const { return DataPath() + u".other"_s; }
    /// What is done on the other device comes here.
    void DoElsewhere(const QString& command) const
    {
        Run(Other(), command);
        ReplaceDataFile(Other());
    }
};

} // namespace

class UpdatesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anothersVersionIsShownWhereTheWindowIs_data()
    {
        const Table<QString, QString, QString> add;
        const QString addSoap = u"add Pantry Name=Soap Quantity=4"_s;
        add("lists", u"press End"_s, u"new Attic --create"_s,
            u"see Attic, Pantry, Tools; on Tools"_s);
        add("a name being typed", u"press End F2; type Barn"_s, u"new Attic --create"_s,
            u"see Attic, Barn, Pantry; on Barn"_s);
        add("rows in order", u"tap Pantry; tap Quantity; tap Salt"_s, addSoap,
            u"see Rice, Tea, Soap, Salt; on Salt"_s);
        add("a selected row that is gone", u"tap Pantry; tap Salt"_s,
            u"delete Pantry --where Name=Salt"_s, u"see Rice, Tea; on Tea"_s);
        add("a name of the list", u"tap Pantry"_s, u"rename Pantry Larder"_s, u"at Larder"_s);
        add("a list that is gone", u"tap Pantry"_s, u"remove Pantry"_s, u"see Tools; on Tools"_s);
        add("properties of a list", u"press Home Alt+Return; tap nextIcon"_s,
            u"rename Pantry Larder"_s, u"tap OK; see Larder, Tools"_s);
        add("properties of a list that is gone", u"press Home Alt+Return; tap nextIcon"_s,
            u"remove Pantry"_s,
            u"tap OK; see Another device has deleted this list.; press Escape"_s);
        add("results of a search",
            u"tap Pantry; tap Menu; tap Find...; type a; tap ok; see Salt, Tea"_s, addSoap,
            u"see Salt, Soap, Tea; tap ok; see Rice, Salt, Soap, Tea"_s);
        const QString edit = u"tap Pantry; tap Tea; press Return; type Mint"_s;
        add("a row being edited", edit, u"set Pantry --where Name=Tea Quantity=9"_s,
            u"see valueEdit: Mint; tap OK; see Rice, Salt, Mint; see Quantity: 1, 5, 9"_s);
        add("a row being edited that is gone", edit, u"delete Pantry --where Name=Tea"_s,
            u"tap OK; see Rice, Salt, Mint"_s);
        add("a row being made", u"tap Pantry; tap New; type Mint"_s, addSoap,
            u"tap OK; see Rice, Salt, Soap, Tea, Mint"_s);
    }
    void anothersVersionIsShownWhereTheWindowIs()
    {
        const auto [before, elsewhere, after] = Table<QString, QString, QString>::Row();
        const TwoDevices devices;
        Act(before);
        devices.DoElsewhere(elsewhere);
        Act(kHearUpdate + after);
        const Page* top = devices.pages->Top();
        QVERIFY(top->Title().isEmpty() || top->accessibleName() == top->Title());
    }

    void propertiesAreNotThoseOfAnotherListOfThatNumber()
    {
        const TwoDevices devices;
        const QString another = devices.DataPath() + u".another"_s;
        Run(another, u"new Cellar --create"_s);
        Act(u"press Home Alt+Return; fill listName: Larder"_s);
        devices.ReplaceDataFile(another);
        Act(kHearUpdate
            + u"tap OK; see Another device has deleted this list.; press Escape; press Escape; "
              "tap Yes; see Cellar"_s);
    }

    void anImportGoesIntoTheListThatIsThere()
    {
        TwoDevices devices;
        devices.Import("Oil\t2\r\n");
        devices.DoElsewhere(u"add Pantry Name=Soap"_s);
        Act(kHearUpdate + u"tap OK; see Oil, Rice, Salt, Soap, Tea"_s);
    }

    void rowsStayWhereTheyAreScrolledTo()
    {
        const TwoDevices devices(kStock + kStock + kStock);
        Act(u"size 360x300; tap Pantry; on Rice"_s);
        auto* rows = devices.pages->Top()->findChild<QTableView*>();
        const auto top = [rows] {
            const QModelIndex line = rows->indexAt({ 5, 5 });
            return std::pair(line.data().toString(), rows->visualRect(line).y());
        };
        rows->verticalScrollBar()->setValue(rows->verticalScrollBar()->maximum() - 3);
        const auto before = top();
        QVERIFY(before.second != 0);
        devices.DoElsewhere(u"add Pantry Name=Oil"_s);
        Act(kHearUpdate);
        QCOMPARE(top(), before);
    }

    void onlyAWholeFileIsShown()
    {
        const TwoDevices devices;
        Run(devices.Other(), u"remove Tools"_s);
        const QByteArray whole = FileBytes(devices.Other());
        const QString part = devices.Other() + u".part"_s;
        WriteFileBytes(part, whole.first(whole.size() - 4096));
        devices.ReplaceDataFile(part);
        QTest::qWait(500);
        Act(u"see Pantry, Tools"_s);
        QFile file(devices.DataPath());
        QVERIFY(file.open(QIODevice::Append));
        file.write(whole.last(4096));
        file.close();
        Act(kHearUpdate + u"see Pantry"_s);
    }

    void versionsAreBroughtTogetherIfThatIsWanted()
    {
        for (const bool isWanted : { true, false }) {
            const TwoDevices devices;
            Act(u"tap Pantry; tap New; type Oil; tap OK; see Rice, Salt, Tea, Oil"_s);
            devices.DoElsewhere(u"set Pantry --where Name=Tea Quantity=9"_s);
            Act(u"see Another device has changed the lists…; tap "_s
                + (isWanted ? u"Yes"_s : u"No"_s));
            if (isWanted) {
                Act(u"at Brought together"_s);
                QCOMPARE(devices.pages->Top()->findChild<QTextBrowser*>()->toPlainText(),
                    u"Pantry\nTea, Quantity: 9 came in the place of 3."_s);
                Act(u"tap OK; see Oil, Rice, Salt, Tea; see Quantity: 0, 1, 5, 9"_s);
            } else {
                Act(u"see Rice, Salt, Tea, Oil"_s);
                devices.frame->close();
                Act(u"see Another file was put in the place of the data file. The old one is "
                    u"kept…; "
                    "tap OK"_s);
                QCOMPARE(devices.NewestCopy(), u"Pantry 4, Tools 0"_s);
            }
            QVERIFY(Questions::Of(devices.frame.get()).IsIdle());
        }
    }

    void whatBothComeFromMayBeGone()
    {
        TwoDevices devices;
        Act(u"tap Pantry; tap New; type Oil; tap OK; see Rice, Salt, Tea, Oil"_s);
        QVERIFY(QDir(devices.CopiesFolder()).removeRecursively());
        devices.DoElsewhere(u"delete Pantry --where Name=Tea"_s);
        Act(u"see Another device has changed the lists…; tap Yes; at Brought together"_s);
        const QString text = devices.pages->Top()->findChild<QTextBrowser*>()->toPlainText();
        QVERIFY2(text.startsWith(u"What both come from was not known any more."), qPrintable(text));
        Act(u"tap OK; see Oil, Rice, Salt, Tea"_s);
    }

    void aVersionThatComesBeforeTheEndIsAskedAbout()
    {
        const TwoDevices devices;
        Act(u"tap Pantry; tap New; type Oil; tap OK; see Rice, Salt, Tea, Oil"_s);
        devices.DoElsewhere(u"delete Pantry --where Name=Tea"_s);
        devices.frame->close();
        Act(u"see Another device has changed the lists…; tap Yes; at Brought together; tap OK; "
            "tap Pantry; see Oil, Rice, Salt"_s);
        QVERIFY(devices.frame->close());
    }

    void aVersionBesideTheDataFileIsAskedAboutOnce()
    {
        TwoDevices devices;
        Act(u"tap Pantry; tap New; type Oil; tap OK; see Rice, Salt, Tea, Oil; press Esc"_s);
        QVERIFY(devices.frame->close());
        Run(devices.Other(), u"new Attic --create"_s);
        QVERIFY(QFile::rename(devices.Other(),
            QFileInfo(devices.DataPath()).path() + u"/Quillory.sync-conflict-20260615.idb"_s));
        devices.Start();
        Act(u"see Beside the data file lies another device's version…; tap Yes; "
            "at Brought together; tap OK; see Attic, Pantry, Tools"_s);
        devices.Restart();
        QTest::qWait(50);
        Act(u"see Attic, Pantry, Tools"_s);
    }
};

QUILLORY_TEST(QApplication, UpdatesTest)
#include "updates_test.moc"
