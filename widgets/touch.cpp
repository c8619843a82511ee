// SPDX-License-Identifier: MIT
#include "widgets/touch.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScroller>

namespace Quillory {

TouchBehaviour::TouchBehaviour(QAbstractItemView* view)
    : QObject(view)
    , m_view(view)
{
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Both together: a hold alone would still be followed by a click on release.
    QScroller::grabGesture(view->viewport(), QScroller::TouchGesture);
    view->viewport()->grabGesture(Qt::TapAndHoldGesture);
    view->viewport()->installEventFilter(this);
    // Where keys arrive, and the menu key's event with them.
    view->installEventFilter(this);
}

bool TouchBehaviour::eventFilter(QObject* watched, QEvent* event)
{
    // The right button opens its menu at once; that it is held must not open a second one.
    if (event->type() == QEvent::MouseButtonPress)
        m_isHoldMeant = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    if (event->type() == QEvent::Gesture && m_isHoldMeant) {
        auto* gestures = static_cast<QGestureEvent*>(event);
        auto* hold = static_cast<QTapAndHoldGesture*>(gestures->gesture(Qt::TapAndHoldGesture));
        if (hold != nullptr && hold->state() == Qt::GestureFinished) {
            const QPoint place = m_view->viewport()->mapFromGlobal(hold->position().toPoint());
            Q_EMIT Held(place);
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (press->keyCombination() == (Qt::SHIFT | Qt::Key_F10)) {
            HoldCurrent();
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu) {
        const auto* menu = static_cast<QContextMenuEvent*>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard)
            HoldCurrent();
        else if (menu->reason() == QContextMenuEvent::Mouse)
            Q_EMIT Held(menu->pos());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void TouchBehaviour::HoldCurrent()
{
    const QModelIndex current = m_view->currentIndex();
    m_view->scrollTo(current);
    Q_EMIT Held(m_view->visualRect(current).center());
}

} // namespace Quillory
