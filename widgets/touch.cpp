// SPDX-License-Identifier: MIT
#include "widgets/touch.h"

#include "widgets/letter_menu.h"
#include "widgets/measures.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QScroller>
#include <QStyleHints>
#include <QTouchEvent>

#include <algorithm>
#include <utility>

namespace Quillory {

namespace {

/// Tells whether a tap is the second one of a double tap, wherever the first one fell.
bool IsSecondTap(const QPoint& place, quint64 timeMs)
{
    static QPoint latestPlace;
    static quint64 latestTimeMs = 0;
    const auto interval
        = static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    const bool isSecond = latestTimeMs != 0 && timeMs - latestTimeMs <= interval
        && (place - latestPlace).manhattanLength() <= kMinTouchTarget;
    latestPlace = place;
    // A third one begins anew.
    latestTimeMs = isSecond ? 0 : timeMs;
    return isSecond;
}

/// What the latest press of a mouse, or of a tap, went to.
QPointer<QObject>& LatestPressed()
{
    static QPointer<QObject> pressed;
    return pressed;
}

void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& globalPlace)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, widget.mapFromGlobal(globalPlace),
        widget.window()->mapFromGlobal(globalPlace), globalPlace, button, buttons,
        QGuiApplication::keyboardModifiers());
    QCoreApplication::sendEvent(&widget, &event);
}

/// Gives the keyboard to what a press of a mouse would give it to.
void FocusByPress(QWidget* widget)
{
    while (!widget->isEnabled() || (widget->focusPolicy() & Qt::ClickFocus) == 0) {
        if (widget->isWindow())
            return;
        widget = widget->parentWidget();
    }
    widget->setFocus(Qt::MouseFocusReason);
}

} // namespace

TouchBehaviour::TouchBehaviour(QAbstractScrollArea* view)
    : QObject(view)
    , m_view(view)
{
    if (auto* items = qobject_cast<QAbstractItemView*>(view)) {
        items->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        items->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    }
    m_holdTimer.setSingleShot(true);
    connect(&m_holdTimer, &QTimer::timeout, this, &TouchBehaviour::Hold);
    view->viewport()->setAttribute(Qt::WA_AcceptTouchEvents);
    view->viewport()->installEventFilter(this);
    // Where keys arrive, and the menu key's event with them.
    view->installEventFilter(this);
}

bool TouchBehaviour::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        return watched == m_view->viewport() && TakeTouch(*static_cast<QTouchEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return watched == m_view->viewport() && TakeMouse(*static_cast<QMouseEvent*>(event));
    case QEvent::KeyPress:
        if (!HasMenu()
            || static_cast<QKeyEvent*>(event)->keyCombination() != (Qt::SHIFT | Qt::Key_F10))
            return false;
        HoldSelected();
        return true;
    case QEvent::ContextMenu: {
        if (!HasMenu())
            return false;
        const auto* menu = static_cast<QContextMenuEvent*>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard)
            HoldSelected();
        else if (menu->reason() == QContextMenuEvent::Mouse)
            AskForMenu(menu->pos());
        return true;
    }
    default:
        return false;
    }
}

bool TouchBehaviour::HasMenu() const
{
    return isSignalConnected(QMetaMethod::fromSignal(&TouchBehaviour::Held));
}

QScroller& TouchBehaviour::Scroller() const
{
    return *QScroller::scroller(m_view->viewport());
}

