// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>
#include <QString>

#include <array>
#include <vector>

namespace Quillory {

/// The order of day, month and year in a locale's short date.
enum class DateOrder
{
    MonthDayYear = 0,
    DayMonthYear = 1,
    YearMonthDay = 2,
};

/// How one locale writes dates and numbers, and its 8-bit code page. Taken from tables of the
/// platform generation that the data came from, not from the operating system's current data.
struct LocaleProfile
{
    QString name;

    /// The short date: d dd M MM MMM MMMM y yy yyyy, literals, text in single quotes.
    QString shortDatePicture;
    /// A second form in which whole dates are read, never written; empty in most locales.
    QString longDatePicture;
    DateOrder dateOrder = DateOrder::MonthDayYear;
    /// The first mark of the picture; a date separator beside '/' and '-'.
    QChar dateSeparator = u'/';
    /// The names that dates are read by, without regard to case. Months standing alone are meant:
    /// "styczeń", not "stycznia".
    std::array<QString, 12> monthNames;
    std::array<QString, 12> shortMonthNames;
    QString amText;
    QString pmText;
    /// Added to the year when it is written (543 where the Buddhist era is used).
    int yearOffset = 0;

    QChar decimalSeparator = u'.';
    QChar groupSeparator = u',';
    /// Sizes of the groups of digits from the point leftward; the last one repeats.
    std::vector<int> grouping { 3 };
    /// 0 (1.1)  1 -1.1  2 - 1.1  3 1.1-  4 1.1 -
    int negativeForm = 1;

    /// Such as 1252; always one that CodePage knows.
    int codePage = 1252;

    /// The profile of a locale such as "de_DE.UTF-8", "sr_RS@latin", "en-US" or "C".
    [[nodiscard]] static LocaleProfile For(const QString& localeName);
};

/// The locale profiles of the environment: dates by LC_TIME, numbers by LC_NUMERIC, code page by
/// LC_CTYPE, each overridden by LC_ALL and falling back to LANG.
[[nodiscard]] LocaleProfile EnvironmentLocaleProfile();

} // namespace Quillory
