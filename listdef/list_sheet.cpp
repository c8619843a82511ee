// SPDX-License-Identifier: MIT
#include "listdef/list_sheet.h"

#include "listdef/columns_panel.h"
#include "listdef/general_panel.h"
#include "listdef/options_panel.h"
#include "res/dialog_table.h"
#include "res/string_table.h"
#include "values/column_type.h"
#include "widgets/form.h"
#include "widgets/measures.h"

#include <QEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

ListSheet::ListSheet(
    SheetMode mode, const InventoryList& before, const InventoryList& entered, QWidget* parent)
    : Page(LoadString(mode == SheetMode::NewList ? StringId::NewInventoryList
                                                 : StringId::InventoryListOptions),
        parent)
    , m_list(entered)
    , m_tabs(new QTabBar(this))
    , m_panels(new QStackedWidget(this))
    , m_general(new GeneralPanel(entered, this))
    , m_options(new OptionsPanel(entered, this))
    , m_before(before)
{
    setObjectName(u"listSheet"_s);
    SetHelpAnchor(QString::fromLatin1(kHelpNewList));
    SetShortcut(Command::Rename, Qt::Key_F2);
    SetShortcut(Command::Delete, Qt::Key_Delete);
    SetShortcut(Command::MoveUp, Qt::CTRL | Qt::Key_Up);
    SetShortcut(Command::MoveDown, Qt::CTRL | Qt::Key_Down);
    m_tabs->setObjectName(u"tabs"_s);
    m_tabs->setExpanding(true);
    m_tabs->setDrawBase(false);
    m_tabs->setUsesScrollButtons(false);
    // Their letters follow the window, not the window its tabs.
    m_tabs->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    Body()->addWidget(m_tabs);
    Body()->addWidget(m_panels, 1);
    AddPanel(DialogTitle(Dialog::General), m_general);
    if (mode == SheetMode::NewList) {
        m_columns = new ColumnsPanel(entered.columns, *this);
        AddPanel(DialogTitle(Dialog::Columns), m_columns);
    }
    AddPanel(DialogTitle(Dialog::ListOptions), m_options);
    connect(m_tabs, &QTabBar::currentChanged, this, &ListSheet::ShowPanel);
    connect(new QShortcut(QKeySequence::NextChild, this), &QShortcut::activated, this,
        [this] { m_tabs->setCurrentIndex((m_tabs->currentIndex() + 1) % m_tabs->count()); });
    ShowPanel(0);
}

void ListSheet::AddPanel(const QString& title, QWidget* panel)
{
    m_tabs->addTab(title);
    m_firstFields.push_back(panel);
    m_panels->addWidget(panel == m_columns ? panel : MakeScrollable(panel));
}

bool ListSheet::HasExpiryDate() const
{
    if (m_columns != nullptr)
        return m_columns->HasExpiryDate();
    return std::any_of(m_list.columns.begin(), m_list.columns.end(),
        [](const ColumnDefinition& column) { return column.id == PropExpiryDate; });
}

void ListSheet::ShowPanel(int index)
{
    m_panels->setCurrentIndex(index);
    m_options->SetHasExpiryDate(HasExpiryDate());
    const bool isColumns = m_columns != nullptr && m_panels->currentWidget() == m_columns;
    if (isColumns)
        SetSoftKeys(SoftKeysOf(MenuBar::Columns), MenuEntries(MenuId::Columns));
    else
        SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    setFocusProxy(m_firstFields.at(static_cast<size_t>(index)));
    // Keys that go through the tabs go on doing so.
    if (!m_tabs->hasFocus())
        setFocus();
}

void ListSheet::resizeEvent(QResizeEvent* event)
{
    Page::resizeEvent(event);
    m_tabs->setMinimumHeight(FrameMeasures(height()).headerHeight);
    FitTabs();
    m_options->FitTo(std::min(width(), kMaxPageWidth));
}

void ListSheet::changeEvent(QEvent* event)
{
    Page::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitTabs();
}

void ListSheet::FitTabs()
{
    QString all;
    for (int i = 0; i < m_tabs->count(); ++i)
        all += m_tabs->tabText(i);
    QFont bold = font();
    bold.setBold(true);
    const int room = std::min(width(), kMaxPageWidth) - m_tabs->count() * 2 * kGrid;
    m_tabs->setFont(FontFitting(bold, all, room));
}

InventoryList ListSheet::Result() const
{
    InventoryList list = m_list;
    m_general->Apply(list);
    if (m_columns != nullptr)
        list.columns = m_columns->Columns();
    else if (list.Name.isEmpty())
        // A list that is there keeps a name.
        list.Name = m_list.Name;
    m_options->Apply(list);
    return list;
}

bool ListSheet::HasUnsavedInput() const
{
    return Result() != m_before;
}

} // namespace Quillory
