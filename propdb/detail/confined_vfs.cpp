// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"

#include <QList>
#include <QMutex>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xxhash.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace Quillory {

namespace {

/// An open file: what SQLite sees, and behind it in memory the file of the system's own VFS.
struct ConfinedFile
{
    sqlite3_file base;
    bool hasChecksums;
};

sqlite3_file* RealFile(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<ConfinedFile*>(file) + 1);
}

sqlite3_vfs* RealVfs(sqlite3_vfs* vfs)
{
    return static_cast<sqlite3_vfs*>(vfs->pAppData);
}

struct PermittedPaths
{
    QMutex mutex;
    QList<QByteArray> paths;
    /// Those of them whose checksums are ignored.
    QList<QByteArray> unverified;
};

PermittedPaths& Permitted()
{
    static PermittedPaths permitted;
    return permitted;
}

bool IsPermittedVolume(const char* path)
{
    const QMutexLocker lock(&Permitted().mutex);
    return Permitted().paths.contains(QByteArray(path));
}

bool IsVerified(const char* path)
{
    const QMutexLocker lock(&Permitted().mutex);
    return !Permitted().unverified.contains(QByteArray(path));
}

constexpr QByteArrayView kJournalSuffix("-journal");

QByteArray VolumeOfJournal(const char* path)
{
    return QByteArray(path).chopped(kJournalSuffix.size());
}

bool IsPermittedJournal(const char* path)
{
    return QByteArrayView(path).endsWith(kJournalSuffix)
        && IsPermittedVolume(VolumeOfJournal(path).constData());
}

bool MayOpen(const char* path, int flags)
{
    if (path == nullptr)
        return (flags & SQLITE_OPEN_DELETEONCLOSE) != 0;
    if ((flags & SQLITE_OPEN_MAIN_DB) != 0)
        return IsPermittedVolume(path);
    return (flags & SQLITE_OPEN_MAIN_JOURNAL) != 0 && IsPermittedJournal(path);
}

bool IsWholePage(int amount, sqlite3_int64 offset)
{
    return amount == kPageSize && offset % kPageSize == 0;
}

quint32 PageNumber(sqlite3_int64 offset)
{
    return static_cast<quint32>(offset / kPageSize + 1);
}

/// The checksum covers the page's number too, so that a page at another's place is found.
XXH64_hash_t PageChecksum(const void* page, quint32 number)
{
    return XXH3_64bits_withSeed(page, kPageSize - kPageReserve, number);
}

int FileClose(sqlite3_file* file)
{
    return RealFile(file)->pMethods->xClose(RealFile(file));
}

int ReadPage(sqlite3_file* file, void* page, sqlite3_int64 offset)
{
    const int code = RealFile(file)->pMethods->xRead(RealFile(file), page, kPageSize, offset);
    if (code != SQLITE_OK)
        return code;
    return HasRightChecksum(page, PageNumber(offset)) ? SQLITE_OK : SQLITE_IOERR_DATA;
}

/// Reads a part of a page, or of several: SQLite takes long texts from the file like that, past its
/// page cache. Each page is read whole and verified; one that the end of the file cuts short cannot
/// be, and makes a short read even where the part itself is there.
int ReadPart(sqlite3_file* file, char* buffer, int amount, sqlite3_int64 offset)
{
    std::array<char, kPageSize> page;
    int outcome = SQLITE_OK;
    for (int done = 0; done < amount;) {
        const auto begin = static_cast<int>((offset + done) % kPageSize);
        const int code = ReadPage(file, page.data(), offset + done - begin);
        if (code != SQLITE_OK && code != SQLITE_IOERR_SHORT_READ)
            return code;
        if (code != SQLITE_OK)
            outcome = code;
        const int size = std::min(amount - done, kPageSize - begin);
        std::memcpy(buffer + done, page.data() + begin, static_cast<size_t>(size));
        done += size;
    }
    return outcome;
}

