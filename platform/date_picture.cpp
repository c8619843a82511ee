// SPDX-License-Identifier: MIT
#include "platform/date_picture.h"

#include <algorithm>

namespace Quillory {

namespace {

constexpr int kFirstYear = 1601;
constexpr int kLastReadYear = 9999;

/// A run of one letter of a picture, or one literal unit.
struct PictureToken
{
    enum class Kind
    {
        Day,
        Month,
        Year,
        Literal,
    };
    Kind kind = Kind::Literal;
    int count = 1;
    QChar literal;
};

PictureToken::Kind KindOf(QChar unit)
{
    switch (unit.unicode()) {
    case u'd':
        return PictureToken::Kind::Day;
    case u'M':
        return PictureToken::Kind::Month;
    case u'y':
        return PictureToken::Kind::Year;
    default:
        return PictureToken::Kind::Literal;
    }
}

/// Hands the tokens of a picture to `visit` from left to right, until it answers false. Returns
/// whether it saw them all. A template, as a call per token would cost more than the token's work.
template <typename Visit> bool VisitPicture(QStringView picture, Visit visit)
{
    bool isQuoted = false;
    for (qsizetype at = 0; at < picture.size();) {
        const QChar unit = picture[at];
        const auto kind = isQuoted ? PictureToken::Kind::Literal : KindOf(unit);
        qsizetype count = 1;
        while (at + count < picture.size() && picture[at + count] == unit) {
            ++count;
        }
        if (unit == u'\'' && count == 1) {
            isQuoted = !isQuoted;
            ++at;
            continue;
        }
        if (kind == PictureToken::Kind::Literal) {
            // A doubled quote stands for one.
            count = unit == u'\'' ? 2 : 1;
        }
        at += count;
        if (!visit(PictureToken { kind, static_cast<int>(count), unit })) {
            return false;
        }
    }
    return true;
}

void AppendText(std::u16string& line, QStringView text)
{
    line.append(text.utf16(), static_cast<std::size_t>(text.size()));
}

void AppendNumber(std::u16string& line, int number, int minDigits)
{
    if (number >= 10 || minDigits > 1) {
        AppendNumber(line, number / 10, minDigits - 1);
    }
    line.push_back(static_cast<char16_t>(u'0' + number % 10));
}

void AppendMonth(std::u16string& line, int month, int count, const LocaleProfile& locale)
{
    const auto index = static_cast<std::size_t>(month - 1);
    if (count <= 2) {
        AppendNumber(line, month, count);
    } else {
        AppendText(
            line, count == 3 ? locale.shortMonthNames.at(index) : locale.monthNames.at(index));
    }
}

void AppendYear(std::u16string& line, int year, int count)
{
    if (count <= 2) {
        AppendNumber(line, year % 100, count);
    } else {
        AppendNumber(line, year, 4);
    }
}

/// Reads one text against one picture.
class PictureMatch
{
public:
    PictureMatch(QStringView text, DigitCount digits, const LocaleProfile& locale)
        : m_text(text)
        , m_digits(digits)
        , m_locale(locale)
    { }

    bool Take(const PictureToken& token)
    {
        switch (token.kind) {
        case PictureToken::Kind::Literal:
            return TakeLiteral(token.literal);
        case PictureToken::Kind::Day:
            return token.count <= 2 && TakeDayOrMonth(m_day, token.count);
        case PictureToken::Kind::Month:
            return token.count <= 2 ? TakeDayOrMonth(m_month, token.count)
                                    : TakeMonthName(token.count);
        case PictureToken::Kind::Year:
            return token.count > 2 && TakeYear();
        }
        return false;
    }

    std::optional<QDate> Result() const
    {
        const int year = m_year - m_locale.yearOffset;
        const bool isWhole = m_text.isEmpty() && year >= kFirstYear && year <= kLastReadYear
            && QDate::isValid(year, m_month, m_day);
        return isWhole ? std::optional(QDate(year, m_month, m_day)) : std::nullopt;
    }

private:
    bool TakeLiteral(QChar literal)
    {
        if (!m_text.startsWith(literal)) {
            return false;
        }
        m_text = m_text.mid(1);
        return true;
    }

    struct Digits
    {
        int number = 0;
        int count = 0;
    };

    Digits TakeDigits(int maxCount)
    {
        Digits digits;
        while (digits.count < maxCount && digits.count < m_text.size()
            && m_text[digits.count] >= u'0' && m_text[digits.count] <= u'9') {
            digits.number = digits.number * 10 + (m_text[digits.count].unicode() - u'0');
            ++digits.count;
        }
        m_text = m_text.mid(digits.count);
        return digits;
    }

    bool TakeDayOrMonth(int& target, int count)
    {
        const Digits digits = TakeDigits(2);
        const int written = count == 2 || digits.number >= 10 ? 2 : 1;
        target = digits.number;
        return digits.count > 0 && (m_digits == DigitCount::Free || digits.count == written);
    }

    bool TakeYear()
    {
        const Digits digits = TakeDigits(5);
        m_year = digits.number;
        return digits.count == 4 || (digits.count == 5 && m_year >= 10'000);
    }

    bool TakeMonthName(int count)
    {
        const auto& names = count == 3 ? m_locale.shortMonthNames : m_locale.monthNames;
        m_month = MonthAtStart(m_text, names, Qt::CaseSensitive);
        if (m_month == 0) {
            return false;
        }
        m_text = m_text.mid(names.at(static_cast<std::size_t>(m_month - 1)).size());
        return true;
    }

    QStringView m_text;
    DigitCount m_digits;
    const LocaleProfile& m_locale;
    int m_day = 1;
    int m_month = 0;
    int m_year = 0;
};

} // namespace

void AppendDateText(std::u16string& line, QDate date, const LocaleProfile& locale)
{
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (year < kFirstYear) {
        return;
    }
    VisitPicture(locale.shortDatePicture, [&](const PictureToken& token) {
        switch (token.kind) {
        case PictureToken::Kind::Literal:
            line.push_back(token.literal.unicode());
            break;
        case PictureToken::Kind::Day:
            AppendNumber(line, day, std::min(token.count, 2));
            break;
        case PictureToken::Kind::Month:
            AppendMonth(line, month, token.count, locale);
            break;
        case PictureToken::Kind::Year:
            AppendYear(line, year + locale.yearOffset, token.count);
            break;
        }
        return true;
    });
}

std::optional<QDate> ReadDateByPicture(
    QStringView text, QStringView picture, DigitCount digits, const LocaleProfile& locale)
{
    PictureMatch match(text, digits, locale);
    const bool isMatch
        = VisitPicture(picture, [&match](const PictureToken& token) { return match.Take(token); });
    return isMatch ? match.Result() : std::nullopt;
}

int MonthAtStart(
    QStringView text, const std::array<QString, 12>& names, Qt::CaseSensitivity sensitivity)
{
    int month = 0;
    qsizetype length = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names.at(i).size() > length && text.startsWith(names.at(i), sensitivity)) {
            month = static_cast<int>(i) + 1;
            length = names.at(i).size();
        }
    }
    return month;
}

} // namespace Quillory
