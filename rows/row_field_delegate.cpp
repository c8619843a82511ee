// SPDX-License-Identifier: MIT
#include "rows/row_field_delegate.h"

#include "widgets/ink.h"

#include <QPainter>

namespace Quillory {

void RowFieldDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->fillRect(option.rect,
        option.state.testFlag(QStyle::State_Selected) ? TintedGround(option.palette)
                                                      : GroundOf(option, index));
    DrawHairline(*painter, option);
    painter->setPen(
        option.palette.color(index.column() == 0 ? QPalette::PlaceholderText : QPalette::Text));
    QStyleOptionViewItem marked = option;
    marked.font.setStrikeOut(index.data(Qt::FontRole).value<QFont>().strikeOut());
    DrawLabel(*painter, marked, TextRoom(option, index.column()), index);
}

} // namespace Quillory
