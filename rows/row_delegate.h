// SPDX-License-Identifier: MIT
#pragma once

#include "rows/row_look.h"
#include "rows/row_painter.h"
#include "values/value_text.h"

#include <QStyledItemDelegate>

#include <optional>

namespace Quillory {

class RowsModel;

/// Draws the cells of a rows view.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// All outlive the delegate.
    RowDelegate(const RowsModel& model, const InventoryList& list, const ValueContext& context,
        bool hasAlternateLines, QObject* parent);

    /// To be called before the cells of a frame are painted: works out what they have in common,
    /// the day among it.
    void BeginFrame(const QFont& font, const QPalette& palette, int lineUnderMouse = -1);
    /// Whether the cell that has the keyboard is framed, whatever it holds; a checkbox always is.
    void ShowCurrentCell(bool isShown) { m_showsCurrentCell = isShown; }
    /// Paints a piece of a line without what it holds, and gives how the line looks.
    RowLook PaintGround(QPainter& painter, const QRect& place, int line, bool isSelected) const;
    /// What a cell's text needs, in a frame.
    [[nodiscard]] QSize sizeHint(
        const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;

private:
    const RowsModel& m_model;
    const InventoryList& m_list;
    const ValueContext& m_context;
    bool m_hasAlternateLines;
    bool m_showsCurrentCell = false;
    RowColours m_colours;
    FileTime m_today {};
    int m_lineUnderMouse = -1;
    RowPainter m_painter;

    /// What a row warns of, for the cell of its name, as much as there is room for; empty for every
    /// other.
    [[nodiscard]] QString MarkOf(const QModelIndex& index, int room) const;
};

} // namespace Quillory
