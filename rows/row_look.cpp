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

RowLook DecideRowLook(const RowFacts& row, const InventoryList& list, FileTime today,
    bool hasAlternateLines, const QPalette& palette)
{
    RowLook look { palette.color(QPalette::Text), palette.color(QPalette::Base), false };
    if (hasAlternateLines && row.line % 2 == 0)
        look.ground = AlternateRowColour(palette);
    const RowWarnings warnings = WarningsFor(row, list, today);
    if (warnings.isLow)
        look.text = TextColour(list.TableWarnColour, palette);
    if (warnings.isExpired)
        look.text = TextColour(list.TableExpiryColour, palette);
    look.isItalic = warnings.isLow && warnings.isExpired;
    if (row.isSelected) {
        look.text = palette.color(QPalette::HighlightedText);
        look.ground = palette.color(QPalette::Highlight);
    }
    return look;
}

} // namespace Quillory
