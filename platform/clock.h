// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QTime>

#include <functional>

namespace Quillory {

/// The local date and time of day, to the millisecond.
struct LocalTime
{
    QDate date;
    QTime time;
};

/// Asks for the time; replaced in tests.
using Clock = std::function<LocalTime()>;

/// The computer's own clock in its own time zone.
[[nodiscard]] Clock SystemClock();

} // namespace Quillory
