// SPDX-License-Identifier: MIT
#include "platform/number_text.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Quillory {

namespace {

constexpr int kDecimals = 2;
/// From here on a second decimal would be the eighteenth significant digit.
constexpr double kOneDecimalFrom = 1e15;
/// Every double from here on is a whole number.
constexpr double kWholeFrom = 9007199254740992.0;

/// `value` times `factor`, rounded exactly, halves away from zero. For values from 0 to below
/// kWholeFrom whose product stays below 2^60.
quint64 RoundedProduct(double value, quint64 factor)
{
    constexpr int kMantissaBits = 53;
    int exponent = 0;
    const double fraction = std::frexp(value, &exponent);
    const auto mantissa = static_cast<quint64>(std::ldexp(fraction, kMantissaBits));
    const int shift = kMantissaBits - exponent;
    if (shift > 63) {
        return 0;
    }
    const quint64 product = mantissa * factor;
    const quint64 half = shift == 0 ? 0 : quint64(1) << (shift - 1);
    return (product + half) >> shift;
}

/// Appends hundredths as a number with two decimals.
void AppendHundredths(std::u16string& line, quint64 hundredths, bool isNegative)
{
    std::array<char16_t, 24> text;
    auto first = text.end();
    quint64 left = hundredths;
    const auto prepend = [&](quint64 digit) { *--first = static_cast<char16_t>(u'0' + digit); };
    for (int i = 0; i < kDecimals; ++i) {
        prepend(left % 10);
        left /= 10;
    }
    *--first = u'.';
    do {
        prepend(left % 10);
        left /= 10;
    } while (left > 0);
    if (isNegative) {
        *--first = u'-';
    }
    line.append(first, static_cast<size_t>(text.end() - first));
}

void AppendWhole(std::u16string& line, double value)
{
    constexpr int kDigitsAfterFirst = 16;
    std::array<char, 32> text {};
    // No whole double lies half-way between two numbers of 17 digits: this rounding is exact.
    char* const end = std::to_chars(text.data(), text.data() + text.size(), value,
        std::chars_format::scientific, kDigitsAfterFirst)
                          .ptr;
    char* const mark = std::find(text.data(), end, 'e');
    size_t exponent = 0;
    std::from_chars(mark + 2, end, exponent);
    char* const digitsEnd = std::remove(text.data(), mark, '.');
    const auto digits = static_cast<size_t>(digitsEnd - text.data());
    for (size_t i = 0; i <= exponent; ++i) {
        line.push_back(i < digits ? static_cast<char16_t>(text.at(i)) : u'0');
    }
    line.append(u".00");
}

/// A plain number taken apart.
struct PlainNumber
{
    bool isNegative = false;
    QString whole;
    QString decimals;
};

bool IsAllDigits(QStringView text)
{
    return std::all_of(
        text.begin(), text.end(), [](QChar unit) { return unit >= u'0' && unit <= u'9'; });
}

/// Adds one to the last digit and carries.
void Increment(QString& digits)
{
    for (qsizetype i = digits.size(); i-- > 0;) {
        if (digits[i] != u'9') {
            digits[i] = QChar(static_cast<char16_t>(digits[i].unicode() + 1));
            return;
        }
        digits[i] = u'0';
    }
    digits.prepend(u'1');
}

std::optional<PlainNumber> TakeApart(QStringView plain)
{
    const bool isNegative = plain.startsWith(u'-');
    const QStringView text = plain.mid(isNegative ? 1 : 0);
    const qsizetype point = text.indexOf(u'.');
    const QStringView whole = point < 0 ? text : text.left(point);
    const QStringView decimals = point < 0 ? QStringView() : text.mid(point + 1);
    if ((whole.isEmpty() && decimals.isEmpty()) || !IsAllDigits(whole) || !IsAllDigits(decimals)) {
        return std::nullopt;
    }
    QString digits
        = whole.toString() + decimals.left(kDecimals).toString().leftJustified(kDecimals, u'0');
    if (decimals.size() > kDecimals && decimals[kDecimals] >= u'5') {
        Increment(digits);
    }
    const qsizetype wholeSize = digits.size() - kDecimals;
    qsizetype start = 0;
    while (start < wholeSize - 1 && digits[start] == u'0') {
        ++start;
    }
    PlainNumber number { isNegative, digits.mid(start, wholeSize - start), digits.mid(wholeSize) };
    if (number.whole.isEmpty()) {
        number.whole = u"0"_s;
    }
    return number;
}

QString Grouped(const QString& whole, const LocaleProfile& locale)
{
    QString text = whole;
    std::size_t group = 0;
    qsizetype at = text.size();
    while (group < locale.grouping.size()) {
        at -= locale.grouping.at(group);
        if (at <= 0) {
            break;
        }
        text.insert(at, locale.groupSeparator);
        group = std::min(group + 1, locale.grouping.size() - 1);
    }
    return text;
}

QString WithSign(const QString& number, int negativeForm)
{
    switch (negativeForm) {
    case 0:
        return u'(' + number + u')';
    case 2:
        return u"- "_s + number;
    case 3:
        return number + u'-';
    case 4:
        return number + u" -"_s;
    default:
        return u'-' + number;
    }
}

} // namespace

