// SPDX-License-Identifier: MIT
#include "propdb/property_value.h"

#include <algorithm>

namespace Quillory {

const PropertyValue* FindProperty(std::span<const PropertyValue> values, PropertyId id)
{
    const auto found = std::find_if(values.begin(), values.end(),
        [id](const PropertyValue& value) { return value.id == id && !value.IsMissing(); });
    return found == values.end() ? nullptr : &*found;
}

} // namespace Quillory
