// SPDX-License-Identifier: MIT
#include "store/totals.h"

#include "platform/number_text.h"
#include "store/column_scan.h"
#include "store/list_catalogue.h"
#include "values/column_type.h"

#include <cmath>
#include <limits>
#include <vector>

namespace Quillory {

namespace {

/// Adds doubles in whatever order they come, and knows when another order could give another text.
class OrderlessSum
{
public:
    void Add(double value)
    {
        // The low-order part that each addition loses is kept apart.
        const double sum = m_sum + value;
        const double part = sum - m_sum;
        m_lost += (m_sum - (sum - part)) + (value - part);
        m_sum = sum;
        m_magnitude += std::abs(value);
        ++m_count;
    }
    [[nodiscard]] double Value() const { return m_sum + m_lost; }
    /// How far any order of plain additions can end from Value().
    [[nodiscard]] double Uncertainty() const
    {
        return 2 * static_cast<double>(m_count) * std::numeric_limits<double>::epsilon()
            * m_magnitude;
    }
    /// Whether every plain addition of whole numbers was exact, in any order.
    [[nodiscard]] bool IsExactForIntegers() const
    {
        constexpr double kExactLimit = 9007199254740992.0;
        return m_magnitude < kExactLimit;
    }

private:
    double m_sum = 0;
    double m_lost = 0;
    double m_magnitude = 0;
    qint64 m_count = 0;
};

QString TotalText(PropertyId column, double total)
{
    if (ColumnTypeOf(column) == ColumnType::Price)
        return TwoDecimals(total);
    return QString::number(std::trunc(total), 'f', 0);
}

bool IsCertain(PropertyId column, const OrderlessSum& sum)
{
    if (ColumnTypeOf(column) == ColumnType::Integer)
        return sum.IsExactForIntegers();
    const double reach = sum.Uncertainty();
    return std::isfinite(sum.Value())
        && TwoDecimals(sum.Value() - reach) == TwoDecimals(sum.Value() + reach);
}

/// The numbers of a column in the order of the rows they belong to; a missing value is a zero,
/// which adds nothing.
struct ColumnNumbers
{
    std::vector<double> values;
    OrderlessSum sum;
};

struct Numbers
{
    std::vector<ObjectId> rows;
    std::vector<ColumnNumbers> columns;
};

Result<Numbers> ReadNumbers(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context)
{
    Numbers numbers { {}, std::vector<ColumnNumbers>(columns.size()) };
    const auto scanned = ScanFilteredInPlace(
        rows, columns, filters, context, ScanOrder::Any, [&numbers](const ScannedRecord& record) {
            numbers.rows.push_back(record.Oid());
            for (size_t i = 0; i < numbers.columns.size(); ++i) {
                const double number = record.Number(i);
                numbers.columns[i].values.push_back(number);
                numbers.columns[i].sum.Add(number);
            }
            return true;
        });
    if (!scanned)
        return scanned.Error();
    return numbers;
}

/// A total by plain addition in the order of names, which defines it.
Result<double> SumInOrder(
    Database& database, std::span<const ObjectId> rows, std::span<const double> values)
{
    const auto listed = database.ListRecords();
    if (!listed)
        return listed.Error();
    RecordMap<double> byRow(rows, 0.0);
    for (size_t i = 0; i < rows.size(); ++i)
        byRow.Set(rows[i], values[i]);
    double total = 0;
    for (const ObjectId row : *listed)
        total += byRow.Find(row);
    return total;
}

/// The totals; by the order of names only where another order could show.
Result<std::vector<double>> Sum(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context)
{
    const auto numbers = ReadNumbers(rows, columns, filters, context);
    if (!numbers)
        return numbers.Error();
    std::vector<double> totals;
    for (size_t i = 0; i < columns.size(); ++i) {
        const auto& [values, sum] = numbers->columns[i];
        const Result<double> total
            = IsCertain(columns[i], sum) ? sum.Value() : SumInOrder(rows, numbers->rows, values);
        if (!total)
            return total.Error();
        totals.push_back(*total);
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
