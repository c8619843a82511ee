// SPDX-License-Identifier: MIT
#pragma once

#include "platform/locale_profile.h"

#include <QString>
#include <QStringView>

#include <optional>
#include <string>

namespace Quillory {

/// Units that a number's form may have where nothing narrower is asked for.
constexpr qsizetype kMaxNumberTextLength = 259;

/// Appends a number with a point and two decimals. The exact value is rounded, halves away from
/// zero; after 17 significant digits zeros follow. A negative number that rounds to zero keeps its
/// sign. Infinity is 1.#J or -1.#J, and what is no number 1.#R.
void AppendTwoDecimals(std::u16string& line, double value);
[[nodiscard]] QString TwoDecimals(double value);

/// Writes a plain number (a minus first, digits, one point) in the locale's form: two decimals,
/// digits in groups. Nothing if `plain` is no such number or its form is longer than `maxLength`.
[[nodiscard]] std::optional<QString> FormatNumber(
    QStringView plain, const LocaleProfile& locale, qsizetype maxLength = kMaxNumberTextLength);

/// The plain number of a text in the locale's form: digits, alone or in groups, any number of
/// decimals, a minus in front or where the locale has it. Nothing if it is no such text.
[[nodiscard]] std::optional<QString> PlainNumber(QStringView text, const LocaleProfile& locale);

} // namespace Quillory
