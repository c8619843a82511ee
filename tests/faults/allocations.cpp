// SPDX-License-Identifier: MIT
#include "tests/faults/allocations.h"

#include <random>

namespace Quillory {

using namespace Qt::StringLiterals;

void ExhaustAllocations(FaultRun& run, const AllocationCounter& countIn, const Exhauster& exhaust)
{
    std::mt19937 random(run.Seed());
    const Script script = MakeScript(run.Seed());
    const std::vector<Files> stages = MakeStages(run, script);
    std::vector<int> counts;
    for (size_t step = 0; step < script.steps.size(); ++step) {
        run.Place(stages[step]);
        counts.push_back(countIn(script, step));
    }
    while (run.CountSoFar() < run.Runs()) {
        const size_t step = static_cast<size_t>(run.CountSoFar()) % script.steps.size();
        Allocations failing;
        failing.failing = 1 + static_cast<int>(random() % static_cast<quint32>(counts[step]));
        failing.isForGood = random() % 4 == 0;
        run.Place(stages[step]);
        const Verdict verdict = exhaust(script, step, failing);
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

} // namespace Quillory
