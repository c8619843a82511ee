// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace Quillory {

/// The word for a column's type: string, checkbox, price, integer, date, or expiry for the one of
/// that name.
[[nodiscard]] QString WordForColumn(PropertyId column);
/// A column of the type that a word stands for; its number is drawn when the list is made. Nothing
/// for any other word.
[[nodiscard]] std::optional<PropertyId> ColumnForWord(QStringView word);

} // namespace Quillory
