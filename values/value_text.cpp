#include "values/value_text.h"

#include "platform/date_picture.h"
#include "platform/number_text.h"
#include "res/string_table.h"
#include "values/column_type.h"
#include "values/file_date.h"

#include <charconv>

namespace Quillory {

namespace {

constexpr int kUncheckedTextId = 240;
constexpr int kCheckedTextId = 241;
/// The room of the row editor's line.
constexpr qsizetype kMaxEditTextLength = 63;

template <typename T> const T* Held(const PropertyValue* property)
{
    const bool isHeld = property != nullptr && !property->IsMissing();
    return isHeld ? std::get_if<T>(&property->value) : nullptr;
}

void AppendInteger(std::u16string& line, qint32 value)
{
    std::array<char, 12> text {};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    for (const char* unit = text.data(); unit != end; ++unit) {
        line.push_back(static_cast<char16_t>(*unit));
    }
}

QString PriceText(double value, const ValueContext& context, qsizetype maxLength)
{
    const QString plain = TwoDecimals(value);
    return FormatNumber(plain, context.userLocale, maxLength).value_or(plain);
}

/// What the rows view and the row editor have in common; empty for a checkbox.
QString FormatText(const PropertyValue* value, PropertyId column, const ValueContext& context,
    qsizetype maxPriceLength)
{
    QString text;
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        if (const auto* const number = Held<qint32>(value)) {
            text = QString::number(*number);
        }
        break;
    case ColumnType::Price:
        if (const auto* const price = Held<double>(value)) {
            text = PriceText(*price, context, maxPriceLength);
        }
        break;
    case ColumnType::Date:
        if (const auto* const time = Held<FileTime>(value)) {
            const auto date = FileTimeToDate(*time);
            text = date ? DateText(*date, context.systemLocale) : QString();
        }
        break;
    case ColumnType::String:
        if (const auto* const stored = Held<QString>(value)) {
            text = *stored;
        }
        break;
    case ColumnType::Checkbox:
        break;
    }
    return text;
}

} // namespace

ValueContext ValueContext::FromEnvironment()
{
    const LocaleProfile locale = EnvironmentLocaleProfile();
    return { locale, locale, SystemClock(), LoadString(kCheckedTextId),
        LoadString(kUncheckedTextId) };
}

QString FormatCellText(const PropertyValue* value, PropertyId column, const ValueContext& context)
{
    return FormatText(value, column, context, kMaxNumberTextLength);
}

QString FormatEditText(const PropertyValue* value, PropertyId column, const ValueContext& context)
{
    if (ColumnTypeOf(column) == ColumnType::Checkbox) {
        const auto* const isChecked = Held<bool>(value);
        return isChecked != nullptr && *isChecked ? context.checkedText : context.uncheckedText;
    }
    const QString text = FormatText(value, column, context, kMaxEditTextLength);
    return ColumnTypeOf(column) == ColumnType::Price ? text.left(kMaxEditTextLength) : text;
}

QString FormatExportText(const PropertyValue& value, const ValueContext& context)
{
    std::u16string text;
    AppendExportText(text, value, context);
    // Not fromStdU16String(), which takes a first character for a byte-order mark.
    return QStringView(text).toString();
}

void AppendExportText(std::u16string& line, const PropertyValue& value, const ValueContext& context)
{
    if (const auto* const text = Held<QString>(&value)) {
        line.append(QStringView(*text).utf16(), static_cast<std::size_t>(text->size()));
    } else if (const auto* const number = Held<qint32>(&value)) {
        AppendInteger(line, *number);
    } else if (const auto* const price = Held<double>(&value)) {
        AppendTwoDecimals(line, *price);
    } else if (const auto* const time = Held<FileTime>(&value)) {
        if (const auto date = FileTimeToDate(*time)) {
            AppendDateText(line, *date, context.systemLocale);
        }
    } else if (const auto* const isChecked = Held<bool>(&value)) {
        line.push_back(*isChecked ? u'Y' : u'N');
    }
}

} // namespace Quillory
