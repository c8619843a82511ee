// SPDX-License-Identifier: MIT
#include "cli/expiry_calendar.h"

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDayForm = "yyyyMMdd"_L1;

/// A property and its line's end; what is longer goes on in lines that begin with a blank.
void AppendLine(QByteArray& text, const QString& line)
{
    constexpr qsizetype kMostBytes = 75;
    QByteArray rest = line.toUtf8();
    while (rest.size() > kMostBytes) {
        qsizetype end = kMostBytes;
        // Not within a character.
        while ((static_cast<uchar>(rest[end]) & 0xC0U) == 0x80U)
            --end;
        text += rest.left(end) + "\r\n";
        rest = ' ' + rest.mid(end);
    }
    text += rest + "\r\n";
}

QString Escaped(const QString& text)
{
    QString escaped;
    for (const QChar unit : text) {
        if (unit == u'\\' || unit == u',' || unit == u';')
            escaped += u'\\';
        escaped += unit.category() == QChar::Other_Control ? u' ' : unit;
    }
    return escaped;
}

} // namespace

ExpiryCalendar::ExpiryCalendar(const QDateTime& now)
    : m_stamp(now.toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s))
{ }

void ExpiryCalendar::Add(const QString& uid, const QString& list, const QString& row, QDate day)
{
    AppendLine(m_events, u"BEGIN:VEVENT"_s);
    AppendLine(m_events, u"UID:"_s + uid);
    AppendLine(m_events, u"DTSTAMP:"_s + m_stamp);
    AppendLine(m_events, u"DTSTART;VALUE=DATE:"_s + day.toString(kDayForm));
    AppendLine(m_events, u"DTEND;VALUE=DATE:"_s + day.addDays(1).toString(kDayForm));
    AppendLine(m_events, u"SUMMARY:%1 (%2)"_s.arg(Escaped(row), Escaped(list)));
    AppendLine(m_events, u"CATEGORIES:"_s + Escaped(list));
    AppendLine(m_events, u"TRANSP:TRANSPARENT"_s);
    AppendLine(m_events, u"END:VEVENT"_s);
}

QByteArray ExpiryCalendar::Text() const
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//quillory.org//Quillory " QUILLORY_VERSION
           "//EN\r\nCALSCALE:GREGORIAN\r\n"
        + m_events + "END:VCALENDAR\r\n";
}

} // namespace Quillory
