// SPDX-License-Identifier: MIT
#include "rows/rows_table.h"

#include "rows/column_layout.h"
#include "rows/row_delegate.h"
#include "rows/rows_model.h"
#include "widgets/line_view.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <limits>

namespace Quillory {

namespace {

/// Stands where a table has the header of its lines, and knows none of them: the toolkit's own
/// keeps eight bytes for each.
class NoLineHeader : public QHeaderView
{
public:
    explicit NoLineHeader(QWidget* parent)
        : QHeaderView(Qt::Vertical, parent)
    { }
    void setModel(QAbstractItemModel* /*model*/) override { }
    void setSelectionModel(QItemSelectionModel* /*selection*/) override { }
};

/// Moves a scroll bar so that what lies at `begin` is seen as the hint says.
void ScrollInto(QScrollBar& bar, int begin, int length, QAbstractItemView::ScrollHint hint)
{
    const int atTop = begin;
    const int atBottom = begin + length - bar.pageStep();
    switch (hint) {
    case QAbstractItemView::PositionAtTop:
        return bar.setValue(atTop);
    case QAbstractItemView::PositionAtBottom:
        return bar.setValue(atBottom);
    case QAbstractItemView::PositionAtCenter:
        return bar.setValue(atTop + (length - bar.pageStep()) / 2);
    case QAbstractItemView::EnsureVisible:
        break;
    }
    // Its beginning, where it is longer than the page.
    bar.setValue(std::min(std::max(bar.value(), atBottom), atTop));
}

} // namespace

RowsTable::RowsTable(RowsModel& model, const InventoryList& list, const ValueContext& context,
    bool hasAlternateLines, QWidget* parent)
    : QTableView(parent)
    , m_delegate(new RowDelegate(model, list, context, hasAlternateLines, this))
{
    setObjectName(QStringLiteral("rowsTable"));
    setAccessibleName(list.Name);
    setVerticalHeader(new NoLineHeader(this));
    setModel(&model);
    setItemDelegate(m_delegate);
    setFont(ListFont());
    DressLineView(this);
    // Its place is worked out together with the headers, which is done here.
    findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)->hide();
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setSectionsClickable(true);
    // The toolkit works out which part has changed from the header of the lines.
    connect(&model, &QAbstractItemModel::dataChanged, viewport(), qOverload<>(&QWidget::update));
    connect(&model, &QAbstractItemModel::modelReset, this, &RowsTable::Rearrange);
    connect(&model, &QAbstractItemModel::rowsInserted, this, &RowsTable::Rearrange);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, &RowsTable::Rearrange);
}

int RowsTable::LineHeight() const
{
    return verticalHeader()->defaultSectionSize();
}

int RowsTable::LinesPerPage() const
{
    return std::max(1, viewport()->height() / LineHeight());
}

QModelIndex RowsTable::indexAt(const QPoint& position) const
{
    const int y = position.y() + verticalOffset();
    const int line = y < 0 ? -1 : y / LineHeight();
    return line < LineCount() ? model()->index(line, columnAt(position.x())) : QModelIndex();
}

QRect RowsTable::visualRect(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    return { columnViewportPosition(index.column()), index.row() * LineHeight() - verticalOffset(),
        columnWidth(index.column()), LineHeight() };
}

void RowsTable::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    ScrollInto(*verticalScrollBar(), index.row() * LineHeight(), LineHeight(), hint);
    ScrollInto(*horizontalScrollBar(), horizontalHeader()->sectionPosition(index.column()),
        columnWidth(index.column()), EnsureVisible);
}

void RowsTable::keyboardSearch(const QString& /*search*/)
{ }

void RowsTable::paintEvent(QPaintEvent* event)
{
    m_delegate->BeginFrame(font(), palette());
    QPainter painter(viewport());
    const QRect area = event->rect();
    const int first = (area.top() + verticalOffset()) / LineHeight();
    const int last = std::min((area.bottom() + verticalOffset()) / LineHeight(), LineCount() - 1);
    for (int line = first; line <= last; ++line)
        PaintLine(painter, line, area);
}

