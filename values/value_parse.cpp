#include "platform/date_reader.h"
#include "platform/leading_number.h"
#include "values/column_type.h"
#include "values/file_date.h"
#include "values/value_text.h"

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
    const qsizetype end = text.indexOf(u'\0');
    return end < 0 ? text : text.left(end);
}

std::optional<PropertyValue> ParseText(
    PropertyId column, QStringView wholeText, const ValueContext& context, const ParseRules& rules)
{
    const QStringView text = UpToNul(wholeText);
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        return PropertyValue { column, 0, LeadingInteger(text) };
    case ColumnType::Price:
        return PropertyValue { column, 0, rules.readPrice(text, context) };
    case ColumnType::Checkbox:
        return PropertyValue { column, 0, text != rules.uncheckedText };
    case ColumnType::Date:
        if (const auto time = ParseDateText(text, context)) {
            return PropertyValue { column, 0, *time };
        }
        return std::nullopt;
    case ColumnType::String:
        return PropertyValue { column, 0, text.toString() };
    }
    return std::nullopt;
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
