// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QIODevice>
#include <QStringList>

#include <functional>

namespace Quillory {

/// Exit codes of the command line; scripts rely on them.
enum class ExitCode
{
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
};

/// What a command reads, writes and depends on; replaced in tests.
struct CommandEnvironment
{
    QIODevice& input;
    QIODevice& output;
    QIODevice& errors;
    ValueContext context;
    /// The data file where none is named; empty if none is set.
    QString dataFile;
    /// Where copies of data files are kept; empty if none are.
    QString copiesFolder;
    int keptCopies = 3;
};

/// Whether the configured data file has a list of this name.
[[nodiscard]] bool IsListOfConfiguredFile(const QString& name);
/// Whether the program's arguments (without its own name) are a command, right or wrong, not a call
/// of the window. A word near a command's name is one unless it is a list's.
[[nodiscard]] bool IsCommandLine(const QStringList& arguments,
    const std::function<bool(const QString& name)>& isList = IsListOfConfiguredFile);

/// Runs a command with the process's own streams, locale and settings; the process's exit code.
/// Ignores SIGPIPE and SIGXFSZ from here on. Needs no display and no application object.
[[nodiscard]] int RunCommandLine(const QStringList& arguments);
[[nodiscard]] ExitCode RunCommandLine(
    const QStringList& arguments, const CommandEnvironment& environment);

} // namespace Quillory
