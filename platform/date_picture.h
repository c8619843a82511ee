// SPDX-License-Identifier: MIT
#pragma once

#include "platform/locale_profile.h"

#include <QDate>
#include <QStringView>

#include <array>
#include <optional>
#include <string>

namespace Quillory {

/// How exactly a text must follow a picture.
enum class DigitCount
{
    /// Digit by digit as AppendDateText writes it.
    AsWritten,
    /// Days and months with or without a leading zero.
    Free,
};

/// Appends the short form of a date. Only years from 1601 on have one; for others, and for an
/// invalid date, nothing is appended. Called for every row of a long list: appending to a string of
/// the library's costs a fraction of what it costs with one of Qt's.
void AppendDateText(std::u16string& line, QDate date, const LocaleProfile& locale);

/// The date from 1601 to 9999 that `text`, from its first to its last character, writes in the
/// picture. Nothing if it is no such text, or if the picture's year has not all its digits.
[[nodiscard]] std::optional<QDate> ReadDateByPicture(
    QStringView text, QStringView picture, DigitCount digits, const LocaleProfile& locale);

/// The month, from 1, whose name a text begins with; 0 if none. Of two names that begin alike it is
/// the longer: a twelfth month is not taken for a first.
[[nodiscard]] int MonthAtStart(
    QStringView text, const std::array<QString, 12>& names, Qt::CaseSensitivity sensitivity);

} // namespace Quillory
