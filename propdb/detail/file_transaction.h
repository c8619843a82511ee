// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/statement.h"
#include "propdb/detail/volume_file.h"

#include <optional>

namespace Quillory {

/// The transactions of a connection on its file, one at a time, and the counter of object
/// identifiers that is stored with them.
class FileTransaction
{
public:
    /// `file` outlives this.
    FileTransaction(const VolumeFile& file, VolumeAccess access);

    /// Prepares the statements and reads the counter. FileCorrupt if that is not above `latest`, an
    /// identifier that is used. Comes first, once.
    [[nodiscard]] Result<void> Connect(sqlite3* connection, ObjectId latest);

    /// Whether one is running; a failure of the medium, or want of memory, can have ended it.
    [[nodiscard]] bool IsRunning() const;
    /// Refused on a file that is not the one that was opened; SharingViolation if something else
    /// has written into it since the last commit: what is to be written may be meant for records
    /// that now are others.
    [[nodiscard]] Result<void> Begin();
    /// As VolumeFile::VerifyInPlace(), and SharingViolation if something else has written into the
    /// file since the last commit.
    [[nodiscard]] Result<void> VerifyUnchanged() const;
    /// Must come before anything is changed: has the journal begin with the file's first page, by
    /// which a later start knows whose it is.
    [[nodiscard]] Result<void> KeepFirstPage();
    /// What is changed goes into the history: the first transaction that does so begins a state,
    /// each later one counts a revision of it.
    void NoteContentChange() { m_isContentChanged = true; }
    /// The history was written as a whole; of this transaction it is told nothing.
    void NoteHistoryWritten() { m_isHistoryWritten = true; }
    /// InvalidHandle if none is running. A commit that SQLite reports to have failed may have been
    /// done: then the file tells, and what it holds is made durable. A failure means that nothing
    /// was changed, unless the medium does not answer any more; it is then asked again before the
    /// next transaction.
    [[nodiscard]] Result<void> Commit();
    /// Undoes everything since Begin().
    void Rollback();
    /// Whether this connection has begun a state.
    [[nodiscard]] bool HasState() const { return m_hasState; }
    /// Whether anything was committed.
    [[nodiscard]] bool HasCommitted() const { return m_hasCommitted; }

    /// A fresh identifier; the counter is stored by Commit().
    [[nodiscard]] Result<ObjectId> AllocateOid();
    /// Identifiers from here on were never used.
    [[nodiscard]] quint64 NextOid() const { return m_nextOid; }

private:
    const VolumeFile& m_file;
    VolumeAccess m_access;
    sqlite3* m_connection = nullptr;

    Statement m_begin;
    /// Writes what the file's header says already, for the sake of the journal.
    Statement m_rewriteHeader;
    Statement m_commit;
    Statement m_rollback;
    Statement m_storeNextOid;
    Statement m_readNextOid;

    quint64 m_nextOid = 1;
    bool m_isNextOidStored = true;
    bool m_isFirstPageKept = false;
    bool m_isContentChanged = false;
    bool m_isHistoryWritten = false;
    /// The latest state of the history was begun by this connection.
    bool m_hasState = false;
    bool m_hasCommitted = false;
    /// The file as this connection left it; none where it is not known.
    std::optional<VolumeFile::State> m_stateSeen;
    /// Whether the latest commit is in the file, and durable, is not known.
    bool m_isInDoubt = false;

    [[nodiscard]] Result<void> ReadCounter(ObjectId latest);
    [[nodiscard]] bool IsForHistory() const { return m_isContentChanged && !m_isHistoryWritten; }
    [[nodiscard]] Result<void> NoteInHistory();
    void NoteCommitted();
    [[nodiscard]] Result<void> FindOutcome(ErrorNumber commitError);
    /// Whether the commit in doubt was done; false too if none is.
    [[nodiscard]] Result<bool> SettleDoubt();
};

} // namespace Quillory
