#include "rows/rows_view.h"

#include "res/dialog_table.h"
#include "res/string_table.h"
#include "rows/row_delegate.h"
#include "rows/row_editor.h"
#include "rows/summary_page.h"
#include "values/column_type.h"
#include "widgets/line_view.h"
#include "widgets/measures.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/touch.h"
#include "widgets/wait_cursor.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// What a column of a type has room for until somebody sets its width.
QString SampleText(ColumnType type)
{
    switch (type) {
    case ColumnType::String:
        return u"an ordinary name"_s;
    case ColumnType::Checkbox:
        return u"xxxx"_s;
    case ColumnType::Price:
        return u"1,000.00"_s;
    case ColumnType::Integer:
        return u"10000"_s;
    case ColumnType::Date:
        return u"00/00/0000"_s;
    }
    return {};
}

/// Wider columns are no work of a person's hand.
constexpr int kMaxWidth = 10000;

bool IsPermutation(const std::vector<quint32>& order, size_t count)
{
    std::vector<quint32> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    for (size_t i = 0; i < sorted.size(); ++i) {
        if (sorted[i] != i)
            return false;
    }
    return sorted.size() == count;
}

} // namespace

RowsView::RowsView(RowStore& rows, InventoryList& list, const ValueContext& context,
    const RowsViewOptions& options, QWidget* parent)
    : Page(list.Name, parent)
    , m_store(rows)
    , m_list(list)
    , m_context(context)
    , m_options(options)
    , m_model(new RowsModel(rows, list, context, this))
    , m_view(new QTableView(this))
{
    setObjectName(u"rows"_s);
    BuildTable();
    BuildCommands();
    ApplyLayout();
    Fill();
    setFocusProxy(m_view);
}

void RowsView::BuildTable()
{
    m_view->setObjectName(u"rowsTable"_s);
    m_view->setAccessibleName(m_list.Name);
    m_view->setModel(m_model);
    m_view->setItemDelegate(
        new RowDelegate(*m_model, m_list, m_context, m_options.hasAlternateLines, m_view));
    DressLineView(m_view);
    QHeaderView* header = m_view->horizontalHeader();
    header->setSectionsMovable(true);
    header->setSectionsClickable(true);
    connect(header, &QHeaderView::sectionClicked, this, &RowsView::SortByColumn);
    connect(m_view, &QTableView::clicked, this, &RowsView::TapCell);
    connect(m_view, &QTableView::doubleClicked, this, &RowsView::DoubleTapCell);
    auto* touch = new TouchBehaviour(m_view);
    connect(touch, &TouchBehaviour::Held, this, &RowsView::OpenRowMenu);
    m_view->viewport()->installEventFilter(this);
    Body()->addWidget(m_view, 1);
}

void RowsView::BuildCommands()
{
    SetHelpAnchor(QString());
    SetSoftKeys(SoftKeysOf(MenuBar::Rows), MenuEntries(MenuId::Rows));
    SetShortcut(Command::New, QKeySequence::New);
    SetShortcut(Command::Delete, Qt::Key_Delete);
    SetShortcut(Command::Modify, Qt::Key_Return);
    SetShortcut(Command::AddOne, Qt::Key_Plus);
    SetShortcut(Command::SubtractOne, Qt::Key_Minus);
    connect(this, &Page::CommandChosen, this, &RowsView::Run);
    connect(this, &Page::MenuAboutToOpen, this, &RowsView::UpdateCommands);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &RowsView::UpdateCommands);
    connect(m_model, &QAbstractItemModel::modelReset, this, &RowsView::UpdateCommands);
}

void RowsView::ApplyLayout()
{
    QHeaderView* header = m_view->horizontalHeader();
    const QFontMetrics metrics(m_view->font());
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const ColumnDefinition& definition = m_list.columns[static_cast<size_t>(column)];
        const int text = metrics.horizontalAdvance(SampleText(ColumnTypeOf(definition.id)));
        const int title = metrics.horizontalAdvance(definition.name);
        header->resizeSection(column, std::max(text, title) + 2 * kGrid + kGrid / 2);
    }
    const QStringList widths = m_list.TableColSizes.split(u',', Qt::SkipEmptyParts);
    for (int column = 0; column < std::min<int>(static_cast<int>(widths.size()), header->count());
         ++column) {
        const int width = widths[column].toInt();
        if (width > 0 && width <= kMaxWidth)
            header->resizeSection(column, width);
    }
    if (!IsPermutation(m_list.columnOrder, m_list.columns.size()))
        return;
    for (int place = 0; place < header->count(); ++place) {
        const auto column = static_cast<int>(m_list.columnOrder[static_cast<size_t>(place)]);
        header->moveSection(header->visualIndex(column), place);
    }
}

