// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <string_view>

namespace Quillory {

/// The whole number that a text begins with: ASCII blanks, one sign, decimal digits; what follows
/// is ignored. 0 if there are no digits. Too large a number keeps its low 32 bits.
[[nodiscard]] qint32 LeadingInteger(QStringView text);

/// The number that a text begins with: ASCII blanks, one sign, digits with at most one point, and
/// an exponent after e, E, d or D; what follows is ignored. 0 if there are no digits, infinity if
/// the number is too large. The point is the decimal mark in every locale.
[[nodiscard]] double LeadingNumber(std::string_view text);

/// The number that a text begins with after it went through a code page into 63 bytes, the room
/// that the platform leaves for it. Wide digits count where the code page knows none of its own.
[[nodiscard]] double LeadingNumberInCodePage(QStringView text, int codePage);

/// The same after every comma has become a point.
[[nodiscard]] double LeadingPriceInCodePage(QStringView text, int codePage);

} // namespace Quillory
