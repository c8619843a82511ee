// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

#include <optional>

class QWidget;

namespace Quillory {

/// Gives the window a landscape shape while a list is shown. A window that fills its screen, or is
/// as wide as that, has no room to become wider and stays as it is: how the screen stands is its
/// user's to say.
class LandscapeShape
{
public:
    /// `window` outlives the object.
    explicit LandscapeShape(QWidget& window);

    /// Exchanges width and height of a window that is higher than wide.
    void Enter();
    /// Gives the window back the size that it had when it was entered; nothing if it was not.
    void Leave();

private:
    QWidget& m_window;
    std::optional<QSize> m_before;

    [[nodiscard]] bool FillsScreen() const;
};

} // namespace Quillory
