#include "app/landscape_shape.h"

#include <QScreen>
#include <QWidget>

namespace Quillory {

LandscapeShape::LandscapeShape(QWidget& window)
    : m_window(window)
{ }

void LandscapeShape::Enter()
{
    const QSize size = m_window.size();
    if (m_window.isMaximized() || m_window.isFullScreen() || size.height() <= size.width())
        return;
    m_before = size;
    m_window.resize(size.transposed().boundedTo(m_window.screen()->availableSize()));
}

void LandscapeShape::Leave()
{
    if (m_before && !m_window.isMaximized() && !m_window.isFullScreen())
        m_window.resize(*m_before);
    m_before.reset();
}

} // namespace Quillory
