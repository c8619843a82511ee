// SPDX-License-Identifier: MIT
#include "values/column_type.h"

namespace Quillory {

ColumnType ColumnTypeOf(PropertyId column)
{
    switch (PropertyType(column)) {
    case CEVT_BOOL:
        return ColumnType::Checkbox;
    case CEVT_R8:
        return ColumnType::Price;
    case CEVT_I4:
        return ColumnType::Integer;
    case CEVT_FILETIME:
        return ColumnType::Date;
    default:
        return ColumnType::String;
    }
}

ValueType StorageType(ColumnType type)
{
    switch (type) {
    case ColumnType::String:
        return CEVT_LPWSTR;
    case ColumnType::Checkbox:
        return CEVT_BOOL;
    case ColumnType::Price:
        return CEVT_R8;
    case ColumnType::Integer:
        return CEVT_I4;
    case ColumnType::Date:
        return CEVT_FILETIME;
    }
    return CEVT_LPWSTR;
}

bool IsNumberColumn(PropertyId column)
{
    const ColumnType type = ColumnTypeOf(column);
    return type == ColumnType::Integer || type == ColumnType::Price;
}

bool IsBuiltInColumn(PropertyId column)
{
    return column == PropName || column == PropCount || column == PropExpiryDate;
}

} // namespace Quillory