bool TouchBehaviour::TakeTouch(const QTouchEvent& touch)
{
    if (touch.type() == QEvent::TouchCancel) {
        m_holdTimer.stop();
        Scroller().stop();
        return true;
    }
    const QPointF place = touch.points().front().position();
    const auto time = static_cast<qint64>(touch.timestamp());
    if (touch.type() == QEvent::TouchBegin) {
        m_isTap = Scroller().state() != QScroller::Scrolling;
        m_isDragging = false;
        Scroller().handleInput(QScroller::InputPress, place, time);
        if (m_isTap)
            Begin(m_view->viewport()->childAt(place.toPoint()), place.toPoint(), touch.timestamp());
        return true;
    }
    const bool isEnd = touch.type() == QEvent::TouchEnd;
    if (!m_isDragging)
        Follow(touch.pointCount() == 1 ? place.toPoint() : QPoint(-1, -1));
    else if (m_control != nullptr)
        SendMouse(*m_control, isEnd ? QEvent::MouseButtonRelease : QEvent::MouseMove,
            m_view->viewport()->mapToGlobal(place.toPoint()));
    Scroller().handleInput(isEnd ? QScroller::InputRelease : QScroller::InputMove, place, time);
    if (isEnd && m_isTap)
        Tap();
    if (isEnd)
        m_control = nullptr;
    return true;
}

bool TouchBehaviour::TakeMouse(const QMouseEvent& mouse)
{
    switch (mouse.type()) {
    case QEvent::MouseButtonPress:
        LatestPressed() = this;
        m_isClickSpent = false;
        // What a control that is touched leaves to the view comes here as well.
        if (mouse.button() == Qt::LeftButton && m_control == nullptr)
            Begin(nullptr, mouse.position().toPoint(), mouse.timestamp());
        return false;
    case QEvent::MouseButtonDblClick:
        m_isClickSpent = LatestPressed() != this;
        return m_isClickSpent;
    case QEvent::MouseMove:
        Follow(mouse.position().toPoint());
        return m_isClickSpent;
    default:
        m_holdTimer.stop();
        return std::exchange(m_isClickSpent, false);
    }
}

void TouchBehaviour::Begin(QWidget* control, const QPoint& position, quint64 timeMs)
{
    m_control = control;
    m_start = position;
    m_startTimeMs = timeMs;
    if (control != nullptr || HasMenu())
        m_holdTimer.start(QGuiApplication::styleHints()->mousePressAndHoldInterval());
}

void TouchBehaviour::Follow(const QPoint& position)
{
    // As far as the scroller lets a finger stray before it swipes.
    const QScroller& scroller = Scroller();
    const qreal metres = scroller.scrollerProperties()
                             .scrollMetric(QScrollerProperties::DragStartDistance)
                             .toReal();
    if ((position - m_start).manhattanLength() <= metres * scroller.pixelPerMeter().x())
        return;
    m_isTap = false;
    m_holdTimer.stop();
}

void TouchBehaviour::Tap()
{
    m_isTap = false;
    m_holdTimer.stop();
    const QPoint place = m_view->viewport()->mapToGlobal(m_start);
    const QPointer<QWidget> target = m_control != nullptr ? m_control.data() : m_view->viewport();
    FocusByPress(target);
    const bool isSecond = IsSecondTap(place, m_startTimeMs);
    SendMouse(*target, isSecond ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, place);
    if (target != nullptr)
        SendMouse(*target, QEvent::MouseButtonRelease, place);
}

void TouchBehaviour::Hold()
{
    m_isTap = false;
    Scroller().stop();
    if (m_control == nullptr)
        return AskForMenu(m_start);
    m_isDragging = true;
    FocusByPress(m_control);
    SendMouse(*m_control, QEvent::MouseButtonPress, m_view->viewport()->mapToGlobal(m_start));
}

void TouchBehaviour::HoldSelected()
{
    auto* items = qobject_cast<QAbstractItemView*>(m_view);
    if (items == nullptr)
        return;
    // Assistive technology selects lines without making them the current one.
    const QModelIndexList selected = items->selectionModel()->selectedRows();
    QModelIndex line = items->currentIndex();
    if (!selected.isEmpty())
        line = selected.first().siblingAtColumn(std::max(0, line.column()));
    items->scrollTo(line);
    Q_EMIT Held(items->visualRect(line).center());
    LetterMenu::EnterOpened();
}

void TouchBehaviour::AskForMenu(const QPoint& position)
{
    auto* items = qobject_cast<QAbstractItemView*>(m_view);
    if (items != nullptr && items->indexAt(position).isValid())
        items->setCurrentIndex(items->indexAt(position));
    Q_EMIT Held(position);
}

} // namespace Quillory
