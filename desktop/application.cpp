// SPDX-License-Identifier: MIT
#include "desktop/application.h"

#include <new>

namespace Quillory {

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::bad_alloc&) {
        // Further events may end so before there is time to tell.
        if (!m_isTelling) {
            m_isTelling = true;
            QMetaObject::invokeMethod(
                this,
                [this] {
                    m_isTelling = false;
                    Q_EMIT MemoryRanOut();
                },
                Qt::QueuedConnection);
        }
        return true;
    }
}

} // namespace Quillory
