// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/result.h"
#include "propdb/volume.h"

#include <QByteArray>

#include <sys/types.h>

#include <span>

namespace Quillory {

/// Stands in the file's header; tells a volume from any other SQLite file.
constexpr int kApplicationId = 0x5175696C;
/// The version of the file's layout; files with a higher one are refused.
constexpr int kFormatVersion = 1;

/// Where the fields of SQLite's file header lie.
struct HeaderLayout
{
    static constexpr size_t kSize = 100;
    static constexpr size_t kPageSize = 16;
    static constexpr size_t kWriteVersion = 18;
    static constexpr size_t kReadVersion = 19;
    static constexpr size_t kReserve = 20;
    static constexpr size_t kChangeCounter = 24;
    static constexpr size_t kPageCount = 28;
    static constexpr size_t kTextEncoding = 56;
    static constexpr size_t kUserVersion = 60;
    static constexpr size_t kApplicationId = 68;
    /// The change counter once more.
    static constexpr size_t kCounterAtSize = 92;
};

/// What the first bytes of a file, at least 100, say about it: None (a volume), BadFormat,
/// NotSupported (made by a newer program) or FileCorrupt.
[[nodiscard]] ErrorNumber VerifyVolumeHeader(std::span<const char> header);

/// The real, absolute path of a file that may not exist yet; its folder must. InvalidName for an
/// empty path, one that ends in a slash or holds a NUL; PathNotFound if the folder is missing or
/// the last step is a link to nothing.
[[nodiscard]] Result<QByteArray> ResolveVolumePath(const QString& path);

/// Whether `path` is where SQLite keeps the journal of the volume at `volume`, or would.
[[nodiscard]] bool IsJournalOf(const QString& path, const QString& volume);

class HotJournal;

/// The operating system's file behind a volume: looked at before SQLite sees it, locked against a
/// second program, and watched for being replaced while it is open.
class VolumeFile
{
public:
    VolumeFile() = default;
    /// Gives up the lock. Must come after SQLite's own close, whose locks it would drop.
    ~VolumeFile();
    VolumeFile(VolumeFile&& other) noexcept;
    VolumeFile& operator=(VolumeFile&&) = delete;
    VolumeFile(const VolumeFile&) = delete;
    VolumeFile& operator=(const VolumeFile&) = delete;

    /// Opens an existing volume: a regular file with one link, a header of ours, nobody else's. A
    /// journal beside it that is not this file's is put aside under another name.
    [[nodiscard]] static Result<VolumeFile> Open(const QByteArray& path, VolumeAccess access);

    /// Whether the path still leads to the file that was opened: FileNotFound, or PathNotFound with
    /// its folder, if it was removed, SharingViolation if it was replaced.
    [[nodiscard]] Result<void> VerifyInPlace() const;
    /// Whether another process waits for readers to let go of the file, to put a change into it.
    [[nodiscard]] bool IsAwaitedByWriter() const;
    /// How often the file was changed, as its header counts; for telling whether it was since.
    [[nodiscard]] Result<quint32> ChangeCounter() const;
    /// FileCorrupt unless the file consists of whole pages. It need not before its journal was
    /// played back.
    [[nodiscard]] Result<void> VerifySize() const;
    /// Puts on the medium what the system may still keep back of the file and of its name.
    [[nodiscard]] Result<void> MakeDurable() const;
    /// A journal that nobody writes stood beside the file: a user of it did not end well.
    [[nodiscard]] bool HasJournal() const { return m_hasJournal; }
    /// Where it was put because it is another file's; empty if none was.
    [[nodiscard]] const QByteArray& JournalPutAside() const { return m_journalPutAside; }
    [[nodiscard]] bool IsWritable() const { return m_isWritable; }

private:
    QByteArray m_path;
    int m_descriptor = -1;
    dev_t m_device = 0;
    ino_t m_inode = 0;
    bool m_isWritable = false;
    bool m_hasJournal = false;
    QByteArray m_journalPutAside;

    [[nodiscard]] Result<void> OpenDescriptor(VolumeAccess access);
    /// SharingViolation while another process has the volume for itself.
    [[nodiscard]] Result<void> SetLock(short type) const;
    [[nodiscard]] Result<void> Verify(VolumeAccess access);
    /// Judges a journal that nobody writes, and the header as it will be once it is played back.
    [[nodiscard]] Result<void> VerifyWithJournal(const HotJournal& journal);
    [[nodiscard]] Result<void> VerifyHeader() const;
};

/// Gives the finished volume `from` the name `to` in the same folder and makes that durable. It
/// begins to count its changes at a random number, so that no journal but its own fits it.
/// FileExists if there is one of that name: it is never replaced. A journal that an earlier file of
/// that name has left is put aside under another name.
[[nodiscard]] Result<void> PublishFile(const QByteArray& from, const QByteArray& to);
/// A name in the folder of `path` for a file that becomes `path` when it is finished.
[[nodiscard]] QByteArray UnfinishedName(const QByteArray& path);

} // namespace Quillory
