// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QIODevice>
#include <QStringList>

#include <functional>
#include <optional>

namespace Quillory {

/// Exit codes of the command line; scripts rely on them.
enum class ExitCode
{
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
    /// Something is due.
    Due = 3,
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

/// What a call of the window asks for.
struct WindowCall
{
    /// The data file of this run; empty for the configured one.
    QString dataFile;
    /// The list to open; empty for none.
    QString listName;
    /// Whether a new list is to be made.
    bool isNewList = false;
};

/// Whether a data file, the configured one if `path` is empty, has a list of this name.
[[nodiscard]] bool IsListOfFile(const QString& name, const QString& path);
/// Reads the program's arguments (without its own name); nothing if they are a command, right or
/// wrong. A word near a command's name is one unless it is a list's.
[[nodiscard]] std::optional<WindowCall> ReadWindowCall(const QStringList& arguments,
    const std::function<bool(const QString& name, const QString& path)>& isList = IsListOfFile);

/// Runs a command with the process's own streams, locale and settings; the process's exit code.
/// Ignores SIGPIPE and SIGXFSZ from here on. Needs no display and no application object.
[[nodiscard]] int RunCommandLine(const QStringList& arguments);
[[nodiscard]] ExitCode RunCommandLine(
    const QStringList& arguments, const CommandEnvironment& environment);

} // namespace Quillory
