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

/// What the first bytes of a file, at least 100, say about it: None (a volume), BadFormat,
/// NotSupported (made by a newer program) or FileCorrupt.
[[nodiscard]] ErrorNumber VerifyVolumeHeader(std::span<const char> header);

/// The real, absolute path of a file that may not exist yet; its folder must. InvalidName for an
/// empty path, one that ends in a slash or holds a NUL; PathNotFound if the folder is missing or
/// the last step is a link to nothing.
[[nodiscard]] Result<QByteArray> ResolveVolumePath(const QString& path);

/// Whether `path` is where SQLite keeps the journal of the volume at `volume`, or would.
[[nodiscard]] bool IsJournalOf(const QString& path, const QString& volume);

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

    /// Opens an existing volume: a regular file with one link, a header of ours, nobody else's.
    [[nodiscard]] static Result<VolumeFile> Open(const QByteArray& path, VolumeAccess access);

    /// Whether the path still leads to the file that was opened: FileNotFound, or PathNotFound with
    /// its folder, if it was removed, SharingViolation if it was replaced.
    [[nodiscard]] Result<void> VerifyInPlace() const;
    /// How often the file was changed, as its header counts; for telling whether it was since.
    [[nodiscard]] Result<quint32> ChangeCounter() const;
    /// FileCorrupt unless the file consists of whole pages. It need not before its journal was
    /// played back.
    [[nodiscard]] Result<void> VerifySize() const;
    /// Puts on the medium what the system may still keep back of the file and of its name.
    [[nodiscard]] Result<void> MakeDurable() const;
    /// A journal stood beside the file: its last user did not end well.
    [[nodiscard]] bool HasJournal() const { return m_hasJournal; }
    [[nodiscard]] bool IsWritable() const { return m_isWritable; }

private:
    QByteArray m_path;
    int m_descriptor = -1;
    dev_t m_device = 0;
    ino_t m_inode = 0;
    bool m_isWritable = false;
    bool m_hasJournal = false;

    [[nodiscard]] Result<void> OpenDescriptor(VolumeAccess access);
    [[nodiscard]] Result<void> LockOut() const;
    [[nodiscard]] Result<void> VerifyHeader() const;
};

/// Gives the finished file `from` the name `to` in the same folder and makes that durable.
/// FileExists if there is one of that name: it is never replaced.
[[nodiscard]] Result<void> PublishFile(const QByteArray& from, const QByteArray& to);
/// A name in the folder of `path` for a file that becomes `path` when it is finished.
[[nodiscard]] QByteArray UnfinishedName(const QByteArray& path);

} // namespace Quillory
