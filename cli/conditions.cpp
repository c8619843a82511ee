// SPDX-License-Identifier: MIT
#include "cli/conditions.h"

#include "cli/command_run.h"
#include "platform/number_text.h"
#include "res/string_table.h"
#include "values/column_type.h"

#include <algorithm>
#include <optional>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Empty where a condition has no sign.
QString ConditionSign(FilterCondition condition)
{
    switch (condition) {
    case FilterCondition::Equals:
        return u"="_s;
    case FilterCondition::NotEquals:
        return u"!="_s;
    case FilterCondition::Greater:
        return u">"_s;
    case FilterCondition::GreaterOrEqual:
        return u">="_s;
    case FilterCondition::Less:
        return u"<"_s;
    case FilterCondition::LessOrEqual:
        return u"<="_s;
    case FilterCondition::None:
    case FilterCondition::Contains:
        return {};
    }
    return {};
}

struct ReadCondition
{
    FilterCondition condition = FilterCondition::None;
    QStringView value;
    qsizetype length = 0;
};

/// Reads a condition and its value; of several conditions that fit, the one with the longest text.
std::optional<ReadCondition> ReadConditionOf(PropertyId column, QStringView text)
{
    ReadCondition best;
    for (const FilterCondition condition : ConditionsFor(column)) {
        const QString words = ConditionText(column, condition);
        const QString sign = ConditionSign(condition);
        const bool isWords
            = text.startsWith(words) && (text.size() == words.size() || text[words.size()] == u' ');
        const bool isSign = !sign.isEmpty() && text.startsWith(sign);
        const qsizetype length = isWords ? words.size() : sign.size();
        if ((isWords || isSign) && length > best.length)
            best = { condition, text.mid(length), length };
    }
    if (best.length == 0)
        return std::nullopt;
    return best;
}

QString OfferedConditions(PropertyId column)
{
    QStringList offered;
    for (const FilterCondition condition : ConditionsFor(column)) {
        const QString sign = ConditionSign(condition);
        const QString words = ConditionText(column, condition);
        offered << (sign.isEmpty() ? words : u"%1 (%2)"_s.arg(words, sign));
    }
    return offered.join(u", "_s);
}

/// A number as it is shown becomes one as a filter reads it.
QString NumberValue(PropertyId column, const QString& value, const ValueContext& context)
{
    const LocaleProfile& locale = context.userLocale;
    const auto plain = PlainNumber(value, locale);
    bool isWhole = false;
    if (plain)
        plain->toInt(&isWhole);
    if (ColumnTypeOf(column) == ColumnType::Integer && !isWhole)
        FailUsage(u"“%1” is no whole number that the column can hold"_s.arg(value));
    if (!plain)
        FailUsage(u"“%1” is no number; here they are written as %2"_s.arg(
            value, FormatNumber(u"-1234.5", locale).value_or(QString())));
    return *plain;
}

/// The value as a filter holds it.
QString FilterValue(PropertyId column, const QString& value, const ValueContext& context)
{
    switch (ColumnTypeOf(column)) {
    case ColumnType::Checkbox:
        if (value == context.checkedText || value == u"Y")
            return u"T"_s;
        if (value == context.uncheckedText || value == u"N")
            return u"F"_s;
        FailUsage(
            u"“%1” is neither %2 nor %3"_s.arg(value, context.checkedText, context.uncheckedText));
    case ColumnType::Date:
        if (!ParseDateText(value, context))
            FailUsage(u"“%1” is no date"_s.arg(value));
        return value;
    case ColumnType::Price:
    case ColumnType::Integer:
        return NumberValue(column, value, context);
    case ColumnType::String:
        return value;
    }
    return value;
}

