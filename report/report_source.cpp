// SPDX-License-Identifier: MIT
#include "report/report_source.h"

#include "values/column_type.h"
#include "values/file_date.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <iterator>
#include <optional>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kFactColumns { PropName, PropCount, PropExpiryDate };

/// Keeps the least counts, in order.
void KeepFewest(std::vector<ReportFacts::Count>& fewest, const QString& name, qint32 count)
{
    if (fewest.size() == ReportFacts::kMostCounts && fewest.back().count <= count)
        return;
    const auto place = std::ranges::upper_bound(fewest, count, {}, &ReportFacts::Count::count);
    fewest.insert(place, { name, count });
    if (fewest.size() > ReportFacts::kMostCounts)
        fewest.pop_back();
}

int MonthOf(QDate date)
{
    constexpr int kMonthsInYear = 12;
    return date.year() * kMonthsInYear + date.month();
}

} // namespace

ReportSource::ReportSource(
    DataVolume& volume, Database& rows, const InventoryList& list, const ValueContext& context)
    : m_volume(volume)
    , m_rows(rows)
    , m_list(list)
    , m_context(context)
    , m_columns(ShownColumns(list))
    , m_today(context.clock().date)
{ }

ListTotals ReportSource::Totals() const
{
    return ComputeTotals(m_volume, m_list, nullptr, m_context);
}

ReportFacts ReportSource::Facts() const
{
    ReportFacts facts;
    facts.hasExpiryDates
        = std::ranges::find(m_columns, PropExpiryDate, &ColumnDefinition::id) != m_columns.end();
    const bool warnsOfCount = (m_list.TableOption & kWarnOnCount) != 0;
    PropertyValue name { PropName, 0, {} };
    // Rows that cannot be read are told of when they are written.
    static_cast<void>(
        ScanPastDamage(m_rows, kFactColumns, nullptr, m_context, [&](const ScannedRecord& record) {
            ++facts.rows;
            if (warnsOfCount) {
                record.Read(0, name);
                const auto* text = std::get_if<QString>(&name.value);
                KeepFewest(facts.fewest, text == nullptr ? QString() : *text,
                    static_cast<qint32>(record.Integer(1)));
            }
            const auto expiry = ExpiryOf(record, 2);
            const auto date = expiry ? FileTimeToDate(*expiry) : std::nullopt;
            if (!date)
                return true;
            const int month = MonthOf(*date) - MonthOf(m_today);
            if (*date <= m_today)
                ++facts.expired;
            else if (month < std::ssize(facts.expiring))
                ++facts.expiring.at(static_cast<size_t>(month));
            return true;
        }));
    return facts;
}

Database::VisitOutcome ReportSource::Visit(const std::function<bool(const ReportRow&)>& visit) const
{
    std::vector<PropertyId> ids;
    ReportRow row;
    for (const ColumnDefinition& column : m_columns) {
        ids.push_back(column.id);
        row.values.push_back({ column.id, 0, {} });
    }
    // What decides the warnings, whether it is shown or not.
    const size_t count = ids.size();
    ids.insert(ids.end(), { PropCount, PropExpiryDate });
    const FileTime today = DateToFileTime(m_today).value_or(FileTime {});
    return ScanPastDamage(m_rows, ids, nullptr, m_context, [&](const ScannedRecord& record) {
        for (size_t i = 0; i < row.values.size(); ++i)
            record.Read(i, row.values[i]);
        row.warnings = WarningsFor(
            static_cast<qint32>(record.Integer(count)), ExpiryOf(record, count + 1), m_list, today);
        return visit(row);
    });
}

QString ReportSubtitle(const ReportSource& source, const ReportFacts& facts)
{
    const int count = static_cast<int>(facts.rows);
    const QString rows = QCoreApplication::translate("Report", "%n row(s)", nullptr, count);
    return QLocale::system().toString(source.Today(), QLocale::LongFormat) + u" · "_s + rows;
}

QString ReportTotalsTitle()
{
    return QCoreApplication::translate("Report", "Totals");
}

QString WithoutControls(QString text)
{
    std::ranges::replace_if(
        text,
        [](QChar unit) {
            return unit.category() == QChar::Other_Control && unit != u'\t' && unit != u'\n';
        },
        QChar(u' '));
    return text;
}

QString ReportText(const PropertyValue& value, const ValueContext& context)
{
    if (const auto* isChecked = std::get_if<bool>(&value.value))
        return *isChecked ? u"✓"_s : QString();
    return WithoutControls(FormatCellText(value.IsMissing() ? nullptr : &value, value.id, context));
}

} // namespace Quillory
