// SPDX-License-Identifier: MIT
#include "store/totals.h"

#include "platform/number_text.h"
#include "store/column_scan.h"
#include "store/list_catalogue.h"
#include "store/row_sort.h"
#include "values/column_type.h"

#include <cmath>
#include <vector>

namespace Quillory {

namespace {

QString TotalText(PropertyId column, double total)
{
    if (ColumnTypeOf(column) == ColumnType::Price)
        return TwoDecimals(total);
    return QString::number(std::trunc(total), 'f', 0);
}

/// By plain addition in the order of names, which defines a total; a missing value is a zero, which
/// adds nothing. Reading in another order and adding in this one takes half the time.
Result<std::vector<double>> Sum(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context)
{
    QUILLORY_TRY_VALUE(const auto listed, ListByName(rows));
    std::vector<RecordMap<double>> numbers(columns.size(), RecordMap<double>(listed, 0.0));
    const auto scanned = ScanFilteredInPlace(
        rows, columns, filters, context, ScanOrder::Any, [&numbers](const ScannedRecord& record) {
            for (size_t i = 0; i < numbers.size(); ++i)
                numbers[i].Set(record.Oid(), record.Number(i));
            return true;
        });
    if (!scanned)
        return scanned.Error();
    std::vector<double> totals;
    totals.reserve(columns.size());
    for (const RecordMap<double>& column : numbers) {
        double total = 0;
        for (const ObjectId row : listed)
            total += column.Find(row);
        totals.push_back(total);
    }
    return totals;
}

} // namespace

ListTotals ComputeTotals(DataVolume& volume, const InventoryList& list, const FilterSet* filters,
    const ValueContext& context)
{
    ListTotals totals;
    std::vector<PropertyId> columns;
    for (const ColumnDefinition& column : list.columns) {
        const ColumnType type = ColumnTypeOf(column.id);
        if (type != ColumnType::Integer && type != ColumnType::Price)
            continue;
        columns.push_back(column.id);
        totals.lines.push_back({ column.name, QStringLiteral("0") });
    }
    Database* rows = volume.OpenDatabase(ListCatalogue::kRowsType);
    if (rows == nullptr)
        totals.error = volume.LastError();
    if (rows == nullptr || columns.empty())
        return totals;
    const auto sums = Sum(*rows, columns, filters, context);
    totals.error = sums.Error();
    for (size_t i = 0; sums && i < columns.size(); ++i)
        totals.lines[i].text = TotalText(columns[i], (*sums)[i]);
    return totals;
}

} // namespace Quillory
