// SPDX-License-Identifier: MIT
#include "cli/due_rows.h"

#include "store/column_scan.h"
#include "store/row_warnings.h"
#include "values/column_type.h"
#include "values/file_date.h"

#include <array>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kDueColumns { PropName, PropCount, PropExpiryDate };

} // namespace

void VisitDueRows(const CommandRun& run, CommandData& data, QDate last, const DueVisitor& visit)
{
    const InventoryList& list = data.list;
    if ((list.TableOption & (kWarnOnCount | kWarnOnExpiry)) == 0)
        return;
    // To the tick, as the rows view colours them.
    const FileTime today
        = DateToFileTime(run.environment.context.clock().date).value_or(FileTime {});
    const FileTime limit = DateToFileTime(last).value_or(FileTime {});
    PropertyValue name { PropName, 0, {} };
    FailIfRowsAreMissing(ScanPastDamage(data.Rows(), kDueColumns, nullptr, run.environment.context,
        [&](const ScannedRecord& record) {
            record.Read(0, name);
            const auto* text = std::get_if<QString>(&name.value);
            // A row without a count counts as 0, as its colour in the rows view says.
            DueRow row { list.Name, text == nullptr ? QString() : *text, DueState::Low,
                static_cast<qint32>(record.Integer(1)), std::nullopt };
            const std::optional<FileTime> expiry = ExpiryOf(record, 2);
            if (WarningsFor(row.count, expiry, list, today).isLow)
                visit(row);
            if (WarningsFor(row.count, expiry, list, limit).isExpired) {
                row.expiry = expiry;
                row.state = *expiry <= today ? DueState::Expired : DueState::Expiring;
                visit(row);
            }
            return !run.output.HasFailed();
        }));
}

QString StateName(DueState state)
{
    switch (state) {
    case DueState::Low:
        return u"low"_s;
    case DueState::Expired:
        return u"expired"_s;
    case DueState::Expiring:
        break;
    }
    return u"expiring"_s;
}

} // namespace Quillory
