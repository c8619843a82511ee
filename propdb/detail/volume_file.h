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
constexpr int kFormatVersion = 2;

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
    /// its folder, if it was removed, SharingViolation if it was replaced, be it by a link to
    /// itself: its journal would be looked for beside the link or beside the file.
    [[nodiscard]] Result<void> VerifyInPlace() const;
    /// Whether a writer in another process holds SQLite's pending lock: it waits for readers to let
    /// go of the file.
    [[nodiscard]] bool IsAwaitedByWriter() const;
    /// For telling whether the file was written since.
    struct State
    {
        /// How often the file was changed, as its header counts.
        quint32 changes = 0;
        qint64 size = 0;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;

        friend bool operator==(const State&, const State&) = default;
    };
    [[nodiscard]] Result<State> ReadState() const;
    /// Follows from the checksums of all pages but the first, and from how many there are.
    [[nodiscard]] Result<quint64> HashPages() const;
    /// FileCorrupt unless the file consists of whole pages. It need not before its journal was
    /// played back.
    [[nodiscard]] Result<void> VerifySize() const;
    /// As TakeModeOf(), also where the path no longer leads to the file.
    [[nodiscard]] Result<void> GiveModeTo(const QByteArray& path) const;
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

} // namespace Quillory
