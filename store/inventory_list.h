// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"

#include <QString>

#include <vector>

namespace Quillory {

/// At most so many columns in a list, the built-in ones included.
constexpr int kMaxColumns = 16;
/// Characters of a list's and of a column's name.
constexpr int kMaxListNameLength = 128;
constexpr int kMaxColumnNameLength = 32;

/// Column kinds beside the five indices of ColumnType.
constexpr int kKindName = 20;
constexpr int kKindCount = 21;

/// Bits of InventoryList::TableOption.
constexpr quint32 kWarnOnCount = 1;
constexpr quint32 kWarnOnExpiry = 2;

/// One column of a list. `id` names its property in the list's row database; its type is the low
/// half of `id`.
struct ColumnDefinition
{
    QString name;
    int kind = 0;
    PropertyId id {};

    friend bool operator==(const ColumnDefinition&, const ColumnDefinition&) = default;
};

/// The definition of one list: what the catalogue keeps of it, and its columns.
struct InventoryList
{
    quint32 TableOption = 0;
    qint32 TableWarnStart = 0;
    /// Colours are indices into the palette of 36.
    quint32 TableWarnColour = 31;
    quint32 TableExpiryColour = 5;
    /// The width of each column in pixels, each followed by a comma, in column order.
    QString TableColSizes;
    /// One column index per display position; empty when no order was ever stored.
    std::vector<quint32> columnOrder;
    std::vector<ColumnDefinition> columns;
    QString Name;
    /// The name of the list's row database.
    QString MapName;
    qint16 TableIcon = 0;

    friend bool operator==(const InventoryList&, const InventoryList&) = default;
};

/// A list as it is before anyone named it: "Name" and "Quantity", icon 0, warnings off.
[[nodiscard]] InventoryList NewInventoryList();

/// The indices 0 to n-1 for a list of n columns.
[[nodiscard]] std::vector<quint32> NaturalColumnOrder(const InventoryList& list);

/// The columns as the rows view shows them: in the stored order, those it leaves out at the end.
[[nodiscard]] std::vector<ColumnDefinition> ShownColumns(const InventoryList& list);

} // namespace Quillory
