// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_run.h"
#include "transfer/table_import.h"

#include <optional>

namespace Quillory {

/// What `--format` names, beside the text format that is written and read without it.
enum class TableFormat
{
    Csv,
    Tsv,
    Json,
    Html,
};

/// Nothing if the option is not there; ends the command if it names no format.
[[nodiscard]] std::optional<TableFormat> ReadTableFormat(const CommandRun& run);
/// The format of such a word; ends the command if there is none.
[[nodiscard]] TableFormat TableFormatOf(const QString& word);
/// As the option has it, and what the names of such files end in.
[[nodiscard]] QString TableFormatWord(TableFormat format);

/// How an import reads such a table; ends the command if it cannot.
[[nodiscard]] TableImportRules RulesToRead(TableFormat format);
/// Tells of all faults, which stand in a file if one is named, and gives whether there is none.
bool TellFaults(
    const CommandRun& run, const TableImportOutcome& outcome, const QString& fileName = {});

/// Writes the open list.
[[nodiscard]] Database::VisitOutcome WriteTable(
    CommandData& data, TableFormat format, const ValueContext& context, TextOutput& target);

/// `import --format`.
void ImportTableFile(const CommandRun& run, TableFormat format);

} // namespace Quillory
