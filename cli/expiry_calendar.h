// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

namespace Quillory {

/// A calendar of days on which rows expire, as RFC 5545 has it: an event for each, of the whole day
/// and without an alarm.
class ExpiryCalendar
{
public:
    /// `now` is when the calendar is made.
    explicit ExpiryCalendar(const QDateTime& now);

    /// `uid` tells the row from every other; events of one calendar that are read in again replace
    /// those of the same.
    void Add(const QString& uid, const QString& list, const QString& row, QDate day);
    /// The whole calendar, in UTF-8, its lines no longer than 75 bytes.
    [[nodiscard]] QByteArray Text() const;

private:
    QString m_stamp;
    QByteArray m_events;
};

} // namespace Quillory
