// SPDX-License-Identifier: MIT
#include "platform/date_reader.h"

#include "platform/date_picture.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace Quillory {

namespace {

constexpr std::size_t kMaxFields = 6;
constexpr int kMaxDateSeparators = 2;
constexpr int kLastYear = 9999;
/// Larger than any number with a meaning in a date or a time.
constexpr int kTooLarge = 100'000;

struct DateField
{
    int number = 0;
    bool isMonthName = false;
    bool isTime = false;
};

enum class Mark
{
    None,
    Blank,
    Comma,
    DateSeparator,
    TimeSeparator,
};

bool IsDigit(QChar unit)
{
    return unit >= u'0' && unit <= u'9';
}

Mark MarkOf(QChar unit, QChar dateSeparator)
{
    if (unit == u'/' || unit == u'-' || unit == dateSeparator) {
        return Mark::DateSeparator;
    }
    if (unit == u':' || unit == u'.') {
        return Mark::TimeSeparator;
    }
    if (unit == u',') {
        return Mark::Comma;
    }
    return unit.isSpace() ? Mark::Blank : Mark::None;
}

/// Splits a text into its fields.
class FieldScanner
{
public:
    FieldScanner(QStringView text, const LocaleProfile& locale)
        : m_text(text)
        , m_locale(locale)
    { }

    /// Whether the text is made of fields and marks in a possible way.
    bool Scan()
    {
        while (m_at < m_text.size()) {
            const QChar unit = m_text[m_at];
            const Mark mark = MarkOf(unit, m_locale.dateSeparator);
            const bool isTaken = IsDigit(unit) ? TakeNumber()
                : mark != Mark::None           ? TakeMark(mark)
                                               : TakeName();
            if (!isTaken) {
                return false;
            }
        }
        return m_count > 0;
    }

    std::span<const DateField> Fields() const { return std::span(m_fields).first(m_count); }
    bool HasHalfDay() const { return m_hasHalfDay; }

private:
    bool AddField(int number, bool isMonthName)
    {
        if (m_count == kMaxFields) {
            return false;
        }
        m_fields.at(m_count++) = { number, isMonthName, m_joinsTime };
        m_joinsTime = false;
        return true;
    }

    bool TakeNumber()
    {
        int number = 0;
        for (; m_at < m_text.size() && IsDigit(m_text[m_at]); ++m_at) {
            number = std::min(number * 10 + (m_text[m_at].unicode() - u'0'), kTooLarge);
        }
        return AddField(number, false);
    }

    bool TakeMark(Mark mark)
    {
        ++m_at;
        if (mark == Mark::Blank) {
            return true;
        }
        if (m_count == 0 || m_at == m_text.size()) {
            return false;
        }
        if (mark == Mark::TimeSeparator) {
            m_fields.at(m_count - 1).isTime = true;
            m_joinsTime = true;
        }
        return mark != Mark::DateSeparator || ++m_dateSeparators <= kMaxDateSeparators;
    }

    bool TakeName()
    {
        return TakeMonth(m_locale.monthNames) || TakeMonth(m_locale.shortMonthNames)
            || TakeHalfDay();
    }

    bool TakeMonth(const std::array<QString, 12>& names)
    {
        const int month = MonthAtStart(m_text.mid(m_at), names, Qt::CaseInsensitive);
        if (month == 0) {
            return false;
        }
        m_at += names.at(static_cast<std::size_t>(month - 1)).size();
        return AddField(month, true);
    }

    bool TakeHalfDay()
    {
        const bool followsNumber = m_at > 0 && IsDigit(m_text[m_at - 1]);
        const bool isTaken = TakeWord(m_locale.amText) || TakeWord(m_locale.pmText)
            || (followsNumber && (TakeWord(u"a") || TakeWord(u"p")));
        if (!isTaken || m_hasHalfDay || m_count == 0) {
            return false;
        }
        m_hasHalfDay = true;
        m_fields.at(m_count - 1).isTime = true;
        return true;
    }

    bool TakeWord(QStringView word)
    {
        if (word.isEmpty() || !m_text.mid(m_at).startsWith(word, Qt::CaseInsensitive)) {
            return false;
        }
        m_at += word.size();
        return true;
    }

