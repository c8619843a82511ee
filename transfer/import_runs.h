// SPDX-License-Identifier: MIT
#pragma once

#include "transfer/import_batch.h"

#include <QTemporaryFile>

#include <memory>

namespace Quillory {

/// Batches of a large import that are put aside, each sorted, in a temporary file, and come back as
/// one sequence sorted by row name. So the name index of the list is walked once for the whole
/// file. Rows of one name keep the file's order. Needs some kilobytes of memory a batch, whatever
/// the length of the lines.
class ImportRuns
{
public:
    /// Puts a batch aside and empties it. False, and the batch is as it was, if the temporary file
    /// cannot be made or takes no more.
    [[nodiscard]] bool PutAside(ImportBatch& batch);
    [[nodiscard]] bool IsEmpty() const { return m_runs.empty(); }

    /// Calls back with the fields of each line, by name, until it is told false. False if a line
    /// could not be read back.
    [[nodiscard]] bool Drain(const ImportBatch::Visitor& visit);

private:
    /// Where a batch lies in the file.
    struct Run
    {
        qint64 begin = 0;
        qint64 end = 0;
    };
    class Reader;

    std::unique_ptr<QTemporaryFile> m_file;
    std::vector<Run> m_runs;

    [[nodiscard]] bool Write(ImportBatch& batch);
};

} // namespace Quillory
