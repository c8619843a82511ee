// SPDX-License-Identifier: MIT
#pragma once

#include "bench/harness.h"

namespace Quillory {

/// Listing, walking, reading columns, sorting, filtering, totals and one durable change.
[[nodiscard]] std::vector<BenchCase> StoreCases();

/// Prints how long it takes to bring two copies of a list together in which a row each was counted,
/// from their opening to the exchange of the file.
void PrintMerge(int rows);

} // namespace Quillory
