// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/identity.h"
#include "propdb/result.h"

struct sqlite3;

namespace Quillory {

class VolumeFile;

/// Reads the table `history`.
[[nodiscard]] Result<History> ReadHistoryTable(sqlite3* connection);
/// Within a transaction: puts this history in the place of what the table holds.
[[nodiscard]] Result<void> WriteHistoryTable(sqlite3* connection, const History& history);
/// Within a transaction: begins a state, at its first revision, and drops the oldest beyond those
/// that are kept.
[[nodiscard]] Result<void> AddState(sqlite3* connection, StateId state);
/// Within a transaction: the latest state has come to its next revision.
[[nodiscard]] Result<void> AddRevision(sqlite3* connection);

/// The history of a file that was made before files had one: a state that follows from all its
/// pages but the first, which differs in each copy of a file.
[[nodiscard]] Result<History> DerivedHistory(const VolumeFile& file);

} // namespace Quillory
