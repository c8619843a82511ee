// SPDX-License-Identifier: MIT
#include "platform/leading_number.h"

#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace Quillory {

namespace {

constexpr std::size_t kMaxBytes = 63;

template <typename Unit> constexpr bool IsBlank(Unit unit)
{
    return unit == 32 || (unit >= 9 && unit <= 13);
}
template <typename Unit> constexpr bool IsDigit(Unit unit)
{
    return unit >= '0' && unit <= '9';
}

std::size_t DigitsFrom(std::string_view text, std::size_t at)
{
    std::size_t end = at;
    while (end < text.size() && IsDigit(text[end])) {
        ++end;
    }
    return end - at;
}

/// The parts of an unsigned number at the start of a text.
struct NumberParts
{
    std::string_view mantissa;
    /// Sign and digits; empty if there is no whole exponent.
    std::string_view exponent;
    bool hasDigits = false;
};

NumberParts PartsOf(std::string_view text)
{
    const std::size_t whole = DigitsFrom(text, 0);
    std::size_t end = whole;
    std::size_t fraction = 0;
    if (end < text.size() && text[end] == '.') {
        fraction = DigitsFrom(text, end + 1);
        end += 1 + fraction;
    }
    NumberParts parts { text.substr(0, end), {}, whole + fraction > 0 };
    constexpr std::string_view kExponentMarks = "eEdD";
    if (end < text.size() && kExponentMarks.find(text[end]) != std::string_view::npos) {
        const std::size_t start = end + 1;
        const bool isSigned = start < text.size() && (text[start] == '-' || text[start] == '+');
        const std::size_t digits = DigitsFrom(text, start + (isSigned ? 1 : 0));
        if (digits > 0) {
            parts.exponent = text.substr(start, digits + (isSigned ? 1 : 0));
        }
    }
    return parts;
}

/// What a number is that no double holds: infinity, or 0 if it is too small.
double BeyondRange(const NumberParts& parts)
{
    const std::size_t point = std::min(parts.mantissa.find('.'), parts.mantissa.size());
    const std::size_t first = parts.mantissa.find_first_of("123456789");
    if (first == std::string_view::npos) {
        return 0.0;
    }
    constexpr qint64 kHugeExponent = 1'000'000'000;
    const bool isNegative = parts.exponent.starts_with('-');
    qint64 exponent = 0;
    for (const char unit : parts.exponent) {
        if (IsDigit(unit)) {
            exponent = std::min(exponent * 10 + (unit - '0'), kHugeExponent);
        }
    }
    const qint64 magnitude = static_cast<qint64>(point) - static_cast<qint64>(first)
        + (isNegative ? -exponent : exponent);
    return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
}

double ValueOf(const NumberParts& parts)
{
    if (!parts.hasDigits) {
        return 0.0;
    }
    double value = 0.0;
    std::errc error {};
    const char* const start = parts.mantissa.data();
    if (parts.exponent.empty()) {
        error = std::from_chars(start, start + parts.mantissa.size(), value).ec;
    } else {
        std::string text(parts.mantissa);
        text.append(1, 'e').append(parts.exponent);
        error = std::from_chars(text.data(), text.data() + text.size(), value).ec;
    }
    return error == std::errc {} ? value : BeyondRange(parts);
}

enum class Comma
{
    EndsNumber,
    IsPoint,
};

double ReadThroughCodePage(QStringView text, int codePage, Comma comma)
{
    std::array<char, kMaxBytes> bytes {};
    std::size_t count = 0;
    for (const QChar unit : text) {
        char16_t ascii = unit.unicode();
        if (ascii >= 0x80) {
            ascii = AsciiLookAlike(ascii, codePage);
        }
        // No byte beyond ASCII continues a number, so it need not be known exactly.
        if (ascii == 0 || count == bytes.size()) {
            break;
        }
        bytes.at(count++)
            = ascii == u',' && comma == Comma::IsPoint ? '.' : static_cast<char>(ascii);
    }
    return LeadingNumber({ bytes.data(), count });
}

} // namespace

qint32 LeadingInteger(QStringView text)
{
    auto at = text.begin();
    const auto unitAt = [&] { return at == text.end() ? char16_t(0) : at->unicode(); };
    while (IsBlank(unitAt())) {
        ++at;
    }
    const bool isNegative = unitAt() == u'-';
    if (isNegative || unitAt() == u'+') {
        ++at;
    }
    quint32 magnitude = 0;
    for (; IsDigit(unitAt()); ++at) {
        magnitude = magnitude * 10 + (unitAt() - u'0');
    }
    return static_cast<qint32>(isNegative ? 0U - magnitude : magnitude);
}

double LeadingNumber(std::string_view text)
{
    const auto start = std::find_if_not(text.begin(), text.end(), IsBlank<char>);
    text.remove_prefix(static_cast<std::size_t>(start - text.begin()));
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    const NumberParts parts = PartsOf(text);
    const double value = ValueOf(parts);
    return isNegative && parts.hasDigits ? -value : value;
}

double LeadingNumberInCodePage(QStringView text, int codePage)
{
    return ReadThroughCodePage(text, codePage, Comma::EndsNumber);
}

double LeadingPriceInCodePage(QStringView text, int codePage)
{
    return ReadThroughCodePage(text, codePage, Comma::IsPoint);
}

} // namespace Quillory
