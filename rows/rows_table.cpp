// SPDX-License-Identifier: MIT
#include "rows/rows_table.h"

#include "rows/column_layout.h"
#include "rows/row_delegate.h"
#include "rows/rows_model.h"
#include "widgets/line_view.h"

#include <QHeaderView>

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
    horizontalHeader()->setMaximumSectionSize(kMaxColumnWidth);
}

void RowsTable::keyboardSearch(const QString& /*search*/)
{ }

void RowsTable::paintEvent(QPaintEvent* event)
{
    m_delegate->BeginFrame(font(), palette());
    QTableView::paintEvent(event);
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
