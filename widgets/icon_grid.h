// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace Quillory {

/// How the cells of an icon grid lie: row by row, in a client area of a given size.
struct IconGridLayout
{
    int iconCount = 0;
    int cellSize = 1;
    int cellsPerRow = 1;
    int rows = 0;
    bool needsScrollBar = false;

    /// An area narrower than a cell has one in a row. Where the rows are higher than the area, the
    /// width of a scroll bar is left free.
    [[nodiscard]] static IconGridLayout For(
        int iconCount, int cellSize, const QSize& client, int scrollBarWidth);

    /// The cell at a place, -1 if there is none. A place on the edge between two cells belongs to
    /// the left one; the left edge of the grid thus to the last cell of the row above.
    [[nodiscard]] int IndexAt(const QPoint& place) const;
    [[nodiscard]] QRect CellAt(int index) const;
    [[nodiscard]] int Height() const { return rows * cellSize; }
    /// Where an arrow key leads from a cell, or from none (-1).
    [[nodiscard]] int Step(int index, Qt::Key key) const;
};

/// The pictures that a list may have, to choose one by a tap or by the arrow keys.
class IconGrid : public QListView
{
    Q_OBJECT

public:
    explicit IconGrid(QWidget* parent = nullptr);

    /// -1 if none is selected.
    [[nodiscard]] int SelectedIcon() const;
    void SelectIcon(int index);

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;

Q_SIGNALS:
    /// A tap ended with this icon selected, or Return was pressed on it.
    void IconTapped(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;

private:
    [[nodiscard]] IconGridLayout Layout() const;
    void DrawCell(QPainter& painter, int index) const;
    void ScrollByPage(int action);
};

} // namespace Quillory
