// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace Quillory {

/// Copies of a data file as it was at the end of earlier runs: a folder per data file, told by a
/// hash of its path, with a text file that names it and the copies.
constexpr int kMostKeptCopies = 9;
/// The copies of a file are kept for so many days after it is first found to be gone.
constexpr int kDaysKeptOfMissing = 90;

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
    /// No list and no row was written since the data file was mounted, or no copies are wanted:
    /// `count` is 0 or no folder is given.
    NotNeeded,
};

/// `quillory/copies` in the user's folder for states of programs.
[[nodiscard]] QString DefaultCopiesFolder();

/// Keeps a copy of the mounted data file at `path` in a folder of its own below `folder`, which is
/// made if it is missing, and removes the oldest beyond `count`. What only changed a list's layout
/// is not worth a copy, unless the file is no longer in its place. Drops the copies of files that
/// have been gone for kDaysKeptOfMissing. Where the system does not tell how much room is left the
/// copy is tried all the same. To be called at the end of a run, outside a transaction; whatever
/// happens, the data file and its mount are untouched. Fails if there is no room, the folder cannot
/// be written, or a page of the file, be it a free one, cannot be read.
[[nodiscard]] Result<KeepOutcome> KeepCopy(
    DataVolume& data, const QString& path, const QString& folder, const QDateTime& now, int count);

/// The copies of the data file at `path`, newest first. The file itself need not exist.
[[nodiscard]] std::vector<KeptCopy> ListKeptCopies(const QString& path, const QString& folder);

/// Writes a kept copy to a new data file. FileExists if there is one.
[[nodiscard]] Result<void> RestoreCopy(const KeptCopy& copy, const QString& target);

} // namespace Quillory
