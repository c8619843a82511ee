// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace Quillory {

/// Draws the cells of plain lists of texts: a hairline under each line, the selected one in the
/// colours of selection.
class LineDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    /// As wide as a cell whose text is not cut.
    [[nodiscard]] QSize sizeHint(
        const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    /// The ground of a line that is not selected.
    [[nodiscard]] static QColor GroundOf(
        const QStyleOptionViewItem& option, const QModelIndex& index);
    /// The room of a cell's text: the first column begins at the margin of the page.
    [[nodiscard]] static QRect TextRoom(const QStyleOptionViewItem& option, int column);
    static void DrawHairline(QPainter& painter, const QStyleOptionViewItem& option);
    /// Vertically centred in `room`, with an ellipsis where it is cut.
    static void DrawLabel(QPainter& painter, const QStyleOptionViewItem& option, const QRect& room,
        const QModelIndex& index);
};

} // namespace Quillory
