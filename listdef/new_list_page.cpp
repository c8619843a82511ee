#include "listdef/new_list_page.h"

#include "listdef/column_definition_page.h"
#include "listdef/column_table_model.h"
#include "res/dialog_table.h"
#include "res/string_table.h"
#include "widgets/form.h"
#include "widgets/icon_set.h"
#include "widgets/line_view.h"
#include "widgets/page_stack.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

NewListPage::NewListPage(QWidget* parent)
    : Page(LoadString(StringId::NewInventoryList), parent)
    , m_list(NewInventoryList())
    , m_name(new QLineEdit(this))
    , m_icon(new QComboBox(this))
    , m_view(new QTableView(this))
    , m_columns(new ColumnTableModel(m_list.columns, this))
{
    setObjectName(u"newList"_s);
    BuildNameAndIcon();
    BuildColumns();
    BuildCommands();
    setFocusProxy(m_name);
}

void NewListPage::BuildNameAndIcon()
{
    m_name->setObjectName(u"listName"_s);
    m_name->setMaxLength(kMaxListNameLength);
    m_icon->setObjectName(u"listIcon"_s);
    for (int index = 0; index < kListIconCount; ++index)
        m_icon->addItem(ListIcon(index), QString::number(index + 1));
    Form form(Body());
    form.AddLine(LoadString(StringId::Name), m_name);
    form.AddLine(tr("Icon"), m_icon);
}

void NewListPage::BuildColumns()
{
    m_view->setObjectName(u"columns"_s);
    m_view->setAccessibleName(DialogTitle(Dialog::Columns));
    m_view->setModel(m_columns);
    DressLineView(m_view);
    m_view->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed);
    Body()->addWidget(m_view, 1);
    Select(0);
}

void NewListPage::BuildCommands()
{
    SetSoftKeys(SoftKeysOf(MenuBar::Columns), MenuEntries(MenuId::Columns));
    SetShortcut(Command::Rename, Qt::Key_F2);
    connect(this, &Page::CommandChosen, this, &NewListPage::Run);
    connect(this, &Page::MenuAboutToOpen, this, &NewListPage::UpdateCommands);
    connect(m_columns, &QAbstractItemModel::rowsInserted, this, &NewListPage::UpdateCommands);
    connect(m_columns, &QAbstractItemModel::rowsRemoved, this, &NewListPage::UpdateCommands);
    connect(m_columns, &QAbstractItemModel::rowsMoved, this, &NewListPage::UpdateCommands);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &NewListPage::UpdateCommands);
    UpdateCommands();
}

int NewListPage::SelectedRow() const
{
    const QModelIndexList rows = m_view->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void NewListPage::Select(int row)
{
    const QModelIndex index = m_columns->index(row, 0);
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void NewListPage::UpdateCommands()
{
    const int row = SelectedRow();
    const bool isSelected = row >= 0;
    SetCommandEnabled(Command::Insert, !m_columns->IsFull());
    SetCommandEnabled(
        Command::AddExpiryDateColumn, !m_columns->HasExpiryDate() && !m_columns->IsFull());
    SetCommandEnabled(Command::Rename, isSelected);
    SetCommandEnabled(Command::Delete, m_columns->IsDeletable(row));
    SetCommandEnabled(Command::MoveUp, isSelected && row > 0);
    SetCommandEnabled(Command::MoveDown, isSelected && row + 1 < m_columns->rowCount());
}

void NewListPage::Run(Command command)
{
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

void NewListPage::DefineColumn()
{
    auto* stack = qobject_cast<PageStack*>(parentWidget());
    auto* page = new ColumnDefinitionPage;
    stack->Push(page, [this, page](PageResult result) {
        if (result == PageResult::Ok && !page->Name().isEmpty())
            Select(m_columns->InsertColumn(SelectedRow(), page->Name(), page->TypeIndex()));
    });
}

InventoryList NewListPage::Result() const
{
    InventoryList list = m_list;
    list.Name = m_name->text();
    list.TableIcon = static_cast<qint16>(m_icon->currentIndex());
    list.columns = m_columns->Columns();
    return list;
}

} // namespace Quillory
