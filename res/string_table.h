// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Quillory {

/// The numbered texts. Conditions stand in rows: 3000 + code, and 3099 + code for dates; column
/// types at 200 + index.
enum class StringId
{
    InventoryList = 100,
    DeleteRowQuestion = 101,
    Name = 103,
    Type = 104,
    NewInventoryList = 105,
    Quantity = 106,
    DeleteAllRowsQuestion = 108,
    DeleteListQuestion = 109,
    InventoryListOptions = 110,
    CannotOpenDataFile = 112,
    DataFileNotFound = 113,
    NoRecordMatched = 114,
    ImportErrors = 115,
    Quillory = 128,
    TypeString = 200,
    TypeName = 220,
    TypeCount = 221,
    TypeExpiryDate = 222,
    Unchecked = 240,
    Checked = 241,
    Contains = 3000,
    DateCondition = 3099,
    Done = 59280,
    Cancel = 59281,
    Menu = 59282,
    New = 59283,
};

/// Texts without a number.
enum class Text
{
    Caption,
    CannotCreateListTable,
    CannotCreateUserDatabase,
    CannotCreateInventoryTable,
    CannotOpenDataFile,
    OutOfMemory,
    Welcome,
    Version,
    Find,
    ToColour,
    Field,
    Condition,
    Value,
    InventoryDatabase,
    TextFiles,
};

/// The text of the string table under a number, in the language of the program; empty if there is
/// none under it.
[[nodiscard]] QString LoadString(int id);
[[nodiscard]] QString LoadString(StringId id);
[[nodiscard]] QString LoadText(Text text);

/// `text` with its "%s" or "%d" replaced, once.
[[nodiscard]] QString FillIn(QString text, const QString& argument);
[[nodiscard]] QString FillIn(QString text, qint64 argument);

} // namespace Quillory
