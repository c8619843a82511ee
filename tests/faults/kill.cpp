// SPDX-License-Identifier: MIT
#include "tests/faults/doomed_process.h"
#include "tests/faults/system_calls.h"

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

enum class KillMoment
{
    BeforeTheCall,
    /// A write leaves half of its bytes; other calls are done.
    MidCall,
};

/// Ends the process, as the system does when it runs out of memory, at one of its mutating calls;
/// call 0 only counts them.
class Killer : public CallWatcher
{
public:
    Killer(int callNumber, KillMoment moment)
        : m_callNumber(callNumber)
        , m_moment(moment)
    { }

    std::optional<CallFault> BeforeCall(const SystemCall& call) override
    {
        if (!call.IsMutating() || ++m_count != m_callNumber)
            return std::nullopt;
        if (m_moment == KillMoment::BeforeTheCall)
            raise(SIGKILL);
        m_isDue = true;
        if (call.kind == CallKind::Write && call.size > 1)
            return CallFault { 0, call.size / 2, false };
        return std::nullopt;
    }
    void AfterCall(const SystemCall& /*call*/) override
    {
        if (m_isDue)
            raise(SIGKILL);
    }
    [[nodiscard]] int Count() const { return m_count; }

private:
    int m_callNumber;
    KillMoment m_moment;
    int m_count = 0;
    bool m_isDue = false;
};

int CountKillPoints(const FaultRun& run, const Script& script, size_t step)
{
    Killer counter(0, KillMoment::BeforeTheCall);
    const WatchScope watch(run.Folder(), counter);
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None
        || !session.Run(script.steps[step]).isDone)
        qFatal("the workload cannot run");
    return counter.Count();
}

void KillAt(FaultRun& run, const Script& script, size_t step, int callNumber, KillMoment moment)
{
    Killer killer(callNumber, moment);
    const Doom doom = RunDoomed(run, script, step, [&](const auto& work) {
        const WatchScope watch(run.Folder(), killer);
        work();
    });
    run.Count();
    const Files left = run.Taken();
    const QString place = u"step %1, call %2: "_s.arg(step + 1).arg(callNumber);
    if (!WIFSIGNALED(doom.status) || WTERMSIG(doom.status) != SIGKILL)
        run.Blame(place + u"the process ended by itself"_s, left);
    else if (const QString wrong = Judge(run, script, doom.acknowledged); !wrong.isEmpty())
        run.Blame(place + wrong, left);
}

} // namespace

void KillThrough(FaultRun& run, const Script& script, int runs)
{
    ForEachCall(
        run, script, runs, [&](size_t step) { return CountKillPoints(run, script, step); },
        [&](size_t step, const Files& before, int call) {
            for (const KillMoment moment : { KillMoment::BeforeTheCall, KillMoment::MidCall }) {
                run.Place(before);
                KillAt(run, script, step, call, moment);
            }
        });
}

void KillAtEveryCall(FaultRun& run)
{
    OnScripts(run,
        [&run](const Script& script) { KillThrough(run, script, run.Runs() - run.CountSoFar()); });
}

} // namespace Quillory
