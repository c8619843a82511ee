// SPDX-License-Identifier: MIT
#pragma once

#include "merge/merge_plan.h"

namespace Quillory {

/// Makes the new file `target` of what a plan makes of `mine`, which is only read: a copy of it in
/// which only what differs is written, in one transaction, and which is checked in every page and
/// value. FileExists if there is one of that name, FileCorrupt if the check finds a fault. On any
/// failure there is no new file.
[[nodiscard]] Result<void> WriteMerged(const MergePlan& plan, Volume& mine, const QString& target);

} // namespace Quillory
