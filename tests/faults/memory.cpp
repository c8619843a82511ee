// SPDX-License-Identifier: MIT
#include "tests/faults/believer.h"
#include "tests/faults/fault_run.h"

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Steps that are done while allocations fail.
constexpr size_t kStepsAtOnce = 3;

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
using AllocationCounter = int (*)(const FaultRun& run, const Script& script, size_t step);
/// Looks at what is left and tells what is wrong with it; empty if nothing is.
using Verdict = std::function<QString()>;
/// Does the step, and what comes after it, with an allocation that fails, once or for good.
using Exhauster = Verdict (*)(
    const FaultRun& run, const Script& script, size_t step, const Allocations& failing);

/// Makes allocations fail all over a script, as often as the run says, and blames it for what is
/// wrong then.
void ExhaustAllocations(FaultRun& run, AllocationCounter countIn, Exhauster exhaust)
{
    std::mt19937 random(run.Seed());
    const Script script = MakeScript(run.Seed());
    const std::vector<Files> stages = MakeStages(run, script);
    std::vector<int> counts;
    for (size_t step = 0; step < script.steps.size(); ++step) {
        run.Place(stages[step]);
        counts.push_back(countIn(run, script, step));
    }
    while (run.CountSoFar() < run.Runs()) {
        const size_t step = static_cast<size_t>(run.CountSoFar()) % script.steps.size();
        Allocations failing;
        failing.failing = 1 + static_cast<int>(random() % static_cast<quint32>(counts[step]));
        failing.isForGood = random() % 4 == 0;
        run.Place(stages[step]);
        const Verdict verdict = exhaust(run, script, step, failing);
        run.Count();
        // A look at the files changes them.
        const Files left = run.Taken();
        const QString wrong = verdict();
        if (!wrong.isEmpty())
            run.Blame(u"step %1, allocation %2%3: "_s.arg(step + 1)
                          .arg(failing.failing)
                          .arg(failing.isForGood ? u" and all after it"_s : QString())
                    + wrong,
                left);
    }
}

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
    believer->Run(kStepsAtOnce);
    believer->End();
    TheMemory().allocations = {};
    return
        [believer, isDoubtAllowed = failing.isForGood] { return believer->Judge(isDoubtAllowed); };
}

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

/// What the doomed process ends with if nothing can be written after a step that lacked memory.
constexpr int kIsStuck = 3;

/// What the doomed process does: an acknowledgement for each step that is done.
void DoSteps(const FaultRun& run, const Script& script, size_t firstStep, int acknowledgements)
{
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        return;
    try {
        for (size_t i = firstStep; i < script.steps.size(); ++i) {
            if (!session.Run(script.steps[i]).isDone || write(acknowledgements, "+", 1) != 1)
                return;
        }
    } catch (const std::bad_alloc&) {
        // The window goes on after such a step.
        theHeap = {};
        if (!session.CanWrite())
            _exit(kIsStuck);
        throw;
    }
}

/// Ends as the command line does: what is open is closed while the exception passes by. Where it
/// cannot pass, and where Qt does not survive it, the program dies, which is as if it were killed.
Verdict ExhaustHeapAt(
    const FaultRun& run, const Script& script, size_t step, const Allocations& failing)
{
    std::array<int, 2> ends {};
    if (pipe(ends.data()) != 0)
        qFatal("no pipe");
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        // Nothing is open here but the pipe: it starts as a new process would. What it tells of an
        // exception that could not pass is nobody's concern.
        if (std::freopen("/dev/null", "w", stderr) == nullptr)
            _exit(1);
        theHeap = failing;
        try {
            DoSteps(run, script, step, ends[1]);
        } catch (const std::bad_alloc&) {
            theHeap = {};
        }
        _exit(0);
    }
    close(ends[1]);
    size_t acknowledged = step;
    for (char sign = 0; read(ends[0], &sign, 1) == 1;)
        ++acknowledged;
    close(ends[0]);
    int status = 0;
    waitpid(process, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == kIsStuck)
        return [] { return u"no change can be made any more"_s; };
    return [&run, &script, acknowledged] { return Judge(run, script, acknowledged); };
}

} // namespace

void ExhaustMemory(FaultRun& run)
{
    TakeOverMemory();
    ExhaustAllocations(run, CountAllocations, ExhaustAt);
}

void ExhaustHeap(FaultRun& run)
{
    ExhaustAllocations(run, CountHeapAllocations, ExhaustHeapAt);
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

// Seen through, it would be taken for a mismatch with the operator that allocates.
[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, size_t /*size*/) noexcept
{
    std::free(memory);
}
