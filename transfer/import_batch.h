#pragma once

#include "propdb/property_value.h"

#include <QStringView>

#include <functional>
#include <span>
#include <vector>

namespace Quillory {

/// How much of a file is stored in one go; reached or passed by the last line of a batch.
struct ImportBatchLimits
{
    size_t lines = 262'144;
    /// Characters; two bytes of memory each.
    size_t text = 10'000'000;
};

/// Lines of an import that are stored together, sorted by the row name that they give.
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

    /// Calls back with the fields of each line, by name, until it is told false; then holds none.
    void Drain(const std::function<bool(std::span<const QStringView> fields)>& visit);

private:
    struct Line
    {
        size_t begin;
        size_t nameBegin;
        size_t nameLength;
    };

    ImportBatchLimits m_limits;
    size_t m_nameField;
    /// The fields, a TAB behind each and a NUL behind the last of a line.
    std::vector<char16_t> m_text;
    std::vector<Line> m_lines;

    [[nodiscard]] QStringView NameOf(const Line& line) const;
    void CutLine(const Line& line, std::vector<QStringView>& fields) const;
};

} // namespace Quillory
