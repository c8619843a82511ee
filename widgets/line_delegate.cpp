// SPDX-License-Identifier: MIT
#include "widgets/line_delegate.h"

#include "widgets/ink.h"
#include "widgets/measures.h"

#include <QPainter>

namespace Quillory {

QRect LineDelegate::TextRoom(const QRect& cell, int column)
{
    return cell.adjusted(column == 0 ? kPageMargin : kGrid, 0, -kGrid, 0);
}

void LineDelegate::DrawHairline(QPainter& painter, const QStyleOptionViewItem& option)
{
    const QRect& cell = option.rect;
    painter.fillRect(cell.left(), cell.bottom(), cell.width(), 1, HairlineColour(option.palette));
}

void LineDelegate::DrawLabel(QPainter& painter, const QStyleOptionViewItem& option,
    const QRect& room, const QModelIndex& index)
{
    const QVariant alignment = index.data(Qt::TextAlignmentRole);
    const int side = alignment.isValid() ? alignment.toInt()
                                         : static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    painter.setFont(option.font);
    painter.drawText(room, side | Qt::TextSingleLine,
        option.fontMetrics.elidedText(
            index.data(Qt::DisplayRole).toString(), Qt::ElideRight, room.width()));
}

void LineDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    painter->fillRect(
        option.rect, option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base));
    DrawHairline(*painter, option);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    DrawLabel(*painter, option, TextRoom(option.rect, index.column()), index);
}

} // namespace Quillory
