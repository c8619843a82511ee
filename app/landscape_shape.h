// SPDX-License-Identifier: MIT
#pragma once

#include "app/output_turn.h"

#include <QSize>

#include <optional>

class QWidget;

namespace Quillory {

/// Gives the window a landscape shape while a list is shown. A window that fills its screen, or is
/// as wide as that, has no room to become wider: there the screen itself is turned, where that can
/// be done, and nothing happens where it cannot.
class LandscapeShape
{
public:
    /// `window` outlives the object. `notePath` is as OutputTurn takes it.
    LandscapeShape(QWidget& window, const QString& notePath);

    /// Exchanges width and height of a window that is higher than wide. `listOrientation` is the
    /// code of the side to which a screen is turned.
    void Enter(quint32 listOrientation);
    /// Gives window and screen back what they had when it was entered; nothing if it was not.
    void Leave();

private:
    QWidget& m_window;
    OutputTurn m_turn;
    std::optional<QSize> m_before;

    [[nodiscard]] bool FillsScreen() const;
};

} // namespace Quillory
