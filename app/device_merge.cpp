// SPDX-License-Identifier: MIT
#include "app/device_merge.h"

#include "app/data_file_session.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/wait_cursor.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

DeviceMerge::DeviceMerge(DataFileSession& session, PageStack& pages)
    : m_session(session)
    , m_pages(pages)
{ }

void DeviceMerge::OfferReplaced(const std::function<void()>& otherwise)
{
    if (!m_session.IsReplaced() || IsDeclined())
        return otherwise();
    const auto version = FindNews(m_session.Path());
    if (!version)
        return otherwise();
    Ask(tr("Another device has changed the lists, and so have you. Do you want to bring both "
           "together?"),
        m_session.Path(), *version, otherwise);
}

bool DeviceMerge::IsDeclined() const
{
    const auto other
        = Volume::Mount(m_session.Path(), Disposition::OpenExisting, VolumeAccess::ReadOnly);
    if (!other)
        return false;
    const auto history = (*other)->ReadHistory();
    return history && history->Latest() == m_declined;
}

void DeviceMerge::OfferBeside()
{
    const QFileInfo file(m_session.Path());
    const QString pattern = file.completeBaseName() + u"*conflict*"_s;
    for (const QFileInfo& found : file.dir().entryInfoList({ pattern }, QDir::Files))
        m_beside << found.filePath();
    OfferNext();
}

void DeviceMerge::OfferNext()
{
    while (!m_beside.isEmpty()) {
        const QString path = m_beside.takeFirst();
        const auto version = FindNews(path);
        if (!version)
            continue;
        return Ask(tr("Beside the data file lies another device's version, \"%1\". Do you want to "
                      "bring both together?")
                       .arg(QFileInfo(path).fileName()),
            path, *version, [this] { OfferNext(); });
    }
}

void DeviceMerge::Ask(const QString& question, const QString& path, FileVersion version,
    const std::function<void()>& otherwise)
{
    ShowMessage(&m_pages, question, MessageIcon::Exclamation, MessageButtons::YesNo,
        [this, path, version, otherwise](MessageAnswer answer) {
            if (answer == MessageAnswer::Yes)
                return Merge(path);
            m_declined = version;
            otherwise();
        });
}

Result<void> DeviceMerge::WithPlan(const QString& path, const PlanUse& use) const
{
    Volume* mine = m_session.Volume().MountedVolume();
    if (mine == nullptr)
        return ErrorNumber::InvalidHandle;
    QUILLORY_TRY(Volume::VerifyPagesOf(path));
    QUILLORY_TRY_VALUE(
        const auto theirs, Volume::Mount(path, Disposition::OpenExisting, VolumeAccess::ReadOnly));
    QUILLORY_TRY_VALUE(
        const auto base, OpenBase(*mine, *theirs, m_session.Path(), m_session.Copies()));
    QUILLORY_TRY_VALUE(const MergePlan plan, PlanMerge(*mine, *theirs, base.get()));
    return use(plan, *mine, *theirs);
}

std::optional<FileVersion> DeviceMerge::FindNews(const QString& path) const
{
    const WaitCursor wait;
    std::optional<FileVersion> version;
    // What cannot be read is nothing to ask about.
    static_cast<void>(WithPlan(
        path, [&version](const MergePlan& plan, Volume& mine, Volume& theirs) -> Result<void> {
            QUILLORY_TRY_VALUE(const History here, mine.ReadHistory());
            QUILLORY_TRY_VALUE(const History there, theirs.ReadHistory());
            if (plan.kinship != Kinship::Known && here.HasStateOf(there))
                version = there.Latest();
            return {};
        }).IsOk());
    return version;
}

void DeviceMerge::Merge(const QString& path)
{
    MergePlan carriedOut;
    Result<void> done;
    {
        const WaitCursor wait;
        // Anew: the files may be others since it was asked.
        done = WithPlan(path, [&](const MergePlan& plan, Volume& mine, Volume& theirs) {
            carriedOut = plan;
            return ExchangeMerged(plan, mine, theirs, m_session.Path(), m_session.Copies(),
                QDateTime::currentDateTimeUtc());
        });
    }
    if (done)
        Q_EMIT Merged(carriedOut);
    else
        ShowMessage(&m_pages,
            tr("The two versions could not be brought together; both are as they were. Error: %1")
                .arg(static_cast<quint32>(done.Error())),
            MessageIcon::Stop);
    OfferNext();
}

} // namespace Quillory
