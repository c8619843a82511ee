// SPDX-License-Identifier: MIT
#include "values/typed_date.h"

#include "platform/date_reader.h"
#include "values/file_date.h"

#include <QRegularExpression>

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

std::optional<QDate> ReadByLocale(const QString& text, const ValueContext& context)
{
    const auto time = ParseDateText(text, context);
    const auto date = time ? FileTimeToDate(*time) : std::nullopt;
    // That is also what a time alone is read as; the day itself needs its four figures.
    static const QRegularExpression year(u"[0-9]{4}"_s);
    if (date == QDate::fromJulianDay(kDayZeroJulian) && !text.contains(year))
        return std::nullopt;
    return date;
}

std::optional<QDate> ReadDayAndMonth(const QString& text, const ValueContext& context)
{
    static const QRegularExpression form(u"^([0-9]{1,2})[-./ ]+([0-9]{1,2})[-./]?$"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString& picture = context.userLocale.shortDatePicture;
    const bool isMonthFirst = picture.indexOf(u'M') < picture.indexOf(u'd');
    int day = match.captured(1).toInt();
    int month = match.captured(2).toInt();
    if (isMonthFirst)
        std::swap(day, month);
    const int year = context.clock().date.year();
    const QDate inOrder(year, month, day);
    const QDate date = inOrder.isValid() ? inOrder : QDate(year, day, month);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

} // namespace

std::optional<QDate> ReadTypedDate(
    const QString& text, const QString& wordForToday, const ValueContext& context)
{
    if (const auto date = ReadByLocale(text, context))
        return date;
    const QString typed = text.trimmed();
    const QDate today = context.clock().date;
    for (const QString& word : { u"today"_s, wordForToday }) {
        if (!word.isEmpty() && typed.compare(word, Qt::CaseInsensitive) == 0)
            return today;
    }
    static const QRegularExpression days(u"^[-+][0-9]{1,5}$"_s);
    if (days.match(typed).hasMatch())
        return today.addDays(typed.toInt());
    return ReadDayAndMonth(typed, context);
}

} // namespace Quillory
