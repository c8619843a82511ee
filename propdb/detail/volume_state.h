// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/confined_vfs.h"
#include "propdb/detail/connection.h"
#include "propdb/detail/file_transaction.h"
#include "propdb/detail/record_visit.h"
#include "propdb/detail/schema.h"

#include <set>
#include <utility>

namespace Quillory {

/// What a volume and its open databases share: the file, the connection to it, the schema, and the
/// one way by which anything is written.
class VolumeState
{
public:
    VolumeState(VolumeFile file, QByteArray path, VolumeAccess access);
    /// Undoes a transaction that still runs.
    ~VolumeState();
    VolumeState(const VolumeState&) = delete;
    VolumeState& operator=(const VolumeState&) = delete;

    /// Opens the connection the hardened way, prepares its statements and reads the schema. Comes
    /// first, once.
    [[nodiscard]] Result<void> Connect();

    [[nodiscard]] sqlite3* Connection() const { return m_connection.get(); }
    [[nodiscard]] const QByteArray& Path() const { return m_path; }
    [[nodiscard]] const VolumeFile& File() const { return m_file; }
    [[nodiscard]] RecordVisit& Visit() { return m_visit; }

    /// The schema as the file has it now; valid until the next call or write.
    [[nodiscard]] Result<const VolumeSchema*> Schema();
    /// For its counter of identifiers, and whether anything was committed.
    [[nodiscard]] const FileTransaction& Transactions() const { return m_transaction; }
    /// Differs from an earlier one if anything may have changed which records there are or their
    /// order, in this process or another.
    struct OrderVersion
    {
        quint64 ownChanges = 0;
        qint64 fileVersion = 0;

        friend bool operator==(const OrderVersion&, const OrderVersion&) = default;
    };
    [[nodiscard]] Result<OrderVersion> ReadOrderVersion();

    void NoteOpened(ObjectId database) { m_openDatabases.insert(database); }
    void NoteClosed(ObjectId database) { m_openDatabases.erase(m_openDatabases.find(database)); }
    [[nodiscard]] bool IsOpen(ObjectId database) const
    {
        return m_openDatabases.contains(database);
    }

    /// Runs `work`, which gives a Result and changes the file by one statement at most. Outside a
    /// transaction that is durable when this returns, or undone where anything fails. A transaction
    /// that runs is joined: what was changed is part of it, and where `work` fails, or throws, it
    /// goes on as if `work` had not been. Refused on a file that is not the one that was opened.
    template <typename Work>
    auto Write(const Work& work, ChangeKind kind = ChangeKind::Content) -> decltype(work())
    {
        return RunWrite(Extent::OneStatement, kind, work);
    }
    /// The same for work that is given the schema, to change it there and in the file, which takes
    /// several statements: where it fails, the transaction that was joined is undone as a whole.
    template <typename Work>
    auto ChangeSchema(const Work& work, ChangeKind kind = ChangeKind::Content)
        -> decltype(work(std::declval<VolumeSchema&>()))
    {
        return RunWrite(Extent::Schema, kind, [this, &work] {
            m_isSchemaChanged = true;
            return work(m_schema);
        });
    }
    /// Within a write: a fresh identifier.
    [[nodiscard]] Result<ObjectId> AllocateOid() { return m_transaction.AllocateOid(); }
    [[nodiscard]] Origin DrawOrigin() { return m_origins.Draw(); }
    /// Within a write: it may change the order of records.
    void NoteOrderChange() { ++m_orderChanges; }

    [[nodiscard]] Result<History> ReadHistory();
    /// Puts this in the place of the file's history; the transaction adds nothing to it.
    [[nodiscard]] Result<void> WriteHistory(const History& history);
    void SetFirstChangeListener(Volume::FirstChangeListener listener)
    {
        m_firstChangeListener = std::move(listener);
    }

    /// AlreadyExists if a transaction is running.
    [[nodiscard]] Result<void> BeginTransaction();
    /// InvalidHandle if none is running. None is afterwards.
    [[nodiscard]] Result<void> EndTransaction(bool commit);

private:
    /// Members end in the reverse of their order: statements, connection, permit, and last the file
    /// with its lock.
    VolumeFile m_file;
    QByteArray m_path;
    VolumeAccess m_access;
    ConfinedVfs::Permit m_permit;
    RecordVisit m_visit;
    ConnectionHandle m_connection;
    VolumeSchema m_schema;
    /// Once for each handle.
    std::multiset<ObjectId> m_openDatabases;

    FileTransaction m_transaction;
    Statement m_readDataVersion;
    OriginSource m_origins;
    Volume::FirstChangeListener m_firstChangeListener;

    /// Between BeginTransaction() and EndTransaction(), also once a failure has undone it all.
    bool m_isInTransaction = false;
    /// `m_schema` is not what the file held when the transaction began.
    bool m_isSchemaChanged = false;
    /// What `m_readDataVersion` gave when `m_schema` was read, or before.
    qint64 m_schemaVersion = 0;
    /// Counts what may have changed the order of a database's records.
    quint64 m_orderChanges = 0;

    enum class Extent
    {
        OneStatement,
        Schema,
    };
    template <typename Work>
    auto RunWrite(Extent extent, ChangeKind kind, const Work& work) -> decltype(work());

    /// The number of the file's state: another program's commit changes it, this one's do not.
    [[nodiscard]] Result<qint64> ReadFileVersion();
    /// Reads the schema and the number of the state that it is at least as new as.
    [[nodiscard]] Result<void> LoadSchema();
    /// Reads the schema again if it is not the file's: where an earlier attempt failed, within a
    /// transaction that a failure has ended underneath, or beside another program that writes.
    [[nodiscard]] Result<void> RefreshSchema();

    [[nodiscard]] Result<void> BeginWrite(ChangeKind kind);
    [[nodiscard]] Result<void> EndWrite(Extent extent, ErrorNumber outcome);
    [[nodiscard]] Result<void> Begin(ChangeKind kind);
    /// Tells the listener, and carries a file of an older version over, in a transaction of its
    /// own: whoever has a database open sees either layout whole.
    [[nodiscard]] Result<void> PrepareChange(ChangeKind kind);
    [[nodiscard]] Result<void> CarryOver();
    [[nodiscard]] Result<void> Commit();
    /// Undoes everything since Begin() and reads the schema anew if it had changed.
    void Rollback();
};

template <typename Work>
auto VolumeState::RunWrite(Extent extent, ChangeKind kind, const Work& work) -> decltype(work())
{
    QUILLORY_TRY(BeginWrite(kind));
    try {
        auto outcome = work();
        QUILLORY_TRY(EndWrite(extent, outcome.Error()));
        return outcome;
    } catch (...) {
        static_cast<void>(EndWrite(extent, ErrorNumber::NotEnoughMemory).IsOk());
        throw;
    }
}

} // namespace Quillory
