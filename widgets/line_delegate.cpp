// SPDX-License-Identifier: MIT
#include "widgets/line_delegate.h"

#include "widgets/ink.h"
#include "widgets/line_view.h"
#include "widgets/measures.h"

#include <QAbstractItemView>
#include <QPainter>

namespace Quillory {

QRect LineDelegate::TextRoom(const QStyleOptionViewItem& option, int column)
{
    return option.rect.marginsRemoved(
        LineMargins(column == 0 ? kPageMargin : kGrid, kGrid, option.direction));
}

void LineDelegate::DrawHairline(QPainter& painter, const QStyleOptionViewItem& option)
{
    const QRect& cell = option.rect;
    painter.fillRect(cell.left(), cell.bottom(), cell.width(), 1, HairlineColour(option.palette));
}

QColor LineDelegate::GroundOf(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    return view != nullptr && index.row() == LineUnderMouse(*view)
        ? TintedGround(option.palette)
        : option.palette.color(QPalette::Base);
}

QSize LineDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const int margins = option.rect.width() - TextRoom(option, index.column()).width();
    return { option.fontMetrics.horizontalAdvance(index.data().toString()) + margins,
        QStyledItemDelegate::sizeHint(option, index).height() };
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
    painter->fillRect(option.rect,
        isSelected ? option.palette.color(QPalette::Highlight) : GroundOf(option, index));
    DrawHairline(*painter, option);
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    DrawLabel(*painter, option, TextRoom(option, index.column()), index);
}

} // namespace Quillory
