// SPDX-License-Identifier: MIT
#include "values/filters.h"

#include "platform/leading_number.h"
#include "res/string_table.h"
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

QString ConditionText(PropertyId column, FilterCondition condition)
{
    const StringId first
        = ColumnTypeOf(column) == ColumnType::Date ? StringId::DateCondition : StringId::Contains;
    return LoadString(static_cast<int>(first) + static_cast<int>(condition));
}

FilterTest::FilterTest(const FilterEntry& entry, const ValueContext& context)
    : m_column(entry.column)
    , m_condition(entry.condition)
    , m_operand(Operand(entry, context))
{ }

template <typename Number>
bool FilterTest::MatchesNumber(const ScannedRecord& row, size_t place, Number number) const
{
    // What is missing reads as zero, so that only a zero that would match needs a second look.
    const auto* const operand = std::get_if<Number>(&m_operand);
    return operand != nullptr && OrderMatches(m_condition, number, *operand)
        && (number != Number {} || !row.IsMissing(place));
}

bool FilterTest::Matches(const ScannedRecord& row, size_t place) const
{
    switch (ColumnTypeOf(m_column)) {
    case ColumnType::String: {
        PropertyValue value { m_column, 0, {} };
        row.Read(place, value);
        const auto* const text = std::get_if<QString>(&value.value);
        return !value.IsMissing() && text != nullptr
            && TextMatches(m_condition, *text, std::get<QString>(m_operand));
    }
    case ColumnType::Checkbox: {
        const auto* const wanted = std::get_if<bool>(&m_operand);
        return wanted != nullptr && !row.IsMissing(place)
            && CheckboxMatches(m_condition, row.Integer(place) != 0, *wanted);
    }
    case ColumnType::Integer:
        return MatchesNumber(row, place, static_cast<qint32>(row.Integer(place)));
    case ColumnType::Price:
        return MatchesNumber(row, place, row.Number(place));
    case ColumnType::Date:
        return MatchesNumber(row, place, FileTime { static_cast<quint64>(row.Integer(place)) });
    }
    return false;
}

} // namespace Quillory
