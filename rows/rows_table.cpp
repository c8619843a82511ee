// SPDX-License-Identifier: MIT
#include "rows/rows_table.h"

#include "rows/column_layout.h"
#include "rows/row_delegate.h"
#include "rows/rows_model.h"
#include "widgets/line_view.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace Quillory {

RowsTable::RowsTable(RowsModel& model, const InventoryList& list, const ValueContext& context,
    bool hasAlternateLines, QWidget* parent)
    : QTableView(parent)
    , m_delegate(new RowDelegate(model, list, context, hasAlternateLines, this))
{
    setObjectName(QStringLiteral("rowsTable"));
    setAccessibleName(list.Name);
    setModel(&model);
    setItemDelegate(m_delegate);
    setFont(ListFont());
    DressLineView(this);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setMaximumSectionSize(kMaxColumnWidth);
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
    if (line < 0 || columnAt(position.x()) >= 0)
        return QTableView::indexAt(position);
    return model()->index(line, horizontalHeader()->logicalIndex(0));
}

void RowsTable::paintEvent(QPaintEvent* event)
{
    m_delegate->BeginFrame(font(), palette());
    QTableView::paintEvent(event);
    PaintBesideColumns(event->rect());
}

void RowsTable::PaintBesideColumns(const QRect& exposed)
{
    const int free = viewport()->width() - horizontalHeader()->length();
    if (free <= 0)
        return;
    const int left = isRightToLeft() ? 0 : viewport()->width() - free;
    QPainter painter(viewport());
    for (int line = std::max(rowAt(exposed.top()), 0);
         line < model()->rowCount() && rowViewportPosition(line) <= exposed.bottom(); ++line) {
        const QRect place(left, rowViewportPosition(line), free, rowHeight(line));
        m_delegate->PaintGround(painter, place, line, selectionModel()->isRowSelected(line));
    }
}

int RowsTable::sizeHintForColumn(int column) const
{
    m_delegate->BeginFrame(font(), palette());
    return QTableView::sizeHintForColumn(column);
}

QModelIndex RowsTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveHome && action != MoveEnd)
        return QTableView::moveCursor(action, modifiers);
    const int line = action == MoveHome ? 0 : model()->rowCount() - 1;
    return model()->index(line, std::max(0, currentIndex().column()));
}

} // namespace Quillory
