// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/result.h"
#include "propdb/volume.h"

#include <QByteArray>

#include <memory>

struct sqlite3;

namespace Quillory {

struct ConnectionCloser
{
    void operator()(sqlite3* connection) const;
};
using ConnectionHandle = std::unique_ptr<sqlite3, ConnectionCloser>;

/// Sets the size of the page cache that connections have but for long reads in sort order: 16 MB.
constexpr char kUsualCache[] = "PRAGMA cache_size = -16384";

/// Opens a connection to the volume at `path` under the confined VFS, everything dangerous off.
/// An absent file is made when `isNew`.
[[nodiscard]] Result<ConnectionHandle> OpenConnection(
    const QByteArray& path, VolumeAccess access, bool isWritable, bool isNew);

} // namespace Quillory
