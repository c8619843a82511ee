#include "tests/faults/fault_run.h"
#include "tests/faults/system_calls.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t kScriptLength = 40;
constexpr int kPointsPerScript = 1500;

class CallCounter : public CallWatcher
{
public:
    std::optional<CallFault> BeforeCall(const SystemCall& call) override
    {
        m_count += call.IsMutating() ? 1 : 0;
        return std::nullopt;
    }
    [[nodiscard]] int Count() const { return m_count; }

private:
    int m_count = 0;
};

enum class KillMoment
{
    BeforeTheCall,
    /// A write leaves half of its bytes; other calls are done.
    MidCall,
};

/// Ends the process, as the system does when it runs out of memory, at one of its mutating calls.
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
            return CallFault { 0, call.size / 2 };
        return std::nullopt;
    }
    void AfterCall(const SystemCall& /*call*/) override
    {
        if (m_isDue)
            raise(SIGKILL);
    }

private:
    int m_callNumber;
    KillMoment m_moment;
    int m_count = 0;
    bool m_isDue = false;
};

/// Runs the script in a process of its own until it is killed, and gives the number of steps that
/// it acknowledged. `status` is how it ended.
size_t RunUntilKilled(const FaultRun& run, const Script& script, Killer& killer, int& status)
{
    std::array<int, 2> ends {};
    if (pipe(ends.data()) != 0)
        qFatal("no pipe");
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        // Nothing is open here but the pipe: the child starts as a new process would.
        const WatchScope watch(run.Folder(), killer);
        Session session;
        if (session.Start(run.DataFile()) == ErrorNumber::None)
            RunScript(session, script, [&](size_t) {
                if (write(ends[1], "+", 1) != 1)
                    _exit(3);
            });
        _exit(2);
    }
    close(ends[1]);
    size_t acknowledged = 0;
    for (char sign = 0; read(ends[0], &sign, 1) == 1;)
        ++acknowledged;
    close(ends[0]);
    waitpid(process, &status, 0);
    return acknowledged;
}

int CountCalls(const FaultRun& run, const Script& script)
{
    run.Clear();
    CallCounter counter;
    const WatchScope watch(run.Folder(), counter);
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        qFatal("the workload cannot start");
    RunScript(session, script, [](size_t) {});
    return counter.Count();
}

void KillAt(FaultRun& run, const Script& script, int callNumber, KillMoment moment)
{
    run.Clear();
    Killer killer(callNumber, moment);
    int status = 0;
    const size_t acknowledged = RunUntilKilled(run, script, killer, status);
    run.Count();
    const Files left = run.Taken();
    if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL)
        run.Blame(u"call %1: the process ended by itself"_s.arg(callNumber), left);
    else if (const QString wrong = Judge(run, script, acknowledged); !wrong.isEmpty())
        run.Blame(u"killed at call %1: %2"_s.arg(callNumber).arg(wrong), left);
}

/// Kills at calls spread over the whole script, each one before and amid it.
void KillThroughScript(FaultRun& run, const Script& script, int points)
{
    const int calls = CountCalls(run, script);
    for (int i = 0; i < points; ++i) {
        const int callNumber = 1 + static_cast<int>(qint64 { calls } * i / points);
        KillAt(
            run, script, callNumber, i % 2 == 0 ? KillMoment::BeforeTheCall : KillMoment::MidCall);
    }
}

} // namespace

void KillAtEveryCall(FaultRun& run)
{
    for (quint32 round = 0; run.CountSoFar() < run.Runs(); ++round)
        KillThroughScript(run, MakeScript(run.Seed() + round, kScriptLength),
            std::min(kPointsPerScript, run.Runs() - run.CountSoFar()));
}

} // namespace Quillory
