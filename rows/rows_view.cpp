// SPDX-License-Identifier: MIT
#include "rows/rows_view.h"

#include "res/dialog_table.h"
#include "res/string_table.h"
#include "rows/column_layout.h"
#include "rows/filter_page.h"
#include "rows/filters_page.h"
#include "rows/row_editor.h"
#include "rows/row_painter.h"
#include "rows/rows_table.h"
#include "rows/summary_page.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/touch.h"
#include "widgets/wait_cursor.h"

#include <QAction>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

RowsView::RowsView(RowStore& rows, InventoryList& list, const ValueContext& context,
    const RowsViewOptions& options, QWidget* parent)
    : Page(list.Name, parent)
    , m_store(rows)
    , m_list(list)
    , m_context(context)
    , m_options(options)
    , m_deleter([this](ObjectId row) { return m_store.DeleteRow(row); })
    , m_model(new RowsModel(rows, list, context, this))
    , m_view(new RowsTable(*m_model, list, context, options.hasAlternateLines, this))
{
    setObjectName(u"rows"_s);
    if (m_options.foundBy) {
        m_filters.emplace();
        AddFilter(*m_filters, m_options.foundBy->column, m_options.foundBy->condition,
            m_options.foundBy->value);
    }
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (m_model->IsCheckbox(column))
            m_checkboxColumns.push_back(column);
    }
    BuildTable();
    BuildCommands();
    ApplyColumnLayout(*m_view->horizontalHeader(), m_list);
    Fill();
    setFocusProxy(m_view);
    // Once the page is on the screen.
    if (m_options.foundBy && m_model->rowCount() == 0)
        QMetaObject::invokeMethod(this, &RowsView::TellNothingFound, Qt::QueuedConnection);
}

void RowsView::BuildTable()
{
    connect(
        m_view->horizontalHeader(), &QHeaderView::sectionClicked, this, &RowsView::SortByColumn);
    connect(m_view, &QTableView::clicked, this, &RowsView::TapCell);
    connect(m_view, &QTableView::doubleClicked, this, &RowsView::DoubleTapCell);
    auto* touch = new TouchBehaviour(m_view);
    connect(touch, &TouchBehaviour::Held, this, &RowsView::OpenRowMenu);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    Body()->addWidget(m_view, 1);
}

void RowsView::BuildCommands()
{
    SetHelpAnchor(QLatin1StringView(kHelpEditList));
    ActionOf(Command::Modify)->setShortcuts({ Qt::Key_Return, Qt::Key_Enter });
    if (!m_options.foundBy) {
        SetSoftKeys(SoftKeysOf(MenuBar::Rows), MenuEntries(MenuId::Rows));
        SetShortcut(Command::New, QKeySequence::New);
        SetShortcut(Command::Delete, Qt::Key_Delete);
        SetShortcut(Command::AddOne, Qt::Key_Plus);
        SetShortcut(Command::SubtractOne, Qt::Key_Minus);
        SetShortcut(Command::Find, QKeySequence::Find);
    }
    connect(this, &Page::CommandChosen, this, &RowsView::Run);
    connect(this, &Page::MenuAboutToOpen, this, &RowsView::UpdateCommands);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &RowsView::UpdateCommands);
    connect(m_model, &QAbstractItemModel::modelReset, this, &RowsView::UpdateCommands);
}

void RowsView::Fill()
{
    const WaitCursor wait;
    const ObjectId selected = SelectedRow();
    m_model->SetRows((m_filters ? m_store.FillFilteredRows(*m_filters) : m_store.FillRows()).rows);
    if (!SelectRow(selected) && m_model->rowCount() > 0)
        Select(0);
}

void RowsView::TellNothingFound()
{
    ShowMessage(this, LoadString(StringId::NoRecordMatched), MessageIcon::Information,
        MessageButtons::Ok, [page = QPointer(this)](MessageAnswer) {
            if (page != nullptr)
                page->RequestEnd(PageResult::Ok);
        });
}

