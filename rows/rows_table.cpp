#include "rows/rows_table.h"

#include "rows/row_delegate.h"
#include "rows/rows_model.h"
#include "widgets/line_view.h"

#include <QHeaderView>

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
    DressLineView(this);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setSectionsClickable(true);
}

void RowsTable::keyboardSearch(const QString& /*search*/)
{ }

void RowsTable::paintEvent(QPaintEvent* event)
{
    m_delegate->BeginFrame(font(), palette());
    QTableView::paintEvent(event);
}

} // namespace Quillory
