// SPDX-License-Identifier: MIT
#include "cli/command_run.h"

#include <sys/wait.h>

#include <array>
#include <cstdio>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Runs systemctl on the timer that is installed with the program. What it printed goes to
/// `printed`; what it has to say of errors it tells itself.
bool ControlTimer(const QString& what, QByteArray* printed = nullptr)
{
    FILE* pipe
        = popen(qPrintable(u"systemctl --user %1 quillory-reminders.timer"_s.arg(what)), "r");
    if (pipe == nullptr)
        Fail(u"reminders need systemctl, which cannot be started"_s);
    std::array<char, 64> output {};
    const size_t length = fread(output.data(), 1, output.size(), pipe);
    if (printed != nullptr)
        *printed = QByteArray(output.data(), static_cast<qsizetype>(length)).trimmed();
    const int status = pclose(pipe);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

void RunReminders(const CommandRun& run)
{
    const QString word = run.operands.value(0);
    if (word.isEmpty()) {
        QByteArray state;
        static_cast<void>(ControlTimer(u"is-enabled 2>&1"_s, &state));
        return run.output.WriteLine(state == "enabled" ? u"on"_s : u"off"_s);
    }
    if (word != u"on" && word != u"off")
        FailUsage(u"reminders are turned “on” or “off”, not “%1”"_s.arg(word));
    if (!ControlTimer(word == u"on" ? u"enable --now --quiet"_s : u"disable --now --quiet"_s))
        Fail(u"reminders cannot be turned %1"_s.arg(word));
}

} // namespace Quillory
