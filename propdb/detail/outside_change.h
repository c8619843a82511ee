// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Quillory {

/// Whether the file is whole but for its checksums, as another program leaves it that writes into
/// it by SQLite: such a program writes the first page with each change. The file must not be
/// mounted in this process.
[[nodiscard]] bool WasChangedOutside(const QByteArray& path);

} // namespace Quillory
