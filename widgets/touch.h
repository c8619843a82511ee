// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QTimer>

class QAbstractScrollArea;
class QMouseEvent;
class QScroller;
class QTouchEvent;

namespace Quillory {

/// Gives a view the behaviour of a finger: it selects and acts when a tap is lifted, and only then.
/// A swipe scrolls by pixels and does nothing else, a tap that stops a moving view does only that,
/// a hold selects its line and opens the context menu. A mouse selects on its press; its right
/// button and its held left one do what a hold does, and so do, on the selected line, the menu key
/// and Shift+F10. Where nobody opens a context menu a hold is a slow tap.
///
/// A double tap or click whose first half went to another view has had its effect there: its second
/// half does nothing to the page that came instead.
class TouchBehaviour : public QObject
{
    Q_OBJECT

public:
    /// Owned by the view.
    explicit TouchBehaviour(QAbstractScrollArea* view);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The context menu was asked for; in the coordinates of the view's viewport.
    void Held(const QPoint& position);

private:
    QAbstractScrollArea* m_view;
    QTimer m_holdTimer;
    /// Where the finger or the button went down, and when.
    QPoint m_start;
    quint64 m_startTimeMs = 0;
    /// What lies upon the view where the finger went down, if anything does.
    QPointer<QWidget> m_control;
    /// The touch is neither a swipe nor a hold so far, and stopped nothing.
    bool m_isTap = false;
    /// The finger was held on a control and is a mouse from there on.
    bool m_isDragging = false;
    /// The click that is under way is nobody's.
    bool m_isClickSpent = false;

    [[nodiscard]] bool HasMenu() const;
    [[nodiscard]] QScroller& Scroller() const;
    bool TakeTouch(const QTouchEvent& touch);
    bool TakeMouse(const QMouseEvent& mouse);
    void Begin(QWidget* control, const QPoint& position, quint64 timeMs);
    void Follow(const QPoint& position);
    void Tap();
    void Hold();
    /// Does to the selected line what a hold does.
    void HoldSelected();
    void AskForMenu(const QPoint& position);
};

} // namespace Quillory
