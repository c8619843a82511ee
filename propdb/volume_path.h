// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/result.h"

#include <QByteArray>
#include <QString>

namespace Quillory {

/// The real, absolute path of a file that may not exist yet; its folder must. InvalidName for an
/// empty path, one that ends in a slash or holds a NUL; PathNotFound if the folder is missing or
/// the last step is a link to nothing.
[[nodiscard]] Result<QByteArray> ResolveVolumePath(const QString& path);

/// Whether both lead to one file, as far as that can be told.
[[nodiscard]] bool IsSameVolume(const QString& path, const QString& other);
/// Some characters that stand for a real path, fit for a file's name.
[[nodiscard]] QString VolumeKey(const QByteArray& realPath);

/// Whether `path` is where SQLite keeps the journal of the volume at `volume`, or would.
[[nodiscard]] bool IsJournalOf(const QString& path, const QString& volume);

/// Gives the finished volume `from` the name `to` in the same folder and makes that durable. It
/// begins to count its changes at a random number, so that no journal but its own fits it.
/// FileExists if there is one of that name: it is never replaced. A journal that an earlier file of
/// that name has left is put aside under another name.
[[nodiscard]] Result<void> PublishFile(const QByteArray& from, const QByteArray& to);
/// As above, in the place of the file `to`, which is there: whoever opens that name finds one of
/// the two, whole.
[[nodiscard]] Result<void> ReplaceFile(const QByteArray& from, const QByteArray& to);
/// Lets whoever may use the file `from`, and nobody else but its owner, use `to`.
[[nodiscard]] Result<void> TakeModeOf(const QByteArray& from, const QByteArray& to);
/// A name in the folder of `path` for a file that becomes `path` when it is finished.
[[nodiscard]] QByteArray UnfinishedName(const QByteArray& path);

} // namespace Quillory
