#include "rows/row_delegate.h"

#include "rows/rows_model.h"
#include "values/file_date.h"
#include "widgets/icon_set.h"
#include "widgets/measures.h"

#include <QPainter>

namespace Quillory {

RowDelegate::RowDelegate(const RowsModel& model, const InventoryList& list,
    const ValueContext& context, bool hasAlternateLines, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_model(model)
    , m_list(list)
    , m_context(context)
    , m_hasAlternateLines(hasAlternateLines)
{ }

QRect RowDelegate::CheckboxSquare(const QRect& cell)
{
    const int size = CurrentMeasures().iconSize;
    QRect square(0, 0, size, size);
    square.moveCenter(cell.center());
    return square;
}

void RowDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    RowFacts facts = m_model.FactsOf(index.row());
    facts.isSelected = option.state.testFlag(QStyle::State_Selected);
    const FileTime today = DateToFileTime(m_context.clock().date).value_or(FileTime {});
    const RowLook look = DecideRowLook(facts, m_list, today, m_hasAlternateLines, option.palette);

    painter->save();
    painter->fillRect(option.rect, look.ground);
    painter->setPen(option.palette.color(QPalette::Midlight));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    if (m_model.IsCheckbox(index.column())) {
        const bool isChecked = m_model.IsChecked(index.row(), index.column());
        CheckboxIcon(isChecked).paint(painter, CheckboxSquare(option.rect), Qt::AlignCenter,
            facts.isSelected ? QIcon::Selected : QIcon::Normal);
    } else {
        QFont font = option.font;
        font.setItalic(look.isItalic);
        const QFontMetrics metrics(font);
        const int margin = metrics.averageCharWidth();
        const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
        const QString text = metrics.elidedText(
            index.data(Qt::DisplayRole).toString(), Qt::ElideRight, room.width());
        painter->setFont(font);
        painter->setPen(look.text);
        painter->drawText(room,
            index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine | Qt::TextDontClip,
            text);
    }
    painter->restore();
}

} // namespace Quillory
