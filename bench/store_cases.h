// SPDX-License-Identifier: MIT
#pragma once

#include "bench/harness.h"

namespace Quillory {

/// Listing, walking, reading columns, sorting, filtering, totals and one durable change.
[[nodiscard]] std::vector<BenchCase> StoreCases();

} // namespace Quillory
