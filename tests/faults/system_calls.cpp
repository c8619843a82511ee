// SPDX-License-Identifier: MIT
#include "tests/faults/system_calls.h"

#include <QScopedValueRollback>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <map>
#include <memory>

// The functions at the end of this file take the place of the C library's in this program and in
// the libraries that it loads.

namespace Quillory {

namespace {

struct Watch
{
    CallWatcher* watcher = nullptr;
    QByteArray folder;
    /// The watched files that are open.
    std::map<int, QByteArray> descriptors;
    bool isBusy = false;
};

/// Null unless somebody watches.
std::unique_ptr<Watch>& CurrentWatch()
{
    static std::unique_ptr<Watch> watch;
    return watch;
}

/// Null when calls are to pass unseen.
Watch* ActiveWatch()
{
    Watch* watch = CurrentWatch().get();
    return watch == nullptr || watch->isBusy ? nullptr : watch;
}

bool IsBelow(const QByteArray& path, const QByteArray& folder)
{
    return path.startsWith(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// Makes the call by `real`, which is given how many bytes to read or write, unless the watcher
/// has something else in mind.
template <typename Real> long Perform(SystemCall call, const Real& real)
{
    Watch* watch = ActiveWatch();
    if (watch == nullptr || call.path.isNull() || !IsBelow(call.path, watch->folder))
        return real(call.size);
    const QScopedValueRollback busy(watch->isBusy, true);
    const auto fault = watch->watcher->BeforeCall(call);
    if (!fault) {
        const long result = real(call.size);
        const int systemError = errno;
        if (result >= 0) {
            if (call.kind == CallKind::Read || call.kind == CallKind::Write)
                call.size = result;
            watch->watcher->AfterCall(call);
        }
        errno = systemError;
        return result;
    }
    if (fault->sizeDone > 0 || fault->isDone) {
        const long result = real(fault->isDone ? call.size : fault->sizeDone);
        if (fault->sizeDone > 0)
            call.size = result;
        watch->watcher->AfterCall(call);
        if (fault->errorNumber == 0)
            return result;
    }
    errno = fault->errorNumber;
    return -1;
}

SystemCall OnPath(CallKind kind, const char* path)
{
    return { kind, ActiveWatch() == nullptr ? QByteArray() : QByteArray(path), {}, nullptr, 0, 0 };
}

SystemCall OnDescriptor(CallKind kind, int descriptor)
{
    SystemCall call { kind, {}, {}, nullptr, 0, 0 };
    if (const Watch* watch = ActiveWatch()) {
        const auto found = watch->descriptors.find(descriptor);
        if (found != watch->descriptors.end())
            call.path = found->second;
    }
    return call;
}

long RealStat(int folder, const char* path, struct stat* status, int flags)
{
    return syscall(SYS_newfstatat, folder, path, status, flags);
}

int LookAt(const char* path, struct stat* status, int flags)
{
    return static_cast<int>(Perform(OnPath(CallKind::Look, path),
        [&](qint64) { return RealStat(AT_FDCWD, path, status, flags); }));
}

int SyncOpen(int descriptor, long number)
{
    SystemCall call = OnDescriptor(CallKind::Sync, descriptor);
    struct stat status
    { };
    if (!call.path.isNull() && RealStat(descriptor, "", &status, AT_EMPTY_PATH) == 0
        && S_ISDIR(status.st_mode))
        call.kind = CallKind::SyncFolder;
    return static_cast<int>(Perform(call, [&](qint64) { return syscall(number, descriptor); }));
}

int RenameFile(const char* from, const char* to, unsigned flags)
{
    SystemCall call = OnPath(CallKind::Rename, from);
    call.target = to;
    return static_cast<int>(Perform(
        call, [&](qint64) { return syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, flags); }));
}

} // namespace

WatchScope::WatchScope(const QByteArray& folder, CallWatcher& watcher)
{
    if (CurrentWatch() != nullptr)
        qFatal("somebody watches already");
    CurrentWatch() = std::make_unique<Watch>();
    CurrentWatch()->watcher = &watcher;
    CurrentWatch()->folder = folder;
}

WatchScope::~WatchScope()
{
    CurrentWatch().reset();
}

} // namespace Quillory

// NOLINTBEGIN(readability-identifier-naming, readability-inconsistent-declaration-parameter-name):
// the names of the C library. Those with 64 are what libraries built for large files call; sizes
// are the same here.
using namespace Quillory;

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    struct stat status
    { };
    const bool isMade
        = (flags & O_CREAT) != 0 && RealStat(AT_FDCWD, path, &status, AT_SYMLINK_NOFOLLOW) != 0;
    const SystemCall call = OnPath(isMade ? CallKind::Create : CallKind::Open, path);
    const auto descriptor = static_cast<int>(
        Perform(call, [&](qint64) { return syscall(SYS_openat, AT_FDCWD, path, flags, mode); }));
    Watch* watch = ActiveWatch();
    if (descriptor >= 0 && watch != nullptr && IsBelow(call.path, watch->folder))
        watch->descriptors[descriptor] = call.path;
    return descriptor;
}

