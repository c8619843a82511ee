// SPDX-License-Identifier: MIT
#include "tests/faults/fault_run.h"

namespace Quillory {

void BreakImports(FaultRun& run)
{
    constexpr size_t kRows = 60;
    const Script script = MakeImportScript(run.Seed(), kRows);
    KillThrough(run, script, run.Runs() / 3);
    LetCallsFailThrough(run, script, run.Runs() / 3);
    FillDiskThrough(run, script, run.Runs() - run.CountSoFar());
}

} // namespace Quillory
