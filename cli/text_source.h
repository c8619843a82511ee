// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_run.h"
#include "cli/encoding.h"
#include "transfer/list_file.h"

#include <memory>
#include <optional>

namespace Quillory {

/// Whether an operand or the value of an option stands for a standard stream.
[[nodiscard]] bool IsStream(const QString& path);

/// The text that a command reads: a file, or the standard input.
class TextSource
{
public:
    /// With an encoding the text is given as RecodedText. Ends the command if the file cannot be
    /// opened. `run` outlives the source.
    TextSource(const CommandRun& run, const QString& path,
        const std::optional<QStringConverter::Encoding>& encoding);

    [[nodiscard]] QIODevice& Device() const;

private:
    QIODevice& m_input;
    ListFile m_file;
    std::unique_ptr<RecodedText> m_recoded;

    [[nodiscard]] QIODevice& Bytes() const;
};

/// Lets `write` fill a file, or the standard output, and puts it in place; ends the command if that
/// fails. Nothing waits for whoever reads a stream. What `write` gave.
[[nodiscard]] Database::VisitOutcome WriteTextFile(const CommandRun& run, const QString& path,
    const std::function<Database::VisitOutcome(TextOutput&)>& write);

} // namespace Quillory
