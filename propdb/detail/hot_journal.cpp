// SPDX-License-Identifier: MIT
#include "propdb/detail/hot_journal.h"

#include "propdb/detail/file_system.h"
#include "propdb/detail/volume_file.h"

#include <QScopeGuard>
#include <QtEndian>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <span>

namespace Quillory {

namespace {

constexpr QByteArrayView kJournalMagic = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";

/// Where the fields of a journal's header lie; it fills a sector, and records follow it.
struct JournalLayout
{
    static constexpr size_t kHeaderSize = 28;
    static constexpr size_t kOriginalPages = 16;
    static constexpr size_t kSectorSize = 20;
    static constexpr size_t kPageSize = 24;
};

quint32 Field(std::span<const char> bytes, size_t place)
{
    return qFromBigEndian<quint32>(bytes.data() + place);
}

/// Whole or not at all.
bool ReadAt(int descriptor, char* buffer, size_t size, qint64 offset)
{
    return pread(descriptor, buffer, size, offset) == static_cast<ssize_t>(size);
}

} // namespace

Result<QByteArray> HotJournal::PutAside(const QByteArray& path)
{
    const QByteArray journal = PathOf(path);
    const QByteArray aside = WithRandomEnd(journal + ".left-");
    if (rename(journal.constData(), aside.constData()) != 0)
        return errno == ENOENT ? Result<QByteArray>(QByteArray()) : ErrorFromErrno(errno);
    QUILLORY_TRY(SyncFolderOf(path));
    return aside;
}

HotJournal::HotJournal(const QByteArray& path)
{
    const QByteArray name = PathOf(path);
    struct stat status
    { };
    if (lstat(name.constData(), &status) != 0 || (S_ISREG(status.st_mode) && status.st_size == 0))
        return;
    const int descriptor
        = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    const auto closeIt = qScopeGuard([descriptor] {
        if (descriptor >= 0)
            close(descriptor);
    });
    // Whatever else lies there counts as a journal of unknown origin.
    m_isAbsent = S_ISREG(status.st_mode) && !Read(descriptor);
}

bool HotJournal::Read(int descriptor)
{
    std::array<char, JournalLayout::kHeaderSize> head {};
    if (pread(descriptor, head.data(), head.size(), 0) < 0)
        return true;
    // SQLite begins a journal with zeros, and says only when it is on the medium that it is one.
    QByteArrayView magic(head.data(), kJournalMagic.size());
    while (magic.endsWith('\0'))
        magic.chop(1);
    if (magic != kJournalMagic)
        return !kJournalMagic.startsWith(magic);
    // A record is a page's number, the page, and a sum over it.
    std::array<char, sizeof(quint32)> number {};
    PageBytes page;
    const qint64 place = Field(head, JournalLayout::kSectorSize);
    const bool isWhole = Field(head, JournalLayout::kPageSize) == kPageSize
        && ReadAt(descriptor, number.data(), number.size(), place) && Field(number, 0) == 1
        && ReadAt(descriptor, page.data(), page.size(), place + qint64 { sizeof(number) })
        && HasRightChecksum(page.data(), 1) && VerifyVolumeHeader(page) == ErrorNumber::None
        && Field(page, HeaderLayout::kPageCount) == Field(head, JournalLayout::kOriginalPages);
    if (isWhole)
        m_firstPage = page;
    return true;
}

bool HotJournal::Fits(int fileDescriptor) const
{
    struct stat status
    { };
    return m_firstPage && fstat(fileDescriptor, &status) == 0
        && (qint64 { Field(*m_firstPage, HeaderLayout::kPageCount) } - 1) * kPageSize
        < status.st_size;
}

bool HotJournal::IsOf(int fileDescriptor) const
{
    std::array<char, HeaderLayout::kSize> header {};
    if (!Fits(fileDescriptor) || !ReadAt(fileDescriptor, header.data(), header.size(), 0))
        return false;
    const quint32 before = Field(*m_firstPage, HeaderLayout::kChangeCounter);
    const quint32 now = Field(header, HeaderLayout::kChangeCounter);
    // The header and its counter change as one.
    const bool isSame = std::memcmp(header.data(), m_firstPage->data(), header.size()) == 0;
    return now == before ? isSame : now == before + 1;
}

bool HotJournal::Mends(int fileDescriptor) const
{
    if (!Fits(fileDescriptor))
        return false;
    const quint32 pageCount = Field(*m_firstPage, HeaderLayout::kPageCount);
    PageBytes page;
    for (quint32 number = 2; number <= pageCount; ++number) {
        const qint64 place = (qint64 { number } - 1) * kPageSize;
        if (!ReadAt(fileDescriptor, page.data(), page.size(), place))
            return false;
        if (HasRightChecksum(page.data(), number))
            return true;
    }
    return false;
}

} // namespace Quillory
