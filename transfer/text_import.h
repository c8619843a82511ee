// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"
#include "transfer/import_batch.h"
#include "values/value_text.h"

#include <QIODevice>

#include <functional>
#include <span>

namespace Quillory {

enum class ImportResult
{
    Done,
    /// The file could not be read to its end, or has nothing behind its byte-order mark, or a line
    /// was longer than the import takes. The other lines are in.
    Failed,
    Cancelled,
};

struct ImportOutcome
{
    ImportResult result = ImportResult::Done;
    /// Rows that are in the list now, or that would be; those of a batch that could not be stored
    /// are not among them.
    qint64 rows = 0;
    /// Lines that were read, those included that give no row.
    qint64 lines = 0;
    /// The text ends with characters that no end of a line follows; they are in no row.
    bool isLastLineOpen = false;
    /// A date, as it stands in the file, that was read by the locale's order of day and month and
    /// is another day in the other order; empty if there was none.
    QString ambiguousDate;
    /// Why storing ended early, such as DiskFull; None if it did not. A single row that the store
    /// does not take is passed over and is no such failure.
    ErrorNumber writeError = ErrorNumber::None;
};

struct ImportProgress
{
    qint64 bytesRead = 0;
    /// 0 where it is not known, as of a pipe.
    qint64 bytesTotal = 0;
    /// Lines that were read; rows catch up with them batch by batch.
    qint64 lines = 0;
    /// Rows that are stored.
    qint64 rows = 0;
};
/// Called now and then; false ends the import, and the rows of the batches that were stored stay.
using ImportMonitor = std::function<bool(const ImportProgress& progress)>;

/// Adds a row to the open row database for each line of `source`, as ImportFieldReader cuts it:
/// `columns` says which column each field fills. A line that gives no value at all gives no row.
///
/// Rows are stored as the file is read, in batches of one transaction each, durable when a batch
/// ends; a batch is sorted by name. What was read before a failed read is stored. No transaction
/// may be open. Memory use does not grow with the file.
[[nodiscard]] ImportOutcome ImportRows(DataVolume& volume, std::span<const PropertyId> columns,
    const ValueContext& context, QIODevice& source, const ImportMonitor& monitor = {},
    const ImportBatchLimits& limits = {});

/// Counts the rows that ImportRows would add and stores nothing.
[[nodiscard]] ImportOutcome CountImportRows(
    std::span<const PropertyId> columns, const ValueContext& context, QIODevice& source);

} // namespace Quillory
