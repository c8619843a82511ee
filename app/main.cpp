// SPDX-License-Identifier: MIT
#include "app/start_window.h"
#include "cli/command_line.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

/// A file that is opened takes the lowest free number: with a standard stream closed, the data file
/// would become that stream, and what is printed would go into it. So a closed stream is held by a
/// file that fails when it is used.
void HoldStandardStreams()
{
    for (const int stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
        const int unusable = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
        if (fcntl(stream, F_GETFD) == -1 && open("/dev/null", unusable) != stream)
            std::_Exit(EXIT_FAILURE);
    }
}

} // namespace

int main(int argumentCount, char** argumentValues)
{
    HoldStandardStreams();
    QStringList arguments;
    for (int i = 1; i < argumentCount; ++i) {
        // Decoded all the same, such a name would be another file's or list's.
        if (!QUtf8StringView(argumentValues[i]).isValidUtf8()) {
            std::fputs("quillory: an argument is not UTF-8\n", stderr);
            return static_cast<int>(Quillory::ExitCode::WrongUsage);
        }
        arguments << QString::fromUtf8(argumentValues[i]);
    }
    if (const auto call = Quillory::ReadWindowCall(arguments))
        return Quillory::RunWindow(argumentCount, argumentValues, *call);
    return Quillory::RunCommandLine(arguments);
}
