// SPDX-License-Identifier: MIT
#include "values/value_text.h"

#include "platform/date_picture.h"
#include "platform/number_text.h"
#include "res/string_table.h"
#include "values/column_type.h"
#include "values/file_date.h"

#include <QtEndian>

#include <array>
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

void AppendTick(std::u16string& line, bool isChecked)
{
    line.push_back(isChecked ? u'Y' : u'N');
}

void AppendDate(std::u16string& line, FileTime time, const ValueContext& context)
{
    if (const auto date = FileTimeToDate(time)) {
        AppendDateText(line, *date, context.systemLocale);
    }
}

/// The units of a text, the high byte of each first.
void AppendText(std::u16string& line, QByteArrayView bytes)
{
    const std::size_t place = line.size();
    const qsizetype units = bytes.size() / qsizetype { sizeof(char16_t) };
    line.resize(place + static_cast<std::size_t>(units));
    qFromBigEndian<quint16>(bytes.data(), units, line.data() + place);
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
            std::u16string date;
            AppendDate(date, *time, context);
            text = QStringView(date).toString();
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
    if (const auto* const stored = Held<QString>(&value)) {
        return *stored;
    }
    if (const auto* const number = Held<qint32>(&value)) {
        AppendInteger(text, *number);
    } else if (const auto* const price = Held<double>(&value)) {
        AppendTwoDecimals(text, *price);
    } else if (const auto* const time = Held<FileTime>(&value)) {
        AppendDate(text, *time, context);
    } else if (const auto* const isChecked = Held<bool>(&value)) {
        AppendTick(text, *isChecked);
    }
    return QStringView(text).toString();
}

void AppendExportText(std::u16string& line, const ScannedRecord& record, std::size_t place,
    PropertyId column, const ValueContext& context)
{
    switch (PropertyType(column)) {
    case CEVT_LPWSTR:
        return AppendText(line, record.Bytes(place));
    case CEVT_I4:
        return AppendInteger(line, static_cast<qint32>(record.Integer(place)));
    case CEVT_R8:
        return AppendTwoDecimals(line, record.Number(place));
    case CEVT_FILETIME:
        return AppendDate(line, { static_cast<quint64>(record.Integer(place)) }, context);
    case CEVT_BOOL:
        return AppendTick(line, record.Integer(place) != 0);
    default:
        return;
    }
}

} // namespace Quillory
