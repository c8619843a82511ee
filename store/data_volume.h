// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"
#include "propdb/result.h"
#include "propdb/volume.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace Quillory {

/// The data file as the rest of the program sees it: one mounted volume, its one session, and the
/// open databases, at most one of each type.
///
/// Operations tell success by their result only and show no messages; LastError() has the number
/// of the latest failure. Every operation may be called at any time: on a volume that is not
/// mounted, or a type that is not open, it fails.
///
/// Outside a transaction every write is durable when the call returns.
class DataVolume
{
public:
    DataVolume();
    /// Closes the catalogue, then every other database, the session and the volume. A transaction
    /// still open is rolled back.
    ~DataVolume();
    DataVolume(const DataVolume&) = delete;
    DataVolume& operator=(const DataVolume&) = delete;

    /// Opens the data file at `path`, creating it when `disposition` is OpenAlways and there is
    /// none. ErrorNumber::None on success; on failure nothing is mounted and the file is as it was.
    [[nodiscard]] ErrorNumber Mount(const QString& path, Disposition disposition,
        VolumeAccess access = VolumeAccess::Exclusive);
    /// True if nothing was mounted or the volume could be closed.
    bool Unmount();
    /// True while a volume is mounted: what was committed is on the medium already.
    bool Flush();
    [[nodiscard]] bool IsMounted() const { return m_volume != nullptr; }

    /// Opens the session unless there is one; false when nothing is mounted.
    bool OpenSession();

    /// Whether the volume holds a database of this type, whatever its name. False also on failure.
    [[nodiscard]] bool Exists(DatabaseType type);
    /// Every database of this type, oldest first. None also on failure.
    [[nodiscard]] std::vector<ObjectId> DatabasesOf(DatabaseType type);
    /// Makes a database; its identifier, or kNoObject on failure. Without any property nothing is
    /// made and 87 comes back in place of an identifier; callers take it for success.
    ObjectId Create(const QString& name, DatabaseType type, std::span<const PropertySpec> specs,
        std::span<const SortOrder> sortOrders);
    /// Opens the database so named. True at once if one of this type is open, whatever its name.
    bool Open(const QString& name, DatabaseType type, const SortOrder& sortOrder, quint32 flags = 0,
        const NotifyRequest* notifyRequest = nullptr);
    void Close(DatabaseType type);
    /// The identifier of the open database; kNoObject if none of this type is open.
    [[nodiscard]] ObjectId DatabaseOid(DatabaseType type) const;

    /// The number of records, -1 on failure.
    [[nodiscard]] qint64 RecordCount(DatabaseType type);
    /// The number of declared properties, -1 on failure.
    [[nodiscard]] int PropertyCount(DatabaseType type);
    /// The declared properties in the order of their declaration, at most `count`.
    [[nodiscard]] std::vector<PropertySpec> PropertySpecs(DatabaseType type, int count);

    /// Positions on the first record in sort order; kNoObject when there is none.
    ObjectId SeekFirst(DatabaseType type);
    /// Moves `n` records on (back if negative); kNoObject past either end.
    ObjectId SeekNext(DatabaseType type, int n = 1);
    /// Positions on a record; kNoObject if there is no such record.
    ObjectId SeekTo(DatabaseType type, ObjectId oid);

    /// The current record, every property it has. A record that converts to false on failure.
    [[nodiscard]] Record ReadAll(DatabaseType type);
    /// The listed properties in that order; those it lacks are flagged CEDB_PROPNOTFOUND.
    [[nodiscard]] Record Read(DatabaseType type, std::span<const PropertyId> ids);
    /// Adds a record (kNoObject) or replaces the listed properties of one. Its identifier, or
    /// kNoObject on failure.
    ObjectId Write(DatabaseType type, ObjectId oid, std::span<const PropertyValue> values);
    /// Adds a record that there was, with its origin; its identifier is new. kNoObject on failure.
    ObjectId AddBack(DatabaseType type, const Record& record);
    /// As Write(), for what says only how a list is laid out on the screen.
    bool WriteLayout(DatabaseType type, ObjectId oid, std::span<const PropertyValue> values);
    /// Whether anything but layout was written since the volume was mounted.
    [[nodiscard]] bool HasChangedContent() const { return m_hasChangedContent; }
    bool DeleteRecord(DatabaseType type, ObjectId oid);
    /// Empty if there is no such database, or on failure.
    [[nodiscard]] QString DatabaseName(ObjectId oid);
    /// Gives a closed database another name and type.
    bool RenameDatabase(ObjectId oid, const QString& name, DatabaseType type);
    bool DeleteDatabase(ObjectId oid);
    /// The same for one whose records are none of the contents any more.
    bool PurgeDatabase(ObjectId oid);

    bool BeginTransaction();
    /// Ends the transaction; with `commit` true only once its changes are durable.
    bool EndTransaction(bool commit);

    /// As Volume::WriteHistory().
    bool WriteHistory(const History& history);

    /// The open database of this type for whole-column reads; null if none is open. Valid until
    /// Close() or Unmount().
    [[nodiscard]] Database* OpenDatabase(DatabaseType type);
    /// The mounted volume; null if none is.
    [[nodiscard]] Volume* MountedVolume() { return m_volume.get(); }

    /// The number of the latest failure.
    [[nodiscard]] ErrorNumber LastError() const { return m_lastError; }

    /// Told of each write that failed for a reason that lies with the file or its medium, not with
    /// what was to be written: the medium is full, gone, protected, the file was replaced.
    using WriteFailureListener = std::function<void(ErrorNumber)>;
    void SetWriteFailureListener(WriteFailureListener listener);

private:
    struct OpenEntry
    {
        std::unique_ptr<Database> database;
        std::optional<NotifyRequest> request;
    };

    std::unique_ptr<Volume> m_volume;
    std::map<DatabaseType, OpenEntry> m_open;
    bool m_hasSession = false;
    bool m_hasChangedContent = false;
    ErrorNumber m_lastError = ErrorNumber::None;
    WriteFailureListener m_writeFailureListener;

    template <typename T> bool Note(const Result<T>& result);
    /// As Note(), for an operation that writes.
    template <typename T> bool NoteWrite(const Result<T>& result);
    Database* Find(DatabaseType type);
    Volume* FindVolume();
};

/// A transaction that rolls back when it is left without a commit.
class Transaction
{
public:
    explicit Transaction(DataVolume& volume);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Whether it could be begun; not while another is running.
    explicit operator bool() const { return m_isOpen; }
    /// True once the changes are durable.
    bool Commit();

private:
    DataVolume& m_volume;
    bool m_isOpen = false;
};

} // namespace Quillory
