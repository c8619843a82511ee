// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <span>

namespace Quillory {

/// The commands of all menus, soft keys and buttons.
enum class Command
{
    Separator = 0,
    Ok = 1,
    NextIcon = 171,
    PreviousIcon = 172,
    IconGrid = 173,
    New = 32774,
    Delete = 32776,
    Rename = 32777,
    Options = 32778,
    Insert = 32780,
    MoveUp = 32781,
    MoveDown = 32782,
    Modify = 32785,
    Import = 32786,
    DeleteAllRecords = 32788,
    CreateCopy = 32789,
    ListProperties = 32791,
    ViewSummary = 32792,
    AddOne = 32793,
    SubtractOne = 32794,
    OpenReadOnly = 32796,
    Export = 32797,
    SetFilters = 32798,
    ClearFilters = 32799,
    AddFilter = 32801,
    ClearAllFilters = 32802,
    Find = 32803,
    AddExpiryDateColumn = 32804,
    About = 57664,
    Exit = 57665,
    Done = 59280,
    Cancel = 59281,
    Menu = 59282,
};

/// The menus, by their numbers; one number may have several popups.
enum class MenuId
{
    Main,
    Columns,
    Rows,
    ListContext,
    RowContext,
    Filters,
};

/// An entry of a menu; a command has its own text in each menu that it stands in.
struct MenuEntry
{
    Command command = Command::Separator;
    const char* text = nullptr;

    [[nodiscard]] QString Text() const;
};

/// What opens from the right soft key, or as a context menu.
[[nodiscard]] std::span<const MenuEntry> MenuEntries(MenuId menu);

/// The soft keys of a page. A right one with a menu opens it; Separator means that there is none.
struct SoftKeys
{
    MenuEntry left;
    MenuEntry right;
};

/// The soft-key bars, by their numbers.
enum class MenuBar
{
    Columns = 204,
    Rows = 205,
    Filters = 228,
    Done = 59137,
    Cancel = 59138,
    DoneCancel = 59139,
    Main = 59394,
};
[[nodiscard]] SoftKeys SoftKeysOf(MenuBar bar);

} // namespace Quillory
