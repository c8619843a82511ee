// SPDX-License-Identifier: MIT
#include "rows/row_delegate.h"

#include "rows/column_layout.h"
#include "rows/rows_model.h"
#include "values/file_date.h"

#include <QPainter>

namespace Quillory {

RowDelegate::RowDelegate(const RowsModel& model, const InventoryList& list,
    const ValueContext& context, bool hasAlternateLines, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_list(list)
    , m_context(context)
    , m_hasAlternateLines(hasAlternateLines)
    , m_painter(QFont())
{ }

void RowDelegate::BeginFrame(const QFont& font, const QPalette& palette, int lineUnderMouse)
{
    m_lineUnderMouse = lineUnderMouse;
    m_today = DateToFileTime(m_context.clock().date).value_or(FileTime {});
    m_colours = ColoursFor(m_list, m_hasAlternateLines, palette);
    if (m_painter.Font() != font)
        m_painter = RowPainter(font);
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const int width = m_painter.WidthFor(m_model.Text(index.row(), index.column()))
        + m_painter.WidthForMark(MarkOf(index, kMaxColumnWidth));
    return { width, option.rect.height() };
}

QString RowDelegate::MarkOf(const QModelIndex& index, int room) const
{
    if (!m_model.IsName(index.column()))
        return {};
    RowWarnings warnings = WarningsFor(m_model.FactsOf(index.row()), m_list, m_today);
    const int taken = m_painter.WidthFor(m_model.Text(index.row(), index.column()));
    // That it is low too, the slant of a row's letters says.
    if (warnings.isExpired && taken + m_painter.WidthForMark(WarningText(warnings)) > room)
        warnings.isLow = false;
    return WarningText(warnings);
}

RowLook RowDelegate::PaintGround(
    QPainter& painter, const QRect& place, int line, bool isSelected) const
{
    RowFacts facts = m_model.FactsOf(line);
    facts.isSelected = isSelected;
    facts.isUnderMouse = line == m_lineUnderMouse;
    const RowLook look = DecideRowLook(facts, WarningsFor(facts, m_list, m_today), m_colours);
    painter.fillRect(place, look.ground);
    painter.fillRect(place.left(), place.bottom(), place.width(), 1, m_colours.rule);
    return look;
}

void RowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QRect& cell = option.rect;
    const RowLook look = PaintGround(*painter, cell, index.row(), isSelected);
    if (m_model.IsCheckbox(index.column())) {
        m_painter.DrawCheckbox(
            *painter, cell, m_model.IsChecked(index.row(), index.column()), isSelected);
    } else if (m_model.IsNumber(index.column())) {
        m_painter.DrawNumber(*painter, cell, m_model.Text(index.row(), index.column()), look);
    } else {
        const QString name = m_model.Text(index.row(), index.column());
        m_painter.DrawName(*painter, cell, name, MarkOf(index, cell.width()), look);
    }
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    if (m_model.IsCheckbox(index.column()))
        RowPainter::DrawFocus(*painter, RowPainter::CheckboxSquare(cell), look);
    else if (m_showsCurrentCell)
        RowPainter::DrawFocus(*painter, cell.adjusted(4, 4, -5, -5), look);
}

} // namespace Quillory
