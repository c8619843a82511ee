// SPDX-License-Identifier: MIT
#include "propdb/volume_path.h"

#include "propdb/detail/file_system.h"
#include "propdb/detail/hot_journal.h"
#include "propdb/detail/volume_file.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace Quillory {

namespace {

Result<void> DrawChangeCounter(const QByteArray& path)
{
    const int descriptor = open(path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0)
        return ErrorFromErrno(errno);
    const auto closeIt = qScopeGuard([descriptor] { close(descriptor); });
    std::array<char, kPageSize> page {};
    errno = EIO;
    if (pread(descriptor, page.data(), page.size(), 0) != kPageSize)
        return ErrorFromErrno(errno);
    const quint32 counter = QRandomGenerator::system()->generate();
    qToBigEndian(counter, page.data() + HeaderLayout::kChangeCounter);
    qToBigEndian(counter, page.data() + HeaderLayout::kCounterAtSize);
    SealPage(page.data(), 1);
    const bool isWritten
        = pwrite(descriptor, page.data(), page.size(), 0) == kPageSize && fsync(descriptor) == 0;
    return isWritten ? ErrorNumber::None : ErrorFromErrno(errno);
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

bool IsSameVolume(const QString& path, const QString& other)
{
    const auto real = ResolveVolumePath(path);
    const auto realOther = ResolveVolumePath(other);
    return real && realOther && *real == *realOther;
}

QString VolumeKey(const QByteArray& realPath)
{
    constexpr qsizetype kCharacters = 16;
    return QString::fromLatin1(
        QCryptographicHash::hash(realPath, QCryptographicHash::Sha256).toHex().left(kCharacters));
}

bool IsJournalOf(const QString& path, const QString& volume)
{
    const auto real = ResolveVolumePath(path);
    const auto realVolume = ResolveVolumePath(volume);
    return real && realVolume && *real == HotJournal::PathOf(*realVolume);
}

Result<void> PublishFile(const QByteArray& from, const QByteArray& to)
{
    if (access(to.constData(), F_OK) == 0)
        return ErrorNumber::FileExists;
    QUILLORY_TRY(DrawChangeCounter(from));
    QUILLORY_TRY(HotJournal::PutAside(to));
    bool isRenamed
        = renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0;
    // File systems of memory cards know neither this kind of rename nor links.
    if (!isRenamed && (errno == EINVAL || errno == ENOSYS))
        isRenamed = rename(from.constData(), to.constData()) == 0;
    if (!isRenamed)
        return ErrorFromErrno(errno);
    return SyncFolderOf(to);
}

Result<void> ReplaceFile(const QByteArray& from, const QByteArray& to)
{
    QUILLORY_TRY(DrawChangeCounter(from));
    if (rename(from.constData(), to.constData()) != 0)
        return ErrorFromErrno(errno);
    return SyncFolderOf(to);
}

Result<void> TakeModeOf(const QByteArray& from, const QByteArray& to)
{
    struct stat status
    { };
    return stat(from.constData(), &status) == 0 ? SetMode(to, status.st_mode)
                                                : ErrorFromErrno(errno);
}

QByteArray UnfinishedName(const QByteArray& path)
{
    return WithRandomEnd(path + ".new-");
}

} // namespace Quillory
