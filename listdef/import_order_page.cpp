// SPDX-License-Identifier: MIT
#include "listdef/import_order_page.h"

#include "res/dialog_table.h"
#include "widgets/focus_ring.h"
#include "widgets/line_view.h"
#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

class OrderDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(
        const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override
    {
        return { 0, LineHeightFor(option.fontMetrics) };
    }
};

} // namespace

ImportOrderPage::ImportOrderPage(const std::vector<ColumnDefinition>& columns, QWidget* parent)
    : Page(DialogTitle(Dialog::ImportColumnOrder), parent)
    , m_columns(columns)
    , m_list(new QListWidget(this))
    , m_up(new QPushButton(ControlText(Control::MoveUp), this))
    , m_down(new QPushButton(ControlText(Control::MoveDown), this))
    , m_buttons(new QHBoxLayout)
{
    setObjectName(u"importOrder"_s);
    SetHelpAnchor(QString::fromLatin1(kHelpImport));
    m_list->setObjectName(u"columnOrder"_s);
    m_list->setAccessibleName(Title());
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setMinimumHeight(kMinTouchTarget / 2);
    m_list->setUniformItemSizes(true);
    m_list->setItemDelegate(new OrderDelegate(m_list));
    for (const ColumnDefinition& column : columns)
        m_list->addItem(column.name);
    MeetMouse(m_list);
    ShowFocusRing(m_list);
    new TouchBehaviour(m_list);
    Body()->addWidget(m_list, 1);

    m_up->setObjectName(u"moveUp"_s);
    m_down->setObjectName(u"moveDown"_s);
    m_buttons->setContentsMargins(kPageMargin, kGrid, kPageMargin, kGrid);
    m_buttons->setSpacing(kGrid);
    for (QPushButton* button : { m_up, m_down }) {
        button->setMinimumHeight(CurrentMeasures().lineHeight);
        // Else the window could not be narrower than both.
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        button->setAutoDefault(false);
        m_buttons->addWidget(button, 1);
    }
    Body()->addLayout(m_buttons);
    connect(m_up, &QPushButton::clicked, this, [this] { Move(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { Move(1); });
    for (const auto& [key, button] : { std::pair { Qt::CTRL | Qt::Key_Up, m_up },
             std::pair { Qt::CTRL | Qt::Key_Down, m_down } })
        connect(new QShortcut(key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, button, &QPushButton::click);
    connect(m_list, &QListWidget::itemSelectionChanged, this, &ImportOrderPage::UpdateButtons);
    m_list->setCurrentRow(0);
    UpdateButtons();

    SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    setFocusProxy(m_list);
}

void ImportOrderPage::resizeEvent(QResizeEvent* event)
{
    // Large letters have no room beside each other.
    const int needed = 2 * (m_down->sizeHint().width() + kPageMargin) + kGrid;
    m_buttons->setDirection(needed > width() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    Page::resizeEvent(event);
}

int ImportOrderPage::SelectedRow() const
{
    const QList<QListWidgetItem*> selected = m_list->selectedItems();
    return selected.isEmpty() ? -1 : m_list->row(selected.first());
}

void ImportOrderPage::UpdateButtons()
{
    const int row = SelectedRow();
    for (const auto& [button, canMove] : { std::pair { m_up, row > 0 },
             std::pair { m_down, row >= 0 && row + 1 < m_list->count() } }) {
        // Else the toolkit gives the keyboard to the next control, which may be Cancel.
        if (!canMove && button->hasFocus())
            m_list->setFocus();
        button->setEnabled(canMove);
    }
}

void ImportOrderPage::Move(int by)
{
    const int row = SelectedRow();
    const int to = row + by;
    std::swap(m_columns.at(static_cast<size_t>(row)), m_columns.at(static_cast<size_t>(to)));
    m_list->insertItem(to, m_list->takeItem(row));
    m_list->setCurrentRow(to);
    m_list->scrollToItem(m_list->currentItem());
}

std::vector<PropertyId> ImportOrderPage::Order() const
{
    std::vector<PropertyId> order;
    for (const ColumnDefinition& column : m_columns)
        order.push_back(column.id);
    return order;
}

} // namespace Quillory
