// SPDX-License-Identifier: MIT
#include "values/file_date.h"

#include "platform/date_reader.h"

namespace Quillory {

namespace {

constexpr qint64 kTicksPerMillisecond = 10'000;
constexpr qint64 kTicksPerSecond = 1000 * kTicksPerMillisecond;
constexpr qint64 kSecondsPerDay = 86'400;
constexpr qint64 kTicksPerDay = kSecondsPerDay * kTicksPerSecond;
/// 1601-01-01.
constexpr qint64 kFirstJulianDay = 2'305'814;
/// The day after 9999-12-31.
constexpr qint64 kEndJulianDay = 5'373'485;
constexpr quint64 kEndOfFileTimes = quint64(1) << 63;

} // namespace

std::optional<QDate> FileTimeToDate(FileTime time)
{
    if (time.ticks >= kEndOfFileTimes) {
        return std::nullopt;
    }
    const auto days = static_cast<qint64>(time.ticks) / kTicksPerDay;
    return QDate::fromJulianDay(kFirstJulianDay + days);
}

std::optional<FileTime> DateToFileTime(QDate date)
{
    return LocalTimeToFileTime({ date, QTime(0, 0) });
}

std::optional<FileTime> LocalTimeToFileTime(const LocalTime& time)
{
    const qint64 day = time.date.isValid() ? time.date.toJulianDay() - kFirstJulianDay : -1;
    if (day < 0) {
        return std::nullopt;
    }
    const qint64 ticks
        = day * kTicksPerDay + time.time.msecsSinceStartOfDay() * kTicksPerMillisecond;
    return FileTime { static_cast<quint64>(ticks) };
}

std::optional<double> FileTimeToDateNumber(FileTime time)
{
    const auto day = static_cast<qint64>(time.ticks / static_cast<quint64>(kTicksPerDay));
    const auto ticks = static_cast<qint64>(time.ticks % static_cast<quint64>(kTicksPerDay));
    const qint64 julianDay = kFirstJulianDay + day;
    if (julianDay >= kEndJulianDay) {
        return std::nullopt;
    }
    const auto number = static_cast<double>(julianDay - kDayZeroJulian);
    const qint64 seconds = ticks / kTicksPerSecond;
    const double fraction = static_cast<double>(seconds) / static_cast<double>(kSecondsPerDay);
    return number < 0 ? number - fraction : number + fraction;
}

} // namespace Quillory