void RowsTable::PaintLine(QPainter& painter, int line, const QRect& area)
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const bool isSelected = selectionModel()->isRowSelected(line);
    for (int column = 0; column < model()->columnCount(); ++column) {
        const QModelIndex index = model()->index(line, column);
        option.rect = visualRect(index);
        if (!option.rect.intersects(area))
            continue;
        option.state.setFlag(QStyle::State_Selected, isSelected);
        option.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
        m_delegate->paint(&painter, option, index);
    }
}

void RowsTable::Rearrange()
{
    updateGeometries();
    viewport()->update();
}

void RowsTable::updateGeometries()
{
    // New margins resize the viewport, which asks for this again.
    if (m_isArranging)
        return;
    m_isArranging = true;
    Arrange();
    m_isArranging = false;
    QAbstractItemView::updateGeometries(); // NOLINT(bugprone-parent-virtual-call): not the table's
}

void RowsTable::Arrange()
{
    QHeaderView* header = horizontalHeader();
    const int headerHeight = header->isHidden() ? 0 : header->sizeHint().height();
    setViewportMargins(0, headerHeight, 0, 0);
    const QRect area = viewport()->geometry();
    header->setGeometry(area.left(), area.top() - headerHeight, area.width(), headerHeight);

    const qint64 height = qint64 { LineCount() } * LineHeight() - area.height();
    constexpr qint64 kMaxRange = std::numeric_limits<int>::max();
    verticalScrollBar()->setRange(0, static_cast<int>(std::clamp<qint64>(height, 0, kMaxRange)));
    verticalScrollBar()->setPageStep(area.height());
    verticalScrollBar()->setSingleStep(LineHeight());
    horizontalScrollBar()->setRange(0, std::max(0, header->length() - area.width()));
    horizontalScrollBar()->setPageStep(area.width());
    horizontalScrollBar()->setSingleStep(LineHeight());
}

int RowsTable::verticalOffset() const
{
    return verticalScrollBar()->value();
}

int RowsTable::sizeHintForColumn(int column) const
{
    // Of a million rows those that the person may be looking for.
    constexpr int kMaxLines = 500;
    m_delegate->BeginFrame(font(), palette());
    const int first
        = std::clamp(verticalOffset() / LineHeight(), 0, std::max(0, LineCount() - kMaxLines));
    const int end = std::min(first + kMaxLines, LineCount());
    int width = 0;
    for (int line = first; line < end; ++line)
        width = std::max(width, m_delegate->WidthFor(model()->index(line, column)));
    return std::min(width, kMaxColumnWidth);
}

QModelIndex RowsTable::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/)
{
    if (LineCount() == 0)
        return {};
    const QHeaderView& header = *horizontalHeader();
    const QModelIndex current = currentIndex();
    int line = current.isValid() ? current.row() : 0;
    int place = current.isValid() ? header.visualIndex(current.column()) : 0;
    switch (action) {
    case MoveUp:
    case MovePrevious:
        --line;
        break;
    case MoveDown:
    case MoveNext:
        ++line;
        break;
    case MovePageUp:
        line -= LinesPerPage();
        break;
    case MovePageDown:
        line += LinesPerPage();
        break;
    case MoveHome:
        line = 0;
        break;
    case MoveEnd:
        line = LineCount() - 1;
        break;
    case MoveLeft:
        place += isRightToLeft() ? 1 : -1;
        break;
    case MoveRight:
        place += isRightToLeft() ? -1 : 1;
        break;
    }
    return model()->index(std::clamp(line, 0, LineCount() - 1),
        header.logicalIndex(std::clamp(place, 0, header.count() - 1)));
}

void RowsTable::setSelection(const QRect& area, QItemSelectionModel::SelectionFlags command)
{
    const QModelIndex first = indexAt(area.topLeft());
    const QModelIndex last = indexAt(area.bottomRight());
    if (first.isValid() && last.isValid())
        selectionModel()->select(QItemSelection(first, last), command);
}

QRegion RowsTable::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        const int top = std::max(0, range.top() * LineHeight() - verticalOffset());
        const int bottom = std::min(
            viewport()->height(), (range.bottom() + 1) * LineHeight() - verticalOffset());
        if (top < bottom)
            region += QRect(0, top, viewport()->width(), bottom - top);
    }
    return region;
}

} // namespace Quillory
