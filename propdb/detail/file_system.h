// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/result.h"

#include <QByteArray>

#include <sys/types.h>

namespace Quillory {

/// The folder of a file at an absolute path.
[[nodiscard]] QByteArray FolderOf(const QByteArray& path);
/// Puts on the medium that the file has its name, or has it no more.
[[nodiscard]] Result<void> SyncFolderOf(const QByteArray& path);
/// Such a name as no file has yet.
[[nodiscard]] QByteArray WithRandomEnd(const QByteArray& name);
/// Who may use the file; its owner always can.
[[nodiscard]] Result<void> SetMode(const QByteArray& path, mode_t mode);

} // namespace Quillory
