// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <chrono>
#include <cstdio>

namespace Quillory {

inline qint64 NowNs()
{
    return std::chrono::steady_clock::now().time_since_epoch().count();
}

/// Prints what a program that was started by the benchmark tells it: the milliseconds since then
/// and the kilobytes of memory that it holds.
inline void ReportStart(qint64 startedNs)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return;
    const double ms = static_cast<double>(NowNs() - startedNs) / 1e6;
    const QString text = QString::fromLatin1(status.readAll());
    const QString resident = text.section(QStringLiteral("VmRSS:"), 1, 1).simplified();
    std::printf("%.2f %s", ms, qPrintable(resident.section(u' ', 0, 0)));
}

} // namespace Quillory
