// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"
#include "propdb/property_value.h"

#include <QDate>

#include <optional>

namespace Quillory {

/// The day of a file time; its time of day is dropped. Nothing from 2^63 on.
[[nodiscard]] std::optional<QDate> FileTimeToDate(FileTime time);
/// Midnight of a day from 1601-01-01 on; nothing for earlier ones.
[[nodiscard]] std::optional<FileTime> DateToFileTime(QDate date);
/// A date and time of day to the millisecond; nothing before 1601.
[[nodiscard]] std::optional<FileTime> LocalTimeToFileTime(const LocalTime& time);

/// The file time as the platform's date number: days since 1899-12-30, the time of day as the
/// fraction to whole seconds. Before that day the fraction counts downward, so that a later hour
/// gives a smaller number. Nothing after the year 9999.
[[nodiscard]] std::optional<double> FileTimeToDateNumber(FileTime time);

} // namespace Quillory
