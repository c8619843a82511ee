// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"

#include <QTableView>

namespace Quillory {

class RowDelegate;
class RowsModel;

/// The table of a rows view: whole lines of one height, with as little of its own as a list of a
/// million rows allows.
class RowsTable : public QTableView
{
    Q_OBJECT

public:
    /// All outlive the table.
    RowsTable(RowsModel& model, const InventoryList& list, const ValueContext& context,
        bool hasAlternateLines, QWidget* parent = nullptr);

    /// The width that a column needs for what it holds in the first lines.
    [[nodiscard]] int NeedOf(int column);

    /// A line is as wide as the view: a place beside the columns is one of the first of them.
    [[nodiscard]] QModelIndex indexAt(const QPoint& position) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] int sizeHintForColumn(int column) const override;
    /// Home and End go to the first and to the last line.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    RowDelegate* m_delegate;

    void PaintBesideColumns(const QRect& exposed);
};

} // namespace Quillory
