// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/fault_run.h"

namespace Quillory {

/// How far a process came that was not meant to live.
struct Doom
{
    /// The steps that were done before it began, and those that it told to be done.
    size_t acknowledged = 0;
    /// As waitpid() gives it.
    int status = 0;
};

/// Starts the program on the scratch folder in a process of its own and does the steps of the
/// script from `firstStep` on until one fails; at its end it kills itself. `doom` is called there,
/// and calls the work.
[[nodiscard]] Doom RunDoomed(const FaultRun& run, const Script& script, size_t firstStep,
    const std::function<void(const std::function<void()>& work)>& doom);

} // namespace Quillory
