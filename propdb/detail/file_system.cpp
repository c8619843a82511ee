// SPDX-License-Identifier: MIT
#include "propdb/detail/file_system.h"

#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace Quillory {

QByteArray FolderOf(const QByteArray& path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

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

QByteArray WithRandomEnd(const QByteArray& name)
{
    return name + QByteArray::number(QRandomGenerator::system()->generate(), 16);
}

Result<void> SetMode(const QByteArray& path, mode_t mode)
{
    constexpr mode_t kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
    // File systems of memory cards have one mode for all.
    const bool isDone = chmod(path.constData(), (mode & kPermissions) | S_IRUSR | S_IWUSR) == 0
        || errno == EPERM || errno == ENOTSUP;
    return isDone ? ErrorNumber::None : ErrorFromErrno(errno);
}

} // namespace Quillory
