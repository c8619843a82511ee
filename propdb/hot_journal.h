// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Quillory {

/// The first page of the volume at `path` as its journal will restore it. Empty unless the journal
/// proves to be a volume's, by the checksum of every page in it, and this very file's (open as
/// `descriptor`): the file holds a whole page of a volume, or a piece of what the journal restores,
/// or nothing but what the journal restores.
///
/// Lets a volume be known whose first page was being written when the power failed.
[[nodiscard]] QByteArray FirstPageFromJournal(const QByteArray& path, int descriptor);

/// False if the journal of the volume at `path` would give the file of so many bytes a size that
/// none of this program's journals does: no page, or more than the file has. Playing it back would
/// cut the file off or blow it up.
[[nodiscard]] bool HasPlausibleJournal(const QByteArray& path, qint64 fileSize);

} // namespace Quillory
