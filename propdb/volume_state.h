// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/confined_vfs.h"
#include "propdb/record_visit.h"
#include "propdb/schema.h"
#include "propdb/statement.h"
#include "propdb/volume_file.h"

#include <initializer_list>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

struct sqlite3;

namespace Quillory {

struct DatabaseState;

struct ConnectionCloser
{
    void operator()(sqlite3* connection) const;
};
using ConnectionHandle = std::unique_ptr<sqlite3, ConnectionCloser>;

/// Sets the size of the page cache that connections have but for long reads in sort order: 16 MB.
constexpr char kUsualCache[] = "PRAGMA cache_size = -16384";

/// What a volume and its open databases share. Members end in the reverse of their order:
/// statements, connection, permit, and last the file with its lock.
struct VolumeState
{
    VolumeState(VolumeFile volumeFile, QByteArray volumePath, VolumeAccess volumeAccess);

    VolumeFile file;
    QByteArray path;
    VolumeAccess access;
    ConfinedVfs::Permit permit;
    RecordVisit visit;
    ConnectionHandle connection;
    VolumeSchema schema;
    std::vector<DatabaseState*> openDatabases;

    Statement begin;
    /// Writes what the file's header says already, for the sake of the journal.
    Statement rewriteHeader;
    Statement commit;
    Statement rollback;
    Statement storeNextOid;
    Statement readDataVersion;
    Statement readNextOid;

    quint64 nextOid = 1;
    bool isNextOidStored = true;
    bool isInTransaction = false;
    /// The transaction that runs has the file's first page in its journal.
    bool isFirstPageKept = false;
    /// `schema` is not what the file held when the transaction began.
    bool isSchemaChanged = false;
    /// The write that runs changes the schema.
    bool isChangingSchema = false;
    /// What `readDataVersion` gave when `schema` was read, or before.
    qint64 schemaVersion = 0;
    bool hasCommitted = false;
    /// Counts what may have changed the order of a database's records.
    quint64 orderChanges = 0;
    /// The file as this connection left it; none where it is not known.
    std::optional<VolumeFile::State> stateSeen;
    /// Whether the latest commit is in the file, and durable, is not known.
    bool isInDoubt = false;

    /// Opens the connection the hardened way, prepares its statements and reads the schema.
    [[nodiscard]] Result<void> Connect();
    /// Differs from an earlier one if anything may have changed which records there are or their
    /// order, in this process or another.
    struct OrderVersion
    {
        quint64 ownChanges = 0;
        qint64 fileVersion = 0;

        friend bool operator==(const OrderVersion&, const OrderVersion&) = default;
    };
    [[nodiscard]] Result<OrderVersion> ReadOrderVersion();
    /// A fresh identifier; the counter is stored with the transaction.
    [[nodiscard]] Result<ObjectId> AllocateOid();

    /// Starts a write of its own, or joins the transaction that runs. Refused on a file that is
    /// not the one that was opened.
    [[nodiscard]] Result<void> BeginWrite();
    /// Must come, within a write, before the schema is changed.
    void BeginSchemaChange();
    /// Makes a write of its own durable, or undoes it when `outcome` is a failure. Within a
    /// transaction passes `outcome` on; a failed change of the schema undoes all of it.
    [[nodiscard]] Result<void> EndWrite(const Result<void>& outcome);

    /// SharingViolation if something else has written into the file since the last commit: what
    /// is to be written may be meant for records that now are others.
    [[nodiscard]] Result<void> Begin();
    /// A commit that SQLite reports to have failed may have been done: then the file tells, and
    /// what it holds is made durable. A failure means that nothing was changed, unless the medium
    /// does not answer any more; it is then asked again before the next write.
    [[nodiscard]] Result<void> Commit();
    /// Undoes everything since Begin and reads the schema anew if it had changed.
    void Rollback();
    /// Reads the schema again if it is not the file's: where an earlier attempt failed, within a
    /// transaction that a failure has ended underneath, or beside another program that writes.
    [[nodiscard]] Result<void> RefreshSchema();

private:
    [[nodiscard]] Result<void> PrepareStatements(
        std::initializer_list<std::pair<Statement*, const char*>> statements) const;
    /// The next object identifier; FileCorrupt if a database has it or a later one.
    [[nodiscard]] Result<void> ReadObjectCounter();
    /// The number of the file's state: another program's commit changes it, this one's do not.
    [[nodiscard]] Result<qint64> ReadFileVersion();
    /// Reads the schema and the number of the state that it is at least as new as.
    [[nodiscard]] Result<void> LoadSchema();
    /// Has the journal begin with the file's first page, by which a later start knows whose it is.
    [[nodiscard]] Result<void> KeepFirstPage();
    [[nodiscard]] Result<void> FindOutcome(ErrorNumber commitError);
    /// Whether the commit in doubt was done; false too if none is.
    [[nodiscard]] Result<bool> SettleDoubt();
};

/// Opens a connection to the volume at `path` under the confined VFS, everything dangerous off.
/// An absent file is made when `isNew`.
[[nodiscard]] Result<ConnectionHandle> OpenConnection(
    const QByteArray& path, VolumeAccess access, bool isWritable, bool isNew);

} // namespace Quillory
