// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"

#include <span>
#include <string>
#include <vector>

namespace Quillory {

/// Writes the lines of one list's rows, as ExportRows says what is in them.
class ExportLineBuilder
{
public:
    /// `context` outlives the builder.
    ExportLineBuilder(const InventoryList& list, const ValueContext& context);

    /// What is to be read of each row: the columns of the list.
    [[nodiscard]] std::span<const PropertyId> Columns() const { return m_columns; }
    /// Appends the line of a row with its end. `row` has the columns in their order.
    void AppendLine(std::u16string& text, const ScannedRecord& row);

private:
    const ValueContext& m_context;
    std::vector<PropertyId> m_columns;
    std::vector<size_t> m_fields;
    size_t m_valueLimit;
    std::vector<quint8> m_isThere;

    void FindValues(const ScannedRecord& row);
};

} // namespace Quillory
