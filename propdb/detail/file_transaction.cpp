// SPDX-License-Identifier: MIT
#include "propdb/detail/file_transaction.h"

#include "propdb/detail/history_table.h"

#include <sqlite3.h>

#include <initializer_list>
#include <limits>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

FileTransaction::FileTransaction(const VolumeFile& file, VolumeAccess access)
    : m_file(file)
    , m_access(access)
{ }

Result<void> FileTransaction::Connect(sqlite3* connection, ObjectId latest)
{
    m_connection = connection;
    const QString rewriting = u"PRAGMA user_version = %1"_s.arg(kFormatVersion);
    for (const auto& [statement, sql] : std::initializer_list<std::pair<Statement*, QString>> {
             { &m_readNextOid, u"SELECT next_oid FROM object_counter"_s },
             { &m_begin, u"BEGIN IMMEDIATE"_s },
             { &m_rewriteHeader, rewriting },
             { &m_commit, u"COMMIT"_s },
             { &m_rollback, u"ROLLBACK"_s },
             { &m_storeNextOid, u"UPDATE object_counter SET next_oid = ?1"_s },
         }) {
        QUILLORY_TRY_VALUE(*statement, Statement::Prepare(connection, sql, true));
    }
    QUILLORY_TRY(ReadCounter(latest));
    QUILLORY_TRY_VALUE(m_stateSeen, m_file.ReadState());
    return {};
}

Result<void> FileTransaction::ReadCounter(ObjectId latest)
{
    constexpr qint64 kPastLast = qint64 { 1 } << 32;
    QUILLORY_TRY_VALUE(const bool isThere, m_readNextOid.Step());
    const qint64 next = isThere ? m_readNextOid.Int64(0) : 0;
    const auto isAnother = isThere ? m_readNextOid.Step() : false;
    m_readNextOid.Reset();
    QUILLORY_TRY(isAnother);
    if (*isAnother || next <= static_cast<qint64>(latest) || next > kPastLast)
        return ErrorNumber::FileCorrupt;
    m_nextOid = static_cast<quint64>(next);
    return {};
}

bool FileTransaction::IsRunning() const
{
    return sqlite3_get_autocommit(m_connection) == 0;
}

Result<void> FileTransaction::Begin()
{
    if (m_access == VolumeAccess::ReadOnly)
        return ErrorNumber::AccessDenied;
    QUILLORY_TRY(m_file.VerifyInPlace());
    QUILLORY_TRY(SettleDoubt());
    QUILLORY_TRY(m_begin.Run());
    const auto state = m_file.ReadState();
    const bool isOurs = state && *state == m_stateSeen.value_or(*state);
    if (!isOurs) {
        const auto seen = m_stateSeen;
        Rollback();
        m_stateSeen = seen;
        return state ? ErrorNumber::SharingViolation : state.Error();
    }
    m_stateSeen = *state;
    m_isFirstPageKept = false;
    m_isContentChanged = false;
    m_isHistoryWritten = false;
    return {};
}

Result<void> FileTransaction::VerifyUnchanged() const
{
    QUILLORY_TRY(m_file.VerifyInPlace());
    QUILLORY_TRY_VALUE(const auto state, m_file.ReadState());
    // What a running transaction has in the file already is its own; what a failed commit left
    // there is for the next one to find out.
    const bool isKnown = m_stateSeen && !m_isInDoubt && !IsRunning();
    return isKnown && state != *m_stateSeen ? ErrorNumber::SharingViolation : ErrorNumber::None;
}

Result<void> FileTransaction::NoteInHistory()
{
    if (!IsForHistory())
        return {};
    return m_hasState ? AddRevision(m_connection) : AddState(m_connection, DrawState());
}

void FileTransaction::NoteCommitted()
{
    m_isNextOidStored = true;
    m_hasCommitted = true;
    m_hasState = !m_isHistoryWritten && (m_hasState || m_isContentChanged);
}

Result<void> FileTransaction::KeepFirstPage()
{
    if (!m_isFirstPageKept)
        QUILLORY_TRY(m_rewriteHeader.Run());
    m_isFirstPageKept = true;
    return {};
}

Result<void> FileTransaction::Commit()
{
    Result<void> done;
    if (!IsRunning())
        done = ErrorNumber::InvalidHandle;
    if (done && !m_isNextOidStored) {
        m_storeNextOid.Bind(1, static_cast<qint64>(m_nextOid));
        done = m_storeNextOid.Run();
    }
    if (done)
        done = NoteInHistory();
    if (!done) {
        Rollback();
        return done;
    }
    if (const auto committed = m_commit.Run(); !committed) {
        Rollback();
        QUILLORY_TRY(FindOutcome(committed.Error()));
    } else {
        const auto state = m_file.ReadState();
        m_stateSeen = state ? std::optional(*state) : std::nullopt;
    }
    NoteCommitted();
    return {};
}

void FileTransaction::Rollback()
{
    // Some failures have rolled back already.
    if (IsRunning())
        static_cast<void>(m_rollback.Run().IsOk());
    // What was undone may have been in the file.
    const auto state = m_file.ReadState();
    if (state && m_stateSeen && state->changes == m_stateSeen->changes)
        m_stateSeen = *state;
}

Result<void> FileTransaction::FindOutcome(ErrorNumber commitError)
{
    m_isInDoubt = true;
    const auto isDone = SettleDoubt();
    return isDone && *isDone ? ErrorNumber::None : commitError;
}

Result<bool> FileTransaction::SettleDoubt()
{
    if (!m_isInDoubt)
        return false;
    // Reading makes SQLite undo what a journal still stands for.
    const auto step = m_readNextOid.Step();
    m_readNextOid.Reset();
    QUILLORY_TRY(step);
    QUILLORY_TRY_VALUE(const auto state, m_file.ReadState());
    const bool isDone = !m_stateSeen || state.changes != m_stateSeen->changes;
    if (isDone)
        QUILLORY_TRY(m_file.MakeDurable());
    m_stateSeen = state;
    m_isInDoubt = false;
    return isDone;
}

Result<ObjectId> FileTransaction::AllocateOid()
{
    if (m_nextOid > std::numeric_limits<quint32>::max())
        return ErrorNumber::DiskFull;
    m_isNextOidStored = false;
    return static_cast<ObjectId>(m_nextOid++);
}

} // namespace Quillory
