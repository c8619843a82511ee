// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"

#include <optional>

namespace Quillory {

/// What a column holds. The numbers are the order in which the types are offered.
enum class ColumnType
{
    String,
    Checkbox,
    Price,
    Integer,
    Date,
};
constexpr int kColumnTypeCount = 5;

/// The columns every list may have, under identifiers that are the same in all lists.
// NOLINTBEGIN(readability-identifier-naming): the names that the columns have in the data
constexpr PropertyId PropName = MakePropertyId(10001, CEVT_LPWSTR);
constexpr PropertyId PropCount = MakePropertyId(10002, CEVT_I4);
constexpr PropertyId PropExpiryDate = MakePropertyId(10008, CEVT_FILETIME);
// NOLINTEND(readability-identifier-naming)

/// The type of a column, read from the low half of its identifier; String for an unknown one.
[[nodiscard]] ColumnType ColumnTypeOf(PropertyId column);
/// The property type that stores a column type.
[[nodiscard]] ValueType StorageType(ColumnType type);
/// Whether a column is of numbers, which have totals and stand below each other by their ends.
[[nodiscard]] bool IsNumberColumn(PropertyId column);
/// Whether the identifier is one of the three built-in ones.
[[nodiscard]] bool IsBuiltInColumn(PropertyId column);

} // namespace Quillory
