#pragma once

#include <QSize>

#include <optional>

class QWidget;

namespace Quillory {

/// Gives the window a landscape shape while a list is shown, where the window may have a shape of
/// its own: one that fills its screen stays as it is.
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
};

} // namespace Quillory
