// SPDX-License-Identifier: MIT
#pragma once

#include "store/column_scan.h"
#include "store/inventory_list.h"
#include "store/row_warnings.h"
#include "store/totals.h"

#include <QDate>

#include <array>
#include <functional>
#include <vector>

namespace Quillory {

/// A row as a report shows it.
struct ReportRow
{
    /// A value for each shown column, flagged where the row has none.
    std::vector<PropertyValue> values;
    RowWarnings warnings;
};

/// What the drawings of a report show.
struct ReportFacts
{
    struct Count
    {
        QString name;
        qint32 count = 0;
    };
    static constexpr size_t kMonths = 12;
    static constexpr size_t kMostCounts = 15;

    qint64 rows = 0;
    bool hasExpiryDates = false;
    /// Rows whose expiry date is reached.
    qint64 expired = 0;
    /// Those that expire in this month and in each that follows.
    std::array<qint64, kMonths> expiring {};
    /// The rows of which fewest are left, from the least on; none unless the list warns of counts.
    std::vector<Count> fewest;
};

/// The open list, for a report.
class ReportSource
{
public:
    /// All of these outlive the source.
    ReportSource(
        DataVolume& volume, Database& rows, const InventoryList& list, const ValueContext& context);

    [[nodiscard]] const InventoryList& List() const { return m_list; }
    [[nodiscard]] const std::vector<ColumnDefinition>& Columns() const { return m_columns; }
    [[nodiscard]] const ValueContext& Context() const { return m_context; }
    [[nodiscard]] QDate Today() const { return m_today; }
    [[nodiscard]] ListTotals Totals() const;
    /// Reads all rows.
    [[nodiscard]] ReportFacts Facts() const;
    /// Visits all rows that can be read, in the order of names, until `visit` gives false.
    [[nodiscard]] Database::VisitOutcome Visit(
        const std::function<bool(const ReportRow&)>& visit) const;

private:
    DataVolume& m_volume;
    Database& m_rows;
    const InventoryList& m_list;
    const ValueContext& m_context;
    std::vector<ColumnDefinition> m_columns;
    QDate m_today;
};

/// What stands below the title: the day, and how many rows there are.
[[nodiscard]] QString ReportSubtitle(const ReportSource& source, const ReportFacts& facts);
[[nodiscard]] QString ReportTotalsTitle();
/// The text with blanks in place of control characters, which no page can show, but for TAB and
/// line feeds.
[[nodiscard]] QString WithoutControls(QString text);
/// The text of a value in a report: as in a cell, a mark for a tick.
[[nodiscard]] QString ReportText(const PropertyValue& value, const ValueContext& context);

/// Takes one list after another.
class ReportWriter
{
public:
    ReportWriter() = default;
    virtual ~ReportWriter() = default;
    ReportWriter(const ReportWriter&) = delete;
    ReportWriter& operator=(const ReportWriter&) = delete;

    /// Why rows are missing, as Visit() tells.
    [[nodiscard]] virtual Database::VisitOutcome Add(const ReportSource& list) = 0;
    virtual void End() = 0;
};

} // namespace Quillory
