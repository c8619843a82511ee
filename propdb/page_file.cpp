// SPDX-License-Identifier: MIT
#include "propdb/page_file.h"

#include "propdb/volume_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>

namespace Quillory {

Result<PageFile> PageFile::Open(const QString& path)
{
    PageFile pages;
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
    if (verdict == ErrorNumber::None && !isIntact)
        return ErrorNumber::FileCorrupt;
    if (verdict != ErrorNumber::None)
        return verdict;
    return pages;
}

bool PageFile::Read(quint32 number, PageBytes& page) const
{
    page.fill('\0');
    if (number == 0 || number > m_pageCount)
        return false;
    const qint64 offset = qint64 { number - 1 } * kPageSize;
    return m_file->seek(offset) && m_file->read(page.data(), kPageSize) == kPageSize
        && HasRightChecksum(page.data(), number);
}

} // namespace Quillory
