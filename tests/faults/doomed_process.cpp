#include "tests/faults/doomed_process.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>

namespace Quillory {

namespace {

void DoSteps(const FaultRun& run, const Script& script, size_t firstStep, int acknowledgements)
{
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        _exit(2);
    for (size_t i = firstStep; i < script.steps.size() && session.Run(script.steps[i]).isDone;
         ++i) {
        if (write(acknowledgements, "+", 1) != 1)
            _exit(3);
    }
    // Without an end, as if it were killed now.
    _exit(4);
}

} // namespace

Doom RunDoomed(const FaultRun& run, const Script& script, size_t firstStep,
    const std::function<void(const std::function<void()>& work)>& doom)
{
    std::array<int, 2> ends {};
    if (pipe(ends.data()) != 0)
        qFatal("no pipe");
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        // Nothing is open here but the pipe: the child starts as a new process would.
        doom([&] { DoSteps(run, script, firstStep, ends[1]); });
        _exit(0);
    }
    close(ends[1]);
    Doom found { firstStep, 0 };
    for (char sign = 0; read(ends[0], &sign, 1) == 1;)
        ++found.acknowledged;
    close(ends[0]);
    waitpid(process, &found.status, 0);
    return found;
}

} // namespace Quillory
