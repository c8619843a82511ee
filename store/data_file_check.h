// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/volume.h"

#include <QStringList>

namespace Quillory {

/// Reads the whole file. Sound it is if Volume::CheckPages and Check say so, and if it has one
/// catalogue of lists, of which each has a name and rows of its own that can be shown, and no other
/// database but rows that are set aside. What is not so, a line each; empty if all is. A file
/// without any database is sound and has no lists.
[[nodiscard]] Result<QStringList> CheckDataFile(Volume& volume);

} // namespace Quillory
