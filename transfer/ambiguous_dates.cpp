// SPDX-License-Identifier: MIT
#include "transfer/ambiguous_dates.h"

#include "platform/date_reader.h"
#include "values/column_type.h"

namespace Quillory {

namespace {

/// The locale without forms of its own, which would go before the order.
LocaleProfile InOrder(LocaleProfile locale, DateOrder order)
{
    locale.shortDatePicture.clear();
    locale.longDatePicture.clear();
    locale.dateOrder = order;
    return locale;
}

} // namespace

AmbiguousDates::AmbiguousDates(std::span<const PropertyId> columns, const ValueContext& context)
    : m_context(context)
    , m_dayFirst(InOrder(context.userLocale, DateOrder::DayMonthYear))
    , m_monthFirst(InOrder(context.userLocale, DateOrder::MonthDayYear))
{
    for (size_t i = 0; i < columns.size(); ++i) {
        if (ColumnTypeOf(columns[i]) == ColumnType::Date)
            m_places.push_back(i);
    }
}

void AmbiguousDates::Look(std::span<const QStringView> fields)
{
    if (!m_first.isEmpty())
        return;
    for (const size_t place : m_places) {
        if (place < fields.size() && IsAmbiguous(fields[place])) {
            m_first = fields[place].toString().simplified();
            return;
        }
    }
}

bool AmbiguousDates::IsAmbiguous(QStringView text) const
{
    constexpr int kMonths = 12;
    const auto read = ReadDate(text, m_context.userLocale, m_context.clock);
    return read && read->day() <= kMonths
        && ReadDate(text, m_dayFirst, m_context.clock)
        != ReadDate(text, m_monthFirst, m_context.clock);
}

} // namespace Quillory
