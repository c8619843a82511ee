// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/fault_run.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>

namespace Quillory {

/// How far a process came that was not meant to live.
struct Doom
{
    /// The steps that were done before it began, and those that it told to be done.
    size_t acknowledged = 0;
    /// As waitpid() gives it.
    int status = 0;
};

/// What the doomed process does: an acknowledgement for each step, and its own end.
inline void DoSteps(
    const FaultRun& run, const Script& script, size_t firstStep, int acknowledgements)
{
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        _exit(2);
    for (size_t i = firstStep; i < script.steps.size(); ++i) {
        if (!session.Run(script.steps[i]).isDone)
            _exit(3);
        if (write(acknowledgements, "+", 1) != 1)
            _exit(4);
    }
    // The random numbers of lists decide how many calls it takes to store them: it may come to the
    // end of the script before the call that was to be its last.
    raise(SIGKILL);
}

/// Starts the program on the scratch folder in a process of its own and does the steps of the
/// script from `firstStep` on until one fails; at its end it kills itself. `doom` is called there,
/// and calls the work.
[[nodiscard]] inline Doom RunDoomed(const FaultRun& run, const Script& script, size_t firstStep,
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
