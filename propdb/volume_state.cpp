// SPDX-License-Identifier: MIT
#include "propdb/volume_state.h"

#include "propdb/database_state.h"

#include <QString>

#include <sqlite3.h>

#include <limits>
#include <utility>

namespace Quillory {

namespace {

/// Of SQLite's machine; a millisecond's work.
constexpr int kStepsBetweenLooks = 10'000;

int GiveWay(void* state)
{
    return static_cast<const VolumeState*>(state)->file.IsAwaitedByWriter() ? 1 : 0;
}

} // namespace

VolumeState::VolumeState(VolumeFile volumeFile, QByteArray volumePath, VolumeAccess volumeAccess)
    : file(std::move(volumeFile))
    , path(std::move(volumePath))
    , access(volumeAccess)
    , permit(path)
{ }

Result<void> VolumeState::Connect()
{
    QUILLORY_TRY_VALUE(auto opened, OpenConnection(path, access, file.IsWritable(), false));
    connection = std::move(opened);
    if (access == VolumeAccess::ReadOnly)
        sqlite3_progress_handler(connection.get(), kStepsBetweenLooks, &GiveWay, this);
    QUILLORY_TRY(visit.Register(connection.get()));
    // The file that was looked at and locked must be the one that SQLite has opened.
    QUILLORY_TRY(file.VerifyInPlace());
    // The tables must prove to be ours before a statement names them.
    if (const auto prepared = PrepareStatements({ { &readDataVersion, "PRAGMA data_version" } });
        !prepared)
        return prepared;
    QUILLORY_TRY(LoadSchema());
    const QByteArray rewriting = "PRAGMA user_version = " + QByteArray::number(kFormatVersion);
    if (const auto prepared = PrepareStatements({
            { &readNextOid, "SELECT next_oid FROM object_counter" },
            { &begin, "BEGIN IMMEDIATE" },
            { &rewriteHeader, rewriting.constData() },
            { &commit, "COMMIT" },
            { &rollback, "ROLLBACK" },
            { &storeNextOid, "UPDATE object_counter SET next_oid = ?1" },
        });
        !prepared)
        return prepared;
    QUILLORY_TRY(ReadObjectCounter());
    const auto state = file.ReadState();
    if (state)
        stateSeen = *state;
    return state.Error();
}

Result<void> VolumeState::ReadObjectCounter()
{
    constexpr qint64 kPastLast = qint64 { 1 } << 32;
    QUILLORY_TRY_VALUE(const bool isThere, readNextOid.Step());
    const qint64 next = isThere ? readNextOid.Int64(0) : 0;
    const auto isAnother = isThere ? readNextOid.Step() : false;
    readNextOid.Reset();
    QUILLORY_TRY(isAnother);
    const auto& databases = schema.All();
    const quint32 latest = databases.empty() ? 0 : static_cast<quint32>(databases.rbegin()->first);
    if (*isAnother || next <= qint64 { latest } || next > kPastLast)
        return ErrorNumber::FileCorrupt;
    nextOid = static_cast<quint64>(next);
    return {};
}

Result<qint64> VolumeState::ReadFileVersion()
{
    QUILLORY_TRY(readDataVersion.Step());
    const qint64 version = readDataVersion.Int64(0);
    readDataVersion.Reset();
    return version;
}

Result<void> VolumeState::PrepareStatements(
    std::initializer_list<std::pair<Statement*, const char*>> statements) const
{
    for (const auto& [statement, sql] : statements) {
        QUILLORY_TRY_VALUE(
            auto prepared, Statement::Prepare(connection.get(), QString::fromLatin1(sql), true));
        *statement = std::move(prepared);
    }
    return {};
}

Result<VolumeState::OrderVersion> VolumeState::ReadOrderVersion()
{
    QUILLORY_TRY_VALUE(const auto version, ReadFileVersion());
    return OrderVersion { orderChanges, version };
}

Result<void> VolumeState::LoadSchema()
{
    QUILLORY_TRY_VALUE(const auto version, ReadFileVersion());
    QUILLORY_TRY_VALUE(auto loaded, LoadVolumeSchema(connection.get()));
    schema = std::move(loaded);
    schemaVersion = version;
    return {};
}

Result<ObjectId> VolumeState::AllocateOid()
{
    if (nextOid > std::numeric_limits<quint32>::max())
        return ErrorNumber::DiskFull;
    isNextOidStored = false;
    return static_cast<ObjectId>(nextOid++);
}

Result<void> VolumeState::BeginWrite()
{
    if (!isInTransaction) {
        QUILLORY_TRY(Begin());
        const auto kept = KeepFirstPage();
        if (!kept)
            Rollback();
        return kept;
    }
    // A failure can have ended the transaction underneath; what follows must not stand alone.
    if (sqlite3_get_autocommit(connection.get()) != 0)
        return ErrorNumber::InvalidHandle;
    return KeepFirstPage();
}

Result<void> VolumeState::KeepFirstPage()
{
    if (isFirstPageKept)
        return {};
    const auto kept = rewriteHeader.Run();
    isFirstPageKept = kept.IsOk();
    return kept;
}

void VolumeState::BeginSchemaChange()
{
    isSchemaChanged = true;
    isChangingSchema = true;
}

Result<void> VolumeState::EndWrite(const Result<void>& outcome)
{
    // What changes the schema takes several statements, of which some may have been done.
    const bool isPart = isInTransaction && (outcome || !isChangingSchema);
    isChangingSchema = false;
    if (isPart)
        return outcome;
    if (outcome)
        return Commit();
    Rollback();
    return outcome;
}

Result<void> VolumeState::Begin()
{
    if (access == VolumeAccess::ReadOnly)
        return ErrorNumber::AccessDenied;
    QUILLORY_TRY(file.VerifyInPlace());
    QUILLORY_TRY(SettleDoubt());
    QUILLORY_TRY(RefreshSchema());
    QUILLORY_TRY(begin.Run());
    const auto state = file.ReadState();
    const bool isOurs = state && *state == stateSeen.value_or(*state);
    if (!isOurs) {
        const auto seen = stateSeen;
        Rollback();
        stateSeen = seen;
        return state ? ErrorNumber::SharingViolation : state.Error();
    }
    stateSeen = *state;
    isFirstPageKept = false;
    return {};
}

Result<void> VolumeState::Commit()
{
    Result<void> done;
    if (sqlite3_get_autocommit(connection.get()) != 0)
        done = ErrorNumber::InvalidHandle;
    if (done && !isNextOidStored) {
        storeNextOid.Bind(1, static_cast<qint64>(nextOid));
        done = storeNextOid.Run();
    }
    if (!done) {
        Rollback();
        return done;
    }
    if (const auto committed = commit.Run(); !committed) {
        Rollback();
        QUILLORY_TRY(FindOutcome(committed.Error()));
    } else {
        const auto state = file.ReadState();
        stateSeen = state ? std::optional(*state) : std::nullopt;
    }
    isNextOidStored = true;
    isSchemaChanged = false;
    hasCommitted = true;
    return {};
}

void VolumeState::Rollback()
{
    ++orderChanges;
    // Some failures have rolled back already.
    if (sqlite3_get_autocommit(connection.get()) == 0)
        static_cast<void>(rollback.Run().IsOk());
    // What was undone may have been in the file.
    const auto state = file.ReadState();
    if (state && stateSeen && state->changes == stateSeen->changes)
        stateSeen = *state;
    // Where this fails it is tried again before the schema is used.
    static_cast<void>(RefreshSchema().IsOk());
}

Result<void> VolumeState::FindOutcome(ErrorNumber commitError)
{
    isInDoubt = true;
    const auto isDone = SettleDoubt();
    return isDone && *isDone ? ErrorNumber::None : commitError;
}

Result<bool> VolumeState::SettleDoubt()
{
    if (!isInDoubt)
        return false;
    // Reading makes SQLite undo what a journal still stands for.
    const auto step = readNextOid.Step();
    readNextOid.Reset();
    QUILLORY_TRY(step);
    QUILLORY_TRY_VALUE(const auto state, file.ReadState());
    const bool isDone = !stateSeen || state.changes != stateSeen->changes;
    if (isDone)
        QUILLORY_TRY(file.MakeDurable());
    stateSeen = state;
    isInDoubt = false;
    return isDone;
}

Result<void> VolumeState::RefreshSchema()
{
    if (sqlite3_get_autocommit(connection.get()) == 0)
        return {};
    if (!isSchemaChanged) {
        // One that has the file for itself need not ask.
        if (access == VolumeAccess::Exclusive)
            return {};
        const auto version = ReadFileVersion();
        if (!version || *version == schemaVersion)
            return version.Error();
    }
    const auto loaded = LoadSchema();
    if (loaded)
        isSchemaChanged = false;
    return loaded;
}

} // namespace Quillory
