#include "store/kept_copies.h"
#include "tests/list_fixture.h"

#include <QFile>
#include <QTest>

#include <unistd.h>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// A data file, runs on it, and a folder for its copies.
class Runs
{
public:
    QString Folder() const { return QDir(m_folder.path()).filePath(u"state/copies"_s); }
    QString Target() const { return QDir(m_folder.path()).filePath(u"restored.idb"_s); }
    QString Path() const { return file.Path(); }

    /// A run that makes a list, some minutes after the last.
    KeepOutcome MakeList(const QString& name)
    {
        file.Restart();
        file.MakeFullList(name);
        return Keep();
    }
    KeepOutcome Keep()
    {
        now = now.addSecs(100);
        return KeepCopy(*file.data, Path(), Folder(), now);
    }
    std::vector<KeptCopy> Copies() const { return ListKeptCopies(Path(), Folder()); }
    /// The names of the lists in a copy.
    QString ListsOf(const KeptCopy& copy) const
    {
        DataVolume data;
        ListCatalogue catalogue(data);
        if (data.Mount(copy.path, Disposition::OpenExisting, VolumeAccess::ReadOnly)
                != ErrorNumber::None
            || catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
            return u"unreadable"_s;
        QString names;
        for (const auto& entry : catalogue.FillHomeList())
            names += entry.name;
        return names;
    }
    /// Every file below the folder.
    qsizetype FileCount() const
    {
        qsizetype count = 0;
        for (const QString& set : QDir(Folder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            count += QDir(QDir(Folder()).filePath(set)).entryList(QDir::Files).size();
        return count;
    }

    ListFixture file;
    QDateTime now { QDate(2026, 6, 15), QTime(12, 0), Qt::UTC };

private:
    QTemporaryDir m_folder;
};

} // namespace

class KeptCopiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLastThreeAreKept();
    void theLastThreeAreKeptWhenTheClockGoesBack();
    void aRunThatChangedNothingKeepsNothing();
    void aFolderThatCannotBeWrittenIsNoFailure();
    void whatAnInterruptedRunLeftIsRemoved();
    void dataFilesHaveCopiesOfTheirOwn();
    void aCopyIsRestoredToANewFile();
};

void KeptCopiesTest::theLastThreeAreKept()
{
    Runs runs;
    for (const QString& name : { u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s })
        QCOMPARE(runs.MakeList(name), KeepOutcome::Kept);
    const auto copies = runs.Copies();
    QCOMPARE(copies.size(), kKeptCopies);
    QCOMPARE(runs.ListsOf(copies[0]), u"abcde"_s);
    QCOMPARE(runs.ListsOf(copies[2]), u"abc"_s);
    QCOMPARE(copies[0].time, runs.now);
    QCOMPARE(copies[1].time, runs.now.addSecs(-100));
    QCOMPARE(copies[0].bytes, QFileInfo(copies[0].path).size());
    // The copies, and the file that says whose they are.
    QCOMPARE(runs.FileCount(), 4);
}

void KeptCopiesTest::theLastThreeAreKeptWhenTheClockGoesBack()
{
    Runs runs;
    const QDateTime right = runs.now;
    runs.now = right.addYears(10);
    for (const QString& name : { u"a"_s, u"b"_s, u"c"_s })
        QCOMPARE(runs.MakeList(name), KeepOutcome::Kept);
    runs.now = right;
    for (const QString& name : { u"d"_s, u"e"_s }) {
        QCOMPARE(runs.MakeList(name), KeepOutcome::Kept);
        QVERIFY(runs.ListsOf(runs.Copies().front()).endsWith(name));
    }
    QCOMPARE(runs.ListsOf(runs.Copies().back()), u"abc"_s);
}

void KeptCopiesTest::aRunThatChangedNothingKeepsNothing()
{
    Runs runs;
    QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
    runs.file.Restart();
    QCOMPARE(runs.Keep(), KeepOutcome::Unchanged);
    // Not even what was undone is a change.
    QVERIFY(runs.file.data->BeginTransaction());
    InventoryList list = NewInventoryList();
    QVERIFY(runs.file.catalogue->AddList(list) != kNoObject);
    QVERIFY(runs.file.data->EndTransaction(false));
    QCOMPARE(runs.Keep(), KeepOutcome::Unchanged);
    QCOMPARE(runs.Copies().size(), size_t { 1 });
}

void KeptCopiesTest::aFolderThatCannotBeWrittenIsNoFailure()
{
    Runs runs;
    // A file in the place of the folder stops every user, root included.
    QVERIFY(QDir().mkpath(QFileInfo(runs.Folder()).path()));
    QFile blocker(runs.Folder());
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::NotKept);
    QVERIFY(runs.Copies().empty());
    QCOMPARE(KeepCopy(*runs.file.data, runs.Path(), QString(), runs.now), KeepOutcome::NotKept);
    // The run goes on.
    QVERIFY(runs.file.Add({ u"row"_s }) != kNoObject);
}

void KeptCopiesTest::whatAnInterruptedRunLeftIsRemoved()
{
    Runs runs;
    QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
    QFile left(runs.Copies().front().path + u".new-1234"_s);
    QVERIFY(left.open(QIODevice::WriteOnly));
    QCOMPARE(runs.Copies().size(), size_t { 1 });
    QCOMPARE(runs.MakeList(u"b"_s), KeepOutcome::Kept);
    QVERIFY(!left.exists());
}

void KeptCopiesTest::dataFilesHaveCopiesOfTheirOwn()
{
    Runs runs;
    QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
    const QString other = runs.Path() + u".other.idb"_s;
    QVERIFY(ListKeptCopies(other, runs.Folder()).empty());
    // By another name of the same file its copies are found, also when the file is gone.
    const QString folder = QFileInfo(runs.Path()).path();
    const QString roundabout = folder + u"/../"_s + QFileInfo(folder).fileName() + u"/data.idb"_s;
    QCOMPARE(ListKeptCopies(roundabout, runs.Folder()).size(), size_t { 1 });
    runs.file.rows.reset();
    runs.file.data->Unmount();
    QVERIFY(QFile::remove(runs.Path()));
    QCOMPARE(runs.Copies().size(), size_t { 1 });
}

void KeptCopiesTest::aCopyIsRestoredToANewFile()
{
    Runs runs;
    QCOMPARE(runs.MakeList(u"a"_s), KeepOutcome::Kept);
    QCOMPARE(runs.MakeList(u"b"_s), KeepOutcome::Kept);
    const KeptCopy older = runs.Copies().back();
    QVERIFY(RestoreCopy(older, runs.Target()));
    QCOMPARE(runs.ListsOf({ runs.Target(), {}, 0 }), u"a"_s);
    QCOMPARE(RestoreCopy(older, runs.Target()).Error(), ErrorNumber::FileExists);
}

QTEST_GUILESS_MAIN(KeptCopiesTest)
#include "kept_copies_test.moc"
