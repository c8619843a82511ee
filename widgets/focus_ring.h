// SPDX-License-Identifier: MIT
#pragma once

class QAbstractItemView;
class QPainter;
class QPalette;
class QRect;

namespace Quillory {

/// The one sign of what has the keyboard: two pixels of the accent within `around`.
void DrawFocusRing(QPainter& painter, const QRect& around, const QPalette& palette);

/// Draws that around a view while it has the keyboard, once keys are used: a view that was tapped
/// needs no sign. Tells a screen reader on which line the keyboard is, too.
void ShowFocusRing(QAbstractItemView* view);

} // namespace Quillory
