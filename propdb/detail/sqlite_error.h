// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/error_number.h"

struct sqlite3;

namespace Quillory {

/// The number for an extended result code of SQLite. `connection` tells the system's own reason
/// where there is one; it may be null.
[[nodiscard]] ErrorNumber ErrorFromSqlite(int code, sqlite3* connection);

} // namespace Quillory
