// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace Quillory {

// Values as programs hand them to each other, the same in every locale: whole numbers in digits,
// prices with a point and as many decimals as tell them from every other, dates as YYYY-MM-DD,
// "true" or "false".

/// Empty for a missing value, a price that is no finite number and a day after the year 9999.
[[nodiscard]] QString FormatExchangeText(const PropertyValue& value);

/// Blanks around numbers, dates and ticks are passed over. A comma before the decimals of a price
/// is a point, but where it could part groups: 1,25 and 0,125 are read, 1,234 is not. Ticks are
/// also read as yes and no, y and n, 1 and 0, all in any case. Nothing for a text that is no value
/// of the column, such as a date before 1601 or a text with a NUL.
[[nodiscard]] std::optional<PropertyValue> ParseExchangeText(PropertyId column, QStringView text);

} // namespace Quillory
