// SPDX-License-Identifier: MIT
#include "res/string_table.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace Quillory {

namespace {

struct Entry
{
    int id;
    const char* text;
};

/// Ascending by number, to be searched.
constexpr std::array kStrings {
    Entry { 100, QT_TRANSLATE_NOOP("Strings", "Inventory List") },
    Entry { 101, QT_TRANSLATE_NOOP("Strings", "Do you want to delete the selected row?") },
    Entry { 103, QT_TRANSLATE_NOOP("Strings", "Name") },
    Entry { 104, QT_TRANSLATE_NOOP("Strings", "Type") },
    Entry { 105, QT_TRANSLATE_NOOP("Strings", "New Inventory List") },
    Entry { 106, QT_TRANSLATE_NOOP("Strings", "Quantity") },
    Entry {
        107, QT_TRANSLATE_NOOP("Strings", "Please specifiy a name. Empty name is not allowed.") },
    Entry { 108, QT_TRANSLATE_NOOP("Strings", "Do you want to delete all rows in list '%s'?") },
    Entry {
        109, QT_TRANSLATE_NOOP("Strings", "Do you want to delete list '%s' and all its data?") },
    Entry { 110, QT_TRANSLATE_NOOP("Strings", "Inventory List Options") },
    Entry { 112,
        QT_TRANSLATE_NOOP("Strings",
            "Quillory is unable to open the data file. Please make sure the storage card is "
            "inserted.") },
    Entry { 113,
        QT_TRANSLATE_NOOP("Strings",
            "The data file cannot be found. Do you want to create a new data file at the same "
            "location? Tap No to try to locate it again.") },
    Entry { 114, QT_TRANSLATE_NOOP("Strings", "No record matched the criteria.") },
    Entry { 115,
        QT_TRANSLATE_NOOP(
            "Strings", "Import is completed with errors. Data may not be imported properly.") },
    Entry { 128, "Quillory" },
    Entry { 200, QT_TRANSLATE_NOOP("Strings", "String") },
    Entry { 201, QT_TRANSLATE_NOOP("Strings", "Checkbox") },
    Entry { 202, QT_TRANSLATE_NOOP("Strings", "Price") },
    Entry { 203, QT_TRANSLATE_NOOP("Strings", "Integer") },
    Entry { 204, QT_TRANSLATE_NOOP("Strings", "Date") },
    Entry { 220, QT_TRANSLATE_NOOP("Strings", "Name") },
    Entry { 221, QT_TRANSLATE_NOOP("Strings", "Count") },
    Entry { 222, QT_TRANSLATE_NOOP("Strings", "Expiry Date") },
    Entry { 240, QT_TRANSLATE_NOOP("Strings", "Unchecked") },
    Entry { 241, QT_TRANSLATE_NOOP("Strings", "Checked") },
    //: The conditions stand between a column and a value: Price "greater than" 3.50.
    Entry { 3000, QT_TRANSLATE_NOOP("Strings", "contains") },
    Entry { 3001, QT_TRANSLATE_NOOP("Strings", "equals to") },
    Entry { 3002, QT_TRANSLATE_NOOP("Strings", "not equals to") },
    Entry { 3003, QT_TRANSLATE_NOOP("Strings", "greater than") },
    Entry { 3004, QT_TRANSLATE_NOOP("Strings", "greater than or equals to") },
    Entry { 3005, QT_TRANSLATE_NOOP("Strings", "less than") },
    Entry { 3006, QT_TRANSLATE_NOOP("Strings", "less than or equals to") },
    //: These stand before a date: Opened "on or after" 10 May.
    Entry { 3100, QT_TRANSLATE_NOOP("Strings", "on") },
    Entry { 3101, QT_TRANSLATE_NOOP("Strings", "not on") },
    Entry { 3102, QT_TRANSLATE_NOOP("Strings", "after") },
    Entry { 3103, QT_TRANSLATE_NOOP("Strings", "on or after") },
    Entry { 3104, QT_TRANSLATE_NOOP("Strings", "before") },
    Entry { 3105, QT_TRANSLATE_NOOP("Strings", "on or before") },
    Entry { 59280, QT_TRANSLATE_NOOP("Strings", "Done") },
    Entry { 59281, QT_TRANSLATE_NOOP("Strings", "Cancel") },
    Entry { 59282, QT_TRANSLATE_NOOP("Strings", "Menu") },
    Entry { 59283, QT_TRANSLATE_NOOP("Strings", "New") },
};

/// In the order of Text.
constexpr std::array kTexts {
    "Quillory",
    QT_TRANSLATE_NOOP("Texts", "Unable to create list table!"),
    QT_TRANSLATE_NOOP("Texts", "Unable to create user database!"),
    QT_TRANSLATE_NOOP("Texts", "Unable to create inventory table!"),
    QT_TRANSLATE_NOOP("Texts", "Unable to open data file. Error: %d"),
    QT_TRANSLATE_NOOP("Texts", "Out of memory!"),
    QT_TRANSLATE_NOOP("Texts",
        "To begin using Quillory, please choose a name and location to store all your inventory "
        "lists. Tap OK to continue."),
    QT_TRANSLATE_NOOP("Texts", "Version"),
    QT_TRANSLATE_NOOP("Texts", "Find"),
    //: Stands between a number and a colour: "Enable row colour when count is less than or equal
    //: to" 3 "to colour" red.
    QT_TRANSLATE_NOOP("Texts", "to colour"),
    QT_TRANSLATE_NOOP("Texts", "Field:"),
    QT_TRANSLATE_NOOP("Texts", "Condition:"),
    QT_TRANSLATE_NOOP("Texts", "Value:"),
    QT_TRANSLATE_NOOP("Texts", "Inventory Database"),
    QT_TRANSLATE_NOOP("Texts", "Text Files"),
};
static_assert(kTexts.size() == static_cast<size_t>(Text::TextFiles) + 1);

} // namespace

QString LoadString(int id)
{
    const auto found = std::lower_bound(kStrings.begin(), kStrings.end(), id,
        [](const Entry& entry, int wanted) { return entry.id < wanted; });
    if (found == kStrings.end() || found->id != id)
        return {};
    return QCoreApplication::translate("Strings", found->text);
}

QString LoadString(StringId id)
{
    return LoadString(static_cast<int>(id));
}

QString LoadText(Text text)
{
    return QCoreApplication::translate("Texts", kTexts.at(static_cast<size_t>(text)));
}

QString FillIn(QString text, const QString& argument)
{
    const qsizetype at = text.indexOf(QLatin1StringView("%s"));
    return at < 0 ? text : text.replace(at, 2, argument);
}

QString FillIn(QString text, qint64 argument)
{
    const qsizetype at = text.indexOf(QLatin1StringView("%d"));
    return at < 0 ? text : text.replace(at, 2, QString::number(argument));
}

} // namespace Quillory