void RowsView::StoreLayout()
{
    const QHeaderView* header = m_view->horizontalHeader();
    m_list.TableColSizes.clear();
    m_list.columnOrder.clear();
    for (int i = 0; i < header->count(); ++i) {
        m_list.TableColSizes += QString::number(header->sectionSize(i)) + u',';
        m_list.columnOrder.push_back(static_cast<quint32>(header->logicalIndex(i)));
    }
}

void RowsView::Fill()
{
    const WaitCursor wait;
    m_model->SetRows(m_store.FillRows());
    if (m_model->rowCount() > 0)
        Select(0);
}

void RowsView::RequestEnd(PageResult /*result*/)
{
    StoreLayout();
    End(PageResult::Ok);
}

int RowsView::SelectedLine() const
{
    const QModelIndexList lines = m_view->selectionModel()->selectedRows();
    return lines.isEmpty() ? -1 : lines.first().row();
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
    for (const Command command : { Command::Find, Command::SetFilters, Command::ClearFilters })
        SetCommandEnabled(command, false);
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
    default:
        return;
    }
}

void RowsView::OpenRowMenu(const QPoint& position)
{
    if (m_options.isReadOnly || SelectedLine() < 0)
        return;
    OpenContextMenu(MenuEntries(MenuId::RowContext), m_view->viewport()->mapToGlobal(position));
}

void RowsView::OpenEditor(const Record* row, std::function<void(const std::vector<QString>&)> store)
{
    auto* page = new RowEditor(m_list, row, m_context);
    auto* stack = qobject_cast<PageStack*>(parentWidget());
    stack->Push(page, [page, store = std::move(store)](PageResult result) {
        if (result == PageResult::Ok)
            store(page->Texts());
    });
}

void RowsView::NewRow()
{
    OpenEditor(nullptr, [this](const std::vector<QString>& texts) {
        const ObjectId row = m_store.WriteNewRow(texts);
        if (row != kNoObject)
            m_model->Append(row);
    });
}

void RowsView::ModifyRow()
{
    const int line = SelectedLine();
    const Record row = m_store.ReadRow(m_model->RowAt(line));
    OpenEditor(&row, [this, line](const std::vector<QString>& texts) {
        if (m_store.ModifyRow(m_model->RowAt(line), texts))
            m_model->Refresh(line);
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
        MessageButtons::YesNo, [this, line](MessageAnswer answer) {
            if (answer == MessageAnswer::Yes && m_store.DeleteRow(m_model->RowAt(line)))
                m_model->Remove(line);
        });
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
    const int line = SelectedLine();
    const ObjectId selected = line < 0 ? kNoObject : m_model->RowAt(line);
    m_model->SetRows(
        m_store.SortRows(m_model->Rows(), m_list.columns[static_cast<size_t>(column)].id));
    const auto& rows = m_model->Rows();
    const auto found = std::find(rows.begin(), rows.end(), selected);
    if (found != rows.end())
        Select(static_cast<int>(found - rows.begin()));
}

void RowsView::TapCell(const QModelIndex& index)
{
    if (m_options.isReadOnly || !m_model->IsCheckbox(index.column()))
        return;
    if (RowDelegate::CheckboxSquare(m_view->visualRect(index)).contains(m_tapPosition))
        ToggleCheckbox(index.row(), index.column());
}

void RowsView::DoubleTapCell(const QModelIndex& index)
{
    if (m_options.isReadOnly)
        return;
    std::vector<int> boxes;
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (m_model->IsCheckbox(column))
            boxes.push_back(column);
    }
    if (boxes.size() == 1)
        ToggleCheckbox(index.row(), boxes.front());
    else
        Trigger(Command::Modify);
}

void RowsView::ToggleCheckbox(int line, int column)
{
    const PropertyId id = m_list.columns[static_cast<size_t>(column)].id;
    if (m_store.SetCheckboxValue(m_model->RowAt(line), id, !m_model->IsChecked(line, column)))
        m_model->Refresh(line);
}

void RowsView::ShowSummary()
{
    auto* stack = qobject_cast<PageStack*>(parentWidget());
    const WaitCursor wait;
    stack->Push(new SummaryPage(m_store.Totals(nullptr)));
}

bool RowsView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        m_tapPosition = static_cast<QMouseEvent*>(event)->position().toPoint();
    return Page::eventFilter(watched, event);
}

} // namespace Quillory
