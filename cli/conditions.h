// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/filters.h"

#include <QStringList>

namespace Quillory {

/// Reads conditions "COLUMN CONDITION VALUE". COLUMN is a column's name; of several that fit, the
/// longest. CONDITION is one of those offered for the column's type, by its text or as one of
/// = != > >= < <=. Ends the command if a text is no such condition.
[[nodiscard]] FilterSet ReadConditions(
    const QStringList& texts, const InventoryList& list, const ValueContext& context);

/// Reads "COLUMN=VALUE", the value as conditions have it; of several columns that fit, the one with
/// the longest name. Ends the command if the text is none, or no value of the column.
[[nodiscard]] PropertyValue ReadAssignment(
    const QString& text, const InventoryList& list, const ValueContext& context);

/// The column so named; ends the command if there is none.
[[nodiscard]] const ColumnDefinition& FindColumn(const QString& name, const InventoryList& list);
/// The column of that identifier; fails if there is none.
[[nodiscard]] const ColumnDefinition& FindColumn(PropertyId id, const InventoryList& list);

/// The columns in the order in which an import fills them: those that `names` lists, separated by
/// commas, then the others as they stand. Column names may hold commas. Ends the command if a name
/// is no column's or comes more often than there are columns so named.
[[nodiscard]] std::vector<PropertyId> ReadColumnOrder(
    const QString& names, const InventoryList& list);

} // namespace Quillory
