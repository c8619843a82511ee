// SPDX-License-Identifier: MIT
#pragma once

#include "res/command_table.h"
#include "store/inventory_list.h"

#include <QWidget>

class QLabel;
class QTableView;

namespace Quillory {

class ColumnTableModel;
class Page;

/// Defines the columns of a new list. Its commands are actions of the page that it stands on.
class ColumnsPanel : public QWidget
{
    Q_OBJECT

public:
    /// `page` shows the panel and outlives it.
    ColumnsPanel(const std::vector<ColumnDefinition>& columns, Page& page);

    [[nodiscard]] std::vector<ColumnDefinition> Columns() const;
    [[nodiscard]] bool HasExpiryDate() const;

    /// Carries a command of the Columns menu out; others are ignored.
    void Run(Command command);
    /// Enables the commands that the selected column allows.
    void UpdateCommands();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    Page& m_page;
    QTableView* m_view;
    ColumnTableModel* m_columns;
    QLabel* m_note;

    void BuildView();
    void DefineColumn();
    void Select(int row);
    /// -1 if none is selected.
    [[nodiscard]] int SelectedRow() const;
};

} // namespace Quillory
