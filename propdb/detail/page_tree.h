// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/page_file.h"

#include <functional>
#include <optional>
#include <vector>

namespace Quillory {

/// Walks the B-trees of a volume's tables and indexes page by page and passes over pages that are
/// not as they were written. Believes nothing that lies outside a page's bounds, and no page twice.
class PageTreeReader
{
public:
    enum class Doubt
    {
        PassOver,
        /// Pages that are not as they were written are read all the same, and counted as lost: for
        /// records of which the visitor can tell whether they are what they must be.
        Believe,
    };
    explicit PageTreeReader(const PageFile& file, Doubt doubt = Doubt::PassOver);

    /// A record's identifier (0 in an index) and its bytes.
    using Visitor = std::function<void(qint64 rowId, QByteArrayView record)>;
    /// Visits the records below the page `root`, in their order. Gives the number of pages that
    /// could not be read; records below or on them are passed over.
    qint64 Visit(quint32 root, const Visitor& visitor);

    /// Visits the records on one page of a table, unless it belongs to what was visited.
    void VisitStray(quint32 number, const Visitor& visitor);
    /// Counts the pages of the free list as visited: what they hold is no longer true. False if
    /// some of them are not known.
    [[nodiscard]] bool PassOverFreePages();

private:
    /// A position on a page, from which it is read onward. Reading past the content gives zeros.
    class PageBytesReader;

    const PageFile& m_file;
    Doubt m_doubt;
    std::vector<bool> m_isVisited;
    qint64 m_lostPages = 0;

    void VisitPage(quint32 number, const Visitor& visitor, int depth);
    void VisitCell(PageBytesReader cell, bool isTable, const Visitor& visitor);
    [[nodiscard]] std::optional<QByteArray> ReadRecord(
        PageBytesReader& cell, quint64 size, bool isTable);
    [[nodiscard]] bool ReadPage(quint32 number, PageBytes& page);
};

} // namespace Quillory
