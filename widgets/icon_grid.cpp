// SPDX-License-Identifier: MIT
#include "widgets/icon_grid.h"

#include "widgets/focus_ring.h"
#include "widgets/icon_set.h"
#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// From a cell's edge to its picture.
constexpr int kInset = 2;
constexpr int kPageRows = 5;
constexpr QRgb kDisabledCell = qRgb(0xD0, 0xD0, 0xD0);

/// Pictures large enough that their cells can be hit.
int GridIconSize()
{
    return HasTouchScreen() ? kMinTouchTarget - 2 * kInset : CurrentMeasures().iconSize + kGrid;
}

} // namespace

IconGridLayout IconGridLayout::For(
    int iconCount, int cellSize, const QSize& client, int scrollBarWidth)
{
    const auto fill = [&](int width) {
        IconGridLayout layout;
        layout.iconCount = iconCount;
        layout.cellSize = cellSize;
        layout.cellsPerRow = std::max(1, width / cellSize);
        layout.rows = (iconCount + layout.cellsPerRow - 1) / layout.cellsPerRow;
        return layout;
    };
    IconGridLayout layout = fill(client.width());
    if (layout.Height() > client.height()) {
        layout = fill(client.width() - scrollBarWidth);
        layout.needsScrollBar = true;
    }
    return layout;
}

int IconGridLayout::IndexAt(const QPoint& place) const
{
    if (place.x() < 0 || place.y() < 0)
        return -1;
    const int column = (place.x() + cellSize - 1) / cellSize - 1;
    const int index = column + place.y() / cellSize * cellsPerRow;
    return index >= 0 && index < iconCount ? index : -1;
}

QRect IconGridLayout::CellAt(int index) const
{
    return { index % cellsPerRow * cellSize, index / cellsPerRow * cellSize, cellSize, cellSize };
}

int IconGridLayout::Step(int index, Qt::Key key) const
{
    const int last = iconCount - 1;
    switch (key) {
    case Qt::Key_Left:
        return index <= 0 ? last : index - 1;
    case Qt::Key_Right:
        return index >= last ? 0 : index + 1;
    case Qt::Key_Up:
        return index - cellsPerRow < 0 ? last : index - cellsPerRow;
    case Qt::Key_Down:
        return index + cellsPerRow > last ? 0 : index + cellsPerRow;
    default:
        return index;
    }
}

IconGrid::IconGrid(QWidget* parent)
    : QListView(parent)
{
    setObjectName(u"iconGrid"_s);
    setAccessibleName(tr("Icons"));
    auto* icons = new QStandardItemModel(this);
    for (int index = 0; index < kListIconCount; ++index)
        icons->appendRow(new QStandardItem(ListIconName(index)));
    setModel(icons);
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(NoEditTriggers);
    ShowFocusRing(this);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    new TouchBehaviour(this);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, &IconGrid::ScrollByPage);
}

int IconGrid::SelectedIcon() const
{
    return currentIndex().isValid() ? currentIndex().row() : -1;
}

void IconGrid::SelectIcon(int index)
{
    setCurrentIndex(model()->index(index, 0));
    viewport()->update();
}

IconGridLayout IconGrid::Layout() const
{
    return IconGridLayout::For(kListIconCount, GridIconSize() + 2 * kInset, viewport()->size(),
        verticalScrollBar()->sizeHint().width());
}

QRect IconGrid::visualRect(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    return Layout().CellAt(index.row()).translated(0, -verticalScrollBar()->value());
}

QModelIndex IconGrid::indexAt(const QPoint& point) const
{
    return model()->index(Layout().IndexAt(point + QPoint(0, verticalScrollBar()->value())), 0);
}

void IconGrid::scrollTo(const QModelIndex& index, ScrollHint /*hint*/)
{
    const QRect cell = Layout().CellAt(index.row());
    QScrollBar* bar = verticalScrollBar();
    if (cell.top() < bar->value())
        bar->setValue(cell.top());
    else if (cell.bottom() >= bar->value() + viewport()->height())
        bar->setValue(cell.bottom() + 1 - viewport()->height());
}

void IconGrid::updateGeometries()
{
    const IconGridLayout layout = Layout();
    QScrollBar* bar = verticalScrollBar();
    bar->setRange(0, std::max(0, layout.Height() - viewport()->height()));
    bar->setSingleStep(layout.cellSize);
    bar->setPageStep(viewport()->height());
    // There, so that nothing moves when it is needed, but of no use.
    bar->setEnabled(layout.needsScrollBar);
    // A list view's own would set the range by its own layout again.
    QAbstractItemView::updateGeometries(); // NOLINT(bugprone-parent-virtual-call)
}

void IconGrid::ScrollByPage(int action)
{
    QScrollBar* bar = verticalScrollBar();
    const int page = kPageRows * Layout().cellSize;
    if (action == QAbstractSlider::SliderPageStepAdd)
        bar->setSliderPosition(bar->value() + page);
    else if (action == QAbstractSlider::SliderPageStepSub)
        bar->setSliderPosition(bar->value() - page);
}

void IconGrid::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    viewport()->update();
}

void IconGrid::resizeEvent(QResizeEvent* /*event*/)
{
    updateGeometries();
}

void IconGrid::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Base));
    for (int index = 0; index < kListIconCount; ++index)
        DrawCell(painter, index);
}

void IconGrid::DrawCell(QPainter& painter, int index) const
{
    const QRect cell = visualRect(model()->index(index, 0));
    if (!cell.intersects(viewport()->rect()))
        return;
    const bool isSelected = isEnabled() && index == SelectedIcon();
    if (!isEnabled())
        painter.fillRect(cell, QColor(kDisabledCell));
    else if (isSelected)
        painter.fillRect(cell, palette().color(QPalette::Highlight));
    ListIcon(index).paint(&painter, cell.adjusted(kInset, kInset, -kInset, -kInset),
        Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
}

void IconGrid::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        return SelectIcon(Layout().Step(SelectedIcon(), static_cast<Qt::Key>(event->key())));
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (SelectedIcon() >= 0)
            Q_EMIT IconTapped(SelectedIcon());
        return;
    default:
        event->ignore();
    }
}

void IconGrid::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        SelectIcon(indexAt(event->position().toPoint()).row());
}

void IconGrid::mouseMoveEvent(QMouseEvent* /*event*/)
{
    // A cell is chosen by where the tap begins; dragging over others marks none of them.
}

void IconGrid::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && SelectedIcon() >= 0)
        Q_EMIT IconTapped(SelectedIcon());
}

void IconGrid::focusInEvent(QFocusEvent* event)
{
    // An item view's own would select the first icon where none is.
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}

void IconGrid::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}

} // namespace Quillory
