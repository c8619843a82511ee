// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"
#include "store/inventory_list.h"
#include "values/filters.h"
#include "values/value_text.h"

namespace Quillory {

/// One line of a summary: a column's name and the text of its total.
struct ColumnTotal
{
    QString name;
    QString text;
};

/// The totals of one list.
struct ListTotals
{
    std::vector<ColumnTotal> lines;
    /// Why every total is "0" though there may be rows; None if the rows could be read.
    ErrorNumber error = ErrorNumber::None;
};

/// The totals of the Integer and Price columns of the open list, in column order, over all rows or,
/// unless `filters` is null, over those that pass. Reads the columns, not the records. Where a row
/// cannot be read, or no list is open, every total is "0" and `error` is set.
[[nodiscard]] ListTotals ComputeTotals(DataVolume& volume, const InventoryList& list,
    const FilterSet* filters, const ValueContext& context);

} // namespace Quillory
