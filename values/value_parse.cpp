// SPDX-License-Identifier: MIT
#include "platform/date_reader.h"
#include "platform/leading_number.h"
#include "values/column_type.h"
#include "values/file_date.h"
#include "values/value_text.h"

#include <algorithm>
#include <optional>

namespace Quillory {

namespace {

/// What tells typed text and a field of an import file apart.
struct ParseRules
{
    double (*readPrice)(QStringView, const ValueContext&);
    /// The one text of an unchecked checkbox.
    QStringView uncheckedText;
};

QStringView UpToNul(QStringView text)
{
    // Fields are short: a search by the toolkit takes longer to begin than this to end.
    return { text.begin(), std::find(text.begin(), text.end(), u'\0') };
}

/// Nothing for a date that cannot be read.
PropertyVariant ParseVariant(
    ColumnType type, QStringView text, const ValueContext& context, const ParseRules& rules)
{
    switch (type) {
    case ColumnType::Integer:
        return LeadingInteger(text);
    case ColumnType::Price:
        return rules.readPrice(text, context);
    case ColumnType::Checkbox:
        return text != rules.uncheckedText;
    case ColumnType::Date:
        if (const auto time = ParseDateText(text, context)) {
            return *time;
        }
        return {};
    case ColumnType::String:
        return text.toString();
    }
    return {};
}

std::optional<PropertyValue> ParseText(
    PropertyId column, QStringView text, const ValueContext& context, const ParseRules& rules)
{
    std::optional<PropertyValue> property(std::in_place);
    property->id = column;
    property->value = ParseVariant(ColumnTypeOf(column), UpToNul(text), context, rules);
    if (std::holds_alternative<std::monostate>(property->value)) {
        property.reset();
    }
    return property;
}

} // namespace

std::optional<PropertyValue> ParseValueText(
    PropertyId column, QStringView text, const ValueContext& context)
{
    return ParseText(column, text, context, { &ParsePriceText, context.uncheckedText });
}

std::optional<PropertyValue> ParseImportText(
    PropertyId column, QStringView text, const ValueContext& context)
{
    return ParseText(column, text, context, { &ParseAnsiNumber, u"N" });
}

double ParseAnsiNumber(QStringView text, const ValueContext& context)
{
    return LeadingNumberInCodePage(text, context.userLocale.codePage);
}

double ParsePriceText(QStringView text, const ValueContext& context)
{
    return LeadingPriceInCodePage(text, context.userLocale.codePage);
}

std::optional<FileTime> ParseDateText(QStringView text, const ValueContext& context)
{
    const auto date = ReadDate(text, context.userLocale, context.clock);
    return date ? DateToFileTime(*date) : std::nullopt;
}

} // namespace Quillory
