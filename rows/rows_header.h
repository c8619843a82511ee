// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>
#include <QPoint>

namespace Quillory {

/// The titles of a rows view. A short tap on one sorts, also where its divider can be gripped.
///
/// The column of names never leaves the view: scrolled out of it, it becomes narrower down to a
/// share of the view, and stands there over the others.
class RowsHeader : public QHeaderView
{
    Q_OBJECT

public:
    /// `nameColumn` is -1 where no column holds the rows' names.
    explicit RowsHeader(int nameColumn, QWidget* parent = nullptr);

    [[nodiscard]] int NameColumn() const { return m_nameColumn; }
    /// Where the names stand over the other columns, in the coordinates of the view and of its
    /// titles alike; empty while they stand in their own place.
    [[nodiscard]] QRect PinnedNames() const;
    /// A hairline at the end of the pinned names, from the top of that widget to `height`.
    void PaintPinnedEdge(QPainter& painter, int height) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    /// The mark of the order stands beside its title, where the column has room: not upon it.
    void paintSection(QPainter* painter, const QRect& rect, int column) const override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int column) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_nameColumn;
    QPoint m_press;
    /// The column whose divider was pressed so far from it that it may be a tap on the title; -1
    /// for none, or once the divider moves.
    int m_tapped = -1;

    [[nodiscard]] int TapAt(const QPoint& place) const;
};

} // namespace Quillory