/// The columns whose names begin `text`, longest name first.
std::vector<const ColumnDefinition*> ColumnsBeginning(QStringView text, const InventoryList& list)
{
    std::vector<const ColumnDefinition*> columns;
    for (const ColumnDefinition& column : list.columns) {
        if (!column.name.isEmpty() && text.startsWith(column.name))
            columns.push_back(&column);
    }
    std::stable_sort(columns.begin(), columns.end(),
        [](const auto* a, const auto* b) { return a->name.size() > b->name.size(); });
    return columns;
}

FilterEntry ReadEntry(const QString& text, const InventoryList& list, const ValueContext& context)
{
    const auto columns = ColumnsBeginning(text, list);
    for (const ColumnDefinition* column : columns) {
        const QStringView rest = QStringView(text).mid(column->name.size()).trimmed();
        if (const auto read = ReadConditionOf(column->id, rest)) {
            const QString value = read->value.trimmed().toString();
            return { column->id, read->condition, FilterValue(column->id, value, context) };
        }
    }
    if (columns.empty())
        FailUsage(u"“%1” does not begin with the name of a column"_s.arg(text));
    const ColumnDefinition& column = *columns.front();
    FailUsage(u"“%1” has no condition that column “%2” offers: %3"_s.arg(
        text, column.name, OfferedConditions(column.id)));
}

} // namespace

FilterSet ReadConditions(
    const QStringList& texts, const InventoryList& list, const ValueContext& context)
{
    FilterSet filters;
    for (const QString& text : texts) {
        const FilterEntry entry = ReadEntry(text, list, context);
        AddFilter(filters, entry.column, entry.condition, entry.value);
    }
    return filters;
}

PropertyValue ReadAssignment(
    const QString& text, const InventoryList& list, const ValueContext& context)
{
    const auto columns = ColumnsBeginning(text, list);
    const auto named = std::ranges::find_if(columns,
        [&text](const auto* column) { return text.sliced(column->name.size()).startsWith(u'='); });
    if (named == columns.end())
        FailUsage(u"“%1” is not COLUMN=VALUE with one of the list's columns"_s.arg(text));
    const PropertyId id = (*named)->id;
    const QString value = FilterValue(id, text.sliced((*named)->name.size() + 1), context);
    if (ColumnTypeOf(id) == ColumnType::Checkbox)
        return { id, 0, value == u"T" };
    // With a point before decimals, as a filter has it.
    return ParseImportText(id, value, context).value_or(PropertyValue { id, 0, {} });
}

const ColumnDefinition& FindColumn(PropertyId id, const InventoryList& list)
{
    const auto found = std::ranges::find(list.columns, id, &ColumnDefinition::id);
    if (found == list.columns.end())
        Fail(u"the list has no such column"_s);
    return *found;
}

const ColumnDefinition& FindColumn(const QString& name, const InventoryList& list)
{
    const auto found = std::find_if(list.columns.begin(), list.columns.end(),
        [&name](const ColumnDefinition& column) { return column.name == name; });
    if (found == list.columns.end())
        FailUsage(u"there is no column named “%1”"_s.arg(name));
    return *found;
}

std::vector<PropertyId> ReadColumnOrder(const QString& names, const InventoryList& list)
{
    std::vector<PropertyId> order;
    const auto isTaken = [&order](PropertyId id) {
        return std::find(order.begin(), order.end(), id) != order.end();
    };
    QStringView rest = names;
    while (!rest.isEmpty()) {
        const auto columns = ColumnsBeginning(rest, list);
        const auto found = std::find_if(columns.begin(), columns.end(), [&](const auto* column) {
            const qsizetype size = column->name.size();
            return !isTaken(column->id) && (rest.size() == size || rest[size] == u',');
        });
        if (found == columns.end())
            FailUsage(u"“%1” does not begin with the name of a column still free"_s.arg(rest));
        order.push_back((*found)->id);
        rest = rest.mid((*found)->name.size() + 1).trimmed();
    }
    for (const ColumnDefinition& column : list.columns) {
        if (!isTaken(column.id))
            order.push_back(column.id);
    }
    return order;
}

} // namespace Quillory
