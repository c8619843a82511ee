// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"
#include "store/inventory_list.h"
#include "transfer/list_file.h"
#include "values/value_text.h"

#include <QIODevice>

#include <functional>

namespace Quillory {

struct ExportOutcome
{
    /// Rows whose bytes were all taken.
    qint64 rows = 0;
    /// Rows that could not be read and are missing.
    qint64 passedOver = 0;
    /// Why rows are missing; None if none are. Where none were passed over, all behind those that
    /// were written are missing.
    ErrorNumber readError = ErrorNumber::None;
    /// The first failed write, for a person to read; empty if there was none. The rows after it
    /// were still offered.
    QString writeFailure;
    bool isCancelled = false;
};

/// Called now and then with the rows so far; false ends the export.
using ExportMonitor = std::function<bool(qint64 rows)>;

/// Writes the rows of `list`, whose row database is `rows`, as text to `target`: in the order of
/// names, a field for each entry of the list's column order. Entries that name no column are passed
/// over, as if they were not there; a list without a column order gives empty lines.
///
/// A value that the row lacks repeats the field before it. Of a row's values only as many as the
/// column order has entries are looked at, in the order of the columns.
///
/// Holds no more than some rows in memory.
[[nodiscard]] ExportOutcome ExportRows(Database& rows, const InventoryList& list,
    const ValueContext& context, QIODevice& target, const ExportMonitor& monitor = {});

/// The same to a file, which is committed once all was written; where that failed, or the monitor
/// ended it, there is what there was.
[[nodiscard]] ExportOutcome ExportToFile(Database& rows, const InventoryList& list,
    const ValueContext& context, const ListFile& target, const ExportMonitor& monitor = {});

} // namespace Quillory
