// SPDX-License-Identifier: MIT
#include "desktop/screen_keyboard.h"

#include <QApplication>
#include <QDBusMessage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVersionNumber>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

bool IsTyped(const QWidget* widget)
{
    const auto* edit = qobject_cast<const QLineEdit*>(widget);
    return edit != nullptr && !edit->isReadOnly();
}

} // namespace

ScreenKeyboard::ScreenKeyboard(const QDBusConnection& bus, QObject* parent)
    : QObject(parent)
    , m_bus(bus)
{
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
        [this](const QWidget* /*before*/, const QWidget* now) { FollowFocus(now); });
}

bool ScreenKeyboard::IsNeeded()
{
    return QGuiApplication::platformName().startsWith("wayland"_L1)
        && QVersionNumber::fromString(QLatin1StringView(qVersion())) < QVersionNumber(6, 7);
}

bool ScreenKeyboard::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::TouchBegin:
        m_isByTouch = true;
        m_hasThisTouchAsked = false;
        break;
    case QEvent::KeyPress:
        // A keyboard on the screen goes on by keys of its own.
        m_isByTouch = m_isByTouch && m_isAskedFor;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        // What a view makes of a touch is no mouse; what the toolkit makes of one says so.
        if (event->spontaneous())
            m_isByTouch = static_cast<QMouseEvent*>(event)->pointerType()
                == QPointingDevice::PointerType::Finger;
        // Whoever has put the keyboard away gets it back by a tap.
        if (event->type() == QEvent::MouseButtonRelease && watched == QApplication::focusWidget()
            && !m_hasThisTouchAsked && m_isAskedFor && m_isByTouch)
            SetVisible(true);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ScreenKeyboard::FollowFocus(const QWidget* focused)
{
    const bool isTyped = IsTyped(focused);
    if (isTyped == m_isAskedFor || (isTyped && !m_isByTouch))
        return;
    m_hasThisTouchAsked = isTyped;
    SetVisible(isTyped);
}

void ScreenKeyboard::SetVisible(bool isVisible)
{
    m_isAskedFor = isVisible;
    QDBusMessage call = QDBusMessage::createMethodCall(
        u"sm.puri.OSK0"_s, u"/sm/puri/OSK0"_s, u"sm.puri.OSK0"_s, u"SetVisible"_s);
    call << isVisible;
    call.setAutoStartService(false);
    // No answer is waited for.
    m_bus.send(call);
}

} // namespace Quillory
