// SPDX-License-Identifier: MIT
#include "propdb/detail/page_file.h"

#include "propdb/detail/volume_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

namespace Quillory {

namespace {

/// Setting a page right takes some 10 ms; a file with more wrong pages has not lost single bits.
constexpr size_t kMaxAttempts = 200;

std::optional<PageBytes> Mended(PageBytes page, quint32 number)
{
    constexpr int kBits = 8;
    for (char& byte : page) {
        for (int bit = 0; bit < kBits; ++bit) {
            const char wrong = byte;
            byte = static_cast<char>(wrong ^ 1 << bit);
            if (HasRightChecksum(page.data(), number))
                return page;
            byte = wrong;
        }
    }
    return std::nullopt;
}

} // namespace

Result<PageFile> PageFile::Open(const QString& path, Trust trust)
{
    PageFile pages;
    pages.m_trust = trust;
    // A pipe would keep whoever opens it waiting for a writer.
    const int descriptor
        = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0)
        return ErrorFromErrno(errno);
    struct stat status
    { };
    const bool isFile = fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    pages.m_file = std::make_unique<QFile>();
    const bool isOpen = pages.m_file->open(
        descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    if (!isOpen)
        close(descriptor);
    if (!isOpen || !isFile)
        return S_ISDIR(status.st_mode) ? ErrorNumber::AccessDenied : ErrorNumber::BadFormat;
    const qint64 count = pages.m_file->size() / kPageSize;
    if (count > std::numeric_limits<quint32>::max())
        return ErrorNumber::FileTooLarge;
    pages.m_pageCount = static_cast<quint32>(count);
    PageBytes first;
    const bool isIntact = pages.Read(1, first);
    const ErrorNumber verdict = VerifyVolumeHeader(first);
    if (verdict != ErrorNumber::None && (isIntact || !pages.HasSoundPage()))
        return verdict;
    return pages;
}

bool PageFile::HasSoundPage() const
{
    // The first pages hold the catalogue, without which nothing is found.
    constexpr quint32 kLastLookedAt = 8;
    PageBytes page;
    for (quint32 number = 2; number <= std::min(m_pageCount, kLastLookedAt); ++number) {
        if (Read(number, page))
            return true;
    }
    return false;
}

bool PageFile::Read(quint32 number, PageBytes& page) const
{
    page.fill('\0');
    if (number == 0 || number > m_pageCount)
        return false;
    const qint64 offset = qint64 { number - 1 } * kPageSize;
    if (!m_file->seek(offset) || m_file->read(page.data(), kPageSize) != kPageSize)
        return false;
    if (m_trust == Trust::AsItStands || HasRightChecksum(page.data(), number))
        return true;
    auto known = m_wrongPages.find(number);
    if (known == m_wrongPages.end() && m_wrongPages.size() < kMaxAttempts)
        known = m_wrongPages.emplace(number, Mended(page, number)).first;
    if (known == m_wrongPages.end() || !known->second)
        return false;
    page = *known->second;
    return true;
}

qint64 PageFile::MendedPages() const
{
    return std::ranges::count_if(
        m_wrongPages, [](const auto& wrong) { return wrong.second.has_value(); });
}

} // namespace Quillory
