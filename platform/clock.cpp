// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <QDateTime>

namespace Quillory {

Clock SystemClock()
{
    return [] {
        const QDateTime now = QDateTime::currentDateTime();
        return LocalTime { now.date(), now.time() };
    };
}

} // namespace Quillory
