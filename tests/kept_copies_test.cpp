// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "store/kept_copies.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "tests/volume_fixture.h"

#include <QTimeZone>
#include <QtEndian>

#include <algorithm>
#include <filesystem>

namespace {

/// A data file, runs on it, and a folder for its copies.
class Runs
{
public:
    QString Folder() const { return QDir(m_folder.path()).filePath(u"state/copies"_s); }
    QString Path() const { return file.Path(); }

    /// A run that makes a list, some minutes after the last.
    KeepOutcome MakeList(const QString& name)
    {
        file.Restart();
        file.MakeFullList(name);
        return Keep();
    }
    KeepOutcome Keep() { return Take(TryToKeep()); }
    Result<KeepOutcome> TryToKeep()
    {
        now = now.addSecs(100);
        auto outcome = KeepCopy(*file.data, Path(), Folder(), now, keptCopies);
        // Nothing of it is on the disk.
        if (areLarge && outcome && *outcome == KeepOutcome::Kept)
            QFile::resize(Copies().front().path, kRoomForOlderCopies);
        return outcome;
    }
    History Contents() const { return Take(file.data->MountedVolume()->ReadHistory()); }
    std::vector<KeptCopy> Copies() const { return ListKeptCopies(Path(), Folder()); }
    /// Every file below the folder.
    qsizetype FileCount() const
    {
        qsizetype count = 0;
        for (const QString& set : QDir(Folder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            count += QDir(QDir(Folder()).filePath(set)).entryList(QDir::Files).size();
        return count;
    }

    ListFixture file;
    int keptCopies = 3;
    /// Copies are as large as may be for older ones to be kept.
    bool areLarge = false;
    QDateTime now { QDate(2026, 6, 15), QTime(12, 0), QTimeZone::utc() };

private:
    QTemporaryDir m_folder;
};

} // namespace

class KeptCopiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLastThreeOfALargeFileAreKept()
    {
        Runs runs;
        runs.areLarge = true;
        for (const QString& name : { u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s })
            QCOMPARE(runs.MakeList(name), KeepOutcome::Kept);
        const auto copies = runs.Copies();
        QCOMPARE(copies.size(), size_t { 3 });
        QCOMPARE(ListsIn(copies[0].path), u"a 0, b 0, c 0, d 0, e 0"_s);
        QCOMPARE(ListsIn(copies[2].path), u"a 0, b 0, c 0"_s);
        QCOMPARE(copies[0].time, runs.now);
        QCOMPARE(copies[1].time, runs.now.addSecs(-100));
        QCOMPARE(copies[0].bytes, QFileInfo(copies[0].path).size());
        QCOMPARE(copies[0].bytes, kRoomForOlderCopies);
        // The copies, and the file that says whose they are.
        QCOMPARE(runs.FileCount(), 4);
    }

    void smallCopiesAreKeptAsLongAsAFileKnowsThem()
    {
        Runs runs;
        QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
        const History early = runs.Contents();
        const auto makeLists = [&runs](int count) {
            for (int run = 0; run < count; ++run)
                QCOMPARE(
                    runs.MakeList(QString::number(runs.now.toSecsSinceEpoch())), KeepOutcome::Kept);
        };
        makeLists(60);
        const auto base = FindBase(runs.Path(), runs.Folder(), runs.Contents(), early);
        QVERIFY(base);
        QCOMPARE(ListsIn(base->path), u"a 0"_s);
        makeLists(10);
        QCOMPARE(runs.Copies().size(), History::kMostStates);
        QVERIFY(!FindBase(runs.Path(), runs.Folder(), runs.Contents(), early));
        // A large one takes the room of all.
        runs.areLarge = true;
        makeLists(1);
        QCOMPARE(runs.MakeList(u"b"_s), KeepOutcome::Kept);
        QCOMPARE(runs.Copies().size(), size_t { 3 });
    }

    void theLastThreeAreKeptWhenTheClockGoesBack()
    {
        Runs runs;
        runs.areLarge = true;
        const QDateTime right = runs.now;
        runs.now = right.addYears(10);
        for (const QString& name : { u"a"_s, u"b"_s, u"c"_s })
            QCOMPARE(runs.MakeList(name), KeepOutcome::Kept);
        runs.now = right;
        for (const QString& name : { u"d"_s, u"e"_s }) {
            QCOMPARE(runs.MakeList(name), KeepOutcome::Kept);
            QVERIFY(ListsIn(runs.Copies().front().path).endsWith(name + u" 0"_s));
        }
        QCOMPARE(ListsIn(runs.Copies().back().path), u"a 0, b 0, c 0"_s);
    }

