// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/identity.h"
#include "propdb/property_value.h"
#include "propdb/result.h"

#include <functional>
#include <memory>
#include <optional>

namespace Quillory {

class Database;
class VolumeState;

/// What to do about a missing file.
enum class Disposition
{
    OpenExisting = 3,
    OpenAlways = 4,
};

enum class VolumeAccess
{
    /// Reads and writes; refused while another process has the volume for itself.
    Exclusive,
    /// Reads beside another process, and gives way to it: whatever reads while a change waits to be
    /// put into the file ends with Cancelled, and is to be begun again. Every write fails with
    /// AccessDenied.
    ReadOnly,
};

/// What a write changes.
enum class ChangeKind
{
    Content,
    /// What is no more than how this device shows the contents, or was theirs no more: other copies
    /// of the file are not concerned, and its history is not told.
    Layout,
};

/// One file of named, typed databases of property records.
///
/// Opening trusts nothing in the file: what is foreign, newer or damaged is refused with its reason
/// and left byte for byte as it was. A journal that is not this file's is given another name, not
/// played back. At rest a volume is one file; while it is written there is a journal beside it,
/// which must never be moved or deleted.
class Volume
{
public:
    /// Opens the file at `path`. Failures: InvalidName (no path, or one that ends in a slash),
    /// FileNotFound, PathNotFound, AccessDenied (also for a folder), TooManyLinks (its file has
    /// a second name), WriteProtected, SharingViolation (another process has it, or this one has it
    /// already), BadFormat (not a volume), NotSupported (made by a newer program), FileCorrupt,
    /// ChangedOutside (whole but for its checksums, as other programs leave it), and
    /// those of the operating system.
    [[nodiscard]] static Result<std::unique_ptr<Volume>> Mount(
        const QString& path, Disposition disposition, VolumeAccess access);

    ~Volume();
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    struct DatabaseInfo
    {
        ObjectId oid = kNoObject;
        QString name;
        DatabaseType type {};
    };
    /// The real path by which it was mounted.
    [[nodiscard]] const QByteArray& Path() const;
    /// Where a journal was put at the mount because it is another file's; empty if none was.
    [[nodiscard]] QString JournalPutAside() const;
    /// Called before the first change of the contents by this mount, unless there was one already,
    /// and before a file of an older version is
    /// carried over to the newest, which its first change does in a transaction before its own. The
    /// volume can be read and backed up then, not written.
    using FirstChangeListener = std::function<void()>;
    void SetFirstChangeListener(FirstChangeListener listener);
    /// Where the contents come from. A file of version 1, which has no history, has one that
    /// follows from its bytes: copies of it have the same.
    [[nodiscard]] Result<History> ReadHistory();
    /// Gives the volume another history, for contents that come from several files. What the same
    /// transaction changes adds no state to it.
    [[nodiscard]] Result<void> WriteHistory(const History& history);

    /// Every database, oldest first.
    [[nodiscard]] Result<std::vector<DatabaseInfo>> Databases();

    /// Makes a database. DuplicateName if one is so named, AlreadyExists if two properties have one
    /// identifier, InvalidParameter for none, unknown ones or more than 511, and for more than one
    /// sort order.
    [[nodiscard]] Result<ObjectId> CreateDatabase(const QString& name, DatabaseType type,
        std::span<const PropertySpec> specs, std::span<const SortOrder> sortOrders);
    /// Gives a database another name and type; its identifier and records stay. NotFound,
    /// DuplicateName if another is so named, SharingViolation if it is open.
    [[nodiscard]] Result<void> RenameDatabase(ObjectId oid, const QString& name, DatabaseType type);
    /// Deletes a database and all its records. NotFound, SharingViolation if it is open.
    [[nodiscard]] Result<void> DeleteDatabase(ObjectId oid, ChangeKind kind = ChangeKind::Content);
    /// Opens a database by its name and one of its sort orders. It must be closed (destroyed)
    /// before the volume is. FileNotFound if none is so named, InvalidParameter if it does not have
    /// this order.
    [[nodiscard]] Result<std::unique_ptr<Database>> OpenDatabase(
        const QString& name, const SortOrder& sortOrder);

    /// Until the end of a transaction nothing of what is written is durable, and all of it is
    /// undone if the transaction ends without a commit. A call that fails leaves nothing of itself
    /// behind, and the transaction goes on without it; a failure of the medium, or amid the making,
    /// renaming or deleting of a database, may undo all of it. AlreadyExists if one is running.
    [[nodiscard]] Result<void> BeginTransaction();
    /// InvalidHandle if none is running, and for a commit after a failure that has undone it all.
    /// No transaction is running afterwards, whatever this gives. Of one whose commit failed
    /// nothing is kept, unless the medium does not answer any more: then either all or nothing is.
    [[nodiscard]] Result<void> EndTransaction(bool commit);
    /// Whether anything was committed since the volume was mounted, be it an empty transaction.
    [[nodiscard]] bool HasChanged() const;
    /// Whether the path still leads to the file that was opened: FileNotFound if it leads nowhere,
    /// PathNotFound if its folder is gone too, SharingViolation if another file was put there. The
    /// opened one can be read all the same.
    [[nodiscard]] Result<void> VerifyInPlace() const;
    /// As VerifyInPlace(), and SharingViolation also if another program wrote into the opened file.
    /// Costs a few calls of the system.
    [[nodiscard]] Result<void> VerifyUnchanged() const;

    /// Whether each page of the file at `path` is as it was written, which it is not before all of
    /// a file that is being brought there has come: FileCorrupt then. Reads all of it, takes no
    /// lock and changes nothing; not to be called within a transaction on this file.
    [[nodiscard]] static Result<void> VerifyPagesOf(const QString& path);
    /// Reads everything that the databases hold and tells what is wrong with it, a line each; empty
    /// if nothing is.
    [[nodiscard]] Result<std::vector<QString>> Check();
    /// The same of the file's pages, also those that are free: a backup takes these too.
    [[nodiscard]] Result<std::vector<QString>> CheckPages();
    /// Writes a consistent copy to a new file of the same mode; FileExists if there is one of that
    /// name already.
    [[nodiscard]] Result<void> Backup(const QString& path);

private:
    explicit Volume(std::unique_ptr<VolumeState> state);

    std::unique_ptr<VolumeState> m_state;
};

} // namespace Quillory
