// SPDX-License-Identifier: MIT
#include "res/command_table.h"

#include <QCoreApplication>

#include <array>

namespace Quillory {

namespace {

constexpr MenuEntry kSeparator {};

constexpr std::array kMain {
    MenuEntry { Command::ListProperties, QT_TRANSLATE_NOOP("Menus", "List Properties...") },
    MenuEntry { Command::Rename, QT_TRANSLATE_NOOP("Menus", "Rename List") },
    MenuEntry { Command::Import, QT_TRANSLATE_NOOP("Menus", "Import List...") },
    MenuEntry { Command::Export, QT_TRANSLATE_NOOP("Menus", "Export List...") },
    kSeparator,
    MenuEntry { Command::Delete, QT_TRANSLATE_NOOP("Menus", "Delete List...") },
    MenuEntry { Command::DeleteAllRecords, QT_TRANSLATE_NOOP("Menus", "Delete All Records...") },
    kSeparator,
    MenuEntry { Command::OpenReadOnly, QT_TRANSLATE_NOOP("Menus", "Open Read Only") },
    MenuEntry { Command::Options, QT_TRANSLATE_NOOP("Menus", "Options...") },
    MenuEntry { Command::About, QT_TRANSLATE_NOOP("Menus", "About...") },
};

constexpr std::array kColumns {
    MenuEntry {
        Command::AddExpiryDateColumn, QT_TRANSLATE_NOOP("Menus", "Add Expiry Date Column") },
    MenuEntry { Command::Rename, QT_TRANSLATE_NOOP("Menus", "Rename") },
    MenuEntry { Command::Delete, QT_TRANSLATE_NOOP("Menus", "Delete") },
    MenuEntry { Command::MoveUp, QT_TRANSLATE_NOOP("Menus", "Move Up") },
    MenuEntry { Command::MoveDown, QT_TRANSLATE_NOOP("Menus", "Move Down") },
};

constexpr std::array kRows {
    MenuEntry { Command::Modify, QT_TRANSLATE_NOOP("Menus", "Modify...") },
    MenuEntry { Command::CreateCopy, QT_TRANSLATE_NOOP("Menus", "Create Copy") },
    MenuEntry { Command::Delete, QT_TRANSLATE_NOOP("Menus", "Delete") },
    kSeparator,
    MenuEntry { Command::ViewSummary, QT_TRANSLATE_NOOP("Menus", "View Summary...") },
    MenuEntry { Command::Find, QT_TRANSLATE_NOOP("Menus", "Find...") },
    MenuEntry { Command::SetFilters, QT_TRANSLATE_NOOP("Menus", "Set Filters...") },
    MenuEntry { Command::ClearFilters, QT_TRANSLATE_NOOP("Menus", "Clear Filters") },
};

constexpr std::array kListContext {
    MenuEntry { Command::ListProperties, QT_TRANSLATE_NOOP("Menus", "List Properties...") },
    MenuEntry { Command::Rename, QT_TRANSLATE_NOOP("Menus", "Rename List") },
    MenuEntry { Command::Delete, QT_TRANSLATE_NOOP("Menus", "Delete List...") },
};

constexpr std::array kRowContext {
    MenuEntry { Command::AddOne, QT_TRANSLATE_NOOP("Menus", "Add 1") },
    MenuEntry { Command::SubtractOne, QT_TRANSLATE_NOOP("Menus", "Subtract 1") },
    kSeparator,
    MenuEntry { Command::Modify, QT_TRANSLATE_NOOP("Menus", "Modify...") },
    MenuEntry { Command::Delete, QT_TRANSLATE_NOOP("Menus", "Delete") },
};

constexpr std::array kFilters {
    MenuEntry { Command::Delete, QT_TRANSLATE_NOOP("Menus", "Remove") },
    MenuEntry { Command::ClearAllFilters, QT_TRANSLATE_NOOP("Menus", "Clear All") },
};

constexpr MenuEntry kNewKey { Command::New, QT_TRANSLATE_NOOP("Menus", "New") };
constexpr MenuEntry kMenuKey { Command::Menu, QT_TRANSLATE_NOOP("Menus", "Menu") };
constexpr MenuEntry kInsertKey { Command::Insert, QT_TRANSLATE_NOOP("Menus", "Insert") };
constexpr MenuEntry kAddKey { Command::AddFilter, QT_TRANSLATE_NOOP("Menus", "Add") };
constexpr MenuEntry kDoneKey { Command::Done, QT_TRANSLATE_NOOP("Menus", "Done") };
constexpr MenuEntry kCancelKey { Command::Cancel, QT_TRANSLATE_NOOP("Menus", "Cancel") };

} // namespace

QString MenuEntry::Text() const
{
    return text == nullptr ? QString() : QCoreApplication::translate("Menus", text);
}

std::span<const MenuEntry> MenuEntries(MenuId menu)
{
    switch (menu) {
    case MenuId::Main:
        return kMain;
    case MenuId::Columns:
        return kColumns;
    case MenuId::Rows:
        return kRows;
    case MenuId::ListContext:
        return kListContext;
    case MenuId::RowContext:
        return kRowContext;
    case MenuId::Filters:
        return kFilters;
    }
    return {};
}

SoftKeys SoftKeysOf(MenuBar bar)
{
    switch (bar) {
    case MenuBar::Columns:
        return { kInsertKey, kMenuKey };
    case MenuBar::Rows:
    case MenuBar::Main:
        return { kNewKey, kMenuKey };
    case MenuBar::Filters:
        return { kAddKey, kMenuKey };
    case MenuBar::Done:
        return { kDoneKey, {} };
    case MenuBar::Cancel:
        return { kCancelKey, {} };
    case MenuBar::DoneCancel:
        return { kDoneKey, kCancelKey };
    }
    return {};
}

} // namespace Quillory
