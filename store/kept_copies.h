// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace Quillory {

/// Copies of a data file as it was at the end of earlier runs: a folder per data file, told by a
/// hash of its path, with a text file that names it and at most kKeptCopies copies.
constexpr size_t kKeptCopies = 3;

struct KeptCopy
{
    QString path;
    /// When the copy was made, in UTC; later than that where the clock was ahead for a copy before.
    QDateTime time;
    qint64 bytes = 0;
};

enum class KeepOutcome
{
    Kept,
    /// Nothing was written since the data file was mounted.
    Unchanged,
    /// No copy was made: there is no room, the folder cannot be written, or no folder is given.
    NotKept,
};

/// `quillory/copies` in the user's folder for states of programs.
[[nodiscard]] QString DefaultCopiesFolder();

/// Keeps a copy of the mounted data file at `path` in a folder of its own below `folder`, which is
/// made if it is missing, and removes the oldest copies beyond kKeptCopies. Where the system does
/// not tell how much room is left the copy is tried all the same. To be called at the end of a run,
/// outside a transaction; whatever happens, the data file and its mount are untouched.
KeepOutcome KeepCopy(
    DataVolume& data, const QString& path, const QString& folder, const QDateTime& now);

/// The copies of the data file at `path`, newest first. The file itself need not exist.
[[nodiscard]] std::vector<KeptCopy> ListKeptCopies(const QString& path, const QString& folder);

/// Writes a kept copy to a new data file. FileExists if there is one.
[[nodiscard]] Result<void> RestoreCopy(const KeptCopy& copy, const QString& target);

} // namespace Quillory
