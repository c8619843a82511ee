// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "widgets/page.h"

class QStackedWidget;
class QTabBar;

namespace Quillory {

class ColumnsPanel;
class GeneralPanel;
class OptionsPanel;

enum class SheetMode
{
    NewList,
    /// Has no Columns: those of a list never change.
    ExistingList,
};

/// The properties of a list: name and icon, columns, warnings. Whoever opens it writes the result.
class ListSheet : public Page
{
    Q_OBJECT

public:
    /// Shows `entered`, which is `before` with what was entered on a sheet that could not be
    /// stored.
    ListSheet(SheetMode mode, const InventoryList& before, const InventoryList& entered,
        QWidget* parent = nullptr);

    /// The list as it is entered now. The columns of a new one have no numbers of their own yet;
    /// an empty name means that there is to be no list.
    [[nodiscard]] InventoryList Result() const;

    [[nodiscard]] bool HasUnsavedInput() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    InventoryList m_list;
    QTabBar* m_tabs;
    QStackedWidget* m_panels;
    GeneralPanel* m_general;
    /// Null for an existing list.
    ColumnsPanel* m_columns = nullptr;
    OptionsPanel* m_options;
    InventoryList m_before;
    /// What takes the keyboard on each panel.
    std::vector<QWidget*> m_firstFields;

    void AddPanel(const QString& title, QWidget* panel);
    void ShowPanel(int index);
    void FitTabs();
    [[nodiscard]] bool HasExpiryDate() const;
};

} // namespace Quillory
