#include "tests/faults/doomed_process.h"

#include <cstdio>
#include <cstdlib>
#include <new>
#include <random>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t kScriptLength = 40;
/// Steps among whose allocations the failing one is.
constexpr size_t kSteps = 3;

/// What `operator new` has, of which there can be nothing from an allocation on.
struct Heap
{
    int count = 0;
    /// The allocation that fails; 0 for none.
    int failing = 0;
    bool isForGood = false;
};
Heap theHeap;

int CountAllocations(const FaultRun& run, const Script& script, size_t step)
{
    theHeap = {};
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        qFatal("the workload cannot start");
    for (size_t i = step; i < std::min(step + kSteps, script.steps.size()); ++i) {
        if (!session.Run(script.steps[i]).isDone)
            qFatal("the workload cannot run");
    }
    return theHeap.count;
}

/// Ends as the command line does: what is open is closed while the exception passes by. Where it
/// cannot pass, and where Qt does not survive it, the program dies, which is as if it were killed.
void ExhaustAt(FaultRun& run, const Script& script, size_t step, int allocation, bool isForGood)
{
    const Doom doom = RunDoomed(run, script, step, [&](const auto& work) {
        // Where it is told that the exception could not pass.
        if (std::freopen("/dev/null", "w", stderr) == nullptr)
            return;
        theHeap = { 0, allocation, isForGood };
        try {
            work();
        } catch (const std::bad_alloc&) {
            theHeap = {};
        }
    });
    run.Count();
    const Files left = run.Taken();
    const QString wrong = Judge(run, script, doom.acknowledged);
    if (!wrong.isEmpty())
        run.Blame(u"step %1, allocation %2%3: "_s.arg(step + 1)
                      .arg(allocation)
                      .arg(isForGood ? u" and all after it"_s : QString())
                + wrong,
            left);
}

} // namespace

void ExhaustHeap(FaultRun& run)
{
    std::mt19937 random(run.Seed());
    const Script script = MakeScript(run.Seed(), kScriptLength);
    const std::vector<Files> stages = MakeStages(run, script);
    std::vector<int> counts;
    for (size_t step = 0; step < script.steps.size(); ++step) {
        run.Place(stages[step]);
        counts.push_back(CountAllocations(run, script, step));
    }
    while (run.CountSoFar() < run.Runs()) {
        const size_t step = static_cast<size_t>(run.CountSoFar()) % script.steps.size();
        const int allocation = 1 + static_cast<int>(random() % static_cast<quint32>(counts[step]));
        run.Place(stages[step]);
        ExhaustAt(run, script, step, allocation, random() % 4 == 0);
    }
}

} // namespace Quillory

// In place of those of the C++ library, for this program and all that it is linked with.

void* operator new(size_t size)
{
    using Quillory::theHeap;
    ++theHeap.count;
    const bool isFailing = theHeap.failing != 0
        && (theHeap.isForGood ? theHeap.count >= theHeap.failing
                              : theHeap.count == theHeap.failing);
    void* memory = isFailing ? nullptr : std::malloc(size == 0 ? 1 : size);
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