    void aCopyIsKeptInTheHourThatSpringLeavesOut()
    {
        const QByteArray zone = qgetenv("TZ");
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        Runs runs;
        runs.now = QDateTime(QDate(2026, 3, 29), QTime(2, 30), QTimeZone::utc());
        QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
        const auto copies = runs.Copies();
        if (zone.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", zone);
        QCOMPARE(copies.size(), size_t { 1 });
        QCOMPARE(copies.front().time, runs.now);
    }

    void aRunThatChangedNothingKeepsNothing()
    {
        Runs runs;
        QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
        runs.file.Restart();
        QCOMPARE(runs.Keep(), KeepOutcome::NotNeeded);
        // Not even what was undone is a change.
        QVERIFY(runs.file.data->BeginTransaction());
        InventoryList list = NewInventoryList();
        QVERIFY(runs.file.catalogue->AddList(list) != kNoObject);
        QVERIFY(runs.file.data->EndTransaction(false));
        QCOMPARE(runs.Keep(), KeepOutcome::NotNeeded);
        // Nor are widths.
        runs.file.Restart();
        runs.file.list.TableColSizes = u"100,"_s;
        QVERIFY(runs.file.catalogue->UpdateListOptions(
            runs.file.catalogue->FindList(u"a"_s), runs.file.list));
        QCOMPARE(runs.Keep(), KeepOutcome::NotNeeded);
        QCOMPARE(runs.Copies().size(), size_t { 1 });
        runs.file.list.TableWarnStart = 4;
        QVERIFY(runs.file.catalogue->UpdateListOptions(
            runs.file.catalogue->FindList(u"a"_s), runs.file.list));
        QCOMPARE(runs.Keep(), KeepOutcome::Kept);
    }

    void theUserSaysHowManyAreKept()
    {
        Runs runs;
        runs.areLarge = true;
        for (const int count : { 2, 2, 2, 1, 0, 3 }) {
            runs.keptCopies = count;
            const auto before = static_cast<int>(runs.Copies().size());
            QCOMPARE(runs.MakeList(QString::number(runs.now.toSecsSinceEpoch())),
                count == 0 ? KeepOutcome::NotNeeded : KeepOutcome::Kept);
            QCOMPARE(static_cast<int>(runs.Copies().size()), std::min(before + 1, count));
        }
    }

    void copiesOfAFileThatIsGoneAreDropped()
    {
        Runs runs;
        QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
        Runs others;
        const auto runAfter = [&](int days) {
            others.now = others.now.addDays(days);
            others.file.Restart();
            others.file.MakeFullList(QString::number(others.now.toSecsSinceEpoch()));
            return Take(KeepCopy(*others.file.data, others.Path(), runs.Folder(), others.now, 3));
        };
        const QString aside = runs.Path() + u".aside"_s;
        QVERIFY(QFile::rename(runs.Path(), aside));
        // The days count from when it was missed, and anew once it was back.
        QCOMPARE(runAfter(400), KeepOutcome::Kept);
        QVERIFY(QFile::rename(aside, runs.Path()));
        QCOMPARE(runAfter(80), KeepOutcome::Kept);
        QVERIFY(QFile::rename(runs.Path(), aside));
        QCOMPARE(runAfter(80), KeepOutcome::Kept);
        QCOMPARE(runAfter(89), KeepOutcome::Kept);
        QCOMPARE(runs.Copies().size(), size_t { 1 });
        QCOMPARE(runAfter(1), KeepOutcome::Kept);
        QVERIFY(runs.Copies().empty());
        // Nothing else is.
        QCOMPARE(QDir(runs.Folder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
        QCOMPARE(ListKeptCopies(others.Path(), runs.Folder()).size(), size_t { 5 });
    }

    void aFolderThatCannotBeWrittenIsNoFailure()
    {
        Runs runs;
        // A file in the place of the folder stops every user, root included.
        QVERIFY(QDir().mkpath(QFileInfo(runs.Folder()).path()));
        WriteFileBytes(runs.Folder(), {});
        runs.file.MakeFullList(u"a"_s);
        QCOMPARE(runs.TryToKeep().Error(), ErrorNumber::AccessDenied);
        QVERIFY(runs.Copies().empty());
        QCOMPARE(Take(KeepCopy(*runs.file.data, runs.Path(), QString(), runs.now, 3)),
            KeepOutcome::NotNeeded);
        // The run goes on.
        QVERIFY(runs.file.Add({ u"row"_s }) != kNoObject);
    }

    void aDamagedFreePageIsTold()
    {
        Runs runs;
        runs.file.MakeFullList(u"a"_s);
        const std::vector<PropertySpec> specs { { PropName, u"Name"_s } };
        const std::vector<SortOrder> orders { { PropName } };
        QVERIFY(runs.file.data->DeleteDatabase(
            runs.file.data->Create(u"gone"_s, DatabaseType { 1 }, specs, orders)));
        static_cast<void>(runs.file.data->Unmount());
        // The header names the first page of the list of free ones, which names the others.
        QByteArray bytes = FileBytes(runs.Path());
        const auto number
            = [&](qsizetype place) { return qFromBigEndian<quint32>(bytes.constData() + place); };
        const auto page = [](quint32 at) { return (qsizetype { at } - 1) * kPageSize; };
        const qsizetype damaged = page(number(page(number(32)) + 8)) + 100;
        bytes[damaged] = static_cast<char>(bytes[damaged] ^ 1);
        WriteFileBytes(runs.Path(), bytes);
        runs.file.Restart();
        const ObjectId list = runs.file.catalogue->FindList(u"a"_s);
        QVERIFY(runs.file.catalogue->RenameList(list, u"b"_s));
        QCOMPARE(runs.TryToKeep().Error(), ErrorNumber::FileCorrupt);
        QCOMPARE(runs.FileCount(), 1);
    }

    void aCopyLeavesTheDiskSomeRoom()
    {
        Runs runs;
        for (const QString& name : { u"a"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s })
            QCOMPARE(runs.MakeList(name), KeepOutcome::Kept);
        QCOMPARE(runs.Copies().size(), size_t { 5 });
        runs.file.Restart();
        runs.file.MakeFullList(u"b"_s);
        // A file as long as there is room, hardly any of which is on the disk.
        const std::filesystem::path path(runs.Path().toStdString());
        const auto size = std::filesystem::file_size(path);
        std::error_code error;
        std::filesystem::resize_file(path, std::filesystem::space(path).available, error);
        if (error)
            QSKIP("there is more room than a file may be long");
        QCOMPARE(runs.TryToKeep().Error(), ErrorNumber::DiskFull);
        QCOMPARE(runs.Copies().size(), size_t { 3 });
        std::filesystem::resize_file(path, size);
        QCOMPARE(runs.Keep(), KeepOutcome::Kept);
    }

    void whatAnInterruptedRunLeftIsRemoved()
    {
        Runs runs;
        QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
        const QString left = runs.Copies().front().path + u".new-1234"_s;
        WriteFileBytes(left, {});
        QCOMPARE(runs.Copies().size(), size_t { 1 });
        QCOMPARE(runs.MakeList(u"b"_s), KeepOutcome::Kept);
        QVERIFY(!QFile::exists(left));
    }

    void whatAnotherDeviceHasSeenIsKeptAndFound()
    {
        Runs runs;
        runs.areLarge = true;
        const auto keepFound = [&runs] {
            return Take(KeepFound(*runs.file.data->MountedVolume(), runs.Path(), runs.Folder(),
                runs.now, runs.keptCopies));
        };
        QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
        // What this device left needs no copy.
        QCOMPARE(keepFound(), KeepOutcome::NotNeeded);
        const History shared = runs.Contents();
        runs.file.MakeFullList(u"from elsewhere"_s);
        QCOMPARE(keepFound(), KeepOutcome::Kept);
        QCOMPARE(keepFound(), KeepOutcome::NotNeeded);
        const History found = runs.Contents();
        for (int run = 0; run < 5; ++run)
            QCOMPARE(runs.MakeList(QString::number(run)), KeepOutcome::Kept);
        // The one of `shared` had gone before anybody asked.
        QCOMPARE(runs.Copies().size(), size_t { 4 });
        QVERIFY(!FindBase(runs.Path(), runs.Folder(), runs.Contents(), shared));
        const auto base = FindBase(runs.Path(), runs.Folder(), runs.Contents(), found);
        QVERIFY(base);
        QCOMPARE(ListsIn(base->path), u"a 0, from elsewhere 0"_s);
        QCOMPARE(HistoryOf(*base)->Latest(), found.Latest());
        QVERIFY(HistoryOf(*base)->CoversCommon(runs.Contents(), found));
        const auto latest = FindBase(runs.Path(), runs.Folder(), runs.Contents(), runs.Contents());
        QCOMPARE(latest->path, runs.Copies().front().path);
        runs.keptCopies = 0;
        QCOMPARE(keepFound(), KeepOutcome::NotNeeded);
        QCOMPARE(runs.MakeList(u"b"_s), KeepOutcome::NotNeeded);
        QCOMPARE(runs.FileCount(), 1);
    }

    void dataFilesHaveCopiesOfTheirOwn()
    {
        Runs runs;
        QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
        const QString other = runs.Path() + u".other.idb"_s;
        QVERIFY(ListKeptCopies(other, runs.Folder()).empty());
        // By another name of the same file its copies are found.
        const QString folder = QFileInfo(runs.Path()).path();
        const QString roundabout
            = folder + u"/../"_s + QFileInfo(folder).fileName() + u"/data.idb"_s;
        QCOMPARE(ListKeptCopies(roundabout, runs.Folder()).size(), size_t { 1 });
    }
};

QUILLORY_TEST(QCoreApplication, KeptCopiesTest)
#include "kept_copies_test.moc"
