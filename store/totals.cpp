// SPDX-License-Identifier: MIT
#include "store/totals.h"

#include "platform/number_text.h"
#include "store/column_scan.h"
#include "store/list_catalogue.h"
#include "store/row_sort.h"
#include "values/column_type.h"

#include <cmath>
#include <optional>
#include <vector>

namespace Quillory {

namespace {

QString TotalText(PropertyId column, double total)
{
    if (ColumnTypeOf(column) == ColumnType::Price)
        return TwoDecimals(total);
    return QString::number(std::trunc(total), 'f', 0);
}

/// Adds up a column; a missing value is a zero, which adds nothing. The total of prices is that of
/// plain addition in the order of names; reading in another order and adding in this one takes half
/// the time. Whole numbers add up to the same in every order, for 32 bits are far from rounding.
class ColumnSum
{
public:
    ColumnSum(PropertyId column, std::span<const ObjectId> byName)
        : m_byName(byName)
    {
        if (ColumnTypeOf(column) == ColumnType::Price)
            m_prices.emplace(byName, 0.0);
    }
    void Take(ObjectId row, double number)
    {
        if (m_prices)
            m_prices->Set(row, number);
        else
            m_total += number;
    }
    [[nodiscard]] double Total() const
    {
        double total = m_total;
        if (m_prices) {
            for (const ObjectId row : m_byName)
                total += m_prices->Find(row);
        }
        return total;
    }

private:
    std::span<const ObjectId> m_byName;
    std::optional<RecordMap<double>> m_prices;
    double m_total = 0;
};

Result<std::vector<double>> Sum(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context)
{
    QUILLORY_TRY_VALUE(const auto listed, ListByName(rows));
    std::vector<ColumnSum> sums;
    sums.reserve(columns.size());
    for (const PropertyId column : columns)
        sums.emplace_back(column, listed);
    QUILLORY_TRY(ScanFilteredInPlace(
        rows, columns, filters, context, ScanOrder::Any, [&sums](const ScannedRecord& record) {
            for (size_t i = 0; i < sums.size(); ++i)
                sums[i].Take(record.Oid(), record.Number(i));
            return true;
        }));
    std::vector<double> totals;
    totals.reserve(columns.size());
    for (const ColumnSum& sum : sums)
        totals.push_back(sum.Total());
    return totals;
}

} // namespace

ListTotals ComputeTotals(DataVolume& volume, const InventoryList& list, const FilterSet* filters,
    const ValueContext& context)
{
    ListTotals totals;
    std::vector<PropertyId> columns;
    for (const ColumnDefinition& column : list.columns) {
        if (!IsNumberColumn(column.id))
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
