// SPDX-License-Identifier: MIT
#pragma once

#include "cli/table_files.h"

namespace Quillory {

/// `export --all`: a file for each list into a folder, and one that tells of them (list_index.h).
/// A list that fails is told of and left out, and the command fails.
void ExportAllLists(const CommandRun& run, TableFormat format);
/// `import --all`: makes each list that such a folder tells of. Nothing is stored unless all files
/// can be read; then each list comes in with its rows or not at all.
void ImportAllLists(const CommandRun& run);

} // namespace Quillory
