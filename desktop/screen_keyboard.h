// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QWidget>

namespace Quillory {

/// Asks the phone's shell for its on-screen keyboard while a text field has the keyboard that came
/// to it by touch, as long as this lives. Where nobody keeps such a keyboard nothing happens.
class ScreenKeyboard : public QObject
{
    Q_OBJECT

public:
    explicit ScreenKeyboard(const QDBusConnection& bus, QObject* parent = nullptr);

    /// Whether the toolkit does not ask itself: shells of phones hear of text fields by a protocol
    /// of Wayland that it speaks from its version 6.7 on.
    [[nodiscard]] static bool IsNeeded();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QDBusConnection m_bus;
    bool m_isByTouch = false;
    bool m_isAskedFor = false;
    bool m_hasThisTouchAsked = false;

    void FollowFocus(const QWidget* focused);
    void SetVisible(bool isVisible);
};

} // namespace Quillory
