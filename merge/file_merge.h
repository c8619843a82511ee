// SPDX-License-Identifier: MIT
#pragma once

#include "merge/merge_plan.h"

#include <QDateTime>

#include <memory>

namespace Quillory {

/// Where the copies of a data file are kept, and how many.
struct CopiesPlace
{
    QString folder;
    int count = 0;
};

/// What both files come from, among the copies that are kept of the data file at `path`; it is held
/// back from now on. Null if there is none, or none is needed.
[[nodiscard]] Result<std::unique_ptr<Volume>> OpenBase(
    Volume& mine, Volume& theirs, const QString& path, const CopiesPlace& copies);

/// Puts what a plan makes of `mine` in the place of the file at `path`, where `mine` is mounted to
/// be written, or `theirs` lies that has taken its place. Both are kept as copies first, unless
/// none are wanted; the new file is written beside the old one, checked, and takes its name in one
/// step. Whenever this ends amid its work both files are as they were, but for a file beside them
/// whose name holds `.new-`. `mine` must be unmounted and mounted anew afterwards: what it has open
/// is the old file. A plan of Kinship::Known writes nothing where `mine` lies at `path`, and puts
/// it back there where `theirs` does. SharingViolation if another file than those two lies at
/// `path`.
[[nodiscard]] Result<void> ExchangeMerged(const MergePlan& plan, Volume& mine, Volume& theirs,
    const QString& path, const CopiesPlace& copies, const QDateTime& now);

} // namespace Quillory
