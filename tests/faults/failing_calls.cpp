// SPDX-License-Identifier: MIT
#include "tests/faults/believer.h"
#include "tests/faults/fault_run.h"
#include "tests/faults/system_calls.h"

#include <sys/stat.h>

#include <cerrno>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Steps that run after the one that the fault is meant for.
constexpr size_t kStepsAfter = 4;

struct Failure
{
    const char* name;
    int errorNumber;
    bool isForGood;
    /// Half of a read or write is done all the same, or the whole of another call.
    bool isHalfDone;
};

constexpr std::array kFailures {
    Failure { "fails once", EIO, false, false },
    Failure { "finds no space once", ENOSPC, false, false },
    Failure { "is half or wholly done and fails once", EIO, false, true },
    Failure { "is cut short once", 0, false, true },
    Failure { "fails for good", EIO, true, false },
    Failure { "finds the disk full", ENOSPC, true, true },
};

/// On a full disk no file can be made, and none can grow.
bool TakesRoom(const SystemCall& call)
{
    struct stat status
    { };
    const bool isThere = stat(call.path.constData(), &status) == 0;
    return call.kind == CallKind::Create
        || (call.kind == CallKind::Write && (!isThere || call.offset + call.size > status.st_size));
}

/// Lets one call fail, or all mutating ones from it on; on a full disk only those that need room.
class Saboteur : public CallWatcher
{
public:
    Saboteur(int callNumber, const Failure& failure)
        : m_callNumber(callNumber)
        , m_failure(failure)
    { }

    std::optional<CallFault> BeforeCall(const SystemCall& call) override
    {
        ++m_count;
        const bool isMeant = m_count == m_callNumber
            || (m_failure.isForGood && m_count > m_callNumber && call.IsMutating());
        const bool isBytes = call.kind == CallKind::Write || call.kind == CallKind::Read;
        const bool isFull = m_failure.errorNumber == ENOSPC;
        // Only a write can run out of space, and only bytes can be half there.
        const bool isPossible
            = (!isFull || (call.IsMutating() && (!m_failure.isForGood || TakesRoom(call))))
            && (m_failure.errorNumber != 0 || isBytes);
        if (!isMeant || !isPossible)
            return std::nullopt;
        m_latest = call;
        const bool isHalf = m_failure.isHalfDone && isBytes && call.size > 1;
        const bool isWhole = m_failure.isHalfDone && !isBytes && call.IsMutating()
            && call.kind != CallKind::Create;
        return CallFault { m_failure.errorNumber, isHalf ? call.size / 2 : 0, isWhole };
    }

    [[nodiscard]] int Count() const { return m_count; }
    /// The last call that was let fail.
    [[nodiscard]] const SystemCall& Latest() const { return m_latest; }

private:
    int m_callNumber;
    const Failure& m_failure;
    int m_count = 0;
    SystemCall m_latest;
};

/// How many calls the steps from `step` on make, the start of the program included.
int CountCalls(FaultRun& run, const Script& script, size_t step)
{
    Saboteur nobody(0, kFailures.front());
    const WatchScope watch(run.Folder(), nobody);
    Believer believer(run.DataFile(), script, step);
    believer.Run(1);
    return nobody.Count();
}

void FailAt(FaultRun& run, const Script& script, size_t step, const Files& files, int call,
    const Failure& failure)
{
    run.Place(files);
    Believer believer(run.DataFile(), script, step);
    Saboteur saboteur(call, failure);
    {
        const WatchScope watch(run.Folder(), saboteur);
        believer.Run(kStepsAfter);
        believer.End();
    }
    run.Count();
    const Files left = run.Taken();
    const QString wrong = believer.Judge(failure.isForGood && failure.errorNumber != ENOSPC);
    if (!wrong.isEmpty())
        run.Blame(u"step %1, call %2 (kind %3) %4: "_s.arg(step + 1)
                      .arg(call)
                      .arg(static_cast<int>(saboteur.Latest().kind))
                      .arg(QLatin1StringView(failure.name))
                + wrong,
            left);
}

} // namespace

void LetCallsFail(FaultRun& run)
{
    OnScripts(run, [&run](const Script& script) {
        const std::vector<Files> stages = MakeStages(run, script);
        for (size_t step = 0; step < script.steps.size(); ++step) {
            run.Place(stages[step]);
            const int calls = CountCalls(run, script, step);
            for (int call = 1; call <= calls && run.CountSoFar() < run.Runs(); ++call) {
                const auto kind = static_cast<size_t>(run.CountSoFar()) % kFailures.size();
                FailAt(run, script, step, stages[step], call, kFailures[kind]);
            }
        }
    });
}

} // namespace Quillory
