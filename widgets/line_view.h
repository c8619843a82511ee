// SPDX-License-Identifier: MIT
#pragma once

class QAbstractItemView;
class QFont;
class QTableView;

namespace Quillory {

/// Makes a table one of whole lines, as every list of the program looks: one line selected, lines
/// of one height with hairlines between them, no frame, a quiet header, no line numbers.
/// The lines grow with the font, also at run time, where it is higher than they are. The selected
/// one stays in sight.
void DressLineView(QTableView* view);

/// Keeps the current line in sight where the view shrinks below it, as above an on-screen keyboard.
void KeepCurrentInSight(QAbstractItemView* view);

/// The font of lists and of their rows: Tahoma where it is installed. All else, the size among it,
/// is the application's, also when that changes.
[[nodiscard]] QFont ListFont();

} // namespace Quillory
