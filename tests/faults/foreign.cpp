// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "tests/faults/sealed_file.h"

#include <sqlite3.h>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Makes a file by SQL, or changes one, as any other program would. With `isSealed` the pages get
/// the checksums that ours have.
QByteArray WithSql(const FaultRun& run, const QByteArray& start, const char* sql, bool isSealed)
{
    run.Place({ { "data.idb", start } });
    sqlite3* connection = nullptr;
    if (sqlite3_open(run.DataFile().constData(), &connection) != SQLITE_OK
        || sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s: %s", sql, sqlite3_errmsg(connection));
    sqlite3_close(connection);
    QByteArray bytes = run.Taken().at("data.idb");
    if (isSealed)
        SealAllPages(bytes);
    return bytes;
}

/// What others could have done to a volume; none of it is what this program writes.
constexpr std::array kVolumeChanges {
    "CREATE TABLE guest(a)",
    "CREATE TABLE guest(a ANY) STRICT",
    "CREATE VIEW guest AS SELECT 1",
    "CREATE TRIGGER guest AFTER UPDATE ON object_counter BEGIN SELECT 1; END",
    "CREATE TRIGGER guest AFTER INSERT ON property BEGIN DELETE FROM property; END",
    "CREATE INDEX guest ON property(name)",
    "CREATE VIRTUAL TABLE guest USING fts5(a)",
    "CREATE VIRTUAL TABLE guest USING rtree(a, b, c)",
    "DROP TABLE sort_order",
    "DROP TABLE object_counter",
    "ALTER TABLE property ADD COLUMN guest ANY",
    "ALTER TABLE property RENAME TO guest",
    "DELETE FROM object_counter",
    "UPDATE object_counter SET next_oid = 0",
    "UPDATE object_counter SET next_oid = -9223372036854775807",
    "DELETE FROM property_database",
    "UPDATE property_database SET table_name = 'guest'",
    "UPDATE property_database SET table_name = 'sqlite_schema'",
    "UPDATE property SET database = 7700 + database",
    "UPDATE property SET id = 1",
    "UPDATE property SET column_name = 'oid'",
    "UPDATE sort_order SET id = 7",
    "PRAGMA application_id = 0",
    "PRAGMA user_version = 1",
    "PRAGMA user_version = 3",
    "PRAGMA user_version = -1",
    "PRAGMA user_version = 0",
    "PRAGMA journal_mode = WAL",
};

/// What other programs' databases look like.
constexpr std::array kForeignSql {
    "CREATE TABLE a(b)",
    "PRAGMA application_id = 1366649196; CREATE TABLE a(b)",
    "PRAGMA application_id = 1366649196; PRAGMA user_version = 1; CREATE TABLE a(b)",
    "PRAGMA page_size = 512; CREATE TABLE a(b)",
    "PRAGMA encoding = 'UTF-16be'; CREATE TABLE a(b)",
    "PRAGMA journal_mode = WAL; CREATE TABLE a(b)",
    "PRAGMA auto_vacuum = FULL; CREATE TABLE a(b)",
};

/// The beginnings of files that are no databases.
constexpr std::array kBeginnings {
    "",
    "SQLite format 3",
    "%PDF-1.7\n",
    "PK\x03\x04",
    "\x89PNG\r\n",
    "Name\tQuantity\r\n",
};

/// The program must refuse the file, say why, and leave it and its folder as they were. `reason` is
/// the one it has to give; None for any.
void Refuse(
    FaultRun& run, const QString& what, const Files& files, ErrorNumber reason = ErrorNumber::None)
{
    run.Place(files);
    ErrorNumber error = ErrorNumber::None;
    {
        Session session;
        error = session.Start(run.DataFile());
    }
    run.Count();
    if (error == ErrorNumber::None)
        run.Blame(what + u": it is opened"_s, files);
    else if (HasNoReason(error) || (reason != ErrorNumber::None && error != reason))
        run.Blame(what + u": it is refused for no known reason"_s, files);
    else if (run.Taken() != files)
        run.Blame(what + u": it is refused and changed"_s, files);
}

/// A journal that names a journal above it, which SQLite would look for and delete.
QByteArray JournalNaming(const QByteArray& name, quint32 recordCount, quint32 pageCount)
{
    quint32 sum = 0;
    for (const char byte : name)
        sum += static_cast<quint32>(byte);
    constexpr quint32 kLockPage = 262145;
    const QByteArray head = JournalHead(recordCount, 1, pageCount);
    return head + BigEndian(kLockPage) + name + BigEndian(static_cast<quint32>(name.size()))
        + BigEndian(sum) + head.left(8);
}

/// Journals that somebody laid beside the file. Whatever the program makes of them, it reaches no
/// other file, does not hang, and shows no row that was not there.
void LayJournal(FaultRun& run, const SampleFile& sample, const QByteArray& journal)
{
    const Files files { { "data.idb", sample.bytes }, { "data.idb-journal", journal },
        { "victim.txt", "precious" } };
    run.Place(files);
    const Reading reading = ReadDataFile(run.DataFile());
    run.Count();
    const Files after = run.Taken();
    if (after.count("victim.txt") == 0 || after.at("victim.txt") != "precious")
        run.Blame(u"a journal reached another file"_s, files);
    if (after.at("data.idb").size() != sample.bytes.size())
        run.Blame(u"a journal changed the size of the file"_s, files);
    if (reading.error == ErrorNumber::None && reading.contents != sample.contents)
        run.Blame(u"a journal altered rows"_s, files);
    if (HasNoReason(reading.error))
        run.Blame(u"a journal is refused for no known reason"_s, files);
}

} // namespace