    QStringView m_text;
    const LocaleProfile& m_locale;
    qsizetype m_at = 0;
    std::array<DateField, kMaxFields> m_fields {};
    std::size_t m_count = 0;
    int m_dateSeparators = 0;
    /// The last mark was a time separator: the next field belongs to a time.
    bool m_joinsTime = false;
    bool m_hasHalfDay = false;
};

/// Whether date fields (D) and time fields (T) follow each other in a way that has a meaning.
bool HasKnownShape(std::span<const DateField> fields, bool hasHalfDay)
{
    using namespace std::string_view_literals;
    constexpr std::array kShapes { "DD"sv, "DDD"sv, "TT"sv, "TTT"sv, "TTDD"sv, "TTDDD"sv, "TTTDD"sv,
        "TTTDDD"sv, "DDTT"sv, "DDDTT"sv, "DDDTTT"sv };
    constexpr std::array kHourShapes { "T"sv, "TDD"sv, "DDT"sv, "TDDD"sv, "DDDT"sv };

    std::array<char, kMaxFields> letters {};
    std::transform(fields.begin(), fields.end(), letters.begin(),
        [](const DateField& field) { return field.isTime ? 'T' : 'D'; });
    const std::string_view shape(letters.data(), fields.size());
    return std::find(kShapes.begin(), kShapes.end(), shape) != kShapes.end()
        || (hasHalfDay
            && std::find(kHourShapes.begin(), kHourShapes.end(), shape) != kHourShapes.end());
}

/// Whether the time fields are hours, minutes and seconds of a day; also if there are none.
bool HasPossibleTime(std::span<const DateField> fields)
{
    constexpr std::array kLimits { 23, 59, 59 };
    std::size_t place = 0;
    return std::all_of(fields.begin(), fields.end(), [&](const DateField& field) {
        return !field.isTime || (!field.isMonthName && field.number <= kLimits.at(place++));
    });
}

int FullYear(int year)
{
    if (year > 99) {
        return year;
    }
    return year < 30 ? 2000 + year : 1900 + year;
}

/// The fields of a date: none, two or three.
class DateFields
{
public:
    DateFields(std::span<const DateField> fields, DateOrder order, const Clock& clock)
        : m_order(order)
        , m_clock(clock)
    {
        for (const DateField& field : fields) {
            if (!field.isTime) {
                m_fields.at(m_count++) = field;
            }
        }
    }

    [[nodiscard]] bool IsEmpty() const { return m_count == 0; }

    [[nodiscard]] std::optional<QDate> Read() const
    {
        const std::span fields = std::span(m_fields).first(m_count);
        const auto isName = [](const DateField& field) { return field.isMonthName; };
        const auto name = std::find_if(fields.begin(), fields.end(), isName);
        if (name == fields.end()) {
            return m_count == 3 ? ReadThreeNumbers() : ReadTwoNumbers();
        }
        if (std::any_of(name + 1, fields.end(), isName)) {
            return std::nullopt;
        }
        return ReadWithName(name - fields.begin());
    }

private:
    [[nodiscard]] std::optional<QDate> ReadThreeNumbers() const
    {
        switch (m_order) {
        case DateOrder::MonthDayYear:
            return TryAll({ "Mdy", "yMd", "ydM", "dMy" });
        case DateOrder::DayMonthYear:
            return TryAll({ "dMy", "yMd", "Mdy", "ydM" });
        case DateOrder::YearMonthDay:
            return TryAll({ "yMd", "Mdy", "ydM", "dMy" });
        }
        return std::nullopt;
    }

    /// A day and a month of this year; failing that, the first day of a month.
    [[nodiscard]] std::optional<QDate> ReadTwoNumbers() const
    {
        return m_order == DateOrder::DayMonthYear ? TryAll({ "dM", "Md", "yM", "My" })
                                                  : TryAll({ "Md", "dM", "yM", "My" });
    }

    [[nodiscard]] std::optional<QDate> ReadWithName(std::ptrdiff_t namePlace) const
    {
        if (m_count == 2) {
            return namePlace == 0 ? TryAll({ "Md", "My" }) : TryAll({ "dM", "yM" });
        }
        if (namePlace == 1) {
            return m_order == DateOrder::DayMonthYear ? TryAll({ "dMy", "yMd" })
                                                      : TryAll({ "yMd", "dMy" });
        }
        return namePlace == 0 ? TryAll({ "Mdy" }) : TryAll({ "ydM" });
    }

    [[nodiscard]] std::optional<QDate> TryAll(
        std::initializer_list<std::string_view> arrangements) const
    {
        for (const std::string_view arrangement : arrangements) {
            if (const auto date = Try(arrangement)) {
                return date;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] std::optional<QDate> Try(std::string_view arrangement) const
    {
        int day = 1;
        int month = 0;
        std::optional<int> year;
        for (std::size_t i = 0; i < arrangement.size(); ++i) {
            const int number = m_fields.at(i).number;
            switch (arrangement[i]) {
            case 'd':
                day = number;
                break;
            case 'M':
                month = number;
                break;
            default:
                year = FullYear(number);
            }
        }
        if (month < 1 || month > 12 || day < 1 || day > 31) {
            return std::nullopt;
        }
        if (!year) {
            year = m_clock().date.year();
        }
        const bool isDay = *year <= kLastYear && QDate::isValid(*year, month, day);
        return isDay ? std::optional(QDate(*year, month, day)) : std::nullopt;
    }

    std::array<DateField, 3> m_fields {};
    std::size_t m_count = 0;
    DateOrder m_order;
    const Clock& m_clock;
};

} // namespace

std::optional<QDate> ReadDate(QStringView text, const LocaleProfile& locale, const Clock& clock)
{
    if (const auto date
        = ReadDateByPicture(text, locale.shortDatePicture, DigitCount::AsWritten, locale)) {
        return date;
    }
    if (!locale.longDatePicture.isEmpty()) {
        if (const auto date
            = ReadDateByPicture(text, locale.longDatePicture, DigitCount::Free, locale)) {
            return date;
        }
    }
    FieldScanner scanner(text, locale);
    if (!scanner.Scan() || !HasKnownShape(scanner.Fields(), scanner.HasHalfDay())
        || !HasPossibleTime(scanner.Fields())) {
        return std::nullopt;
    }
    const DateFields dateFields(scanner.Fields(), locale.dateOrder, clock);
    return dateFields.IsEmpty() ? QDate::fromJulianDay(kDayZeroJulian) : dateFields.Read();
}

} // namespace Quillory
