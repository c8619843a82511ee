// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "widgets/page.h"

class QHBoxLayout;
class QListWidget;
class QPushButton;

namespace Quillory {

/// Which column each field of an import file fills: the columns of the list, to be put in order.
class ImportOrderPage : public Page
{
    Q_OBJECT

public:
    explicit ImportOrderPage(
        const std::vector<ColumnDefinition>& columns, QWidget* parent = nullptr);

    /// Every column of the list once, in the order in which they stand.
    [[nodiscard]] std::vector<PropertyId> Order() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::vector<ColumnDefinition> m_columns;
    QListWidget* m_list;
    QPushButton* m_up;
    QPushButton* m_down;
    QHBoxLayout* m_buttons;

    /// -1 if there is none.
    [[nodiscard]] int SelectedRow() const;
    void Move(int by);
    void UpdateButtons();
};

} // namespace Quillory
