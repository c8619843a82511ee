// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/scanned_record.h"
#include "values/value_text.h"

#include <functional>
#include <span>
#include <vector>

namespace Quillory {

/// The conditions of a filter. The codes choose the condition's text, 3000 + code, or 3099 + code
/// for a date.
enum class FilterCondition : qint32
{
    None = -1,
    Contains = 0,
    Equals = 1,
    /// Deliberately the same as Equals for text, whole numbers and prices.
    NotEquals = 2,
    Greater = 3,
    GreaterOrEqual = 4,
    Less = 5,
    LessOrEqual = 6,
};

/// Units of a filter's value text; longer ones are cut.
constexpr qsizetype kMaxFilterValueLength = 127;

/// One condition on one column. Checkbox values are "T" and "F", dates short-date text.
struct FilterEntry
{
    PropertyId column {};
    FilterCondition condition = FilterCondition::Contains;
    QString value;
};

/// Conditions that a row must meet all of; an empty set passes every row.
struct FilterSet
{
    std::vector<FilterEntry> entries;
};

/// Appends a condition, its value cut to kMaxFilterValueLength.
void AddFilter(
    FilterSet& filters, PropertyId column, FilterCondition condition, const QString& valueText);
/// Positions outside the set are ignored.
void RemoveFilter(FilterSet& filters, qsizetype position);
void ClearFilters(FilterSet& filters);

/// The conditions offered for a column's type, in the order in which they are offered.
[[nodiscard]] std::span<const FilterCondition> ConditionsFor(PropertyId column);

/// The words of a condition on a column; empty for one that the column's type does not know.
[[nodiscard]] QString ConditionText(PropertyId column, FilterCondition condition);

/// One filter made ready for many rows: its value text is read once, here.
class FilterTest
{
public:
    FilterTest(const FilterEntry& entry, const ValueContext& context);

    /// Whether a row matches, given its record with the filter's column at `place`. One without a
    /// value there never does.
    [[nodiscard]] bool Matches(const ScannedRecord& row, size_t place) const;

private:
    PropertyId m_column {};
    FilterCondition m_condition = FilterCondition::None;
    PropertyVariant m_operand;

    template <typename Number>
    [[nodiscard]] bool MatchesNumber(const ScannedRecord& row, size_t place, Number number) const;
};

} // namespace Quillory
