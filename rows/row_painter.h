// SPDX-License-Identifier: MIT
#pragma once

#include "rows/row_look.h"

#include <QFont>
#include <QFontMetrics>
#include <QIcon>
#include <QRect>

#include <array>

class QPainter;

namespace Quillory {

/// Draws the cells of rows. What is the same for all of them is worked out once, when the painter
/// is made, so that a frame full of cells costs little more than its texts.
class RowPainter
{
public:
    explicit RowPainter(const QFont& font);

    [[nodiscard]] const QFont& Font() const { return m_upright.font; }

    /// One line of text, vertically centred, with an ellipsis where it is cut.
    void DrawLabel(
        QPainter& painter, const QRect& cell, const QString& text, const RowLook& look) const;
    /// A name, and beside it in an outline what its row warns of, if it does. Neither takes more
    /// than half of a cell that has no room for both.
    void DrawName(QPainter& painter, const QRect& cell, const QString& name, const QString& mark,
        const RowLook& look) const;
    /// A label at the right, in figures of one width.
    void DrawNumber(
        QPainter& painter, const QRect& cell, const QString& text, const RowLook& look) const;
    void DrawCheckbox(QPainter& painter, const QRect& cell, bool isChecked, bool isSelected) const;
    /// Frames what the keyboard acts upon.
    static void DrawFocus(QPainter& painter, const QRect& around, const RowLook& look);

    /// The width of a cell in which no text of DrawLabel or DrawNumber is cut.
    [[nodiscard]] int WidthFor(const QString& text) const;
    /// What a mark beside a name takes of the cell; nothing if it is empty.
    [[nodiscard]] int WidthForMark(const QString& mark) const;

    /// The square of a checkbox within its cell: what a tap must hit.
    [[nodiscard]] static QRect CheckboxSquare(const QRect& cell);

private:
    /// A font with what is asked of it for every cell.
    struct Face
    {
        explicit Face(const QFont& faceFont);

        QFont font;
        QFontMetrics metrics;
        /// Of the ASCII characters, so that most texts are measured without shaping them.
        std::array<int, 128> advances {};
        /// The width of the widest figure.
        int figureWidth = 0;
        bool hasEvenFigures = false;

        [[nodiscard]] int AdvanceOf(QChar character) const;
        /// The same, all figures being of one width.
        [[nodiscard]] int EvenAdvanceOf(QChar character) const;
        /// The sum of the characters' advances. Close to the width of the text, if not exact.
        [[nodiscard]] int RoughWidth(const QString& text) const;
        /// Where the base line of a line of text is that stands in the middle of `room`.
        [[nodiscard]] int BaseLine(const QRect& room) const;
    };

    Face m_upright;
    Face m_italic;
    QIcon m_checked;
    QIcon m_unchecked;

    [[nodiscard]] const Face& FaceOf(const RowLook& look) const;
    [[nodiscard]] int Margin() const { return m_upright.metrics.averageCharWidth(); }
    [[nodiscard]] QRect TextRoom(const QRect& cell) const;
    [[nodiscard]] static QString Cut(const Face& face, const QString& text, int width);
};

} // namespace Quillory
