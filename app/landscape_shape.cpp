// SPDX-License-Identifier: MIT
#include "app/landscape_shape.h"

#include <QScreen>
#include <QWidget>

namespace Quillory {

LandscapeShape::LandscapeShape(QWidget& window, const QString& notePath)
    : m_window(window)
    , m_turn(notePath)
{ }

void LandscapeShape::Enter(quint32 listOrientation)
{
    const QSize size = m_window.size();
    if (size.height() <= size.width())
        return;
    const QScreen& screen = *m_window.screen();
    QSize room = screen.availableSize();
    if (FillsScreen() || size.width() >= room.width()) {
        if (!m_turn.Turn(screen.name(), TurnsOf(listOrientation)))
            return;
        room.transpose();
    }
    // The window manager gives one that fills the screen its shape.
    if (FillsScreen())
        return;
    m_before = size;
    m_window.resize(size.transposed().boundedTo(room));
}

void LandscapeShape::Leave()
{
    m_turn.TurnBack();
    if (m_before && !FillsScreen())
        m_window.resize(*m_before);
    m_before.reset();
}

bool LandscapeShape::FillsScreen() const
{
    return m_window.isMaximized() || m_window.isFullScreen();
}

} // namespace Quillory
