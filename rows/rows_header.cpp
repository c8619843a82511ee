// SPDX-License-Identifier: MIT
#include "rows/rows_header.h"

#include "widgets/ink.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>

#include <algorithm>
#include <utility>

namespace Quillory {

namespace {

/// Of the view, that the pinned names keep at least where their column has as much.
constexpr double kPinnedShare = 0.4;

} // namespace

RowsHeader::RowsHeader(int nameColumn, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
    , m_nameColumn(nameColumn)
{ }

QRect RowsHeader::PinnedNames() const
{
    if (m_nameColumn < 0)
        return {};
    const QRect room = viewport()->rect();
    const int width = sectionSize(m_nameColumn);
    const QRect place(sectionViewportPosition(m_nameColumn), 0, width, room.height());
    // As they would lie from left to right.
    const int left = QStyle::visualRect(layoutDirection(), room, place).left();
    if (left >= 0)
        return {};
    const int least = std::min(width, static_cast<int>(room.width() * kPinnedShare));
    return QStyle::visualRect(
        layoutDirection(), room, { 0, 0, std::max(left + width, least), room.height() });
}

void RowsHeader::PaintPinnedEdge(QPainter& painter, int height) const
{
    const QRect pinned = PinnedNames();
    if (pinned.isEmpty())
        return;
    const int edge = isRightToLeft() ? pinned.left() : pinned.right();
    painter.fillRect(edge, 0, 1, height, HairlineColour(palette()));
}

void RowsHeader::paintEvent(QPaintEvent* event)
{
    QHeaderView::paintEvent(event);
    const QRect pinned = PinnedNames();
    if (pinned.isEmpty())
        return;
    QPainter painter(viewport());
    paintSection(&painter, pinned, m_nameColumn);
    PaintPinnedEdge(painter, height());
}

void RowsHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    option->sortIndicator = QStyleOptionHeader::None;
}

void RowsHeader::paintSection(QPainter* painter, const QRect& rect, int column) const
{
    // The style leaves a painter that clips everything.
    painter->save();
    QHeaderView::paintSection(painter, rect, column);
    painter->restore();
    if (!isSortIndicatorShown() || column != sortIndicatorSection())
        return;
    constexpr int kSize = 8;
    constexpr int kMargin = 6;
    const QVariant alignment = model()->headerData(column, orientation(), Qt::TextAlignmentRole);
    const QString title = model()->headerData(column, orientation()).toString();
    const int taken = kMargin + fontMetrics().horizontalAdvance(title) + kMargin / 2;
    const bool isAtEnd = (alignment.toInt() & Qt::AlignRight) != 0;
    const int fromLeft = isAtEnd ? std::max(0, rect.width() - taken - kSize)
                                 : std::min(taken, rect.width() - kSize);
    const QRect mark = QStyle::visualRect(layoutDirection(), rect,
        { rect.left() + fromLeft, rect.center().y() - kSize / 4, kSize, kSize / 2 });
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette().color(QPalette::Text));
    painter->drawPolygon(
        QPolygonF({ QPointF(mark.left(), mark.top()), QPointF(mark.left() + kSize, mark.top()),
            QPointF(mark.left() + kSize / 2.0, mark.bottom() + 1) }));
}

int RowsHeader::TapAt(const QPoint& place) const
{
    // Nearer than this a divider is meant, whatever points at it.
    constexpr int kSureGrip = 4;
    if (PinnedNames().contains(place))
        return m_nameColumn;
    const int column = logicalIndexAt(place);
    if (column < 0)
        return -1;
    const int fromLeft = place.x() - sectionViewportPosition(column);
    const int fromDivider = std::min(fromLeft, sectionSize(column) - 1 - fromLeft);
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    return fromDivider >= kSureGrip && fromDivider < grip ? column : -1;
}

void RowsHeader::mousePressEvent(QMouseEvent* event)
{
    m_press = event->position().toPoint();
    m_tapped = event->button() == Qt::LeftButton ? TapAt(m_press) : -1;
    if (!PinnedNames().contains(m_press))
        QHeaderView::mousePressEvent(event);
}

void RowsHeader::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint way = event->position().toPoint() - m_press;
    if (m_tapped >= 0 && way.manhattanLength() < QApplication::startDragDistance())
        return;
    m_tapped = -1;
    QHeaderView::mouseMoveEvent(event);
}

void RowsHeader::mouseReleaseEvent(QMouseEvent* event)
{
    QHeaderView::mouseReleaseEvent(event);
    const int tapped = std::exchange(m_tapped, -1);
    if (tapped >= 0)
        Q_EMIT sectionClicked(tapped);
}

} // namespace Quillory
