// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/confined_vfs.h"
#include "propdb/result.h"

#include <QFile>
#include <QString>

#include <array>
#include <map>
#include <memory>
#include <optional>

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
    enum class Trust
    {
        Checksums,
        /// Every page counts as it was written.
        AsItStands,
    };
    /// Opens a file whose first page says that it is a volume, or is damaged while another page
    /// is as a volume's. Else BadFormat, NotSupported (made by a newer program), FileCorrupt, or
    /// why it cannot be opened.
    [[nodiscard]] static Result<PageFile> Open(const QString& path, Trust trust);

    /// Whole pages; a rest behind the last is none.
    [[nodiscard]] quint32 PageCount() const { return m_pageCount; }
    /// Reads page `number`, from 1. A page of which one bit has turned is set right by its
    /// checksum, which no other bit would fit. False if there is none or it is not as it was
    /// written: then `page` is what the file holds.
    [[nodiscard]] bool Read(quint32 number, PageBytes& page) const;
    /// How many of the pages read so far were set right.
    [[nodiscard]] qint64 MendedPages() const;

private:
    std::unique_ptr<QFile> m_file;
    quint32 m_pageCount = 0;
    Trust m_trust = Trust::Checksums;
    /// Pages whose checksums do not fit; nothing for those that one bit does not set right.
    mutable std::map<quint32, std::optional<PageBytes>> m_wrongPages;

    [[nodiscard]] bool HasSoundPage() const;
};

} // namespace Quillory
