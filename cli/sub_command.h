// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_run.h"

#include <QByteArray>

#include <span>

namespace Quillory {

/// A sub-command as the table of them holds it.
struct SubCommand
{
    const char* name;
    /// Operands and options, as in a line of usage.
    const char* usage;
    /// What it does, for its help; lines end in a line feed.
    const char* help;
    qsizetype minOperands;
    qsizetype maxOperands;
    std::span<const char* const> flags;
    std::span<const char* const> valueOptions;
    void (*run)(const CommandRun&);
};

void RunLists(const CommandRun& run);
void RunNew(const CommandRun& run);
void RunFind(const CommandRun& run);
void RunShow(const CommandRun& run);
void RunExport(const CommandRun& run);
void RunImport(const CommandRun& run);
void RunSummary(const CommandRun& run);
void RunDue(const CommandRun& run);
void RunReminders(const CommandRun& run);
void RunReport(const CommandRun& run);
void RunAdd(const CommandRun& run);
void RunSet(const CommandRun& run);
void RunCount(const CommandRun& run);
void RunDelete(const CommandRun& run);
void RunRename(const CommandRun& run);
void RunRemove(const CommandRun& run);
void RunCheck(const CommandRun& run);
void RunBackup(const CommandRun& run);
void RunRestore(const CommandRun& run);
void RunDiff(const CommandRun& run);
void RunMerge(const CommandRun& run);

/// Null if there is none of this name.
[[nodiscard]] const SubCommand* FindSubCommand(QStringView name);
/// The sub-command whose name a word may be meant for; null if it is near none.
[[nodiscard]] const SubCommand* FindNearSubCommand(QStringView word);

/// One or two lines; of the program if `command` is null.
[[nodiscard]] QByteArray UsageText(const SubCommand* command);
[[nodiscard]] QByteArray HelpText(const CommandEnvironment& environment);
[[nodiscard]] QByteArray HelpText(const SubCommand& command, const CommandEnvironment& environment);

} // namespace Quillory
