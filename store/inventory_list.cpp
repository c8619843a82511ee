// SPDX-License-Identifier: MIT
#include "store/inventory_list.h"

#include "res/string_table.h"
#include "values/column_type.h"

#include <numeric>

namespace Quillory {

InventoryList NewInventoryList()
{
    InventoryList list;
    list.columns = {
        { LoadString(StringId::Name), kKindName, PropName },
        { LoadString(StringId::Quantity), kKindCount, PropCount },
    };
    return list;
}

std::vector<quint32> NaturalColumnOrder(const InventoryList& list)
{
    std::vector<quint32> order(list.columns.size());
    std::iota(order.begin(), order.end(), 0U);
    return order;
}

std::vector<ColumnDefinition> ShownColumns(const InventoryList& list)
{
    std::vector<quint32> order = list.columnOrder;
    const auto natural = NaturalColumnOrder(list);
    order.insert(order.end(), natural.begin(), natural.end());
    std::vector<ColumnDefinition> columns;
    std::vector<bool> isShown(list.columns.size());
    for (const quint32 index : order) {
        if (index >= isShown.size() || isShown[index])
            continue;
        isShown[index] = true;
        columns.push_back(list.columns[index]);
    }
    return columns;
}

} // namespace Quillory
