// SPDX-License-Identifier: MIT
#include "cli/column_words.h"

#include "values/column_type.h"

#include <algorithm>
#include <array>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

struct TypeWord
{
    ColumnType type;
    QLatin1StringView word;
};
constexpr std::array kTypeWords {
    TypeWord { ColumnType::String, QLatin1StringView("string") },
    TypeWord { ColumnType::Checkbox, QLatin1StringView("checkbox") },
    TypeWord { ColumnType::Price, QLatin1StringView("price") },
    TypeWord { ColumnType::Integer, QLatin1StringView("integer") },
    TypeWord { ColumnType::Date, QLatin1StringView("date") },
};
constexpr QLatin1StringView kExpiryWord("expiry");

} // namespace

QString WordForColumn(PropertyId column)
{
    if (column == PropExpiryDate)
        return kExpiryWord;
    const auto found = std::ranges::find(kTypeWords, ColumnTypeOf(column), &TypeWord::type);
    return found == kTypeWords.end() ? QString() : QString(found->word);
}

std::optional<PropertyId> ColumnForWord(QStringView word)
{
    if (word == kExpiryWord)
        return PropExpiryDate;
    const auto found = std::ranges::find_if(
        kTypeWords, [word](const TypeWord& entry) { return entry.word == word; });
    if (found == kTypeWords.end())
        return std::nullopt;
    return MakePropertyId(0, StorageType(found->type));
}

} // namespace Quillory
