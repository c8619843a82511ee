// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/filters.h"
#include "widgets/page.h"

class QStandardItemModel;
class QTableView;

namespace Quillory {

/// The filters of a rows view, a line each. There is no way to take changes back: however the page
/// ends, Filters() is what was made of them.
class FiltersPage : public Page
{
    Q_OBJECT

public:
    /// `list` and `context` outlive the page.
    FiltersPage(FilterSet filters, const InventoryList& list, const ValueContext& context,
        QWidget* parent = nullptr);

    [[nodiscard]] const FilterSet& Filters() const { return m_filters; }

private:
    FilterSet m_filters;
    const InventoryList& m_list;
    const ValueContext& m_context;
    QStandardItemModel* m_lines;
    QTableView* m_view;

    void BuildTable();
    void AddLine(const FilterEntry& entry);
    [[nodiscard]] QString FieldName(PropertyId column) const;
    [[nodiscard]] QString ValueText(const FilterEntry& entry) const;
    /// -1 if none is selected.
    [[nodiscard]] int SelectedLine() const;

    void Run(Command command);
    void UpdateCommands();
    void Add();
    void Remove();
    void ClearAll();
};

} // namespace Quillory
