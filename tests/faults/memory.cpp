// SPDX-License-Identifier: MIT
#include "tests/faults/allocations.h"
#include "tests/faults/believer.h"

#include <sqlite3.h>

#include <memory>

namespace Quillory {

namespace {

constexpr size_t kStepsAfterwards = 3;

/// SQLite's memory.
struct Memory
{
    sqlite3_mem_methods real {};
    Allocations allocations;
};

Memory& TheMemory()
{
    static Memory memory;
    return memory;
}

void* Allocate(int size)
{
    return TheMemory().allocations.IsThereSome() ? TheMemory().real.xMalloc(size) : nullptr;
}

void* Reallocate(void* memory, int size)
{
    return TheMemory().allocations.IsThereSome() ? TheMemory().real.xRealloc(memory, size)
                                                 : nullptr;
}

/// Before SQLite is used for the first time.
void TakeOverMemory()
{
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &TheMemory().real);
    sqlite3_mem_methods methods = TheMemory().real;
    methods.xMalloc = Allocate;
    methods.xRealloc = Reallocate;
    if (sqlite3_config(SQLITE_CONFIG_MALLOC, &methods) != SQLITE_OK)
        qFatal("SQLite keeps its own memory");
}

int CountAllocations(const FaultRun& run, const Script& script, size_t step)
{
    TheMemory().allocations = {};
    Believer believer(run.DataFile(), script, step);
    believer.Run(1);
    return TheMemory().allocations.count;
}

Verdict ExhaustAt(
    const FaultRun& run, const Script& script, size_t step, const Allocations& failing)
{
    const auto believer = std::make_shared<Believer>(run.DataFile(), script, step);
    TheMemory().allocations = failing;
    believer->Run(kStepsAfterwards);
    believer->End();
    TheMemory().allocations = {};
    return
        [believer, isDoubtAllowed = failing.isForGood] { return believer->Judge(isDoubtAllowed); };
}

} // namespace

void ExhaustMemory(FaultRun& run)
{
    TakeOverMemory();
    ExhaustAllocations(
        run,
        [&run](const Script& script, size_t step) { return CountAllocations(run, script, step); },
        [&run](const Script& script, size_t step, const Allocations& failing) {
            return ExhaustAt(run, script, step, failing);
        });
}

} // namespace Quillory
