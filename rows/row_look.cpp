// SPDX-License-Identifier: MIT
#include "rows/row_look.h"

#include "widgets/colour_palette.h"
#include "widgets/ink.h"

#include <QCoreApplication>
#include <QStringList>

namespace Quillory {

using namespace Qt::StringLiterals;

RowWarnings WarningsFor(const RowFacts& row, const InventoryList& list, FileTime today)
{
    RowWarnings warnings;
    warnings.isLow = (list.TableOption & kWarnOnCount) != 0 && row.count <= list.TableWarnStart;
    warnings.isExpired
        = (list.TableOption & kWarnOnExpiry) != 0 && row.expiry.has_value() && today >= *row.expiry;
    return warnings;
}

QString WarningText(const RowWarnings& warnings)
{
    QStringList words;
    if (warnings.isLow)
        //: Beside the name of a row of which few are left; short.
        words << QCoreApplication::translate("Warnings", "low");
    if (warnings.isExpired)
        //: Beside the name of a row whose expiry date is reached; short.
        words << QCoreApplication::translate("Warnings", "expired");
    return words.join(u", "_s);
}

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
        palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight),
        HairlineColour(palette) };
}

RowLook DecideRowLook(const RowFacts& row, const RowWarnings& warnings, const RowColours& colours)
{
    const LineColours& line = row.line % 2 == 0 ? colours.alternate : colours.plain;
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
