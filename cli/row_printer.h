// SPDX-License-Identifier: MIT
#pragma once

#include "cli/output.h"
#include "store/inventory_list.h"
#include "values/value_text.h"

#include <vector>

namespace Quillory {

/// A value as it is shown in a cell; of a tick Y or N.
[[nodiscard]] QString CellText(const PropertyValue& value, const ValueContext& context);

/// Null for a missing value and for a price that is no finite number.
[[nodiscard]] QJsonValue JsonOf(const PropertyValue& value);

enum class RowForm
{
    /// Fields with TABs between them, behind a line of the names of the columns.
    Lines,
    LinesWithoutNames,
    /// An array with an object per row.
    Json,
    /// A page with the list's name and a table of what the cells show.
    Html,
};

/// Writes rows as they come, in the order of the columns in which they are shown.
class RowPrinter
{
public:
    /// `context` and `output` outlive the printer.
    RowPrinter(
        TextOutput& output, RowForm form, const InventoryList& list, const ValueContext& context);

    /// What is to be read of each row.
    [[nodiscard]] const std::vector<PropertyId>& Ids() const { return m_ids; }
    /// False when no more can be printed.
    bool Print(const ScannedRecord& row);
    void End();

private:
    TextOutput& m_output;
    RowForm m_form;
    const ValueContext& m_context;
    std::vector<PropertyId> m_ids;
    /// The row that is printed.
    std::vector<PropertyValue> m_values;
    QStringList m_keys;
    JsonArrayWriter m_json;

    void PrintJsonRow();
};

} // namespace Quillory
