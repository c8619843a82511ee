#include "tests/faults/believer.h"
#include "tests/faults/fault_run.h"

#include <sqlite3.h>

#include <random>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t kScriptLength = 40;
constexpr size_t kStepsAfter = 3;

/// SQLite's memory, of which there can be none from an allocation on.
struct Memory
{
    sqlite3_mem_methods real {};
    int count = 0;
    /// The allocation that fails; 0 for none.
    int failing = 0;
    bool isForGood = false;

    [[nodiscard]] bool IsThereSome()
    {
        ++count;
        return failing == 0 || (isForGood ? count < failing : count != failing);
    }
};

Memory& TheMemory()
{
    static Memory memory;
    return memory;
}

void* Allocate(int size)
{
    return TheMemory().IsThereSome() ? TheMemory().real.xMalloc(size) : nullptr;
}

void* Reallocate(void* memory, int size)
{
    return TheMemory().IsThereSome() ? TheMemory().real.xRealloc(memory, size) : nullptr;
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

void Arm(int failing, bool isForGood)
{
    TheMemory().count = 0;
    TheMemory().failing = failing;
    TheMemory().isForGood = isForGood;
}

int CountAllocations(const FaultRun& run, const Script& script, size_t step)
{
    Arm(0, false);
    Believer believer(run.DataFile(), script, step);
    believer.Run(1);
    return TheMemory().count;
}

void ExhaustAt(FaultRun& run, const Script& script, size_t step, const Files& files, int allocation,
    bool isForGood)
{
    run.Place(files);
    Believer believer(run.DataFile(), script, step);
    Arm(allocation, isForGood);
    believer.Run(kStepsAfter);
    believer.End();
    Arm(0, false);
    run.Count();
    const Files left = run.Taken();
    const QString wrong = isForGood ? believer.JudgeWithDoubt() : believer.Judge();
    if (!wrong.isEmpty())
        run.Blame(u"step %1, allocation %2%3: "_s.arg(step + 1)
                      .arg(allocation)
                      .arg(isForGood ? u" and all after it"_s : QString())
                + wrong,
            left);
}

} // namespace

void ExhaustMemory(FaultRun& run)
{
    TakeOverMemory();
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
        ExhaustAt(run, script, step, stages[step], allocation, random() % 4 == 0);
    }
}

} // namespace Quillory
