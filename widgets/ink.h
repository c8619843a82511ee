// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

#include <initializer_list>

namespace Quillory {

/// The contrast that text needs to its ground, and the one that lines and signs need.
constexpr double kReadable = 4.5;
constexpr double kVisible = 3;

/// How far two colours are from each other, from 1 to 21, by the formula of WCAG 2.
[[nodiscard]] double Contrast(const QColor& a, const QColor& b);
/// A colour with a share of itself, from 0 to 1, on a ground.
[[nodiscard]] QColor Mix(const QColor& colour, const QColor& ground, double share);
/// The colour itself where it has this contrast to all of the grounds, else as much lighter or
/// darker a one as it takes. The grounds are all dark or all light.
[[nodiscard]] QColor FitTo(
    QColor colour, std::initializer_list<QColor> grounds, double contrast = kReadable);

/// Whether text is lighter than its ground.
[[nodiscard]] bool IsDark(const QPalette& palette);
/// The palette with each role of text, of disabled text too, such that it can be read on what it
/// stands on. A desktop's palette keeps what can be read already.
[[nodiscard]] QPalette LegiblePalette(QPalette palette);

// What else is drawn with. A shade of a button, as palettes have them, may have the colour of the
// ground.

/// The accent as text, as a line or as a sign.
[[nodiscard]] QColor AccentInk(const QPalette& palette);
/// The ground of a button of the accent that a mouse is over, on which its text stands out more.
[[nodiscard]] QColor StrongerAccent(const QPalette& palette);
/// The ground of what is current, held down or under a mouse: the ground of pages with a tint of
/// the accent.
[[nodiscard]] QColor TintedGround(const QPalette& palette);
/// The outline of what can be tapped or typed into.
[[nodiscard]] QColor OutlineColour(const QPalette& palette);
/// What only parts one thing from the next. Where text is as strong as it can be it is an outline.
[[nodiscard]] QColor HairlineColour(const QPalette& palette);

} // namespace Quillory
