// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>
#include <string_view>

namespace Quillory {

/// How the digits of a whole number are grouped.
enum class Grouping
{
    Threes,
    /// Three, then twos.
    Indian,
};

/// What one locale's forms were in the platform generation that the data came from.
struct LocaleRow
{
    /// Language and territory, such as "de_DE".
    std::u16string_view name;
    std::u16string_view shortDatePicture;
    char16_t decimalSeparator;
    char16_t groupSeparator;
    Grouping grouping = Grouping::Threes;
    int negativeForm = 1;
};

/// The parts of a locale's name; empty where the name has none.
struct LocaleName
{
    QString language;
    /// As in "Latn".
    QString script;
    QString territory;
};

/// Takes apart names such as "de_DE.UTF-8", "sr_RS@latin", "zh-Hant" and "en-US".
[[nodiscard]] LocaleName ParseLocaleName(QStringView name);

/// The row of a locale. One without a territory, or with a script that chooses it, gets the row of
/// the language's main territory. Null if there is none.
[[nodiscard]] const LocaleRow* FindLocaleRow(const LocaleName& name);

/// The short names of the months where the platform's are not today's; nothing for other languages.
[[nodiscard]] std::optional<std::array<QString, 12>> ShortMonthNames(QStringView language);

/// The 8-bit code page of a language's files, 1252 if it has none of its own.
[[nodiscard]] int CodePageNumber(const LocaleName& name);

} // namespace Quillory
