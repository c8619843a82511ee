// SPDX-License-Identifier: MIT
#include "rows/row_delegate.h"

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

void RowDelegate::BeginFrame(const QFont& font, const QPalette& palette)
{
    m_today = DateToFileTime(m_context.clock().date).value_or(FileTime {});
    m_colours = ColoursFor(m_list, m_hasAlternateLines, palette);
    if (m_painter.Font() != font)
        m_painter = RowPainter(font);
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return { m_painter.WidthFor(m_model.Text(index.row(), index.column())), option.rect.height() };
}

RowLook RowDelegate::PaintGround(
    QPainter& painter, const QRect& place, int line, bool isSelected) const
{
    RowFacts facts = m_model.FactsOf(line);
    facts.isSelected = isSelected;
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
        if (option.state.testFlag(QStyle::State_HasFocus))
            RowPainter::DrawFocus(*painter, cell, look);
    } else if (m_model.IsNumber(index.column())) {
        m_painter.DrawNumber(*painter, cell, m_model.Text(index.row(), index.column()), look);
    } else {
        m_painter.DrawLabel(*painter, cell, m_model.Text(index.row(), index.column()), look);
    }
}

} // namespace Quillory