void AppendTwoDecimals(std::u16string& line, double value)
{
    if (std::isnan(value)) {
        line.append(u"1.#R");
        return;
    }
    const bool isNegative = std::signbit(value);
    const double magnitude = std::fabs(value);
    if (magnitude < kOneDecimalFrom) {
        AppendHundredths(line, RoundedProduct(magnitude, 100), isNegative);
        return;
    }
    if (magnitude < kWholeFrom) {
        AppendHundredths(line, RoundedProduct(magnitude, 10) * 10, isNegative);
        return;
    }
    if (isNegative) {
        line.push_back(u'-');
    }
    if (std::isinf(value)) {
        line.append(u"1.#J");
    } else {
        AppendWhole(line, magnitude);
    }
}

QString TwoDecimals(double value)
{
    std::u16string text;
    AppendTwoDecimals(text, value);
    return QStringView(text).toString();
}

std::optional<QString> FormatNumber(
    QStringView plain, const LocaleProfile& locale, qsizetype maxLength)
{
    const auto number = TakeApart(plain);
    if (!number) {
        return std::nullopt;
    }
    QString text = Grouped(number->whole, locale) + locale.decimalSeparator + number->decimals;
    if (number->isNegative) {
        text = WithSign(text, locale.negativeForm);
    }
    return text.size() <= maxLength ? std::optional(text) : std::nullopt;
}

std::optional<QString> PlainNumber(QStringView text, const LocaleProfile& locale)
{
    constexpr int kMinusInFront = 1;
    QString number = text.toString();
    QString minus;
    for (const int form : { locale.negativeForm, kMinusInFront }) {
        const QStringList around = WithSign(u"0"_s, form).split(u'0');
        const bool isNegative = number.size() > around[0].size() + around[1].size()
            && number.startsWith(around[0]) && number.endsWith(around[1]);
        if (isNegative && minus.isEmpty()) {
            number = number.mid(around[0].size()).chopped(around[1].size());
            minus = u"-"_s;
        }
    }
    // No keyboard has the blanks that some locales write.
    if (locale.groupSeparator.isSpace())
        number.replace(u' ', locale.groupSeparator);
    const qsizetype mark = number.indexOf(locale.decimalSeparator);
    const QString written = number.left(mark < 0 ? number.size() : mark);
    const QString decimals = mark < 0 ? QString() : number.mid(mark + 1);
    QString whole = written;
    whole.remove(locale.groupSeparator);
    const bool isWritten = written == whole || written == Grouped(whole, locale);
    if (!isWritten || whole.isEmpty() || !IsAllDigits(whole) || !IsAllDigits(decimals))
        return std::nullopt;
    return minus + whole + (decimals.isEmpty() ? QString() : u'.' + decimals);
}

} // namespace Quillory
