// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/result.h"

#include <QString>

#include <vector>

namespace Quillory {

class VolumeState;

/// Reads every page of the file through its checksum, also those that wait to be used again. What
/// is wrong, a line each; empty if nothing is.
[[nodiscard]] Result<std::vector<QString>> CheckPages(const VolumeState& volume);
/// Has SQLite look whether the pages in use fit together, and looks at each value whether a
/// property can have it.
[[nodiscard]] Result<std::vector<QString>> CheckVolume(VolumeState& volume);

} // namespace Quillory