int FileRead(sqlite3_file* file, void* buffer, int amount, sqlite3_int64 offset)
{
    // SQLite reads the header by itself before it plays a journal back, when the first page may
    // still be torn, and its change counter to see whether the page cache still holds. It shows
    // nothing of either: for that it reads the page.
    constexpr int kHeaderSize = 100;
    if (!reinterpret_cast<ConfinedFile*>(file)->hasChecksums || offset + amount <= kHeaderSize)
        return RealFile(file)->pMethods->xRead(RealFile(file), buffer, amount, offset);
    if (IsWholePage(amount, offset))
        return ReadPage(file, buffer, offset);
    return ReadPart(file, static_cast<char*>(buffer), amount, offset);
}

int FileWrite(sqlite3_file* file, const void* buffer, int amount, sqlite3_int64 offset)
{
    if (reinterpret_cast<ConfinedFile*>(file)->hasChecksums && IsWholePage(amount, offset)) {
        // The page cache owns the buffer and leaves the reserved bytes to the VFS. Writing them in
        // place keeps the cached page, and so the journal made from it, equal to the file.
        SealPage(const_cast<void*>(buffer), PageNumber(offset));
    }
    return RealFile(file)->pMethods->xWrite(RealFile(file), buffer, amount, offset);
}

int FileTruncate(sqlite3_file* file, sqlite3_int64 size)
{
    return RealFile(file)->pMethods->xTruncate(RealFile(file), size);
}

int FileSync(sqlite3_file* file, int flags)
{
    return RealFile(file)->pMethods->xSync(RealFile(file), flags);
}

int FileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return RealFile(file)->pMethods->xFileSize(RealFile(file), size);
}

int FileLock(sqlite3_file* file, int level)
{
    return RealFile(file)->pMethods->xLock(RealFile(file), level);
}

int FileUnlock(sqlite3_file* file, int level)
{
    return RealFile(file)->pMethods->xUnlock(RealFile(file), level);
}

int FileCheckReservedLock(sqlite3_file* file, int* result)
{
    return RealFile(file)->pMethods->xCheckReservedLock(RealFile(file), result);
}

int FileControl(sqlite3_file* file, int operation, void* argument)
{
    return RealFile(file)->pMethods->xFileControl(RealFile(file), operation, argument);
}

int FileSectorSize(sqlite3_file* file)
{
    return RealFile(file)->pMethods->xSectorSize(RealFile(file));
}

int FileDeviceCharacteristics(sqlite3_file* file)
{
    return RealFile(file)->pMethods->xDeviceCharacteristics(RealFile(file));
}

