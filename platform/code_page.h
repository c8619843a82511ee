// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <array>
#include <optional>
#include <vector>

namespace Quillory {

/// An 8-bit code page: turns bytes into text as the platform that wrote them did. Bytes without a
/// character become the control or private-use character of the platform's tables, broken pairs of
/// bytes the page's default character; nothing fails.
///
/// Each is made when it is first asked for and kept: that takes a tenth of a millisecond, for a
/// page of pairs (932, 936, 949, 950) one or two.
class CodePage
{
public:
    /// Null if the number is none of 874, 932, 936, 949, 950 and 1250 to 1258, or if this
    /// computer's Qt cannot decode it.
    [[nodiscard]] static const CodePage* For(int number);

    /// Writes the text of `bytes` to `target`, which has room for as many units as there are bytes,
    /// and returns how many units it is. A pair cut at the end gives the default character.
    qsizetype Decode(QByteArrayView bytes, char16_t* target) const;

private:
    CodePage() = default;

    [[nodiscard]] static std::optional<CodePage> Make(int number);

    /// By byte; the first of a pair has a mark of its own.
    std::array<char16_t, 256> m_units {};
    /// By pair, from lead byte 0x81 on; 0 for a broken pair. Empty if the page has no pairs.
    std::vector<char16_t> m_pairs;
    char16_t m_defaultUnit = u'?';
};

/// The ASCII character that a code page puts in the place of a wide digit, full stop, hyphen or of
/// a minus sign (U+2212); 0 for any other character, and where the page knows no such likeness.
[[nodiscard]] char16_t AsciiLookAlike(char16_t unit, int codePage);

} // namespace Quillory
