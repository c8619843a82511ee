// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"

#include <QTableView>

namespace Quillory {

class RowDelegate;
class RowsHeader;
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

    /// A line is as wide as the view: a place beside the columns is one of the first of them, one
    /// on pinned names is the name's.
    [[nodiscard]] QModelIndex indexAt(const QPoint& position) const override;
    /// Not behind pinned names.
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

protected:
    /// With Ctrl and Shift, S sorts by the column of the current cell, the arrows to the sides move
    /// it, and those up and down make it wider and narrower.
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] int sizeHintForColumn(int column) const override;
    /// Home and End go to the first and to the last line.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    RowDelegate* m_delegate;
    RowsHeader* m_header;

    void PinNames();
    /// False if the key is none for columns.
    [[nodiscard]] bool ChangeColumnBy(int key);
    void PaintBesideColumns(QPainter& painter, const QRect& line, int row) const;
    void PaintPinnedName(QPainter& painter, const QRect& line, int row) const;
};

} // namespace Quillory
