// SPDX-License-Identifier: MIT
#include "widgets/focus_ring.h"

#include "widgets/ink.h"
#include "widgets/measures.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QEvent>
#include <QFocusEvent>
#include <QPainter>

namespace Quillory {

namespace {

/// Lies upon the view and lets taps through.
class ViewRing : public QWidget
{
public:
    explicit ViewRing(QAbstractItemView* view)
        : QWidget(view)
        , m_view(view)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
        view->installEventFilter(this);
        view->viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::FocusIn:
            setVisible(IsByKey(static_cast<QFocusEvent*>(event)->reason()));
            // Once whoever gave it the keyboard is done.
            QMetaObject::invokeMethod(this, &ViewRing::TellLine, Qt::QueuedConnection);
            break;
        case QEvent::KeyPress:
            setVisible(m_view->hasFocus());
            break;
        case QEvent::FocusOut:
        case QEvent::MouseButtonPress:
        case QEvent::TouchBegin:
            hide();
            break;
        case QEvent::Resize:
            setGeometry(m_view->rect());
            break;
        default:
            break;
        }
        return QWidget::eventFilter(watched, event);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        DrawFocusRing(painter, m_view->viewport()->geometry(), m_view->palette());
    }

private:
    QAbstractItemView* m_view;

    /// Of itself a view tells a screen reader that it has the keyboard, but not on which line.
    void TellLine()
    {
        if (!QAccessible::isActive() || !m_view->hasFocus() || !m_view->currentIndex().isValid())
            return;
        auto* view = QAccessible::queryAccessibleInterface(m_view);
        QAccessibleInterface* line = view == nullptr ? nullptr : view->focusChild();
        if (line == nullptr || line == view)
            return;
        QAccessibleEvent event(line, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
    [[nodiscard]] static bool IsByKey(Qt::FocusReason reason)
    {
        return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
            || reason == Qt::ShortcutFocusReason;
    }
};

} // namespace

void DrawFocusRing(QPainter& painter, const QRect& around, const QPalette& palette)
{
    constexpr int kWidth = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(AccentInk(palette), kWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        QRectF(around).adjusted(1, 1, -1, -1), kCornerRadius - 1, kCornerRadius - 1);
    painter.restore();
}

void ShowFocusRing(QAbstractItemView* view)
{
    new ViewRing(view);
}

} // namespace Quillory
