// SPDX-License-Identifier: MIT
#include "rows/filters_page.h"

#include "res/dialog_table.h"
#include "res/string_table.h"
#include "rows/filter_page.h"
#include "values/column_type.h"
#include "widgets/empty_hint.h"
#include "widgets/line_delegate.h"
#include "widgets/line_view.h"
#include "widgets/page_stack.h"
#include "widgets/touch.h"

#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

FiltersPage::FiltersPage(
    FilterSet filters, const InventoryList& list, const ValueContext& context, QWidget* parent)
    : Page(DialogTitle(Dialog::Filters), parent)
    , m_filters(std::move(filters))
    , m_list(list)
    , m_context(context)
    , m_lines(new QStandardItemModel(0, 3, this))
    , m_view(new QTableView(this))
{
    setObjectName(u"filters"_s);
    for (const FilterEntry& entry : m_filters.entries)
        AddLine(entry);
    BuildTable();
    SetSoftKeys(SoftKeysOf(MenuBar::Filters), MenuEntries(MenuId::Filters));
    SetShortcut(Command::AddFilter, QKeySequence::New);
    SetShortcut(Command::Delete, Qt::Key_Delete);
    connect(this, &Page::CommandChosen, this, &FiltersPage::Run);
    connect(this, &Page::MenuAboutToOpen, this, &FiltersPage::UpdateCommands);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &FiltersPage::UpdateCommands);
    UpdateCommands();
    setFocusProxy(m_view);
}

void FiltersPage::BuildTable()
{
    m_view->setObjectName(u"filterList"_s);
    m_view->setAccessibleName(DialogTitle(Dialog::Filters));
    m_view->setModel(m_lines);
    m_view->setItemDelegate(new LineDelegate(m_view));
    DressLineView(m_view);
    ShareWidthWithoutNames(*m_view);
    new TouchBehaviour(m_view);
    (new EmptyHint(m_view))->Say(tr("No filters yet. Tap Add to make one."));
    Body()->addWidget(m_view, 1);
}

QString FiltersPage::FieldName(PropertyId column) const
{
    const auto found = std::find_if(m_list.columns.begin(), m_list.columns.end(),
        [column](const ColumnDefinition& definition) { return definition.id == column; });
    return found == m_list.columns.end() ? QString() : found->name;
}

QString FiltersPage::ValueText(const FilterEntry& entry) const
{
    if (ColumnTypeOf(entry.column) != ColumnType::Checkbox)
        return entry.value;
    return LoadString(entry.value == u"F" ? StringId::Unchecked : StringId::Checked);
}

void FiltersPage::AddLine(const FilterEntry& entry)
{
    m_lines->appendRow({ new QStandardItem(FieldName(entry.column)),
        new QStandardItem(ConditionText(entry.column, entry.condition)),
        new QStandardItem(ValueText(entry)) });
}

int FiltersPage::SelectedLine() const
{
    const QModelIndexList lines = m_view->selectionModel()->selectedRows();
    return lines.isEmpty() ? -1 : lines.first().row();
}

void FiltersPage::UpdateCommands()
{
    // "Clear All" asks for a selected line as "Remove" does, though it removes them all.
    const bool hasSelection = SelectedLine() >= 0;
    SetCommandEnabled(Command::Delete, hasSelection);
    SetCommandEnabled(Command::ClearAllFilters, hasSelection);
}

void FiltersPage::Run(Command command)
{
    if (command == Command::AddFilter)
        Add();
    else if (command == Command::Delete)
        Remove();
    else if (command == Command::ClearAllFilters)
        ClearAll();
}

void FiltersPage::Add()
{
    auto* page = new FilterPage({}, m_list, m_context);
    // A cancelled page gives its fresh state, and that is added too: a filter that no row passes.
    PageStack::Of(this).Push(page, [this, page](PageResult result) {
        if (result == PageResult::Closing)
            return;
        const FilterEntry& entry = page->State().entry;
        AddFilter(m_filters, entry.column, entry.condition, entry.value);
        AddLine(m_filters.entries.back());
    });
}

void FiltersPage::Remove()
{
    const int line = SelectedLine();
    m_lines->removeRow(line);
    RemoveFilter(m_filters, line);
}

void FiltersPage::ClearAll()
{
    m_lines->removeRows(0, m_lines->rowCount());
    ClearFilters(m_filters);
}

} // namespace Quillory
