// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include <array>

namespace Quillory {

constexpr quint32 kColourCount = 36;
/// The index of the automatic colour: black, or the colour of text on a dark ground.
constexpr quint32 kAutomaticColour = 0;
/// The ground of every other row, where that is asked for.
constexpr QRgb kAlternateRowColour = qRgb(207, 217, 246);

/// The colour of an index as it is defined; black for one outside the palette.
[[nodiscard]] QColor PaletteColour(quint32 index);
/// What a colour is called, for those who cannot see it.
[[nodiscard]] QString ColourName(quint32 index);
/// The indices in ascending order of their colours' values, red before green before blue: the order
/// in which colours are offered.
[[nodiscard]] const std::array<quint32, kColourCount>& ColoursByValue();

/// The colour that a list stores as an index; the automatic one for an index outside the palette.
/// In a dark palette it is made as much lighter as it takes to be read on `ground`; in a light one
/// it is what it is.
[[nodiscard]] QColor TextColour(quint32 index, const QPalette& palette, const QColor& ground);
/// kAlternateRowColour, or on a dark ground its like.
[[nodiscard]] QColor AlternateRowColour(const QPalette& palette);

} // namespace Quillory
