// SPDX-License-Identifier: MIT
#include "rows/row_painter.h"

#include "widgets/icon_set.h"
#include "widgets/measures.h"

#include <QPainter>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

QFont Slanted(QFont font)
{
    font.setItalic(true);
    return font;
}

/// Within the outline of a mark, on either side.
constexpr int kMarkPadding = 5;

bool IsFigure(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

RowPainter::Face::Face(const QFont& faceFont)
    : font(faceFont)
    , metrics(faceFont)
{
    for (size_t code = 0; code < advances.size(); ++code)
        advances[code] = metrics.horizontalAdvance(QChar(static_cast<char16_t>(code)));
    const auto figures = std::minmax_element(advances.begin() + '0', advances.begin() + '9' + 1);
    figureWidth = *figures.second;
    hasEvenFigures = *figures.first == *figures.second;
}

int RowPainter::Face::AdvanceOf(QChar character) const
{
    const char16_t code = character.unicode();
    return code < advances.size() ? advances[code] : metrics.horizontalAdvance(character);
}

int RowPainter::Face::EvenAdvanceOf(QChar character) const
{
    return IsFigure(character) ? figureWidth : AdvanceOf(character);
}

int RowPainter::Face::RoughWidth(const QString& text) const
{
    int width = 0;
    for (const QChar character : text)
        width += AdvanceOf(character);
    return width;
}

int RowPainter::Face::BaseLine(const QRect& room) const
{
    return room.top() + (room.height() - metrics.height()) / 2 + metrics.ascent();
}

RowPainter::RowPainter(const QFont& font)
    : m_upright(font)
    , m_italic(Slanted(font))
    , m_checked(CheckboxIcon(true))
    , m_unchecked(CheckboxIcon(false))
{ }

const RowPainter::Face& RowPainter::FaceOf(const RowLook& look) const
{
    return look.isItalic ? m_italic : m_upright;
}

QRect RowPainter::CheckboxSquare(const QRect& cell)
{
    const int size = CurrentMeasures().iconSize;
    QRect square(0, 0, size, size);
    square.moveCenter(cell.center());
    return square;
}

QRect RowPainter::TextRoom(const QRect& cell) const
{
    return cell.adjusted(Margin(), 0, -Margin(), 0);
}

int RowPainter::WidthFor(const QString& text) const
{
    int width = 2 * Margin();
    for (const QChar character : text)
        width += std::max(m_upright.EvenAdvanceOf(character), m_italic.EvenAdvanceOf(character));
    return width;
}

QString RowPainter::Cut(const Face& face, const QString& text, int width)
{
    if (face.RoughWidth(text) <= width)
        return text;
    return face.metrics.elidedText(text, Qt::ElideRight, width);
}

void RowPainter::DrawLabel(
    QPainter& painter, const QRect& cell, const QString& text, const RowLook& look) const
{
    const Face& face = FaceOf(look);
    const QRect room = TextRoom(cell);
    painter.setFont(face.font);
    painter.setPen(look.text);
    painter.drawText(room.left(), face.BaseLine(room), Cut(face, text, room.width()));
}

int RowPainter::WidthForMark(const QString& mark) const
{
    return mark.isEmpty() ? 0 : kGrid + m_upright.RoughWidth(mark) + 2 * kMarkPadding;
}

void RowPainter::DrawName(QPainter& painter, const QRect& cell, const QString& name,
    const QString& mark, const RowLook& look) const
{
    const QRect room = TextRoom(cell);
    const int forName = std::min(FaceOf(look).RoughWidth(name),
        std::max(room.width() - WidthForMark(mark), room.width() / 2));
    DrawLabel(
        painter, QRect(cell.topLeft(), QSize(forName + 2 * Margin(), cell.height())), name, look);
    if (mark.isEmpty())
        return;
    const int forMark = std::min(room.width() - forName, WidthForMark(mark)) - kGrid;
    const QString word = Cut(m_upright, mark, forMark - 2 * kMarkPadding);
    const QRect outline(room.left() + forName + kGrid,
        room.top() + (room.height() - m_upright.metrics.height()) / 2 - 1, forMark,
        m_upright.metrics.height() + 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(m_upright.font);
    painter.setPen(look.mark);
    painter.drawRoundedRect(
        QRectF(outline).adjusted(.5, .5, -.5, -.5), kCornerRadius, kCornerRadius);
    painter.drawText(outline.left() + kMarkPadding, m_upright.BaseLine(room), word);
    painter.restore();
}

void RowPainter::DrawNumber(
    QPainter& painter, const QRect& cell, const QString& text, const RowLook& look) const
{
    const Face& face = FaceOf(look);
    const QRect room = TextRoom(cell);
    const QString shown = Cut(face, text, room.width());
    painter.setFont(face.font);
    painter.setPen(look.text);
    const int base = face.BaseLine(room);
    if (face.hasEvenFigures) {
        painter.drawText(room.right() + 1 - face.RoughWidth(shown), base, shown);
        return;
    }
    int x = room.right() + 1;
    for (auto character = shown.crbegin(); character != shown.crend(); ++character) {
        const int width = face.EvenAdvanceOf(*character);
        x -= width;
        painter.drawText(x + (width - face.AdvanceOf(*character)) / 2, base, QString(*character));
    }
}

void RowPainter::DrawCheckbox(
    QPainter& painter, const QRect& cell, bool isChecked, bool isSelected) const
{
    (isChecked ? m_checked : m_unchecked)
        .paint(&painter, CheckboxSquare(cell), Qt::AlignCenter,
            isSelected ? QIcon::Selected : QIcon::Normal);
}

void RowPainter::DrawFocus(QPainter& painter, const QRect& around, const RowLook& look)
{
    constexpr int kDistance = 3;
    painter.setPen(look.text);
    painter.drawRect(around.adjusted(-kDistance, -kDistance, kDistance, kDistance));
}

} // namespace Quillory
