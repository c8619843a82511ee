#include "store/totals.h"

#include "platform/number_text.h"
#include "store/column_scan.h"
#include "store/list_catalogue.h"
#include "values/column_type.h"

#include <cmath>
#include <limits>

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

std::optional<double> NumberOf(const PropertyValue& value)
{
    if (const auto* integer = std::get_if<qint32>(&value.value))
        return *integer;
    if (const auto* price = std::get_if<double>(&value.value))
        return *price;
    return std::nullopt;
}

/// Totals by the quickest scan; false if a row cannot be read or the order of adding could show.
bool SumQuickly(Database& rows, std::span<const PropertyId> columns, const FilterSet* filters,
    const ValueContext& context, std::vector<double>& totals)
{
    std::vector<OrderlessSum> sums(columns.size());
    const auto scanned = ScanFiltered(rows, columns, filters, context, ScanOrder::Any,
        [&sums](ObjectId, std::span<const PropertyValue> values) {
            for (size_t i = 0; i < values.size(); ++i) {
                if (const auto number = NumberOf(values[i]))
                    sums[i].Add(*number);
            }
            return true;
        });
    if (!scanned)
        return false;
    for (size_t i = 0; i < columns.size(); ++i) {
        if (!IsCertain(columns[i], sums[i]))
            return false;
        totals[i] = sums[i].Value();
    }
    return true;
}

/// Totals by plain addition in the order of names, which defines them.
bool SumInOrder(Database& rows, std::span<const PropertyId> columns, const FilterSet* filters,
    const ValueContext& context, std::vector<double>& totals)
{
    totals.assign(columns.size(), 0.0);
    return ScanFiltered(rows, columns, filters, context, ScanOrder::Sorted,
        [&totals](ObjectId, std::span<const PropertyValue> values) {
            for (size_t i = 0; i < values.size(); ++i)
                totals[i] += NumberOf(values[i]).value_or(0.0);
            return true;
        })
        .IsOk();
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
    std::vector<double> totals(columns.size(), 0.0);
    if (!SumQuickly(*rows, columns, filters, context, totals)
        && !SumInOrder(*rows, columns, filters, context, totals))
        return lines;
    for (size_t i = 0; i < columns.size(); ++i)
        lines[i].text = TotalText(columns[i], totals[i]);
    return lines;
}

} // namespace Quillory
