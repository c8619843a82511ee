// SPDX-License-Identifier: MIT
#include "tests/faults/allocations.h"
#include "tests/faults/doomed_process.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace Quillory {

namespace {

/// Steps among whose allocations the failing one is.
constexpr size_t kStepsAtOnce = 3;

/// Those of `operator new`.
Allocations theHeap;

int CountHeapAllocations(const FaultRun& run, const Script& script, size_t step)
{
    theHeap = {};
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        qFatal("the workload cannot start");
    for (size_t i = step; i < std::min(step + kStepsAtOnce, script.steps.size()); ++i) {
        if (!session.Run(script.steps[i]).isDone)
            qFatal("the workload cannot run");
    }
    return theHeap.count;
}

/// Ends as the command line does: what is open is closed while the exception passes by. Where it
/// cannot pass, and where Qt does not survive it, the program dies, which is as if it were killed.
Verdict ExhaustHeapAt(
    const FaultRun& run, const Script& script, size_t step, const Allocations& failing)
{
    const Doom doom = RunDoomed(run, script, step, [&](const auto& work) {
        // Where it is told that the exception could not pass.
        if (std::freopen("/dev/null", "w", stderr) == nullptr)
            return;
        theHeap = failing;
        try {
            work();
        } catch (const std::bad_alloc&) {
            theHeap = {};
        }
    });
    return [&run, &script, acknowledged = doom.acknowledged] {
        return Judge(run, script, acknowledged);
    };
}

} // namespace

void ExhaustHeap(FaultRun& run)
{
    ExhaustAllocations(
        run,
        [&run](
            const Script& script, size_t step) { return CountHeapAllocations(run, script, step); },
        [&run](const Script& script, size_t step, const Allocations& failing) {
            return ExhaustHeapAt(run, script, step, failing);
        });
}

} // namespace Quillory

// In place of those of the C++ library, for this program and all that it is linked with.

void* operator new(size_t size)
{
    const bool isThereSome = Quillory::theHeap.IsThereSome();
    void* memory = isThereSome ? std::malloc(size == 0 ? 1 : size) : nullptr;
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void* operator new(size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, size_t /*size*/) noexcept
{
    std::free(memory);
}
