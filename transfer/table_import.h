// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"
#include "store/inventory_list.h"

#include <QIODevice>

#include <optional>
#include <vector>

namespace Quillory {

struct TableImportRules
{
    /// What parts fields; where it is null, whichever of comma, semicolon and TAB makes names of
    /// columns of the first line.
    QChar separator;
    /// Rows with the value that a line has in this column are changed by it; without one, or
    /// without such a row, it adds one.
    std::optional<PropertyId> match;
    /// Nothing is stored; without a column to match the list need not be there.
    bool isDryRun = false;
};

/// What keeps a table from being imported, for a person to read.
struct TableFault
{
    /// 0 where it is the whole file's.
    qint64 line = 1;
    /// Empty where it is the whole line's.
    QString column;
    QString what;
};

struct TableImportOutcome
{
    qint64 added = 0;
    qint64 updated = 0;
    /// The first of them.
    std::vector<TableFault> faults;
    qint64 faultCount = 0;
    /// Why storing, or reading the rows to match, failed; None if it did not.
    ErrorNumber error = ErrorNumber::None;

    [[nodiscard]] bool IsDone() const { return faultCount == 0 && error == ErrorNumber::None; }
};

/// Brings the rows of a table (separated_text.h), of values as programs exchange them
/// (exchange_text.h), into the open row database of `list`: all of them in one transaction, or
/// none. `source` gives UTF-16 as SeparatedReader takes it.
///
/// The first line names columns of the list, in any order; a name that several columns have stands
/// for one after another of them. A field without text is no value: it adds none, and takes one
/// from the row that it changes. Columns that the first line does not name keep theirs.
[[nodiscard]] TableImportOutcome ImportTable(DataVolume& volume, const InventoryList& list,
    const TableImportRules& rules, QIODevice& source);

} // namespace Quillory
