// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"
#include "store/row_warnings.h"

#include <QColor>
#include <QPalette>

#include <optional>

namespace Quillory {

/// What of a row decides how it looks.
struct RowFacts
{
    /// The place of its line, from 0.
    int line = 0;
    bool isSelected = false;
    /// A row without a count counts as 0.
    qint32 count = 0;
    std::optional<FileTime> expiry;
    bool isUnderMouse = false;
};

/// The colours that lines of one ground may have.
struct LineColours
{
    QColor ground;
    QColor text;
    QColor lowText;
    QColor expiredText;
    /// Of the word that says what a row warns of.
    QColor mark;
};

/// The colours that the rows of a list may have, worked out once for many of them.
struct RowColours
{
    LineColours plain;
    LineColours alternate;
    LineColours underMouse;
    QColor selectedText;
    QColor selectedGround;
    /// The hairlines between the rows.
    QColor rule;
};

struct RowLook
{
    QColor text;
    QColor ground;
    QColor mark;
    bool isItalic = false;
};

/// As WarningsFor() of a count and a date.
[[nodiscard]] inline RowWarnings WarningsFor(
    const RowFacts& row, const InventoryList& list, FileTime today)
{
    return WarningsFor(row.count, row.expiry, list, today);
}

/// With `hasAlternateLines` the alternate ground is one of its own.
[[nodiscard]] RowColours ColoursFor(
    const InventoryList& list, bool hasAlternateLines, const QPalette& palette);

/// How a row is drawn: selection goes before the expiry colour, that before the count colour, that
/// before the colour of text; both warnings together are in italics. The first line and every
/// second from there has the alternate ground.
[[nodiscard]] RowLook DecideRowLook(
    const RowFacts& row, const RowWarnings& warnings, const RowColours& colours);

} // namespace Quillory
