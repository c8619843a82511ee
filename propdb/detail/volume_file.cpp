// SPDX-License-Identifier: MIT
#include "propdb/detail/volume_file.h"

#include "propdb/detail/confined_vfs.h"
#include "propdb/detail/file_system.h"
#include "propdb/detail/hot_journal.h"
#include "propdb/identity.h"

#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <set>
#include <utility>

namespace Quillory {

namespace {

/// Far beyond any byte that SQLite locks or a file holds.
constexpr off_t kLockOffset = off_t { 1 } << 62;
/// Larger files are not of this program's making.
constexpr off_t kMaxFileSize = off_t { 1 } << 40;

using FileIdentity = std::pair<dev_t, ino_t>;

/// The files this process has open. Opening and closing one of them a second time would drop
/// SQLite's locks on it.
std::set<FileIdentity>& OpenFiles()
{
    static std::set<FileIdentity> files;
    return files;
}

constexpr std::array<char, 16> kMagic { 'S', 'Q', 'L', 'i', 't', 'e', ' ', 'f', 'o', 'r', 'm', 'a',
    't', ' ', '3', '\0' };
constexpr quint32 kUtf16BigEndian = 3;
constexpr char kRollbackJournal = 1;

} // namespace

VolumeFile::~VolumeFile()
{
    if (m_descriptor < 0)
        return;
    OpenFiles().erase({ m_device, m_inode });
    close(m_descriptor);
}

VolumeFile::VolumeFile(VolumeFile&& other) noexcept
    : m_path(std::move(other.m_path))
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_device(other.m_device)
    , m_inode(other.m_inode)
    , m_isWritable(other.m_isWritable)
    , m_hasJournal(other.m_hasJournal)
    , m_journalPutAside(std::move(other.m_journalPutAside))
{ }

Result<VolumeFile> VolumeFile::Open(const QByteArray& path, VolumeAccess access)
{
    VolumeFile file;
    file.m_path = path;
    QUILLORY_TRY(file.OpenDescriptor(access));
    QUILLORY_TRY(file.Verify(access));
    return file;
}

Result<void> VolumeFile::OpenDescriptor(VolumeAccess access)
{
    struct stat status
    { };
    if (stat(m_path.constData(), &status) != 0)
        return ErrorFromErrno(errno);
    if (OpenFiles().contains({ status.st_dev, status.st_ino }))
        return ErrorNumber::SharingViolation;
    if (!S_ISREG(status.st_mode))
        return S_ISDIR(status.st_mode) ? ErrorNumber::AccessDenied : ErrorNumber::BadFormat;

    constexpr int kFlags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    m_descriptor = open(m_path.constData(), O_RDWR | kFlags);
    m_isWritable = m_descriptor >= 0;
    const bool maySettle
        = access == VolumeAccess::ReadOnly && (errno == EACCES || errno == EROFS || errno == EPERM);
    if (m_descriptor < 0 && maySettle)
        m_descriptor = open(m_path.constData(), O_RDONLY | kFlags);
    if (m_descriptor < 0)
        return ErrorFromErrno(errno);

    if (fstat(m_descriptor, &status) != 0)
        return ErrorFromErrno(errno);
    m_device = status.st_dev;
    m_inode = status.st_ino;
    OpenFiles().insert({ m_device, m_inode });
    if (!S_ISREG(status.st_mode))
        return ErrorNumber::BadFormat;
    if (status.st_nlink > 1)
        return ErrorNumber::TooManyLinks;
    if (status.st_nlink == 0)
        return ErrorNumber::FileNotFound;
    return status.st_size > kMaxFileSize ? ErrorNumber::FileTooLarge : ErrorNumber::None;
}

Result<void> VolumeFile::SetLock(short type) const
{
    // Owned by the open file, not by the process: another descriptor's close cannot drop it.
    struct flock lock
    { };
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = kLockOffset;
    lock.l_len = 1;
    if (fcntl(m_descriptor, F_OFD_SETLK, &lock) == 0)
        return {};
    if (errno == EAGAIN || errno == EACCES)
        return ErrorNumber::SharingViolation;
    return ErrorFromErrno(errno);
}

Result<void> VolumeFile::Verify(VolumeAccess access)
{
    // A reader may judge a journal only while nobody writes it.
    const bool isExclusive = access == VolumeAccess::Exclusive;
    const bool isToLock = isExclusive || !HotJournal(m_path).IsAbsent();
    const auto locked
        = isToLock ? SetLock(isExclusive || m_isWritable ? F_WRLCK : F_RDLCK) : Result<void>();
    if (!locked && (isExclusive || locked.Error() != ErrorNumber::SharingViolation))
        return locked;
    if (!isToLock || !locked)
        return VerifyHeader();
    const HotJournal journal(m_path);
    const auto verified = journal.IsAbsent() ? VerifyHeader() : VerifyWithJournal(journal);
    if (!isExclusive)
        static_cast<void>(SetLock(F_UNLCK).IsOk());
    return verified;
}

ErrorNumber VerifyVolumeHeader(std::span<const char> header)
{
    const auto field
        = [&](size_t offset) { return qFromBigEndian<quint32>(header.data() + offset); };
    if (std::memcmp(header.data(), kMagic.data(), kMagic.size()) != 0
        || field(HeaderLayout::kApplicationId) != kApplicationId)
        return ErrorNumber::BadFormat;
    if (field(HeaderLayout::kUserVersion) > kFormatVersion)
        return ErrorNumber::NotSupported;
    const bool isOurs = field(HeaderLayout::kUserVersion) != 0
        && qFromBigEndian<quint16>(header.data() + HeaderLayout::kPageSize) == kPageSize
        && header[HeaderLayout::kWriteVersion] == kRollbackJournal
        && header[HeaderLayout::kReadVersion] == kRollbackJournal
        && header[HeaderLayout::kReserve] == kPageReserve
        && field(HeaderLayout::kTextEncoding) == kUtf16BigEndian;
    return isOurs ? ErrorNumber::None : ErrorNumber::FileCorrupt;
}

Result<void> VolumeFile::VerifyWithJournal(const HotJournal& journal)
{
    // A file whose journal is still there may be cut short or torn; the journal makes it whole.
    m_hasJournal = true;
    const auto verified = VerifyHeader();
    if (!verified)
        return verified.Error() == ErrorNumber::BadFormat && journal.Mends(m_descriptor)
            ? ErrorNumber::None
            : verified.Error();
    if (journal.IsOf(m_descriptor))
        return {};
    QUILLORY_TRY_VALUE(auto aside, HotJournal::PutAside(m_path));
    m_journalPutAside = aside;
    return VerifySize();
}

Result<void> VolumeFile::VerifyHeader() const
{
    std::array<char, HeaderLayout::kSize> header {};
    const ssize_t size = pread(m_descriptor, header.data(), header.size(), 0);
    if (size < 0)
        return ErrorFromErrno(errno);
    if (size < static_cast<ssize_t>(header.size()))
        return ErrorNumber::BadFormat;
    const ErrorNumber verdict = VerifyVolumeHeader(header);
    return verdict == ErrorNumber::None && !m_hasJournal ? VerifySize() : verdict;
}

Result<void> VolumeFile::VerifySize() const
{
    struct stat status
    { };
    if (fstat(m_descriptor, &status) != 0)
        return ErrorFromErrno(errno);
    return status.st_size % kPageSize == 0 ? ErrorNumber::None : ErrorNumber::FileCorrupt;
}

Result<void> VolumeFile::VerifyInPlace() const
{
    struct stat status
    { };
    if (lstat(m_path.constData(), &status) != 0)
        return ErrorFromErrno(errno, access(FolderOf(m_path).constData(), F_OK) != 0);
    if (status.st_dev != m_device || status.st_ino != m_inode)
        return ErrorNumber::SharingViolation;
    return {};
}

bool VolumeFile::IsAwaitedByWriter() const
{
    // The byte by which SQLite's writers keep new readers out.
    constexpr off_t kPendingByte = 0x40000000;
    struct flock lock
    { };
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = kPendingByte;
    lock.l_len = 1;
    return fcntl(m_descriptor, F_GETLK, &lock) == 0 && lock.l_type == F_WRLCK;
}

Result<VolumeFile::State> VolumeFile::ReadState() const
{
    std::array<char, sizeof(quint32)> field {};
    const ssize_t size
        = pread(m_descriptor, field.data(), field.size(), HeaderLayout::kChangeCounter);
    struct stat status
    { };
    if (size < 0 || fstat(m_descriptor, &status) != 0)
        return ErrorFromErrno(errno);
    if (size < static_cast<ssize_t>(field.size()))
        return ErrorNumber::FileCorrupt;
    return State { qFromBigEndian<quint32>(field.data()), status.st_size, status.st_mtim.tv_sec,
        status.st_mtim.tv_nsec };
}

Result<quint64> VolumeFile::HashPages() const
{
    struct stat status
    { };
    if (fstat(m_descriptor, &status) != 0)
        return ErrorFromErrno(errno);
    const off_t pageCount = status.st_size / kPageSize;
    auto hash = static_cast<quint64>(pageCount);
    for (off_t page = 1; page < pageCount; ++page) {
        std::array<char, kPageReserve> checksum {};
        const off_t place = (page + 1) * kPageSize - kPageReserve;
        if (pread(m_descriptor, checksum.data(), checksum.size(), place) != kPageReserve)
            return ErrorNumber::ReadFault;
        hash = StableHash(qFromBigEndian<quint64>(checksum.data()), hash);
    }
    return hash;
}

Result<void> VolumeFile::GiveModeTo(const QByteArray& path) const
{
    struct stat status
    { };
    return fstat(m_descriptor, &status) == 0 ? SetMode(path, status.st_mode)
                                             : ErrorFromErrno(errno);
}

Result<void> VolumeFile::MakeDurable() const
{
    if (fsync(m_descriptor) != 0)
        return ErrorFromErrno(errno);
    return SyncFolderOf(m_path);
}

} // namespace Quillory
