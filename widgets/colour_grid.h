// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

namespace Quillory {

/// The pop-up of all 36 colours: six columns of six, filled from top to bottom in the order of
/// their values. Closes on a pick, on Escape and on a tap outside.
class ColourGrid : public QFrame
{
    Q_OBJECT

public:
    /// Marks `selected`. Deletes itself when it closes.
    ColourGrid(quint32 selected, QWidget* parent);

    /// Opens with its top left corner at a place on the screen, or as near as it fits into
    /// `window`, a rectangle of the screen.
    void Open(const QPoint& topLeft, const QRect& window);

Q_SIGNALS:
    void Picked(quint32 index);
    void Closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Pick(quint32 index);
};

} // namespace Quillory
