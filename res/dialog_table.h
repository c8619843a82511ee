// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Quillory {

/// The pages, by the numbers of their dialogs.
enum class Dialog
{
    About = 100,
    IconGrid = 202,
    Welcome = 203,
    General = 204,
    Columns = 205,
    ColumnDefinition = 206,
    RowEditor = 207,
    ListOptions = 208,
    Summary = 209,
    DisplayOptions = 210,
    Filters = 211,
    Filter = 212,
    ImportColumnOrder = 214,
};

/// The controls that have a text or a number of their own.
enum class Control
{
    VersionText = 1000,
    IconPicker = 1002,
    WarnOnCount = 1010,
    WarnOnExpiry = 1013,
    Landscape = 1015,
    LandscapeRight = 1016,
    LandscapeLeft = 1017,
    AlternateColour = 1018,
    MoveUp = 1025,
    MoveDown = 1026,
};

/// The title of a page; empty for those that have none.
[[nodiscard]] QString DialogTitle(Dialog dialog);
/// The text of a control; empty for those that have none.
[[nodiscard]] QString ControlText(Control control);

/// The anchors of the help page.
inline constexpr char kHelpMain[] = "Main_Contents";
inline constexpr char kHelpNewList[] = "newlist";
inline constexpr char kHelpEditList[] = "editlist";
inline constexpr char kHelpOptions[] = "options";
inline constexpr char kHelpImport[] = "importlist";

} // namespace Quillory