void RowsView::RequestEnd(PageResult /*result*/)
{
    StoreColumnLayout(*m_view->horizontalHeader(), m_list);
    End(PageResult::Ok);
}

int RowsView::SelectedLine() const
{
    const QModelIndexList lines = m_view->selectionModel()->selectedRows();
    return lines.isEmpty() ? -1 : lines.first().row();
}

ObjectId RowsView::SelectedRow() const
{
    const int line = SelectedLine();
    return line < 0 ? kNoObject : m_model->RowAt(line);
}

bool RowsView::SelectRow(ObjectId row)
{
    const auto& rows = m_model->Rows();
    const auto found = std::find(rows.begin(), rows.end(), row);
    if (found == rows.end())
        return false;
    Select(static_cast<int>(found - rows.begin()));
    return true;
}

void RowsView::Select(int line)
{
    const QModelIndex index = m_model->index(line, m_view->horizontalHeader()->logicalIndex(0));
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void RowsView::UpdateCommands()
{
    const bool mayWrite = !m_options.isReadOnly;
    const bool mayChange = mayWrite && SelectedLine() >= 0;
    SetCommandEnabled(Command::New, mayWrite);
    for (const Command command : { Command::Modify, Command::CreateCopy, Command::Delete,
             Command::AddOne, Command::SubtractOne })
        SetCommandEnabled(command, mayChange);
    SetCommandEnabled(Command::ClearFilters, m_filters.has_value());
}

void RowsView::Run(Command command)
{
    switch (command) {
    case Command::New:
        return NewRow();
    case Command::Modify:
        return ModifyRow();
    case Command::CreateCopy:
        return CopyRow();
    case Command::Delete:
        return DeleteRow();
    case Command::AddOne:
        return AdjustCount(1);
    case Command::SubtractOne:
        return AdjustCount(-1);
    case Command::ViewSummary:
        return ShowSummary();
    case Command::SetFilters:
        return SetFilters();
    case Command::ClearFilters:
        return ClearFilters();
    case Command::Find:
        return FindRows();
    default:
        return;
    }
}

void RowsView::OpenRowMenu(const QPoint& position)
{
    if (m_options.isReadOnly || m_options.foundBy || SelectedLine() < 0)
        return;
    OpenContextMenu(MenuEntries(MenuId::RowContext), m_view->viewport()->mapToGlobal(position));
}

void RowsView::Push(Page* page, std::function<void(PageResult)> then)
{
    PageStack::Of(this).Push(page, std::move(then));
}

void RowsView::OpenEditor(
    const std::optional<Record>& row, const RowWriter& write, const std::vector<QString>& typed)
{
    auto* page = new RowEditor(m_list, row ? &*row : nullptr, m_context);
    if (!typed.empty())
        page->SetTexts(typed);
    Push(page, [this, page, row, write](PageResult result) {
        if (result == PageResult::Ok && !write(page->Texts()))
            OpenEditor(row, write, page->Texts());
    });
}

void RowsView::NewRow()
{
    OpenEditor(std::nullopt, [this](const std::vector<QString>& texts) {
        const ObjectId row = m_store.WriteNewRow(texts);
        if (row != kNoObject)
            m_model->Append(row);
        return row != kNoObject;
    });
}

void RowsView::ModifyRow()
{
    const ObjectId row = SelectedRow();
    const Record record = m_store.ReadRow(row);
    // What cannot be read must not be written over.
    if (!record)
        return;
    OpenEditor(record, [this, row](const std::vector<QString>& texts) {
        const bool isStored = m_store.ModifyRow(row, texts);
        if (isStored)
            m_model->RefreshAll();
        return isStored;
    });
}

void RowsView::CopyRow()
{
    const ObjectId copy = m_store.CopyRow(m_model->RowAt(SelectedLine()));
    if (copy == kNoObject)
        return;
    Select(m_model->Append(copy));
    ModifyRow();
}

void RowsView::DeleteRow()
{
    const int line = SelectedLine();
    ShowMessage(this, LoadString(StringId::DeleteRowQuestion), MessageIcon::Exclamation,
        MessageButtons::YesNo, [page = QPointer(this), line](MessageAnswer answer) {
            if (page != nullptr && answer == MessageAnswer::Yes
                && page->m_deleter(page->m_model->RowAt(line)))
                page->m_model->Remove(line);
        });
}

void RowsView::SetRowDeleter(RowDeleter deleter)
{
    m_deleter = std::move(deleter);
}

void RowsView::ShowRestored(ObjectId row)
{
    Select(m_model->Append(row));
}

void RowsView::AdjustCount(qint32 step)
{
    const int line = SelectedLine();
    if (m_store.AdjustCount(m_model->RowAt(line), step).has_value())
        m_model->Refresh(line);
}

void RowsView::SortByColumn(int column)
{
    const WaitCursor wait;
    const ObjectId selected = SelectedRow();
    m_model->SetRows(
        m_store.SortRows(m_model->Rows(), m_list.columns[static_cast<size_t>(column)].id).rows);
    SelectRow(selected);
}

void RowsView::TapCell(const QModelIndex& index)
{
    if (m_options.isReadOnly || !m_model->IsCheckbox(index.column()))
        return;
    if (RowPainter::CheckboxSquare(m_view->visualRect(index)).contains(m_tapPosition))
        ToggleCheckbox(index.row(), index.column());
}

void RowsView::DoubleTapCell(const QModelIndex& index)
{
    if (m_options.isReadOnly)
        return;
    if (m_checkboxColumns.size() == 1)
        ToggleCheckbox(index.row(), m_checkboxColumns.front());
    else
        Trigger(Command::Modify);
}

void RowsView::ToggleCheckbox(int line, int column)
{
    const PropertyId id = m_list.columns[static_cast<size_t>(column)].id;
    if (m_store.SetCheckboxValue(m_model->RowAt(line), id, !m_model->IsChecked(line, column)))
        m_model->Refresh(line);
}

void RowsView::ToggleByKey()
{
    const QModelIndex current = m_view->currentIndex();
    if (m_options.isReadOnly || SelectedLine() < 0)
        return;
    if (m_checkboxColumns.size() == 1)
        ToggleCheckbox(SelectedLine(), m_checkboxColumns.front());
    else if (m_model->IsCheckbox(current.column()))
        ToggleCheckbox(current.row(), current.column());
}

void RowsView::ShowSummary()
{
    const WaitCursor wait;
    Push(new SummaryPage(m_store.Totals(m_filters ? &*m_filters : nullptr).lines), {});
}

void RowsView::SetFilters()
{
    if (!m_filters)
        m_filters.emplace();
    auto* page = new FiltersPage(*m_filters, m_list, m_context);
    Push(page, [this, page](PageResult) {
        m_filters = page->Filters();
        Fill();
    });
}

void RowsView::ClearFilters()
{
    m_filters.reset();
    Fill();
}

void RowsView::FindRows()
{
    auto* page = new FilterPage({ FilterMode::Find, {} }, m_list, m_context);
    // A cancelled page gives its fresh state, a condition that no row meets: that is told.
    Push(page, [this, page](PageResult) { ShowFound(page->State().entry); });
}

void RowsView::ShowFound(const FilterEntry& condition)
{
    // The results come in the columns as they lie now.
    StoreColumnLayout(*m_view->horizontalHeader(), m_list);
    RowsViewOptions options = m_options;
    options.foundBy = condition;
    // What was changed among the results is read again.
    Push(new RowsView(m_store, m_list, m_context, options),
        [this](PageResult) { m_model->RefreshAll(); });
}

bool RowsView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_tapPosition = static_cast<QMouseEvent*>(event)->position().toPoint();
    if (watched == m_view && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        ToggleByKey();
        return true;
    }
    return Page::eventFilter(watched, event);
}

} // namespace Quillory
