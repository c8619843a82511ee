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

/// For columns that have no names: they share the width, and nobody meets their numbers instead.
/// The view has its model already.
void ShareWidthWithoutNames(QTableView& view);

/// A mouse gives the line it is over a ground of its own, and has the view and its header say as a
/// tip what is cut there.
void MeetMouse(QAbstractItemView* view);

/// The line that is drawn on TintedGround; -1 for none. With a touch screen there is none, for the
/// line that was touched last would keep it.
[[nodiscard]] int LineUnderMouse(const QAbstractItemView& view);

/// Keeps the current line in sight where the view shrinks below it, as above an on-screen keyboard.
void KeepCurrentInSight(QAbstractItemView* view);

/// The font of lists and of their rows: Tahoma where it is installed. All else, the size among it,
/// is the application's, also when that changes.
[[nodiscard]] QFont ListFont();

} // namespace Quillory
