#include "values/filters.h"

#include "platform/leading_number.h"
#include "values/column_type.h"
#include "values/file_date.h"

#include <algorithm>
#include <array>

namespace Quillory {

namespace {

constexpr std::array kTextConditions { FilterCondition::Contains, FilterCondition::Equals,
    FilterCondition::NotEquals };
constexpr std::array kCheckboxConditions { FilterCondition::Equals, FilterCondition::NotEquals };
constexpr std::array kOrderConditions { FilterCondition::Equals, FilterCondition::NotEquals,
    FilterCondition::Greater, FilterCondition::GreaterOrEqual, FilterCondition::Less,
    FilterCondition::LessOrEqual };

/// The day that the text names; the present moment if it names none.
FileTime DateOperand(const QString& text, const ValueContext& context)
{
    if (const auto time = ParseDateText(text, context)) {
        return *time;
    }
    return LocalTimeToFileTime(context.clock()).value_or(FileTime {});
}

/// "T" and "F"; no other text says anything about a checkbox.
PropertyVariant CheckboxOperand(const QString& text)
{
    if (text == u"T") {
        return true;
    }
    return text == u"F" ? PropertyVariant(false) : PropertyVariant();
}

PropertyVariant Operand(const FilterEntry& entry, const ValueContext& context)
{
    switch (ColumnTypeOf(entry.column)) {
    case ColumnType::String:
        return entry.value;
    case ColumnType::Integer:
        return LeadingInteger(entry.value);
    case ColumnType::Price:
        return ParseAnsiNumber(entry.value, context);
    case ColumnType::Checkbox:
        return CheckboxOperand(entry.value);
    case ColumnType::Date:
        return DateOperand(entry.value, context);
    }
    return {};
}

bool TextMatches(FilterCondition condition, const QString& row, const QString& operand)
{
    switch (condition) {
    case FilterCondition::Contains:
        return row.contains(operand, Qt::CaseSensitive);
    case FilterCondition::Equals:
    case FilterCondition::NotEquals:
        return row == operand;
    case FilterCondition::None:
    case FilterCondition::Greater:
    case FilterCondition::GreaterOrEqual:
    case FilterCondition::Less:
    case FilterCondition::LessOrEqual:
        return false;
    }
    return false;
}

bool CheckboxMatches(FilterCondition condition, bool row, bool operand)
{
    return (condition == FilterCondition::Equals && row == operand)
        || (condition == FilterCondition::NotEquals && row != operand);
}

template <typename T> bool OrderMatches(FilterCondition condition, T row, T operand)
{
    switch (condition) {
    case FilterCondition::Equals:
        return row == operand;
    case FilterCondition::NotEquals:
        // Only dates know "not on"; for numbers both conditions mean equality.
        return std::is_same_v<T, FileTime> ? row != operand : row == operand;
    case FilterCondition::Greater:
        return row > operand;
    case FilterCondition::GreaterOrEqual:
        return row >= operand;
    case FilterCondition::Less:
        return row < operand;
    case FilterCondition::LessOrEqual:
        return row <= operand;
    case FilterCondition::None:
    case FilterCondition::Contains:
        return false;
    }
    return false;
}

template <typename T>
bool OrderMatches(
    FilterCondition condition, const PropertyVariant& row, const PropertyVariant& operand)
{
    const auto* const rowValue = std::get_if<T>(&row);
    const auto* const operandValue = std::get_if<T>(&operand);
    return rowValue != nullptr && operandValue != nullptr
        && OrderMatches(condition, *rowValue, *operandValue);
}

} // namespace

void AddFilter(
    FilterSet& filters, PropertyId column, FilterCondition condition, const QString& valueText)
{
    filters.entries.push_back({ column, condition, valueText.left(kMaxFilterValueLength) });
}

void RemoveFilter(FilterSet& filters, qsizetype position)
{
    if (position >= 0 && position < std::ssize(filters.entries)) {
        filters.entries.erase(filters.entries.begin() + position);
    }
}

void ClearFilters(FilterSet& filters)
{
    filters.entries.clear();
}

std::span<const FilterCondition> ConditionsFor(PropertyId column)
{
    switch (ColumnTypeOf(column)) {
    case ColumnType::String:
        return kTextConditions;
    case ColumnType::Checkbox:
        return kCheckboxConditions;
    case ColumnType::Price:
    case ColumnType::Integer:
    case ColumnType::Date:
        return kOrderConditions;
    }
    return {};
}

FilterTest::FilterTest(const FilterEntry& entry, const ValueContext& context)
    : m_column(entry.column)
    , m_condition(entry.condition)
    , m_operand(Operand(entry, context))
{ }

bool FilterTest::Matches(const PropertyValue* value) const
{
    if (value == nullptr || value->IsMissing()) {
        return false;
    }
    const PropertyVariant& row = value->value;
    switch (ColumnTypeOf(m_column)) {
    case ColumnType::String: {
        const auto* const text = std::get_if<QString>(&row);
        return text != nullptr && TextMatches(m_condition, *text, std::get<QString>(m_operand));
    }
    case ColumnType::Checkbox: {
        const auto* const isChecked = std::get_if<bool>(&row);
        const auto* const wanted = std::get_if<bool>(&m_operand);
        return isChecked != nullptr && wanted != nullptr
            && CheckboxMatches(m_condition, *isChecked, *wanted);
    }
    case ColumnType::Integer:
        return OrderMatches<qint32>(m_condition, row, m_operand);
    case ColumnType::Price:
        return OrderMatches<double>(m_condition, row, m_operand);
    case ColumnType::Date:
        return OrderMatches<FileTime>(m_condition, row, m_operand);
    }
    return false;
}

bool FilterTest::Matches(const ScannedRecord& record, size_t place) const
{
    // What is missing reads as zero, so that only a zero that would match needs a second look.
    const auto isNumberMatch = [&](auto row) {
        using Number = decltype(row);
        const auto* const operand = std::get_if<Number>(&m_operand);
        return operand != nullptr && OrderMatches(m_condition, row, *operand)
            && (row != Number {} || !record.IsMissing(place));
    };
    switch (ColumnTypeOf(m_column)) {
    case ColumnType::Integer:
        return isNumberMatch(static_cast<qint32>(record.Integer(place)));
    case ColumnType::Price:
        return isNumberMatch(record.Number(place));
    case ColumnType::Date:
        return isNumberMatch(FileTime { static_cast<quint64>(record.Integer(place)) });
    case ColumnType::String:
    case ColumnType::Checkbox:
        break;
    }
    PropertyValue value { m_column, 0, {} };
    record.Read(place, value);
    return Matches(&value);
}

bool RowPassesFilters(const FilterSet& filters, std::span<const PropertyValue> rowProperties,
    const ValueContext& context)
{
    return std::all_of(
        filters.entries.begin(), filters.entries.end(), [&](const FilterEntry& entry) {
            return FilterTest(entry, context).Matches(FindProperty(rowProperties, entry.column));
        });
}

} // namespace Quillory
