// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QAbstractItemView;
class QPoint;

namespace Quillory {

/// Gives an item view the behaviour of a finger: a tap is one click, a hold opens the context menu
/// and is followed by no click, a flick scrolls by pixels, and a tap that stops a moving list opens
/// nothing. A mouse's right button does what a hold does, and so do, on the current line, the menu
/// key and Shift+F10.
class TouchBehaviour : public QObject
{
    Q_OBJECT

public:
    /// Owned by the view.
    explicit TouchBehaviour(QAbstractItemView* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The context menu was asked for; in the coordinates of the view's viewport.
    void Held(const QPoint& position);

private:
    QAbstractItemView* m_view;
    bool m_isHoldMeant = true;

    void HoldCurrent();
};

} // namespace Quillory
