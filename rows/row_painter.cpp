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

bool IsFigure(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

RowPainter::Face::Face(const QFont& faceFont)
    : font(faceFont)
    , metrics(faceFont)
{
    int narrowest = metrics.horizontalAdvance(u'0');
    int widest = narrowest;
    for (char16_t figure = u'1'; figure <= u'9'; ++figure) {
        narrowest = std::min(narrowest, metrics.horizontalAdvance(figure));
        widest = std::max(widest, metrics.horizontalAdvance(figure));
    }
    figureWidth = narrowest == widest ? 0 : widest;
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
    const int margin = m_upright.metrics.averageCharWidth();
    return cell.adjusted(margin, 0, -margin, 0);
}

void RowPainter::DrawText(QPainter& painter, const QRect& room, const QString& text,
    const RowLook& look, Qt::Alignment side) const
{
    const Face& face = FaceOf(look);
    painter.setFont(face.font);
    painter.setPen(look.text);
    const bool isCut = face.metrics.horizontalAdvance(text) > room.width();
    painter.drawText(room, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine,
        isCut ? face.metrics.elidedText(text, Qt::ElideRight, room.width()) : text);
}

void RowPainter::DrawLabel(
    QPainter& painter, const QRect& cell, const QString& text, const RowLook& look) const
{
    DrawText(painter, TextRoom(cell), text, look, Qt::AlignLeft);
}

void RowPainter::DrawNumber(
    QPainter& painter, const QRect& cell, const QString& text, const RowLook& look) const
{
    const Face& face = FaceOf(look);
    const QRect room = TextRoom(cell);
    const auto widthOf = [&face](QChar character) {
        return IsFigure(character) ? face.figureWidth : face.metrics.horizontalAdvance(character);
    };
    int width = 0;
    for (const QChar character : text)
        width += widthOf(character);
    if (face.figureWidth == 0 || width > room.width())
        return DrawText(painter, room, text, look, Qt::AlignRight);
    painter.setFont(face.font);
    painter.setPen(look.text);
    int x = room.right() + 1 - width;
    const int base
        = room.top() + (room.height() - face.metrics.height()) / 2 + face.metrics.ascent();
    for (const QChar character : text) {
        const int advance = widthOf(character);
        const int spare = advance - face.metrics.horizontalAdvance(character);
        painter.drawText(x + spare / 2, base, QString(character));
        x += advance;
    }
}

void RowPainter::DrawCheckbox(
    QPainter& painter, const QRect& cell, bool isChecked, bool isSelected) const
{
    (isChecked ? m_checked : m_unchecked)
        .paint(&painter, CheckboxSquare(cell), Qt::AlignCenter,
            isSelected ? QIcon::Selected : QIcon::Normal);
}

void RowPainter::DrawFocus(QPainter& painter, const QRect& cell, const RowLook& look)
{
    constexpr int kDistance = 3;
    painter.setPen(look.text);
    painter.drawRect(CheckboxSquare(cell).adjusted(-kDistance, -kDistance, kDistance, kDistance));
}

} // namespace Quillory
