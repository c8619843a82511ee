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
    size_t text = 5'000'000;
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

    using Visitor = std::function<bool(std::span<const QStringView> fields)>;
    /// Calls back with the fields of each line, by name, until it is told false; false if it was.
    bool Visit(const Visitor& visit) const;
    /// Forgets all lines.
    void Clear();

private:
    /// Places and lengths in m_text.
    struct Line
    {
        quint32 begin = 0;
        quint32 nameBegin = 0;
        quint32 nameLength = 0;
    };

    ImportBatchLimits m_limits;
    /// The field that fills the column of row names; beyond all fields if none does.
    size_t m_nameField;
    /// The fields of the lines, a TAB behind each and a NUL behind the last of a line.
    std::vector<char16_t> m_text;
    std::vector<Line> m_lines;

    /// Where the lines stand in m_lines, by their names.
    [[nodiscard]] std::vector<quint32> SortNames() const;
};

} // namespace Quillory
