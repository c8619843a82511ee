// SPDX-License-Identifier: MIT
#pragma once

#include <QPointingDevice>
#include <QTest>
#include <QWidget>

#include <memory>

namespace Quillory {

/// A finger on a touch screen, over one widget; places are the widget's.
class Finger
{
public:
    explicit Finger(QWidget& widget)
        : m_widget(widget)
    { }
    void Press(const QPoint& place) const { Touch().press(0, place, &m_widget); }
    void Move(const QPoint& place) const { Touch().move(0, place, &m_widget); }
    void Release(const QPoint& place) const { Touch().release(0, place, &m_widget); }
    /// A second finger comes, and both go.
    void Release(const QPoint& place, const QPoint& second) const
    {
        Touch().move(0, place, &m_widget).press(1, second, &m_widget);
        Touch().release(0, place, &m_widget).release(1, second, &m_widget);
    }
    void Tap(const QPoint& place) const
    {
        Press(place);
        QTest::qWait(20);
        Release(place);
    }
    /// As slow as a page is read, or as quick as it is thrown.
    void Swipe(const QPoint& from, const QPoint& to, int timeMs) const
    {
        constexpr int kSteps = 10;
        Press(from);
        for (int step = 1; step <= kSteps; ++step) {
            QTest::qWait(timeMs / kSteps);
            Move(from + (to - from) * step / kSteps);
        }
        // A finger that rests before it is lifted throws nothing.
        if (timeMs >= 300)
            QTest::qWait(timeMs);
        Release(to);
    }

private:
    QWidget& m_widget;

    QTest::QTouchEventWidgetSequence Touch() const
    {
        static const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        return QTest::touchEvent(&m_widget, screen.get());
    }
};

} // namespace Quillory
