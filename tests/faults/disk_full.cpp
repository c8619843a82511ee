// SPDX-License-Identifier: MIT
#include "tests/faults/believer.h"
#include "tests/faults/fault_run.h"
#include "tests/faults/system_calls.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Steps that are tried with the space that there is.
constexpr size_t kSteps = 10;
constexpr qint64 kMaxSpace = 200'000;

/// A medium with so many bytes left.
class Quota : public CallWatcher
{
public:
    explicit Quota(qint64 bytesLeft)
        : m_left(bytesLeft)
    { }

    std::optional<CallFault> BeforeCall(const SystemCall& call) override
    {
        struct stat status
        { };
        const bool isThere = stat(call.path.constData(), &status) == 0;
        const qint64 before = isThere ? status.st_size : 0;
        if (call.kind == CallKind::Remove)
            m_left += before;
        if (call.kind == CallKind::Truncate)
            m_left += before - call.size;
        if (call.kind != CallKind::Write)
            return std::nullopt;
        const qint64 growth = std::max(call.offset + call.size - before, qint64 { 0 });
        if (growth <= m_left) {
            m_left -= growth;
            return std::nullopt;
        }
        const qint64 done = std::max(call.size - (growth - m_left), qint64 { 0 });
        m_left = 0;
        return CallFault { ENOSPC, done, false };
    }

private:
    qint64 m_left;
};

} // namespace

void FillDiskThrough(FaultRun& run, const Script& script, int runs)
{
    const std::vector<Files> stages = MakeStages(run, script);
    for (int i = 0; i < runs; ++i) {
        const size_t step = static_cast<size_t>(i) % script.steps.size();
        const qint64 space = kMaxSpace * i / runs;
        run.Place(stages[step]);
        Believer believer(run.DataFile(), script, step);
        Quota quota(space);
        {
            const WatchScope watch(run.Folder(), quota);
            believer.Run(kSteps);
            believer.End();
        }
        run.Count();
        const Files left = run.Taken();
        if (const QString wrong = believer.Judge(); !wrong.isEmpty())
            run.Blame(
                u"%1 bytes of space from step %2 on: "_s.arg(space).arg(step + 1) + wrong, left);
    }
}

void FillDisk(FaultRun& run)
{
    FillDiskThrough(run, MakeScript(run.Seed()), run.Runs());
}

void BreakImports(FaultRun& run)
{
    constexpr size_t kRows = 60;
    const Script script = MakeImportScript(run.Seed(), kRows);
    KillThrough(run, script, run.Runs() / 3);
    LetCallsFailThrough(run, script, run.Runs() / 3);
    FillDiskThrough(run, script, run.Runs() - run.CountSoFar());
}

} // namespace Quillory
