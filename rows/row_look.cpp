// SPDX-License-Identifier: MIT
#include "rows/row_look.h"

#include "widgets/colour_palette.h"
#include "widgets/ink.h"

namespace Quillory {

RowColours ColoursFor(const InventoryList& list, bool hasAlternateLines, const QPalette& palette)
{
    const auto on = [&](const QColor& ground) {
        return LineColours { ground, FitTo(palette.color(QPalette::Text), { ground }),
            TextColour(list.TableWarnColour, palette, ground),
            TextColour(list.TableExpiryColour, palette, ground),
            FitTo(palette.color(QPalette::PlaceholderText), { ground }) };
    };
    const LineColours plain = on(palette.color(QPalette::Base));
    return { plain, hasAlternateLines ? on(AlternateRowColour(palette)) : plain,
        on(TintedGround(palette)), palette.color(QPalette::HighlightedText),
        palette.color(QPalette::Highlight), HairlineColour(palette) };
}

RowLook DecideRowLook(const RowFacts& row, const RowWarnings& warnings, const RowColours& colours)
{
    const LineColours& own = row.line % 2 == 0 ? colours.alternate : colours.plain;
    const LineColours& line = row.isUnderMouse ? colours.underMouse : own;
    RowLook look { line.text, line.ground, line.mark, warnings.isLow && warnings.isExpired };
    if (warnings.isLow)
        look.text = line.lowText;
    if (warnings.isExpired)
        look.text = line.expiredText;
    if (row.isSelected) {
        look.text = colours.selectedText;
        look.ground = colours.selectedGround;
        look.mark = colours.selectedText;
    }
    return look;
}

} // namespace Quillory
