// SPDX-License-Identifier: MIT
#include "listdef/columns_panel.h"

#include "listdef/column_definition_page.h"
#include "listdef/column_table_model.h"
#include "res/dialog_table.h"
#include "res/string_table.h"
#include "widgets/form.h"
#include "widgets/line_delegate.h"
#include "widgets/line_view.h"
#include "widgets/measures.h"
#include "widgets/page_stack.h"
#include "widgets/text_line.h"
#include "widgets/touch.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTypeWidth = 112;

/// Lines whose names can be edited in their place, no longer than a list keeps them.
class ColumnDelegate : public LineDelegate
{
public:
    using LineDelegate::LineDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override
    {
        QWidget* editor = LineDelegate::createEditor(parent, option, index);
        editor->setAccessibleName(LoadString(StringId::Name));
        if (auto* line = qobject_cast<QLineEdit*>(editor)) {
            line->setMaxLength(kMaxColumnNameLength);
            KeepToOneLine(line);
        }
        return editor;
    }
};

} // namespace

ColumnsPanel::ColumnsPanel(const std::vector<ColumnDefinition>& columns, Page& page)
    : QWidget(&page)
    , m_page(page)
    , m_view(new QTableView(this))
    , m_columns(new ColumnTableModel(columns, this))
    , m_note(MakeNote(
          tr("A new column goes before the selected one. Once the list is made its columns stay.")))
{
    BuildView();
    for (const auto signal :
        { &QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved })
        connect(m_columns, signal, this, &ColumnsPanel::UpdateCommands);
    connect(m_columns, &QAbstractItemModel::rowsMoved, this, &ColumnsPanel::UpdateCommands);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &ColumnsPanel::UpdateCommands);
    connect(&m_page, &Page::MenuAboutToOpen, this, &ColumnsPanel::UpdateCommands);
    connect(&m_page, &Page::CommandChosen, this, &ColumnsPanel::Run);
    UpdateCommands();
    setFocusProxy(m_view);
}

void ColumnsPanel::BuildView()
{
    m_view->setObjectName(u"columns"_s);
    m_view->setAccessibleName(DialogTitle(Dialog::Columns));
    m_view->setModel(m_columns);
    m_view->setItemDelegate(new ColumnDelegate(m_view));
    DressLineView(m_view);
    m_view->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Fixed);
    m_view->horizontalHeader()->resizeSection(1, kTypeWidth);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed);
    auto* touch = new TouchBehaviour(m_view);
    connect(touch, &TouchBehaviour::Held, this, [this](const QPoint& position) {
        if (m_view->indexAt(position).isValid())
            m_page.OpenContextMenu(
                MenuEntries(MenuId::Columns), m_view->viewport()->mapToGlobal(position));
    });
    auto* body = new QVBoxLayout(this);
    body->setContentsMargins(0, 0, 0, 0);
    body->addWidget(m_view, 1);
    m_note->setContentsMargins(kPageMargin, kGrid, kPageMargin, kGrid);
    body->addWidget(m_note);
    // A low window would else grow for it before it is told how low it is.
    m_note->hide();
    Select(0);
}

void ColumnsPanel::resizeEvent(QResizeEvent* event)
{
    m_note->setVisible(window()->height() >= kLowWindow);
    QWidget::resizeEvent(event);
}

std::vector<ColumnDefinition> ColumnsPanel::Columns() const
{
    return m_columns->Columns();
}

bool ColumnsPanel::HasExpiryDate() const
{
    return m_columns->HasExpiryDate();
}

int ColumnsPanel::SelectedRow() const
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void ColumnsPanel::Select(int row)
{
    const QModelIndex index = m_columns->index(row, 0);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void ColumnsPanel::UpdateCommands()
{
    const int row = SelectedRow();
    const bool isSelected = row >= 0;
    m_page.SetCommandEnabled(Command::Insert, !m_columns->IsFull());
    m_page.SetCommandEnabled(
        Command::AddExpiryDateColumn, !m_columns->HasExpiryDate() && !m_columns->IsFull());
    m_page.SetCommandEnabled(Command::Rename, isSelected);
    m_page.SetCommandEnabled(Command::Delete, m_columns->IsDeletable(row));
    m_page.SetCommandEnabled(Command::MoveUp, isSelected && row > 0);
    m_page.SetCommandEnabled(Command::MoveDown, isSelected && row + 1 < m_columns->rowCount());
}

void ColumnsPanel::Run(Command command)
{
    // Shortcuts reach it from the other panels, too.
    if (!isVisible())
        return;
    const int row = SelectedRow();
    switch (command) {
    case Command::Insert:
        return DefineColumn();
    case Command::AddExpiryDateColumn:
        return Select(m_columns->InsertExpiryDate(row));
    case Command::Rename:
        m_view->setFocus();
        return m_view->edit(m_columns->index(row, 0));
    case Command::Delete:
        return m_columns->DeleteColumn(row);
    case Command::MoveUp:
        return Select(m_columns->MoveColumn(row, row - 1));
    case Command::MoveDown:
        return Select(m_columns->MoveColumn(row, row + 1));
    default:
        return;
    }
}

void ColumnsPanel::DefineColumn()
{
    auto* page = new ColumnDefinitionPage;
    PageStack::Of(this).Push(page, [this, page](PageResult result) {
        if (result == PageResult::Ok && !page->Name().isEmpty())
            Select(m_columns->InsertColumn(SelectedRow(), page->Name(), page->TypeIndex()));
    });
}

} // namespace Quillory
