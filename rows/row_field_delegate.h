#pragma once

#include <QStyledItemDelegate>

namespace Quillory {

/// Draws the lines of a row editor: names quietly, values in the colour of text, the current line
/// on a tint of the accent, so that the control in it stays the brightest place.
class RowFieldDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
};

} // namespace Quillory
