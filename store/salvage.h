// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/result.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Quillory {

/// What was, or would be, saved of a damaged data file.
struct SalvageReport
{
    struct List
    {
        /// The name of its row database where the list's own is lost.
        QString name;
        qint64 rows = 0;
        /// Rows that are known to be lost. More may be where isComplete is false.
        qint64 lostRows = 0;
        bool isComplete = true;
    };
    /// Lists that are saved, with all their columns that are still known. A column of names that is
    /// lost is there and empty.
    std::vector<List> lists;
    /// The names of lists of which nothing else is left.
    QStringList lostLists;
    /// Lists may have been lost without a trace.
    bool mayListsBeLost = false;
    /// Another program had written into the file; what it held was taken as it stood.
    bool wasChangedOutside = false;
    /// Pages in which one bit had turned, and was turned back.
    qint64 mendedPages = 0;
};

/// Tells what SalvageLists would save; writes nothing. The failures of DamagedVolume::Open.
[[nodiscard]] Result<SalvageReport> ExamineLists(const QString& damaged);

/// Saves what can be read of the data file `damaged`, which is never written but by its own
/// journal, into a new data file of the same mode at `target`. FileExists if there is one,
/// FileCorrupt if nothing can be saved; on any failure there is none afterwards. `damaged` must not
/// be mounted in this process.
[[nodiscard]] Result<SalvageReport> SalvageLists(const QString& damaged, const QString& target);

} // namespace Quillory
