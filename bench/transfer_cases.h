// SPDX-License-Identifier: MIT
#pragma once

#include "bench/harness.h"

namespace Quillory {

/// Import and export against bare SQLite binding or reading the same rows.
[[nodiscard]] std::vector<BenchCase> TransferCases();

/// Prints the most memory that an import in a process of its own took.
void PrintImportMemory(const std::vector<int>& sizes);

/// Prints the size of the data file beside that of a plain SQLite file with the same rows.
void PrintFileSize(const std::vector<int>& sizes);

} // namespace Quillory
