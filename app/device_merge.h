// SPDX-License-Identifier: MIT
#pragma once

#include "merge/merge_plan.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

namespace Quillory {

class DataFileSession;
class PageStack;

/// Asks whether another device's version of the data file is to be brought together with the open
/// one, and does so: one that took the place of the data file while this run had changed it, and
/// those that a synchroniser left beside it.
class DeviceMerge : public QObject
{
    Q_OBJECT

public:
    /// Both outlive the object.
    DeviceMerge(DataFileSession& session, PageStack& pages);

    /// Asks about the file in the place of the data file if it is another device's version that
    /// lacks changes of this run, and has changes that this run lacks; once for each such version.
    /// `otherwise` is called if there is nothing to ask, or No is the answer.
    void OfferReplaced(const std::function<void()>& otherwise);
    /// Asks about the versions that lie beside the data file and have what it lacks. Their names
    /// begin as its own and tell of a conflict.
    void OfferBeside();

Q_SIGNALS:
    /// Both are one in the place of the data file, which is to be opened anew.
    void Merged(const Quillory::MergePlan& plan);

private:
    DataFileSession& m_session;
    PageStack& m_pages;
    /// Those beside the data file that are still to be asked about.
    QStringList m_beside;
    /// The version that was not wanted.
    FileVersion m_declined;

    /// Whether the file in the place of the data file is that version: to compare it once more
    /// would take long.
    [[nodiscard]] bool IsDeclined() const;
    /// Reads the file at `path` and the open one and calls `use` with both; what went wrong.
    using PlanUse
        = std::function<Result<void>(const MergePlan& plan, Volume& mine, Volume& theirs)>;
    [[nodiscard]] Result<void> WithPlan(const QString& path, const PlanUse& use) const;
    /// What the file at `path` is now, if it has something that the open one lacks and both were
    /// one file once.
    [[nodiscard]] std::optional<FileVersion> FindNews(const QString& path) const;
    void Ask(const QString& question, const QString& path, FileVersion version,
        const std::function<void()>& otherwise);
    void Merge(const QString& path);
    void OfferNext();
};

} // namespace Quillory