int close(int descriptor)
{
    if (Watch* watch = ActiveWatch())
        watch->descriptors.erase(descriptor);
    return static_cast<int>(syscall(SYS_close, descriptor));
}

int fcntl(int descriptor, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    const long argument = va_arg(arguments, long);
    va_end(arguments);
    const bool isLock = command == F_SETLK || command == F_OFD_SETLK || command == F_GETLK;
    const SystemCall call = isLock ? OnDescriptor(CallKind::Lock, descriptor) : SystemCall {};
    return static_cast<int>(
        Perform(call, [&](qint64) { return syscall(SYS_fcntl, descriptor, command, argument); }));
}

int stat(const char* path, struct stat* status) noexcept
{
    return LookAt(path, status, 0);
}

int lstat(const char* path, struct stat* status) noexcept
{
    return LookAt(path, status, AT_SYMLINK_NOFOLLOW);
}

int fstat(int descriptor, struct stat* status) noexcept
{
    return static_cast<int>(Perform(OnDescriptor(CallKind::Look, descriptor),
        [&](qint64) { return RealStat(descriptor, "", status, AT_EMPTY_PATH); }));
}

int access(const char* path, int mode) noexcept
{
    return static_cast<int>(Perform(OnPath(CallKind::Look, path),
        [&](qint64) { return syscall(SYS_faccessat, AT_FDCWD, path, mode); }));
}

ssize_t pread(int descriptor, void* buffer, size_t size, off_t offset)
{
    SystemCall call = OnDescriptor(CallKind::Read, descriptor);
    call.size = static_cast<qint64>(size);
    call.offset = offset;
    return Perform(call,
        [&](qint64 count) { return syscall(SYS_pread64, descriptor, buffer, count, offset); });
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t size, off64_t offset)
{
    SystemCall call = OnDescriptor(CallKind::Write, descriptor);
    call.bytes = static_cast<const char*>(bytes);
    call.size = static_cast<qint64>(size);
    call.offset = offset;
    return Perform(call,
        [&](qint64 count) { return syscall(SYS_pwrite64, descriptor, bytes, count, offset); });
}

int ftruncate64(int descriptor, off64_t size) noexcept
{
    SystemCall call = OnDescriptor(CallKind::Truncate, descriptor);
    call.size = size;
    return static_cast<int>(
        Perform(call, [&](qint64) { return syscall(SYS_ftruncate, descriptor, size); }));
}

int fsync(int descriptor)
{
    return SyncOpen(descriptor, SYS_fsync);
}

int fdatasync(int descriptor)
{
    return SyncOpen(descriptor, SYS_fdatasync);
}

int unlink(const char* path) noexcept
{
    return static_cast<int>(Perform(OnPath(CallKind::Remove, path),
        [&](qint64) { return syscall(SYS_unlinkat, AT_FDCWD, path, 0); }));
}

int rename(const char* from, const char* to) noexcept
{
    return RenameFile(from, to, 0);
}

int renameat2(
    int /*fromFolder*/, const char* from, int /*toFolder*/, const char* to, unsigned flags) noexcept
{
    return RenameFile(from, to, flags);
}

int open64(const char* path, int flags, ...) __attribute__((alias("open")));
int fcntl64(int descriptor, int command, ...) __attribute__((alias("fcntl")));
ssize_t pread64(int, void*, size_t, off64_t) __attribute__((alias("pread")));
ssize_t pwrite(int, const void*, size_t, off_t) __attribute__((alias("pwrite64")));

int stat64(const char* path, struct stat64* status) noexcept
{
    return stat(path, reinterpret_cast<struct stat*>(status));
}

int lstat64(const char* path, struct stat64* status) noexcept
{
    return lstat(path, reinterpret_cast<struct stat*>(status));
}

int fstat64(int descriptor, struct stat64* status) noexcept
{
    return fstat(descriptor, reinterpret_cast<struct stat*>(status));
}

} // extern "C"
// NOLINTEND(readability-identifier-naming, readability-inconsistent-declaration-parameter-name)
