#pragma once

#include "bench/harness.h"

namespace Quillory {

/// The rows view, opened and scrolled, against a bare table view over constant texts. They need a
/// QApplication.
[[nodiscard]] std::vector<BenchCase> RowsCases();

/// Prints what a rows view takes of the heap for each row.
void PrintRowMemory(const std::vector<int>& sizes);

} // namespace Quillory
