// SPDX-License-Identifier: MIT
#include "store/row_warnings.h"

#include <QCoreApplication>
#include <QStringList>

namespace Quillory {

using namespace Qt::StringLiterals;

std::optional<FileTime> ExpiryOf(const ScannedRecord& record, size_t place)
{
    if (record.IsMissing(place))
        return std::nullopt;
    return FileTime { static_cast<quint64>(record.Integer(place)) };
}

RowWarnings WarningsFor(
    qint32 count, std::optional<FileTime> expiry, const InventoryList& list, FileTime today)
{
    return { (list.TableOption & kWarnOnCount) != 0 && count <= list.TableWarnStart,
        (list.TableOption & kWarnOnExpiry) != 0 && expiry && *expiry <= today };
}

QString WarningText(const RowWarnings& warnings)
{
    QStringList words;
    if (warnings.isLow)
        //: Beside the name of a row of which few are left; short.
        words << QCoreApplication::translate("Warnings", "low");
    if (warnings.isExpired)
        //: Beside the name of a row whose expiry date is reached; short.
        words << QCoreApplication::translate("Warnings", "expired");
    return words.join(u", "_s);
}

} // namespace Quillory
