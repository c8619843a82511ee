// SPDX-License-Identifier: MIT
#include "app/home_list.h"

#include "res/string_table.h"
#include "widgets/empty_hint.h"
#include "widgets/focus_ring.h"
#include "widgets/line_delegate.h"
#include "widgets/line_view.h"
#include "widgets/measures.h"
#include "widgets/text_line.h"
#include "widgets/touch.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Lines high enough for a finger, names no longer than the catalogue takes.
class HomeLineDelegate : public LineDelegate
{
public:
    using LineDelegate::LineDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override
    {
        // With the icon, which lines of mere text have not.
        QStyledItemDelegate::paint(painter, option, index); // NOLINT(bugprone-parent-virtual-call)
        DrawHairline(*painter, option);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        // With the icon here, too.
        const QSize size
            = QStyledItemDelegate::sizeHint(option, index); // NOLINT(bugprone-parent-virtual-call)
        return { size.width(), std::max(size.height(), CurrentMeasures().lineHeight) };
    }
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override
    {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setObjectName(u"NameEditor"_s);
        editor->setAccessibleName(LoadString(StringId::Name));
        if (auto* line = qobject_cast<QLineEdit*>(editor)) {
            line->setMaxLength(kMaxListNameLength);
            KeepToOneLine(line);
        }
        return editor;
    }
};

} // namespace

HomeList::HomeList(QWidget* parent)
    : Page(QString(), parent)
    , m_model(new HomeListModel(this))
    , m_view(new QTreeView(this))
{
    BuildView();
    (new EmptyHint(m_view))->Say(tr("No lists yet. Tap New to make one."));
    ConnectView();
    SetSoftKeys(SoftKeysOf(MenuBar::Main), MenuEntries(MenuId::Main));
}

void HomeList::BuildView()
{
    setAccessibleName(LoadString(StringId::InventoryList));
    m_view->setObjectName(u"HomeList"_s);
    m_view->setAccessibleName(LoadString(StringId::InventoryList));
    m_view->setModel(m_model);
    m_view->setItemDelegate(new HomeLineDelegate(m_view));
    m_view->setFont(ListFont());
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setTextElideMode(Qt::ElideRight);
    KeepCurrentInSight(m_view);
    MeetMouse(m_view);
    ShowFocusRing(m_view);
    const int icon = CurrentMeasures().iconSize;
    m_view->setIconSize({ icon, icon });

    QHeaderView* header = m_view->header();
    header->setStretchLastSection(true);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(true);
    header->setSortIndicator(0, Qt::AscendingOrder);
    // Not in the viewport, which moves what lies in it when it scrolls.
    m_help = MakeHelpButton(header);
    auto* end = new QHBoxLayout(header);
    end->setContentsMargins(LineMargins(0, 2 * kGrid, layoutDirection()));
    end->addStretch(1);
    end->addWidget(m_help);
    Body()->addWidget(m_view);
    setFocusProxy(m_view);
}

void HomeList::resizeEvent(QResizeEvent* event)
{
    const int high = FrameMeasures(height()).headerHeight;
    m_view->header()->setMinimumHeight(high);
    m_help->setFixedSize(high, high);
    Page::resizeEvent(event);
}

void HomeList::ConnectView()
{
    connect(m_view, &QTreeView::clicked, this, [this] { Q_EMIT ListChosen(); });
    connect(m_view->header(), &QHeaderView::sectionClicked, this, &HomeList::FlipDirection);
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &HomeList::SelectionChanged);
    connect(m_model, &QAbstractItemModel::modelReset, this, &HomeList::SelectionChanged);
    connect(m_model, &HomeListModel::Renamed, this, &HomeList::Sort, Qt::QueuedConnection);
    connect(new QShortcut(
                Qt::CTRL | Qt::SHIFT | Qt::Key_S, m_view, nullptr, nullptr, Qt::WidgetShortcut),
        &QShortcut::activated, this, &HomeList::FlipDirection);
    auto* touch = new TouchBehaviour(m_view);
    connect(touch, &TouchBehaviour::Held, this, &HomeList::OpenListMenu);
}

void HomeList::Fill(std::vector<ListCatalogue::HomeListEntry> lists)
{
    m_model->SetLists(std::move(lists));
    m_model->Sort(m_direction);
    m_view->setCurrentIndex(m_model->index(0));
}

void HomeList::KeepPlace(const std::function<void()>& fill)
{
    const ObjectId selected = SelectedList();
    const int scrolled = m_view->verticalScrollBar()->value();
    fill();
    Select(selected);
    m_view->verticalScrollBar()->setValue(scrolled);
}

void HomeList::AddLine(const ListCatalogue::HomeListEntry& list)
{
    m_model->Add(list);
    Select(list.oid);
    Sort();
}

void HomeList::UpdateLine(const ListCatalogue::HomeListEntry& list)
{
    m_model->Update(list);
    Sort();
}

void HomeList::RemoveLine(ObjectId oid)
{
    m_model->Remove(oid);
}

bool HomeList::Has(ObjectId oid) const
{
    return m_model->Find(oid).isValid();
}

void HomeList::Select(ObjectId oid)
{
    const QModelIndex index = m_model->Find(oid);
    if (!index.isValid())
        return;
    m_view->setCurrentIndex(index);
    m_view->scrollTo(index);
}

void HomeList::SetRenamer(HomeListModel::Renamer renamer)
{
    m_model->SetRenamer(std::move(renamer));
}

ObjectId HomeList::SelectedList() const
{
    return m_model->OidAt(m_view->selectionModel()->selectedRows().value(0));
}

QString HomeList::SelectedName() const
{
    return m_model->NameAt(m_view->selectionModel()->selectedRows().value(0));
}

void HomeList::BeginRename()
{
    const QModelIndex index = m_view->selectionModel()->selectedRows().value(0);
    if (!index.isValid())
        return;
    FocusLines();
    m_view->scrollTo(index);
    m_view->edit(index);
}

void HomeList::FocusLines()
{
    m_view->setFocus();
}

void HomeList::Sort()
{
    m_model->Sort(m_direction);
    m_view->scrollTo(m_view->currentIndex());
}

void HomeList::FlipDirection()
{
    m_direction = m_direction == SortDirection::Ascending ? SortDirection::Descending
                                                          : SortDirection::Ascending;
    m_view->header()->setSortIndicator(
        0, m_direction == SortDirection::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    Sort();
}

void HomeList::OpenListMenu(const QPoint& position)
{
    // Beside the open list lines are there to be opened: a hold is a slow tap.
    if (IsBeside())
        Q_EMIT ListChosen();
    else if (SelectedList() != kNoObject)
        OpenContextMenu(
            MenuEntries(MenuId::ListContext), m_view->viewport()->mapToGlobal(position));
}

} // namespace Quillory
