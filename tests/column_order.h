#pragma once

#include "values/column_type.h"
#include "values/file_date.h"

namespace Quillory {

/// The value of a property, or its type's zero for a missing one.
template <typename T> T ValueOrZero(const PropertyValue* property)
{
    const T* const value = property == nullptr ? nullptr : std::get_if<T>(&property->value);
    return value == nullptr ? T {} : *value;
}

/// 0 also where a value is no number.
template <typename T> int Order(const T& a, const T& b)
{
    return int { a > b } - int { a < b };
}

/// The order of two values of a column, -1, 0 or 1, by the simplest means: what sorting by digits
/// and keys must come to. Null stands for a missing value, which counts as 0, unchecked or the
/// empty text. Texts compare by 16-bit unit, unchecked comes before checked.
inline int CompareColumnValues(const PropertyValue* a, const PropertyValue* b, PropertyId column)
{
    const auto day = [](const PropertyValue* date) {
        const FileTime* const time
            = date == nullptr ? nullptr : std::get_if<FileTime>(&date->value);
        return time == nullptr ? 0.0 : FileTimeToDateNumber(*time).value_or(0.0);
    };
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        return Order(ValueOrZero<qint32>(a), ValueOrZero<qint32>(b));
    case ColumnType::Price:
        return Order(ValueOrZero<double>(a), ValueOrZero<double>(b));
    case ColumnType::Checkbox:
        return Order(ValueOrZero<bool>(a), ValueOrZero<bool>(b));
    case ColumnType::Date:
        return Order(day(a), day(b));
    case ColumnType::String:
        return Order(ValueOrZero<QString>(a), ValueOrZero<QString>(b));
    }
    return 0;
}

} // namespace Quillory
