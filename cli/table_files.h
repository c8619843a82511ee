// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_run.h"

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
/// As the option has it, and what the names of such files end in.
[[nodiscard]] QString TableFormatWord(TableFormat format);

/// Writes the open list.
[[nodiscard]] Database::VisitOutcome WriteTable(
    CommandData& data, TableFormat format, const ValueContext& context, TextOutput& target);

/// `import --format`.
void ImportTableFile(const CommandRun& run, TableFormat format);

} // namespace Quillory
