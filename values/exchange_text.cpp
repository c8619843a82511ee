// SPDX-License-Identifier: MIT
#include "values/exchange_text.h"

#include "values/column_type.h"
#include "values/file_date.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

QString ShortestNumber(double number)
{
    // Digits of the largest number, a sign, a point, and the decimals of the least one.
    std::array<char, 1100> text {};
    const auto end
        = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

template <typename T> PropertyVariant ValueIf(bool isValue, T value)
{
    return isValue ? PropertyVariant(value) : PropertyVariant();
}

PropertyVariant ReadTick(QStringView text)
{
    constexpr std::array kYes { "true", "yes", "y", "1" };
    constexpr std::array kNo { "false", "no", "n", "0" };
    const auto is = [text](const char* word) {
        return text.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    };
    const bool isChecked = std::ranges::any_of(kYes, is);
    return ValueIf(isChecked || std::ranges::any_of(kNo, is), isChecked);
}

PropertyVariant ReadIsoDate(QStringView text)
{
    constexpr qsizetype kLength = 10;
    const auto time = text.size() == kLength
        ? DateToFileTime(QDate::fromString(text.toString(), Qt::ISODate))
        : std::nullopt;
    return ValueIf(time.has_value(), time.value_or(FileTime {}));
}

/// A comma is taken for a point where it cannot part groups: spreadsheets write it in half of
/// Europe.
PropertyVariant ReadPrice(QString text)
{
    static const QRegularExpression groups(u"^[+-]?[1-9][0-9]{0,2},[0-9]{3}$"_s);
    if (text.count(u',') == 1 && !text.contains(u'.') && !groups.match(text).hasMatch())
        text.replace(u',', u'.');
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return ValueIf(isNumber && std::isfinite(number), number);
}

PropertyVariant ReadValue(ColumnType type, QStringView text)
{
    bool isNumber = false;
    switch (type) {
    case ColumnType::Integer: {
        const qint32 number = text.toInt(&isNumber);
        return ValueIf(isNumber, number);
    }
    case ColumnType::Price:
        return ReadPrice(text.toString());
    case ColumnType::Checkbox:
        return ReadTick(text);
    case ColumnType::Date:
        return ReadIsoDate(text);
    case ColumnType::String:
        break;
    }
    return ValueIf(!text.contains(QChar(u'\0')), text.toString());
}

} // namespace

QString FormatExchangeText(const PropertyValue& value)
{
    if (const auto* text = std::get_if<QString>(&value.value))
        return *text;
    if (const auto* number = std::get_if<qint32>(&value.value))
        return QString::number(*number);
    if (const auto* price = std::get_if<double>(&value.value))
        return std::isfinite(*price) ? ShortestNumber(*price) : QString();
    if (const auto* isChecked = std::get_if<bool>(&value.value))
        return *isChecked ? u"true"_s : u"false"_s;
    if (const auto* time = std::get_if<FileTime>(&value.value)) {
        const auto date = FileTimeToDate(*time);
        return date ? date->toString(Qt::ISODate) : QString();
    }
    return {};
}

std::optional<PropertyValue> ParseExchangeText(PropertyId column, QStringView text)
{
    const ColumnType type = ColumnTypeOf(column);
    PropertyVariant value = ReadValue(type, type == ColumnType::String ? text : text.trimmed());
    if (std::holds_alternative<std::monostate>(value))
        return std::nullopt;
    return PropertyValue { column, 0, std::move(value) };
}

} // namespace Quillory
