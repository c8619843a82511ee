#include "values/value_compare.h"

#include "values/column_type.h"
#include "values/file_date.h"

namespace Quillory {

namespace {

/// The alternative of a property, or that type's zero for a missing one.
template <typename T> T ValueOrZero(const PropertyValue* property)
{
    const T* const value = property == nullptr ? nullptr : std::get_if<T>(&property->value);
    return value == nullptr ? T {} : *value;
}

const QString& TextOrEmpty(const PropertyValue* property)
{
    static const QString kEmpty;
    const auto* const text = property == nullptr ? nullptr : std::get_if<QString>(&property->value);
    return text == nullptr ? kEmpty : *text;
}

double DateNumberOrZero(const PropertyValue* property)
{
    const auto* const time
        = property == nullptr ? nullptr : std::get_if<FileTime>(&property->value);
    return time == nullptr ? 0.0 : FileTimeToDateNumber(*time).value_or(0.0);
}

/// 0 also where a value is no number.
template <typename T> int Order(T a, T b)
{
    if (a > b) {
        return 1;
    }
    return a < b ? -1 : 0;
}

} // namespace

int CompareColumnValues(const PropertyValue* a, const PropertyValue* b, PropertyId column)
{
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        return Order(ValueOrZero<qint32>(a), ValueOrZero<qint32>(b));
    case ColumnType::Price:
        return Order(ValueOrZero<double>(a), ValueOrZero<double>(b));
    case ColumnType::Checkbox:
        return Order(ValueOrZero<bool>(a), ValueOrZero<bool>(b));
    case ColumnType::Date:
        return Order(DateNumberOrZero(a), DateNumberOrZero(b));
    case ColumnType::String:
        return Order(TextOrEmpty(a).compare(TextOrEmpty(b), Qt::CaseSensitive), 0);
    }
    return 0;
}

} // namespace Quillory
