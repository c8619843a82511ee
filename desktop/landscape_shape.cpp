// SPDX-License-Identifier: MIT
#include "desktop/landscape_shape.h"

#include <QScreen>
#include <QWidget>

namespace Quillory {

LandscapeShape::LandscapeShape(QWidget& window)
    : m_window(window)
{ }

void LandscapeShape::Enter()
{
    const QSize size = m_window.size();
    const QSize room = m_window.screen()->availableSize();
    if (size.height() <= size.width() || size.width() >= room.width() || FillsScreen())
        return;
    m_before = size;
    m_window.resize(size.transposed().boundedTo(room));
}

void LandscapeShape::Leave()
{
    if (m_before && !FillsScreen())
        m_window.resize(*m_before);
    m_before.reset();
}

bool LandscapeShape::FillsScreen() const
{
    return m_window.isMaximized() || m_window.isFullScreen();
}

} // namespace Quillory
