#pragma once

#include "propdb/property_value.h"

namespace Quillory {

/// The order of two values of a column: -1, 0 or 1. Null stands for a missing value, which counts
/// as 0, unchecked or the empty text. Texts compare by 16-bit unit, unchecked comes before checked.
[[nodiscard]] int CompareColumnValues(
    const PropertyValue* a, const PropertyValue* b, PropertyId column);

} // namespace Quillory
