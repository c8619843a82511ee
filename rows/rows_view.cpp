// SPDX-License-Identifier: MIT
#include "rows/rows_view.h"

#include "res/dialog_table.h"
#include "res/string_table.h"
#include "rows/column_layout.h"
#include "rows/filter_bar.h"
#include "rows/filter_page.h"
#include "rows/filters_page.h"
#include "rows/row_editor.h"
#include "rows/row_painter.h"
#include "rows/rows_table.h"
#include "rows/summary_page.h"
#include "values/column_type.h"
#include "widgets/accessibility.h"
#include "widgets/empty_hint.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/touch.h"
#include "widgets/wait_cursor.h"

#include <QAction>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// What must be there before a command can be chosen.
enum class NeedsOfRows
{
    Nothing,
    /// A list that is not only read.
    Writing,
    /// Such a list, and a selected row.
    Row,
    Filters,
};

} // namespace

struct RowsView::CommandEntry
{
    Command command;
    QKeyCombination shortcut;
    NeedsOfRows needs;
    void (RowsView::*run)();
};

const RowsView::CommandEntry RowsView::kCommands[] {
    { Command::New, Qt::CTRL | Qt::Key_N, NeedsOfRows::Writing, &RowsView::NewRow },
    { Command::Modify, {}, NeedsOfRows::Row, &RowsView::ModifyRow },
    { Command::CreateCopy, Qt::CTRL | Qt::Key_D, NeedsOfRows::Row, &RowsView::CopyRow },
    { Command::Delete, Qt::Key_Delete, NeedsOfRows::Row, &RowsView::DeleteRow },
    { Command::AddOne, Qt::Key_Plus, NeedsOfRows::Row, &RowsView::AddOne },
    { Command::SubtractOne, Qt::Key_Minus, NeedsOfRows::Row, &RowsView::SubtractOne },
    { Command::ViewSummary, {}, NeedsOfRows::Nothing, &RowsView::ShowSummary },
    { Command::Find, Qt::CTRL | Qt::Key_F, NeedsOfRows::Nothing, &RowsView::FindRows },
    { Command::SetFilters, {}, NeedsOfRows::Nothing, &RowsView::SetFilters },
    { Command::ClearFilters, {}, NeedsOfRows::Filters, &RowsView::ClearFilters },
};

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
    , m_hint(new EmptyHint(m_view))
    , m_filterBar(new FilterBar(this))
{
    setObjectName(u"rows"_s);
    if (m_options.isReadOnly)
        SetNote(tr("read-only"));
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
    Fill();
    m_columns = new ColumnLayout(*m_view, m_list);
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
    Body()->addWidget(m_filterBar);
    connect(m_filterBar, &FilterBar::ClearChosen, this, &RowsView::ClearFilters);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, [this] { UpdateFilterBar(1); });
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, [this] { UpdateFilterBar(-1); });
}

void RowsView::BuildCommands()
{
    SetHelpAnchor(QLatin1StringView(kHelpEditList));
    if (!m_options.foundBy) {
        SetSoftKeys(SoftKeysOf(MenuBar::Rows), MenuEntries(MenuId::Rows));
        for (const CommandEntry& entry : kCommands) {
            if (entry.shortcut != QKeyCombination())
                SetShortcut(entry.command, entry.shortcut);
        }
    }
    connect(this, &Page::CommandChosen, this, &RowsView::Run);
    connect(this, &Page::MenuAboutToOpen, this, &RowsView::UpdateCommands);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &RowsView::UpdateCommands);
    connect(m_model, &QAbstractItemModel::modelReset, this, &RowsView::UpdateCommands);
}

std::vector<ObjectId> RowsView::ReadRows()
{
    Listing listing = m_filters ? m_store.FillFilteredRows(*m_filters) : m_store.FillRows();
    TellPartlyRead(listing.error);
    return std::move(listing.rows);
}

void RowsView::TellPartlyRead(ErrorNumber error)
{
    if (error == ErrorNumber::None || std::exchange(m_isPartlyReadTold, true))
        return;
    // Once the rows are on the screen.
    QMetaObject::invokeMethod(
        this,
        [this] {
            ShowMessage(this,
                tr("This list can be read only in part: %n row(s) are shown. \"quillory restore\" "
                   "lists copies, and what can be saved.",
                    nullptr, m_model->rowCount()),
                MessageIcon::Exclamation);
        },
        Qt::QueuedConnection);
}

