// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"
#include "transfer/text_lines.h"

#include <QStringView>

#include <functional>
#include <span>
#include <vector>

namespace Quillory {

/// How much of a file is sorted in memory and stored in one go; reached or passed by the last line
/// of a batch.
struct ImportBatchLimits
{
    size_t lines = 200'000;
    /// Characters; two bytes of memory each.
    size_t text = 7'000'000;
    /// Characters of a single line; a longer one is passed over.
    size_t line = kMaxLine;
};

/// Lines of an import, sorted by the row name that they give.
///
/// Rows in the order of their names reach the name index of a large list place by place; in the
/// file's order each would touch another page of it. Rows of one name keep the file's order.
class ImportBatch
{
public:
    /// `columns` says which column each field fills.
    ImportBatch(std::span<const PropertyId> columns, const ImportBatchLimits& limits);

    void Add(std::span<const QStringView> fields);
    [[nodiscard]] bool IsFull() const;
    [[nodiscard]] bool IsEmpty() const { return m_lines.empty(); }

    /// A line as it is kept: its fields, a TAB behind each and a NUL behind the last.
    struct KeptLine
    {
        QStringView text;
        /// Where the name stands in the text; nowhere and empty if there is none.
        quint32 nameBegin = 0;
        quint32 nameLength = 0;
    };
    /// Calls back with each line, by name, until it is told false.
    void VisitLines(const std::function<bool(const KeptLine& line)>& visit);
    using Visitor = std::function<bool(std::span<const QStringView> fields)>;
    /// As VisitLines, with the fields of each line.
    void Visit(const Visitor& visit);
    /// Forgets all lines and gives their memory back.
    void Clear();

    /// The fields of a kept line.
    static void CutLine(const char16_t* begin, std::vector<QStringView>& fields);

private:
    /// Places and lengths in m_text.
    struct Line
    {
        /// A piece of the name, its first unit highest, that tells the lines apart that are equal
        /// up to it.
        quint64 key = 0;
        quint32 begin = 0;
        quint32 length = 0;
        quint32 nameBegin = 0;
        quint32 nameLength = 0;
    };

    ImportBatchLimits m_limits;
    /// The field that fills the column of row names; beyond all fields if none does.
    size_t m_nameField;
    std::vector<char16_t> m_text;
    std::vector<Line> m_lines;

    /// Sorts lines whose names are equal in their first `depth` units.
    void SortByName(std::span<Line> lines, quint32 depth) const;
    /// As SortByName, comparing the names themselves.
    void SortWhole(std::span<Line> lines, quint32 depth) const;
    [[nodiscard]] QStringView NameOf(const Line& line) const;
    [[nodiscard]] quint64 KeyOf(const Line& line, quint32 depth) const;
};

} // namespace Quillory