void RefuseForeignFiles(FaultRun& run)
{
    const SampleFile sample = MakeSampleFile(run, run.Seed());
    for (const char* sql : kForeignSql)
        Refuse(run, QString::fromLatin1(sql), { { "data.idb", WithSql(run, {}, sql, false) } });
    for (const char* sql : kVolumeChanges)
        Refuse(run, QString::fromLatin1(sql),
            { { "data.idb", WithSql(run, sample.bytes, sql, true) } });
    // Whole but for the checksums: another program wrote what this one could have written.
    for (const char* sql : { "UPDATE object_counter SET next_oid = next_oid + 1", "VACUUM" })
        Refuse(run, QString::fromLatin1(sql),
            { { "data.idb", WithSql(run, sample.bytes, sql, false) } },
            ErrorNumber::ChangedOutside);
    // Not where a table came that is none of this program's.
    Refuse(run, u"a guest without checksums"_s,
        { { "data.idb", WithSql(run, sample.bytes, kVolumeChanges.front(), false) } },
        ErrorNumber::FileCorrupt);
    for (const char* beginning : kBeginnings)
        Refuse(run, u"a file of another kind"_s,
            { { "data.idb", QByteArray(beginning) + QByteArray(beginning).repeated(500) } });
    // Another program that did not end well has left its journal: it is none of ours to play back.
    const QByteArray foreign = WithSql(run, {}, "CREATE TABLE a(b)", false);
    Refuse(run, u"another program's file with a journal"_s,
        { { "data.idb", foreign }, { "data.idb-journal", JournalNaming("/x", 0xFFFFFFFF, 0) } });
}

void LayJournals(FaultRun& run)
{
    const SampleFile sample = MakeSampleFile(run, run.Seed());
    const auto pages = static_cast<quint32>(sample.bytes.size() / kPageSize);
    const std::array<quint32, 5> pageCounts { pages, 0, pages + 1, 1U << 24, 0xFFFFFFFF };
    std::mt19937 random(run.Seed());
    while (run.CountSoFar() < run.Runs()) {
        const auto count = static_cast<size_t>(run.CountSoFar());
        QByteArray journal = JournalNaming(run.Folder() + "/victim.txt",
            static_cast<quint32>(random() % 3), pageCounts[count % pageCounts.size()]);
        // The first ones are whole; of the others the records are spoilt.
        for (quint32 i = 3; count >= pageCounts.size() && i > 0; --i) {
            constexpr quint32 kHeaderSize = 28;
            const auto size = static_cast<quint32>(journal.size()) - kHeaderSize;
            const auto place = static_cast<quint32>(random() % size);
            journal[kHeaderSize + place] = static_cast<char>(random());
        }
        LayJournal(run, sample, journal);
    }
}

} // namespace Quillory
