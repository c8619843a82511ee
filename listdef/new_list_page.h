#pragma once

#include "store/inventory_list.h"
#include "widgets/page.h"

class QComboBox;
class QLineEdit;
class QTableView;

namespace Quillory {

class ColumnTableModel;

/// Defines a new list: name, icon and columns. An empty name means that there is to be no list.
class NewListPage : public Page
{
    Q_OBJECT

public:
    explicit NewListPage(QWidget* parent = nullptr);

    /// The list as it is defined now; its map name and its columns' numbers are not drawn yet.
    [[nodiscard]] InventoryList Result() const;

private:
    InventoryList m_list;
    QLineEdit* m_name;
    QComboBox* m_icon;
    QTableView* m_view;
    ColumnTableModel* m_columns;

    void BuildNameAndIcon();
    void BuildColumns();
    void BuildCommands();
    void Run(Command command);
    void UpdateCommands();
    void DefineColumn();
    void Select(int row);
    /// -1 if none is selected.
    [[nodiscard]] int SelectedRow() const;
};

} // namespace Quillory