void RowsView::Fill()
{
    const WaitCursor wait;
    const ObjectId selected = SelectedRow();
    m_model->SetRows(ReadRows());
    m_sortColumn.reset();
    MarkSorted(PropName);
    if (HasCriteria())
        m_hint->Say(tr("No row meets the filters."));
    else if (m_options.isReadOnly)
        m_hint->Say(tr("This list has no rows."));
    else
        m_hint->Say(tr("No rows yet. Tap New to add one."));
    m_rowCount = HasCriteria() ? m_store.RowCount() : 0;
    UpdateFilterBar(0);
    if (m_model->rowCount() > 0)
        Select(std::max(LineOf(selected), 0));
}

void RowsView::Refresh()
{
    SetTitle(m_list.Name);
    const auto order = m_sortColumn;
    const int selected = SelectedLine();
    const ObjectId selectedRow = SelectedRow();
    const int top = m_view->rowAt(0);
    const ObjectId topRow = top < 0 ? kNoObject : m_model->RowAt(top);
    const int lineHeight = m_view->verticalHeader()->defaultSectionSize();
    const int hidden = m_view->verticalScrollBar()->value() - top * lineHeight;
    Fill();
    for (int column = 0; order && column < m_model->columnCount(); ++column) {
        if (m_list.columns[static_cast<size_t>(column)].id == *order)
            SortByColumn(column);
    }
    if (const int lines = m_model->rowCount(); LineOf(selectedRow) < 0 && lines > 0)
        Select(std::clamp(selected, 0, lines - 1));
    if (const int line = LineOf(topRow); line >= 0)
        m_view->verticalScrollBar()->setValue(line * lineHeight + hidden);
}

void RowsView::TellNothingFound()
{
    ShowMessage(this, LoadString(StringId::NoRecordMatched), MessageIcon::Information,
        MessageButtons::Ok, [page = QPointer(this)](MessageAnswer) {
            if (page != nullptr)
                page->RequestEnd(PageResult::Ok);
        });
}

