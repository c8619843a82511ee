// SPDX-License-Identifier: MIT
#include "merge/file_merge.h"

#include "merge/merge_writer.h"
#include "propdb/volume_path.h"
#include "store/kept_copies.h"

#include <QFile>
#include <QScopeGuard>

namespace Quillory {

Result<std::unique_ptr<Volume>> OpenBase(
    Volume& mine, Volume& theirs, const QString& path, const CopiesPlace& copies)
{
    QUILLORY_TRY_VALUE(const History here, mine.ReadHistory());
    QUILLORY_TRY_VALUE(const History there, theirs.ReadHistory());
    if (here.Covers(there.Latest()) || there.Covers(here.Latest()))
        return std::unique_ptr<Volume>();
    const auto copy = FindBase(path, copies.folder, here, there);
    if (!copy)
        return std::unique_ptr<Volume>();
    HoldBack(*copy);
    return Volume::Mount(copy->path, Disposition::OpenExisting, VolumeAccess::ReadOnly);
}

Result<void> ExchangeMerged(const MergePlan& plan, Volume& mine, Volume& theirs,
    const QString& path, const CopiesPlace& copies, const QDateTime& now)
{
    QUILLORY_TRY_VALUE(const auto target, ResolveVolumePath(path));
    const auto lies = [&target](const Volume& volume) {
        return volume.Path() == target && volume.VerifyInPlace();
    };
    if (plan.kinship == Kinship::Known && lies(mine))
        return {};
    // Mine last: the newest copy is what this device had.
    QUILLORY_TRY(KeepShared(theirs, path, copies.folder, now, copies.count));
    QUILLORY_TRY(KeepShared(mine, path, copies.folder, now, copies.count));
    const QByteArray unfinished = UnfinishedName(target);
    const auto removeUnfinished
        = qScopeGuard([&] { QFile::remove(QFile::decodeName(unfinished)); });
    QUILLORY_TRY(WriteMerged(plan, mine, QFile::decodeName(unfinished)));
    if (!lies(mine) && !lies(theirs))
        return ErrorNumber::SharingViolation;
    return ReplaceFile(unfinished, target);
}

} // namespace Quillory
