// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/confined_vfs.h"
#include "propdb/result.h"

#include <QFile>
#include <QString>

#include <array>
#include <memory>

namespace Quillory {

/// The bytes of a page, its checksum included.
using PageBytes = std::array<char, kPageSize>;
/// So many of them are content.
constexpr int kPageContent = kPageSize - kPageReserve;

/// The pages of a volume's file, read past SQLite and never written: for files that SQLite refuses.
/// The file must not be mounted in this process, whose locks closing it would drop.
class PageFile
{
public:
    /// Opens a file whose first page is as it was written and says that it is a volume. Else
    /// FileCorrupt, BadFormat, NotSupported (made by a newer program), or why it cannot be opened.
    [[nodiscard]] static Result<PageFile> Open(const QString& path);

    /// Whole pages; a rest behind the last is none.
    [[nodiscard]] quint32 PageCount() const { return m_pageCount; }
    /// Reads page `number`, from 1. False if there is none or it is not as it was written.
    [[nodiscard]] bool Read(quint32 number, PageBytes& page) const;

private:
    std::unique_ptr<QFile> m_file;
    quint32 m_pageCount = 0;
};

} // namespace Quillory
