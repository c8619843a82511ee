// SPDX-License-Identifier: MIT
#include "rows/rows_table.h"

#include "rows/column_layout.h"
#include "rows/row_delegate.h"
#include "rows/rows_header.h"
#include "rows/rows_model.h"
#include "widgets/line_view.h"
#include "widgets/measures.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace Quillory {

namespace {

int NameColumnOf(const RowsModel& model)
{
    int column = model.columnCount() - 1;
    while (column >= 0 && !model.IsName(column))
        --column;
    return column;
}

} // namespace

RowsTable::RowsTable(RowsModel& model, const InventoryList& list, const ValueContext& context,
    bool hasAlternateLines, QWidget* parent)
    : QTableView(parent)
    , m_delegate(new RowDelegate(model, list, context, hasAlternateLines, this))
    , m_header(new RowsHeader(NameColumnOf(model), this))
{
    setObjectName(QStringLiteral("rowsTable"));
    setAccessibleName(list.Name);
    setHorizontalHeader(m_header);
    setModel(&model);
    setItemDelegate(m_delegate);
    setFont(ListFont());
    DressLineView(this);
    m_header->setSectionsMovable(true);
    m_header->setSectionsClickable(true);
    m_header->setSortIndicatorShown(true);
    m_header->setMaximumSectionSize(kMaxColumnWidth);
    PinNames();
}

void RowsTable::PinNames()
{
    // What lies under them is scrolled and stored without a thought for them.
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        viewport()->update();
        m_header->viewport()->update();
    });
    connect(model(), &QAbstractItemModel::dataChanged, this, [this] {
        if (!m_header->PinnedNames().isEmpty())
            viewport()->update();
    });
}

int RowsTable::NeedOf(int column)
{
    constexpr int kFirstLines = 30;
    m_delegate->BeginFrame(font(), palette());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    int need = 0;
    for (int line = 0; line < std::min(kFirstLines, model()->rowCount()); ++line)
        need = std::max(need, m_delegate->sizeHint(option, model()->index(line, column)).width());
    return need;
}

QModelIndex RowsTable::indexAt(const QPoint& position) const
{
    const int line = rowAt(position.y());
    const QRect pinned = m_header->PinnedNames();
    if (position.x() >= pinned.left() && position.x() <= pinned.right())
        return model()->index(line, m_header->NameColumn());
    if (line < 0 || columnAt(position.x()) >= 0)
        return QTableView::indexAt(position);
    return model()->index(line, m_header->logicalIndex(0));
}

void RowsTable::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    QTableView::scrollTo(index, hint);
    const QRect pinned = m_header->PinnedNames();
    if (pinned.isEmpty() || index.column() == m_header->NameColumn())
        return;
    const QRect cell = visualRect(index);
    const int covered
        = isRightToLeft() ? cell.right() - pinned.left() + 1 : pinned.right() - cell.left() + 1;
    if (covered > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - covered);
}

void RowsTable::paintEvent(QPaintEvent* event)
{
    m_delegate->BeginFrame(font(), palette(), LineUnderMouse(*this));
    QTableView::paintEvent(event);
    QPainter painter(viewport());
    int end = event->rect().top();
    for (int row = std::max(rowAt(end), 0);
         row < model()->rowCount() && rowViewportPosition(row) <= event->rect().bottom(); ++row) {
        const QRect line(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
        PaintBesideColumns(painter, line, row);
        PaintPinnedName(painter, line, row);
        end = line.bottom() + 1;
    }
    m_header->PaintPinnedEdge(painter, end);
}

void RowsTable::PaintBesideColumns(QPainter& painter, const QRect& line, int row) const
{
    const int free = line.width() - m_header->length();
    if (free <= 0)
        return;
    const int left = isRightToLeft() ? 0 : line.width() - free;
    m_delegate->PaintGround(painter, { left, line.top(), free, line.height() }, row,
        selectionModel()->isRowSelected(row));
}

void RowsTable::PaintPinnedName(QPainter& painter, const QRect& line, int row) const
{
    const QRect pinned = m_header->PinnedNames();
    if (pinned.isEmpty())
        return;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = QRect(pinned.left(), line.top(), pinned.width(), line.height());
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isRowSelected(row));
    m_delegate->paint(&painter, option, model()->index(row, m_header->NameColumn()));
}

bool RowsTable::ChangeColumnBy(int key)
{
    const int column = currentIndex().column();
    if (column < 0)
        return false;
    const int place = m_header->visualIndex(column);
    const int width = m_header->sectionSize(column);
    const int toEnd = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    switch (key) {
    case Qt::Key_S:
        Q_EMIT m_header->sectionClicked(column);
        return true;
    case Qt::Key_Up:
        m_header->resizeSection(column, width + kGrid);
        return true;
    case Qt::Key_Down:
        m_header->resizeSection(column, std::max(width - kGrid, m_header->minimumSectionSize()));
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        m_header->moveSection(
            place, std::clamp(place + (key == toEnd ? 1 : -1), 0, m_header->count() - 1));
        scrollTo(currentIndex());
        return true;
    default:
        return false;
    }
}

void RowsTable::keyPressEvent(QKeyEvent* event)
{
    const bool isForColumn = event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    if (isForColumn && ChangeColumnBy(event->key())) {
        m_delegate->ShowCurrentCell(true);
        viewport()->update();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void RowsTable::mousePressEvent(QMouseEvent* event)
{
    m_delegate->ShowCurrentCell(false);
    QTableView::mousePressEvent(event);
}

int RowsTable::sizeHintForColumn(int column) const
{
    m_delegate->BeginFrame(font(), palette());
    return QTableView::sizeHintForColumn(column);
}

QModelIndex RowsTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveLeft || action == MoveRight)
        m_delegate->ShowCurrentCell(true);
    if (action != MoveHome && action != MoveEnd)
        return QTableView::moveCursor(action, modifiers);
    const int line = action == MoveHome ? 0 : model()->rowCount() - 1;
    return model()->index(line, std::max(0, currentIndex().column()));
}

} // namespace Quillory
