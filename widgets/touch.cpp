#include "widgets/touch.h"

#include <QAbstractItemView>
#include <QGestureEvent>
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
}

bool TouchBehaviour::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Gesture) {
        auto* gestures = static_cast<QGestureEvent*>(event);
        auto* hold = static_cast<QTapAndHoldGesture*>(gestures->gesture(Qt::TapAndHoldGesture));
        if (hold != nullptr && hold->state() == Qt::GestureFinished) {
            const QPoint place = m_view->viewport()->mapFromGlobal(hold->position().toPoint());
            Q_EMIT Held(place);
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu) {
        // The menu key; a mouse's button and a finger come as Held from elsewhere.
        const auto* menu = static_cast<QContextMenuEvent*>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard)
            Q_EMIT Held(m_view->visualRect(m_view->currentIndex()).center());
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* press = static_cast<QMouseEvent*>(event);
        if (press->button() == Qt::RightButton) {
            const QModelIndex index = m_view->indexAt(press->position().toPoint());
            if (index.isValid())
                m_view->setCurrentIndex(index);
            Q_EMIT Held(press->position().toPoint());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Quillory
