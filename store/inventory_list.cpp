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

} // namespace Quillory
