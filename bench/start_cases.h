// SPDX-License-Identifier: MIT
#pragma once

#include "bench/harness.h"

namespace Quillory {

/// The home list of 10,000 lists, whatever the number of rows asked for.
[[nodiscard]] std::vector<BenchCase> HomeCases();

/// Starts the program's window with 50 lists, and a bare one, in processes of their own, and prints
/// the time to the first painted lists and the resident memory of both.
void PrintStart(int repeat);

} // namespace Quillory