bool RowsView::PrepareEnd(PageResult /*result*/)
{
    m_columns->Store();
    return true;
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

int RowsView::LineOf(ObjectId row) const
{
    const auto& rows = m_model->Rows();
    const auto found = std::find(rows.begin(), rows.end(), row);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void RowsView::Select(int line, int column)
{
    const QModelIndex index
        = m_model->index(line, column < 0 ? m_view->horizontalHeader()->logicalIndex(0) : column);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void RowsView::UpdateCommands()
{
    const bool mayWrite = !m_options.isReadOnly;
    const auto isMet = [&](NeedsOfRows needs) {
        switch (needs) {
        case NeedsOfRows::Nothing:
            return true;
        case NeedsOfRows::Writing:
            return mayWrite;
        case NeedsOfRows::Row:
            return mayWrite && SelectedLine() >= 0;
        case NeedsOfRows::Filters:
            return m_filters.has_value();
        }
        return false;
    };
    for (const CommandEntry& entry : kCommands)
        SetCommandEnabled(entry.command, isMet(entry.needs));
}

bool RowsView::HasCriteria() const
{
    return m_filters && !m_filters->entries.empty();
}

void RowsView::UpdateFilterBar(int gained)
{
    // A list that can be read only in part may not be counted, either.
    m_rowCount = std::max<qint64>(m_rowCount + gained, m_model->rowCount());
    if (HasCriteria())
        m_filterBar->Tell(m_model->rowCount(), m_rowCount, !m_options.foundBy);
    else
        m_filterBar->hide();
}

void RowsView::Run(Command command)
{
    for (const CommandEntry& entry : kCommands) {
        if (entry.command == command)
            return (this->*entry.run)();
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
    OpenEditor(std::nullopt, [this](const std::vector<QString>& texts) { return AddRow(texts); });
}

bool RowsView::AddRow(const std::vector<QString>& texts)
{
    const ObjectId row = m_store.WriteNewRow(texts);
    if (row == kNoObject)
        return false;
    m_model->Insert(m_model->rowCount(), row);
    m_view->scrollToBottom();
    return true;
}

void RowsView::ModifyRow()
{
    const ObjectId row = SelectedRow();
    const Record record = m_store.ReadRow(row);
    // What cannot be read must not be written over.
    if (!record)
        return;
    OpenEditor(record,
        [this, record](const std::vector<QString>& texts) { return StoreEdited(record, texts); });
}

bool RowsView::StoreEdited(const Record& before, std::vector<QString> texts)
{
    const Record present = m_store.ReadRow(before.oid);
    // The identifier may be another row's now.
    if (present ? present.origin != before.origin : m_store.IsGone(before.oid))
        return AddRow(texts);
    if (present) {
        const auto old = RowEditor::TextsOf(m_list, &before, m_context);
        const auto others = RowEditor::TextsOf(m_list, &present, m_context);
        for (size_t i = 0; i < texts.size(); ++i)
            texts[i] = texts[i] == old[i] ? others[i] : texts[i];
    }
    const bool isStored = m_store.ModifyRow(before.oid, texts);
    if (isStored)
        m_model->RefreshAll();
    return isStored;
}

void RowsView::CopyRow()
{
    const ObjectId copy = m_store.CopyRow(m_model->RowAt(SelectedLine()));
    if (copy == kNoObject)
        return;
    m_model->Insert(m_model->rowCount(), copy);
    Select(m_model->rowCount() - 1);
    ModifyRow();
}

void RowsView::DeleteRow()
{
    ShowMessage(this, LoadString(StringId::DeleteRowQuestion), MessageIcon::Exclamation,
        MessageButtons::YesNo, [page = QPointer(this), row = SelectedRow()](MessageAnswer answer) {
            if (page == nullptr || answer != MessageAnswer::Yes || !page->m_deleter(row))
                return;
            if (const int line = page->LineOf(row); line >= 0)
                page->m_model->Remove(line);
        });
}

void RowsView::SetRowDeleter(RowDeleter deleter)
{
    m_deleter = std::move(deleter);
}

void RowsView::ShowRestored(ObjectId row)
{
    const WaitCursor wait;
    std::vector<ObjectId> order = ReadRows();
    if (m_sortColumn)
        order = m_store.SortRows(std::move(order), *m_sortColumn).rows;
    const auto place = std::find(order.begin(), order.end(), row);
    if (place == order.end())
        return UpdateFilterBar(1);
    // Behind the nearest of those before it; rows that were added since they were put in order
    // stand at the end.
    int line = -1;
    for (auto before = place; line < 0 && before != order.begin();)
        line = LineOf(*--before);
    m_model->Insert(line + 1, row);
    Select(line + 1);
}

void RowsView::AdjustCount(qint32 step)
{
    const int line = SelectedLine();
    if (m_store.AdjustCount(m_model->RowAt(line), step).has_value())
        ShowChange(line, PropCount);
}

void RowsView::ShowChange(int line, PropertyId id)
{
    m_model->Refresh(line);
    Announce(m_model->Spoken(line, id));
}

void RowsView::MarkSorted(PropertyId id)
{
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (m_list.columns[static_cast<size_t>(column)].id == id)
            m_view->horizontalHeader()->setSortIndicator(column, Qt::AscendingOrder);
    }
}

void RowsView::SortByColumn(int column)
{
    const WaitCursor wait;
    const ObjectId selected = SelectedRow();
    m_sortColumn = m_list.columns[static_cast<size_t>(column)].id;
    MarkSorted(*m_sortColumn);
    m_model->SetRows(m_store.SortRows(m_model->Rows(), *m_sortColumn).rows);
    // A view that was scrolled to the column stays there.
    if (const int line = LineOf(selected); line >= 0)
        Select(line, column);
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
    // The click that ends a double one is no further tap, in no square.
    m_tapPosition = { -1, -1 };
    if (m_checkboxColumns.size() == 1)
        ToggleCheckbox(index.row(), m_checkboxColumns.front());
    else
        Trigger(Command::Modify);
}

void RowsView::ToggleCheckbox(int line, int column)
{
    const PropertyId id = m_list.columns[static_cast<size_t>(column)].id;
    if (m_store.SetCheckboxValue(m_model->RowAt(line), id, !m_model->IsChecked(line, column)))
        ShowChange(line, id);
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
    const ListTotals totals = m_store.Totals(m_filters ? &*m_filters : nullptr);
    Push(new SummaryPage(totals.lines), {});
    if (totals.error != ErrorNumber::None)
        ShowMessage(this,
            tr("This list can be read only in part, so nothing is summed up. \"quillory restore\" "
               "lists copies, and what can be saved."),
            MessageIcon::Exclamation);
}

void RowsView::SetFilters()
{
    if (!m_filters)
        m_filters.emplace();
    auto* page = new FiltersPage(*m_filters, m_list, m_context);
    Push(page, [this, page](PageResult result) {
        m_filters = page->Filters();
        if (result != PageResult::Closing)
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
    Push(page, [this, page](PageResult result) {
        if (result != PageResult::Closing)
            ShowFound(page->State().entry);
    });
}

void RowsView::ShowFound(const FilterEntry& condition)
{
    // The results come in the columns as they lie now.
    m_columns->Store();
    RowsViewOptions options = m_options;
    options.foundBy = condition;
    // What was changed among the results is read again.
    Push(new RowsView(m_store, m_list, m_context, options),
        [this](PageResult) { m_model->RefreshAll(); });
}

bool RowsView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        m_tapPosition = static_cast<QMouseEvent*>(event)->position().toPoint();
    if (watched == m_view && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        ToggleByKey();
        return true;
    }
    return Page::eventFilter(watched, event);
}

} // namespace Quillory
