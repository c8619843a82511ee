// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace Quillory {

/// Copies of a data file as it was at the end of earlier runs lie in a folder per data file, told
/// by a hash of its path, with a text file that names it. Older ones than asked for are kept while
/// all of them are no larger than this, in bytes: what another device has changed can be told from
/// its own file and the copy that both come from.
constexpr qint64 kRoomForOlderCopies = 32 << 20;
/// So many more can be held back as those that other devices' files come from.
constexpr int kMostHeldCopies = 4;
/// There are no more of one file: as many as its history names, and those.
constexpr int kMostCopies = static_cast<int>(History::kMostStates) + kMostHeldCopies;
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
/// made if it is missing, and removes the oldest beyond `count` that are beyond
/// kRoomForOlderCopies, or more than a history can name; where room is short, all beyond `count`.
/// What only changed a list's layout is not worth a copy, unless the file is no longer in its
/// place. Drops the copies of files that have been gone for kDaysKeptOfMissing. Where the system
/// does not tell how much room is left the copy is tried all the same. To be called at the end of a
/// run, outside a transaction; whatever happens, the data file and its mount are untouched. Fails
/// if there is no room, the folder cannot be written, or a page of the file, be it a free one,
/// cannot be read.
[[nodiscard]] Result<KeepOutcome> KeepCopy(
    DataVolume& data, const QString& path, const QString& folder, const QDateTime& now, int count);

/// Keeps a copy of `volume`, which is the data file at `path` or another device's, and holds it
/// back from removal with the others that other devices have seen, until four newer ones are; where
/// `count` is 0 none is kept or held. NotNeeded, and that one held back, if there is a copy of the
/// same contents. The failures of KeepCopy().
[[nodiscard]] Result<KeepOutcome> KeepShared(
    Volume& volume, const QString& path, const QString& folder, const QDateTime& now, int count);
/// As KeepShared(), before the first change of the data file by a run: for contents that this
/// device has not left itself, which other devices' changes therefore may begin from, and for a
/// file of an older version. NotNeeded for contents that there is a copy of, and for a new file. To
/// be called by a FirstChangeListener of whoever opens the data file to write it.
[[nodiscard]] Result<KeepOutcome> KeepFound(
    Volume& volume, const QString& path, const QString& folder, const QDateTime& now, int count);

/// Where the contents of a copy come from; nothing if it cannot be opened.
[[nodiscard]] std::optional<History> HistoryOf(const KeptCopy& copy);
/// The copy of the data file at `path` that is the newest state from which both histories come:
/// what the changes of two devices are told by. Nothing if there is none. Whoever brings the two
/// together, or only compares them, holds it back by HoldBack(), for it will be asked for again.
[[nodiscard]] std::optional<KeptCopy> FindBase(
    const QString& path, const QString& folder, const History& mine, const History& theirs);
/// Keeps a copy from being removed for newer ones, until four others are held back after it.
void HoldBack(const KeptCopy& copy);

/// The copies of the data file at `path`, newest first. The file itself need not exist.
[[nodiscard]] std::vector<KeptCopy> ListKeptCopies(const QString& path, const QString& folder);

/// Writes a kept copy to a new data file. FileExists if there is one.
[[nodiscard]] Result<void> RestoreCopy(const KeptCopy& copy, const QString& target);

} // namespace Quillory
