// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/fault_run.h"

#include <functional>

namespace Quillory {

/// Allocations of one kind of memory, of which there can be none from one of them on.
struct Allocations
{
    int count = 0;
    /// The allocation that fails; 0 for none.
    int failing = 0;
    bool isForGood = false;

    /// Counts an allocation; whether it may succeed.
    [[nodiscard]] bool IsThereSome()
    {
        ++count;
        return failing == 0 || (isForGood ? count < failing : count != failing);
    }
};

/// The scratch folder holds the files before a step: how many allocations the step makes.
using AllocationCounter = std::function<int(const Script& script, size_t step)>;
/// Looks at what is left and tells what is wrong with it; empty if nothing is.
using Verdict = std::function<QString()>;
/// Does the step, and what comes after it, with an allocation that fails, once or for good.
using Exhauster
    = std::function<Verdict(const Script& script, size_t step, const Allocations& failing)>;

/// Makes allocations fail all over a script, as often as the run says, and blames it for what is
/// wrong then.
void ExhaustAllocations(FaultRun& run, const AllocationCounter& countIn, const Exhauster& exhaust);

} // namespace Quillory
