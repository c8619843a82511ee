// SPDX-License-Identifier: MIT
#include "propdb/volume_file.h"

#include "propdb/confined_vfs.h"
#include "propdb/hot_journal.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
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

QByteArray FolderOf(const QByteArray& path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

/// Where the fields of SQLite's file header lie.
struct HeaderLayout
{
    static constexpr size_t kSize = 100;
    static constexpr size_t kPageSize = 16;
    static constexpr size_t kWriteVersion = 18;
    static constexpr size_t kReadVersion = 19;
    static constexpr size_t kReserve = 20;
    static constexpr size_t kChangeCounter = 24;
    static constexpr size_t kTextEncoding = 56;
    static constexpr size_t kUserVersion = 60;
    static constexpr size_t kApplicationId = 68;
};
constexpr std::array<char, 16> kMagic { 'S', 'Q', 'L', 'i', 't', 'e', ' ', 'f', 'o', 'r', 'm', 'a',
    't', ' ', '3', '\0' };
constexpr quint32 kUtf16BigEndian = 3;
constexpr char kRollbackJournal = 1;

Result<void> SyncFolderOf(const QByteArray& path)
{
    const int folder = open(FolderOf(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return ErrorFromErrno(errno);
    // File systems that know no sync of folders need none.
    const int code = fsync(folder) == 0 || errno == EINVAL ? 0 : errno;
    close(folder);
    return code == 0 ? ErrorNumber::None : ErrorFromErrno(code);
}

} // namespace

Result<QByteArray> ResolveVolumePath(const QString& path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return ErrorNumber::InvalidName;
    const QFileInfo info(path);
    const QByteArray folder = QFile::encodeName(info.absolutePath());
    const QByteArray name = QFile::encodeName(info.fileName());
    if (name.isEmpty())
        return ErrorNumber::InvalidName;
    const auto resolve = [](const QByteArray& from) {
        const std::unique_ptr<char, decltype(&std::free)> real(
            realpath(from.constData(), nullptr), &std::free);
        return QByteArray(real.get());
    };
    const QByteArray realFolder = resolve(folder);
    if (realFolder.isEmpty())
        return ErrorFromErrno(errno, true);
    const QByteArray joined
        = realFolder.endsWith('/') ? realFolder + name : realFolder + '/' + name;
    struct stat status
    { };
    if (lstat(joined.constData(), &status) != 0 || !S_ISLNK(status.st_mode))
        return joined;
    const QByteArray target = resolve(joined);
    if (target.isEmpty())
        return ErrorFromErrno(errno, true);
    return target;
}

bool IsJournalOf(const QString& path, const QString& volume)
{
    const auto real = ResolveVolumePath(path);
    const auto realVolume = ResolveVolumePath(volume);
    return real && realVolume && *real == *realVolume + "-journal";
}

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
{ }

Result<VolumeFile> VolumeFile::Open(const QByteArray& path, VolumeAccess access)
{
    VolumeFile file;
    file.m_path = path;
    if (const auto opened = file.OpenDescriptor(access); !opened)
        return opened.Error();
    if (access == VolumeAccess::Exclusive) {
        if (const auto locked = file.LockOut(); !locked)
            return locked.Error();
    }
    struct stat journal
    { };
    file.m_hasJournal = stat((path + "-journal").constData(), &journal) == 0 && journal.st_size > 0;
    if (const auto verified = file.VerifyHeader(); !verified)
        return verified.Error();
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

Result<void> VolumeFile::LockOut() const
{
    // Owned by the open file, not by the process: another descriptor's close cannot drop it.
    struct flock lock
    { };
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = kLockOffset;
    lock.l_len = 1;
    if (fcntl(m_descriptor, F_OFD_SETLK, &lock) == 0)
        return {};
    if (errno == EAGAIN || errno == EACCES)
        return ErrorNumber::SharingViolation;
    return ErrorFromErrno(errno);
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

Result<void> VolumeFile::VerifyHeader() const
{
    std::array<char, HeaderLayout::kSize> header {};
    const ssize_t size = pread(m_descriptor, header.data(), header.size(), 0);
    if (size < 0)
        return ErrorFromErrno(errno);
    const auto isOurs
        = [&header] { return std::memcmp(header.data(), kMagic.data(), kMagic.size()) == 0; };
    if (m_hasJournal && size > 0 && !isOurs()) {
        // The first page was being written when the power failed; the journal has it whole.
        const QByteArray page = FirstPageFromJournal(m_path, m_descriptor);
        std::copy_n(page.begin(), std::min(header.size(), static_cast<size_t>(page.size())),
            header.begin());
    } else if (size < static_cast<ssize_t>(header.size())) {
        return ErrorNumber::BadFormat;
    }
    if (const ErrorNumber error = VerifyVolumeHeader(header); error != ErrorNumber::None)
        return error;
    // A file whose journal is still there may be cut short; the journal makes it whole.
    if (!m_hasJournal)
        return VerifySize();
    struct stat status
    { };
    if (fstat(m_descriptor, &status) != 0)
        return ErrorFromErrno(errno);
    return HasPlausibleJournal(m_path, status.st_size) ? ErrorNumber::None
                                                       : ErrorNumber::FileCorrupt;
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
    if (stat(m_path.constData(), &status) != 0)
        return ErrorFromErrno(errno, access(FolderOf(m_path).constData(), F_OK) != 0);
    if (status.st_dev != m_device || status.st_ino != m_inode)
        return ErrorNumber::SharingViolation;
    return {};
}

Result<quint32> VolumeFile::ChangeCounter() const
{
    std::array<char, sizeof(quint32)> field {};
    const ssize_t size
        = pread(m_descriptor, field.data(), field.size(), HeaderLayout::kChangeCounter);
    if (size < 0)
        return ErrorFromErrno(errno);
    if (size < static_cast<ssize_t>(field.size()))
        return ErrorNumber::FileCorrupt;
    return qFromBigEndian<quint32>(field.data());
}

Result<void> VolumeFile::MakeDurable() const
{
    if (fsync(m_descriptor) != 0)
        return ErrorFromErrno(errno);
    return SyncFolderOf(m_path);
}

Result<void> PublishFile(const QByteArray& from, const QByteArray& to)
{
    bool isRenamed
        = renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0;
    // File systems of memory cards know neither this kind of rename nor links.
    if (!isRenamed && (errno == EINVAL || errno == ENOSYS)) {
        if (access(to.constData(), F_OK) == 0)
            return ErrorNumber::FileExists;
        isRenamed = rename(from.constData(), to.constData()) == 0;
    }
    if (!isRenamed)
        return ErrorFromErrno(errno);
    return SyncFolderOf(to);
}

QByteArray UnfinishedName(const QByteArray& path)
{
    const QByteArray number = QByteArray::number(QRandomGenerator::system()->generate(), 16);
    return path + ".new-" + number;
}

} // namespace Quillory
