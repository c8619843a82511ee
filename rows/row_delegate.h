#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"

#include <QStyledItemDelegate>

namespace Quillory {

class RowsModel;

/// Draws the cells of a rows view.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// All outlive the delegate.
    RowDelegate(const RowsModel& model, const InventoryList& list, const ValueContext& context,
        bool hasAlternateLines, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;

    /// The square of a checkbox within its cell: what a tap must hit.
    [[nodiscard]] static QRect CheckboxSquare(const QRect& cell);

private:
    const RowsModel& m_model;
    const InventoryList& m_list;
    const ValueContext& m_context;
    bool m_hasAlternateLines;
};

} // namespace Quillory
