// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"

#include <QTableView>

namespace Quillory {

class RowDelegate;
class RowsModel;

/// The table of a rows view. All its lines are of one height, so where a line lies is reckoned, not
/// kept: a list of a million rows costs the table nothing.
class RowsTable : public QTableView
{
    Q_OBJECT

public:
    /// All outlive the table.
    RowsTable(RowsModel& model, const InventoryList& list, const ValueContext& context,
        bool hasAlternateLines, QWidget* parent = nullptr);

    [[nodiscard]] QModelIndex indexAt(const QPoint& position) const override;
    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    /// Does nothing: looking for what was typed would read every row of the list.
    void keyboardSearch(const QString& search) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void updateGeometries() override;
    [[nodiscard]] int verticalOffset() const override;
    /// The width that the texts of the lines shown, and of some more, need.
    [[nodiscard]] int sizeHintForColumn(int column) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;

private:
    RowDelegate* m_delegate;
    bool m_isArranging = false;

    /// The number of lines came to be another.
    void Rearrange();
    void Arrange();
    /// 0 while the table has no model, as when it is taken in or given up.
    [[nodiscard]] int LineCount() const { return model() == nullptr ? 0 : model()->rowCount(); }
    [[nodiscard]] int LineHeight() const;
    /// Lines that the viewport shows whole; one at least.
    [[nodiscard]] int LinesPerPage() const;
    void PaintLine(QPainter& painter, int line, const QRect& area);
};

} // namespace Quillory
