#include "rows/row_field_delegate.h"

#include "widgets/measures.h"

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
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected))
        painter->fillRect(
            option.rect, Mix(option.palette.color(QPalette::Highlight), ground, kTint));
    painter->setPen(option.palette.color(QPalette::Midlight));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    const int left = index.column() == 0 ? kPageMargin : kGrid;
    const QRect room = option.rect.adjusted(left, 0, -kGrid, 0);
    painter->setPen(index.column() == 0 ? Mix(text, ground, kQuiet) : text);
    painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        option.fontMetrics.elidedText(
            index.data(Qt::DisplayRole).toString(), Qt::ElideRight, room.width()));
    painter->restore();
}

} // namespace Quillory
