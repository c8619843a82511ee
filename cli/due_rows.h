// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_run.h"

#include <QDate>

#include <functional>
#include <optional>

namespace Quillory {

enum class DueState
{
    /// The quantity is the list's threshold or less.
    Low,
    Expired,
    /// It will expire within the days asked for.
    Expiring,
};

/// A row that a list warns of. One that is low and expired is due twice.
struct DueRow
{
    QString list;
    QString row;
    DueState state;
    qint32 count;
    /// None where the row is low.
    std::optional<FileTime> expiry;
};

using DueVisitor = std::function<void(const DueRow&)>;

/// Visits what is due on the day `last` in the open list, by the list's own warnings. Fails if rows
/// could not be read, after those that could.
void VisitDueRows(const CommandRun& run, CommandData& data, QDate last, const DueVisitor& visit);

/// "low", "expired" or "expiring".
[[nodiscard]] QString StateName(DueState state);

} // namespace Quillory
