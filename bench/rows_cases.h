// SPDX-License-Identifier: MIT
#pragma once

#include "bench/harness.h"

namespace Quillory {

/// The rows view, opened and scrolled, against a bare table view over constant texts. They need a
/// QApplication.
[[nodiscard]] std::vector<BenchCase> RowsCases();

/// Prints what a rows view takes of the heap for each row, if it is among the cases asked for.
void PrintRowMemory(const BenchOptions& options);

} // namespace Quillory
