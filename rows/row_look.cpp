// SPDX-License-Identifier: MIT
#include "rows/row_look.h"

#include "widgets/colour_palette.h"

namespace Quillory {

RowWarnings WarningsFor(const RowFacts& row, const InventoryList& list, FileTime today)
{
    RowWarnings warnings;
    warnings.isLow = (list.TableOption & kWarnOnCount) != 0 && row.count <= list.TableWarnStart;
    warnings.isExpired
        = (list.TableOption & kWarnOnExpiry) != 0 && row.expiry.has_value() && today >= *row.expiry;
    return warnings;
}

RowColours ColoursFor(const InventoryList& list, bool hasAlternateLines, const QPalette& palette)
{
    const QColor ground = palette.color(QPalette::Base);
    return { palette.color(QPalette::Text), ground,
        hasAlternateLines ? AlternateRowColour(palette) : ground,
        TextColour(list.TableWarnColour, palette), TextColour(list.TableExpiryColour, palette),
        palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight),
        palette.color(QPalette::Midlight) };
}

RowLook DecideRowLook(const RowFacts& row, const RowWarnings& warnings, const RowColours& colours)
{
    RowLook look { colours.text, row.line % 2 == 0 ? colours.alternateGround : colours.ground,
        warnings.isLow && warnings.isExpired };
    if (warnings.isLow)
        look.text = colours.lowText;
    if (warnings.isExpired)
        look.text = colours.expiredText;
    if (row.isSelected) {
        look.text = colours.selectedText;
        look.ground = colours.selectedGround;
    }
    return look;
}

} // namespace Quillory
