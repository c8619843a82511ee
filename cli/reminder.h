// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDate>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>

namespace Quillory {

/// One row of a reminder.
struct ReminderRow
{
    QString list;
    QString row;
    /// "low", "expired" or "expiring".
    QString state;
};

/// What somebody was reminded of, kept in a file from one run to the next.
class ReminderMemory
{
public:
    /// A file that is missing or damaged remembers nothing.
    explicit ReminderMemory(const QString& path);

    [[nodiscard]] bool WasToldOn(QDate day) const;
    /// Those of `due` that were not due when the memory was stored.
    [[nodiscard]] QList<ReminderRow> NewsIn(const QList<ReminderRow>& due) const;
    /// Remembers what is due now, and the day if somebody was told of it; false if that could not
    /// be stored.
    [[nodiscard]] bool Store(const QList<ReminderRow>& due, std::optional<QDate> toldOn = {}) const;

private:
    QString m_path;
    QString m_toldOn;
    QSet<QString> m_lines;
};

/// How a reminder ended.
struct ReminderAnswer
{
    /// The list that was asked for; empty for none.
    QString list;
    /// The desktop's permission for the window to come to the front; empty for none.
    QString activationToken;
    /// Why nothing could be shown; empty if it was.
    QString failure;
};

/// Shows a notification of rows by org.freedesktop.Notifications, calls `shown` once it is on the
/// screen, and waits until it is answered or closed, for `mostMs` at most. Needs an application
/// object.
[[nodiscard]] ReminderAnswer Remind(QDBusConnection bus, const QList<ReminderRow>& rows, int mostMs,
    const std::function<void()>& shown);

} // namespace Quillory
