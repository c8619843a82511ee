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

/// The numbers of the counted rows, those of a row side by side; a missing value is a zero, which
/// adds nothing.
struct Numbers
{
    std::vector<ObjectId> rows;
    std::vector<double> values;
    std::vector<OrderlessSum> sums;
};

Result<Numbers> ReadNumbers(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context)
{
    Numbers numbers { {}, {}, std::vector<OrderlessSum>(columns.size()) };
    const auto scanned = ScanFilteredInPlace(
        rows, columns, filters, context, ScanOrder::Any, [&numbers](const ScannedRecord& record) {
            numbers.rows.push_back(record.Oid());
            for (size_t i = 0; i < numbers.sums.size(); ++i) {
                const double number = record.Number(i);
                numbers.values.push_back(number);
                numbers.sums[i].Add(number);
            }
            return true;
        });
    if (!scanned)
        return scanned.Error();
    return numbers;
}

/// The totals by plain addition in the order of names, which defines them.
Result<std::vector<double>> SumInOrder(Database& rows, const Numbers& numbers)
{
    std::vector<double> totals(numbers.sums.size(), 0.0);
    const auto listed = rows.ListRecords();
    if (!listed)
        return listed.Error();
    const RowPositions positions(numbers.rows);
    for (const ObjectId oid : *listed) {
        const quint32 position = positions.Find(oid);
        if (position == RowPositions::kNowhere)
            continue;
        for (size_t i = 0; i < totals.size(); ++i)
            totals[i] += numbers.values[position * totals.size() + i];
    }
    return totals;
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
        if (!IsCertain(columns[i], numbers->sums[i]))
            return SumInOrder(rows, *numbers);
        totals.push_back(numbers->sums[i].Value());
    }
    return totals;
}

} // namespace

std::vector<ColumnTotal> ComputeTotals(DataVolume& volume, const InventoryList& list,
    const FilterSet* filters, const ValueContext& context)
{
    std::vector<ColumnTotal> lines;
    std::vector<PropertyId> columns;
    for (const ColumnDefinition& column : list.columns) {
        const ColumnType type = ColumnTypeOf(column.id);
        if (type != ColumnType::Integer && type != ColumnType::Price)
            continue;
        columns.push_back(column.id);
        lines.push_back({ column.name, QStringLiteral("0") });
    }
    Database* rows = volume.OpenDatabase(ListCatalogue::kRowsType);
    if (rows == nullptr || columns.empty())
        return lines;
    const auto totals = Sum(*rows, columns, filters, context);
    if (!totals)
        return lines;
    for (size_t i = 0; i < columns.size(); ++i)
        lines[i].text = TotalText(columns[i], (*totals)[i]);
    return lines;
}

} // namespace Quillory