// Version 1 has neither shared memory nor memory mapping: no write-ahead log, no unverified page.
constexpr sqlite3_io_methods kFileMethods {
    .iVersion = 1,
    .xClose = FileClose,
    .xRead = FileRead,
    .xWrite = FileWrite,
    .xTruncate = FileTruncate,
    .xSync = FileSync,
    .xFileSize = FileSize,
    .xLock = FileLock,
    .xUnlock = FileUnlock,
    .xCheckReservedLock = FileCheckReservedLock,
    .xFileControl = FileControl,
    .xSectorSize = FileSectorSize,
    .xDeviceCharacteristics = FileDeviceCharacteristics,
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

/// A new volume is its owner's alone. A journal holds what the volume does, and whoever may use
/// that must be able to play it back.
mode_t ModeOfNew(const char* path)
{
    constexpr mode_t kAll = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    struct stat status
    { };
    const bool hasVolume
        = IsPermittedJournal(path) && stat(VolumeOfJournal(path).constData(), &status) == 0;
    return hasVolume ? status.st_mode & kAll : S_IRUSR | S_IWUSR;
}

/// Makes the file if there is none; false, and errno, if it cannot be made. SQLite itself would try
/// again without making it, and then only tell that there is none.
bool MakeFile(const char* path)
{
    const int descriptor = open(path, O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ModeOfNew(path));
    return descriptor >= 0 && close(descriptor) == 0;
}

int VfsOpen(sqlite3_vfs* vfs, const char* path, sqlite3_file* file, int flags, int* outFlags)
{
    file->pMethods = nullptr;
    const bool isToBeMade = path != nullptr && (flags & SQLITE_OPEN_CREATE) != 0;
    if (!MayOpen(path, flags) || (isToBeMade && !MakeFile(path)))
        return SQLITE_CANTOPEN;
    const int code = RealVfs(vfs)->xOpen(RealVfs(vfs), path, RealFile(file), flags, outFlags);
    if (RealFile(file)->pMethods != nullptr) {
        reinterpret_cast<ConfinedFile*>(file)->hasChecksums
            = (flags & SQLITE_OPEN_MAIN_DB) != 0 && IsVerified(path);
        file->pMethods = &kFileMethods;
    }
    return code;
}

int VfsDelete(sqlite3_vfs* vfs, const char* path, int syncFolder)
{
    if (!IsPermittedJournal(path))
        return SQLITE_IOERR_DELETE;
    return RealVfs(vfs)->xDelete(RealVfs(vfs), path, syncFolder);
}

int VfsAccess(sqlite3_vfs* vfs, const char* path, int flags, int* result)
{
    *result = 0;
    if (!IsPermittedVolume(path) && !IsPermittedJournal(path))
        return SQLITE_OK;
    return RealVfs(vfs)->xAccess(RealVfs(vfs), path, flags, result);
}

int VfsFullPathname(sqlite3_vfs* vfs, const char* path, int size, char* fullPath)
{
    return RealVfs(vfs)->xFullPathname(RealVfs(vfs), path, size, fullPath);
}

int VfsRandomness(sqlite3_vfs* vfs, int size, char* bytes)
{
    return RealVfs(vfs)->xRandomness(RealVfs(vfs), size, bytes);
}

int VfsSleep(sqlite3_vfs* vfs, int microseconds)
{
    return RealVfs(vfs)->xSleep(RealVfs(vfs), microseconds);
}

int VfsCurrentTime(sqlite3_vfs* vfs, double* julianDay)
{
    return RealVfs(vfs)->xCurrentTime(RealVfs(vfs), julianDay);
}

int VfsGetLastError(sqlite3_vfs* vfs, int size, char* text)
{
    return RealVfs(vfs)->xGetLastError(RealVfs(vfs), size, text);
}

sqlite3_vfs* RegisterVfs()
{
    sqlite3_vfs* real = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs vfs {};
    vfs.iVersion = 1;
    vfs.szOsFile = static_cast<int>(sizeof(ConfinedFile)) + real->szOsFile;
    vfs.mxPathname = real->mxPathname;
    vfs.zName = "quillory";
    vfs.pAppData = real;
    vfs.xOpen = VfsOpen;
    vfs.xDelete = VfsDelete;
    vfs.xAccess = VfsAccess;
    vfs.xFullPathname = VfsFullPathname;
    vfs.xRandomness = VfsRandomness;
    vfs.xSleep = VfsSleep;
    vfs.xCurrentTime = VfsCurrentTime;
    vfs.xGetLastError = VfsGetLastError;
    sqlite3_vfs_register(&vfs, 0);
    return &vfs;
}

} // namespace

bool HasRightChecksum(const void* page, quint32 number)
{
    XXH64_canonical_t stored;
    static_assert(sizeof(stored) == kPageReserve);
    std::memcpy(&stored, static_cast<const char*>(page) + kPageSize - kPageReserve, sizeof(stored));
    return XXH64_hashFromCanonical(&stored) == PageChecksum(page, number);
}

void SealPage(void* page, quint32 number)
{
    XXH64_canonical_t checksum;
    XXH64_canonicalFromHash(&checksum, PageChecksum(page, number));
    std::memcpy(static_cast<char*>(page) + kPageSize - kPageReserve, &checksum, sizeof(checksum));
}

const char* ConfinedVfs::Name()
{
    static const sqlite3_vfs* vfs = RegisterVfs();
    return vfs->zName;
}

ConfinedVfs::Permit::Permit(QByteArray path, Checksums checksums)
    : m_path(std::move(path))
    , m_checksums(checksums)
{
    const QMutexLocker lock(&Permitted().mutex);
    Permitted().paths.append(m_path);
    if (m_checksums == Checksums::Ignored)
        Permitted().unverified.append(m_path);
}

ConfinedVfs::Permit::~Permit()
{
    const QMutexLocker lock(&Permitted().mutex);
    Permitted().paths.removeOne(m_path);
    if (m_checksums == Checksums::Ignored)
        Permitted().unverified.removeOne(m_path);
}

} // namespace Quillory
