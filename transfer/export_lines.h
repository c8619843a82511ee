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

    /// Appends the line of a row with its end. `values` has one entry per column of the list, in
    /// their order.
    void AppendLine(std::u16string& text, std::span<const PropertyValue> values);

private:
    const ValueContext& m_context;
    std::vector<size_t> m_fields;
    size_t m_valueLimit;
    std::vector<quint8> m_isThere;

    void FindValues(std::span<const PropertyValue> values);
};

} // namespace Quillory
