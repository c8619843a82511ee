// SPDX-License-Identifier: MIT
#include "propdb/detail/volume_state.h"

#include "propdb/detail/history_table.h"

#include <sqlite3.h>

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Of SQLite's machine; a millisecond's work.
constexpr int kStepsBetweenLooks = 10'000;

int GiveWay(void* file)
{
    return static_cast<const VolumeFile*>(file)->IsAwaitedByWriter() ? 1 : 0;
}

} // namespace

VolumeState::VolumeState(VolumeFile file, QByteArray path, VolumeAccess access)
    : m_file(std::move(file))
    , m_path(std::move(path))
    , m_access(access)
    , m_permit(m_path)
    , m_transaction(m_file, m_access)
{ }

VolumeState::~VolumeState()
{
    if (!m_isInTransaction)
        return;
    try {
        Rollback();
    } catch (...) {
        // Most likely for want of memory: the connection's end undoes what was not committed.
    }
}

Result<void> VolumeState::Connect()
{
    QUILLORY_TRY_VALUE(m_connection, OpenConnection(m_path, m_access, m_file.IsWritable(), false));
    if (m_access == VolumeAccess::ReadOnly)
        sqlite3_progress_handler(Connection(), kStepsBetweenLooks, &GiveWay, &m_file);
    QUILLORY_TRY(m_visit.Register(Connection()));
    // The file that was looked at and locked must be the one that SQLite has opened.
    QUILLORY_TRY(m_file.VerifyInPlace());
    // The tables must prove to be ours before a statement names them.
    QUILLORY_TRY_VALUE(
        m_readDataVersion, Statement::Prepare(Connection(), u"PRAGMA data_version"_s, true));
    QUILLORY_TRY(LoadSchema());
    const auto& databases = m_schema.All();
    return m_transaction.Connect(
        Connection(), databases.empty() ? kNoObject : databases.rbegin()->first);
}

Result<qint64> VolumeState::ReadFileVersion()
{
    QUILLORY_TRY(m_readDataVersion.Step());
    const qint64 version = m_readDataVersion.Int64(0);
    m_readDataVersion.Reset();
    return version;
}

Result<VolumeState::OrderVersion> VolumeState::ReadOrderVersion()
{
    QUILLORY_TRY_VALUE(const qint64 version, ReadFileVersion());
    return OrderVersion { m_orderChanges, version };
}

Result<void> VolumeState::LoadSchema()
{
    QUILLORY_TRY_VALUE(const qint64 version, ReadFileVersion());
    QUILLORY_TRY_VALUE(m_schema, LoadVolumeSchema(Connection()));
    m_schemaVersion = version;
    m_isSchemaChanged = false;
    return {};
}

Result<void> VolumeState::RefreshSchema()
{
    if (m_transaction.IsRunning())
        return {};
    if (!m_isSchemaChanged) {
        // One that has the file for itself need not ask.
        if (m_access == VolumeAccess::Exclusive)
            return {};
        QUILLORY_TRY_VALUE(const qint64 version, ReadFileVersion());
        if (version == m_schemaVersion)
            return {};
    }
    return LoadSchema();
}

Result<const VolumeSchema*> VolumeState::Schema()
{
    QUILLORY_TRY(RefreshSchema());
    return &m_schema;
}

Result<void> VolumeState::BeginWrite(ChangeKind kind)
{
    if (!m_isInTransaction)
        QUILLORY_TRY(Begin(kind));
    // A failure can have ended the transaction underneath; what follows must not stand alone.
    if (!m_transaction.IsRunning())
        return ErrorNumber::InvalidHandle;
    const auto kept = m_transaction.KeepFirstPage();
    if (!kept && !m_isInTransaction)
        Rollback();
    if (kind == ChangeKind::Content)
        m_transaction.NoteContentChange();
    return kept;
}

Result<void> VolumeState::EndWrite(Extent extent, ErrorNumber outcome)
{
    const bool isDone = outcome == ErrorNumber::None;
    // A statement leaves nothing of itself where it fails; several may have been done in part.
    if (m_isInTransaction && (isDone || extent == Extent::OneStatement))
        return outcome;
    if (isDone)
        return Commit();
    Rollback();
    return outcome;
}

Result<void> VolumeState::BeginTransaction()
{
    if (m_isInTransaction)
        return ErrorNumber::AlreadyExists;
    QUILLORY_TRY(Begin(ChangeKind::Content));
    m_isInTransaction = true;
    return {};
}

Result<void> VolumeState::EndTransaction(bool commit)
{
    if (!m_isInTransaction)
        return ErrorNumber::InvalidHandle;
    m_isInTransaction = false;
    if (commit)
        return Commit();
    Rollback();
    return {};
}

Result<void> VolumeState::Begin(ChangeKind kind)
{
    QUILLORY_TRY(RefreshSchema());
    if (m_access == VolumeAccess::Exclusive)
        QUILLORY_TRY(PrepareChange(kind));
    return m_transaction.Begin();
}

Result<void> VolumeState::PrepareChange(ChangeKind kind)
{
    const bool isOlder = m_schema.FormatVersion() < kFormatVersion;
    if (m_firstChangeListener && !m_transaction.HasState()
        && (isOlder || kind == ChangeKind::Content)) {
        // Once, also where it throws.
        const auto listener = std::exchange(m_firstChangeListener, nullptr);
        listener();
    }
    return isOlder ? CarryOver() : Result<void>();
}

Result<void> VolumeState::CarryOver()
{
    QUILLORY_TRY(m_transaction.Begin());
    m_isSchemaChanged = true;
    auto done = DerivedHistory(m_file);
    auto carried = done.Error() == ErrorNumber::None ? m_transaction.KeepFirstPage() : done.Error();
    if (carried)
        carried = CarryOverSchema(Connection(), m_schema);
    if (carried)
        carried = WriteHistoryTable(Connection(), *done);
    if (!carried) {
        Rollback();
        return carried;
    }
    QUILLORY_TRY(Commit());
    m_schema.SetFormatVersion(kFormatVersion);
    return {};
}

Result<History> VolumeState::ReadHistory()
{
    QUILLORY_TRY(RefreshSchema());
    return m_schema.FormatVersion() < kFormatVersion ? DerivedHistory(m_file)
                                                     : ReadHistoryTable(Connection());
}

Result<void> VolumeState::WriteHistory(const History& history)
{
    return RunWrite(Extent::Schema, ChangeKind::Content, [&] {
        m_transaction.NoteHistoryWritten();
        return WriteHistoryTable(Connection(), history);
    });
}

Result<void> VolumeState::Commit()
{
    const auto committed = m_transaction.Commit();
    if (committed)
        m_isSchemaChanged = false;
    else
        Rollback();
    return committed;
}

void VolumeState::Rollback()
{
    ++m_orderChanges;
    m_transaction.Rollback();
    // Where this fails it is tried again before the schema is used.
    static_cast<void>(RefreshSchema().IsOk());
}

} // namespace Quillory
