// SPDX-License-Identifier: MIT
#include "rows/row_field_delegate.h"

#include <QPainter>

namespace Quillory {

namespace {

/// How much of the one colour is in a mixture.
constexpr float kTint = 0.1F;
constexpr float kQuiet = 0.68F;

QColor Mix(const QColor& colour, const QColor& ground, float share)
{
    const auto part = [share](float a, float b) { return a * share + b * (1 - share); };
    return QColor::fromRgbF(part(colour.redF(), ground.redF()),
        part(colour.greenF(), ground.greenF()), part(colour.blueF(), ground.blueF()));
}

} // namespace

void RowFieldDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QColor ground = option.palette.color(QPalette::Base);
    const QColor text = option.palette.color(QPalette::Text);
    const float tint = option.state.testFlag(QStyle::State_Selected) ? kTint : 0;
    painter->fillRect(option.rect, Mix(option.palette.color(QPalette::Highlight), ground, tint));
    DrawHairline(*painter, option);
    painter->setPen(index.column() == 0 ? Mix(text, ground, kQuiet) : text);
    QStyleOptionViewItem marked = option;
    marked.font.setStrikeOut(index.data(Qt::FontRole).value<QFont>().strikeOut());
    DrawLabel(*painter, marked, TextRoom(option.rect, index.column()), index);
}

} // namespace Quillory
