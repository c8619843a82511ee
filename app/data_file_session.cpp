// SPDX-License-Identifier: MIT
#include "app/data_file_session.h"

#include "app/plain_pages.h"
#include "desktop/file_dialog.h"
#include "res/string_table.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/wait_cursor.h"

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

DataFileSession::DataFileSession(Settings& settings, QString copiesFolder, PageStack& pages)
    : m_settings(settings)
    , m_copiesFolder(std::move(copiesFolder))
    , m_pages(pages)
    // A data file that is there already is opened, so there is nothing to warn of.
    , m_chooser([this](const auto& then) {
        ChooseFile(&m_pages, FileUse::MakeOrOpen,
            { LoadText(Text::InventoryDatabase), u"idb"_s, u"Quillory.idb"_s }, then);
    })
{
    m_volume.SetWriteFailureListener([this](ErrorNumber error) { NoteFailure(error); });
    connect(&m_watch, &DataFileWatch::Stirred, this, &DataFileSession::LookForUpdate);
}

void DataFileSession::Open()
{
    m_isOpen = false;
    m_opener = std::make_unique<DataFileOpener>(m_catalogue, m_settings, m_copiesFolder, Prompts(),
        [this](DataFileOpener::Outcome outcome) { EndOpening(outcome); });
    m_opener->Start();
}

DataFileOpener::Prompts DataFileSession::Prompts()
{
    return {
        [this](const auto& then) {
            m_pages.Push(new WelcomePage, [then](PageResult result) {
                if (result != PageResult::Closing)
                    then();
            });
        },
        [this](const auto& then) { m_chooser(then); },
        [this](const QString& text, MessageIcon icon, MessageButtons buttons, const auto& then) {
            ShowMessage(&m_pages, text, icon, buttons, then);
        },
    };
}

void DataFileSession::EndOpening(DataFileOpener::Outcome outcome)
{
    m_hasSettings = outcome != DataFileOpener::Outcome::NothingChosen;
    m_isOpen = outcome == DataFileOpener::Outcome::Opened;
    if (!m_isOpen)
        return Q_EMIT NotOpened();
    KeepBeforeFirstChange();
    Q_EMIT Opened();
}

void DataFileSession::NoteFailure(ErrorNumber error)
{
    if (m_failure != ErrorNumber::None)
        return;
    m_failure = error;
    // Not from inside the command that failed, and after what that has to say itself.
    QMetaObject::invokeMethod(
        this,
        [this] {
            Questions::Of(&m_pages).Ask([this] {
                return m_failure == ErrorNumber::None ? Question() : MakeFailureBox({});
            });
        },
        Qt::QueuedConnection);
}

Question DataFileSession::MakeFailureBox(const std::function<void()>& otherwise)
{
    return MakeMessageBox(m_pages.window(),
        tr("The change could not be saved. Error: %1\n\nTap Retry to open the data file again.")
            .arg(static_cast<quint32>(m_failure)),
        MessageIcon::Stop, MessageButtons::RetryCancel, [this, otherwise](MessageAnswer answer) {
            m_failure = ErrorNumber::None;
            if (answer == MessageAnswer::Retry)
                Q_EMIT RetryChosen();
            else if (otherwise)
                otherwise();
        });
}

ErrorNumber DataFileSession::PlaceError()
{
    const auto* volume = m_volume.MountedVolume();
    return volume != nullptr && volume->HasChanged() ? volume->VerifyInPlace().Error()
                                                     : ErrorNumber::None;
}

Result<KeepOutcome> DataFileSession::Keep()
{
    return KeepCopy(m_volume, m_settings.DbPath, m_copiesFolder, QDateTime::currentDateTimeUtc(),
        m_settings.keptCopies);
}

void DataFileSession::KeepBeforeFirstChange()
{
    auto* volume = m_volume.MountedVolume();
    // Files of one run are tried out, sent and mended: theirs are no copies to keep.
    if (volume == nullptr || m_settings.isPathForThisRun)
        return;
    volume->SetFirstChangeListener([this, volume] {
        // Where it fails, so does the copy at the end, which is told.
        static_cast<void>(KeepFound(*volume, m_settings.DbPath, m_copiesFolder,
            QDateTime::currentDateTimeUtc(), m_settings.keptCopies)
                              .IsOk());
    });
}

QString DataFileSession::KeepLostFile(ErrorNumber placeError)
{
    const auto kept = Keep();
    const bool isKept = kept && *kept == KeepOutcome::Kept;
    if (placeError == ErrorNumber::SharingViolation) {
        return isKept
            ? tr("Another file was put in the place of the data file. The old one is kept as a "
                 "copy; \"quillory restore\" lists the copies.")
            : tr("Another file was put in the place of the data file. No copy could be kept of "
                 "the old one.");
    }
    return isKept ? tr("The data file is no longer in its place. What it held is kept as a copy; "
                       "\"quillory restore\" lists the copies.")
                  : tr("The data file is no longer in its place. No copy could be kept of it.");
}

void DataFileSession::WatchForUpdates()
{
    m_watch.Watch(Path());
}

void DataFileSession::LookForUpdate()
{
    if (!IsReplaced())
        return;
    if (!Questions::Of(&m_pages).IsIdle() || !Volume::VerifyPagesOf(Path()))
        return m_watch.LookAgain();
    if (WouldLose())
        Q_EMIT Diverged();
    else
        Q_EMIT Updated();
}

bool DataFileSession::IsReplaced()
{
    return m_volume.IsMounted()
        && m_volume.MountedVolume()->VerifyUnchanged().Error() == ErrorNumber::SharingViolation;
}

bool DataFileSession::WouldLose()
{
    if (!m_volume.HasChangedContent())
        return false;
    const auto here = m_volume.MountedVolume()->ReadHistory();
    const auto other = Volume::Mount(Path(), Disposition::OpenExisting, VolumeAccess::ReadOnly);
    if (!here || !other)
        return true;
    const auto there = (*other)->ReadHistory();
    return !there || !there->Covers(here->Latest());
}

bool DataFileSession::Reopen(Lost lost)
{
    const WaitCursor wait;
    if (lost == Lost::Tell && PlaceError() == ErrorNumber::SharingViolation)
        ShowMessage(&m_pages, KeepLostFile(ErrorNumber::SharingViolation), MessageIcon::Stop);
    m_volume.Unmount();
    if (m_volume.Mount(m_settings.DbPath, Disposition::OpenExisting) == ErrorNumber::None
        && m_catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened) {
        KeepBeforeFirstChange();
        return true;
    }
    Abandon();
    return false;
}

void DataFileSession::Abandon()
{
    m_volume.Unmount();
}

void DataFileSession::End(const std::function<void()>& then)
{
    const WaitCursor wait;
    if (const ErrorNumber error = PlaceError(); error != ErrorNumber::None) {
        ForgetFailure();
        return ShowMessage(&m_pages, KeepLostFile(error), MessageIcon::Stop, MessageButtons::Ok,
            [then](MessageAnswer) { then(); });
    }
    const auto finish = [this, then] {
        // Files of one run are tried out, sent and mended: theirs are no copies to keep.
        const auto kept = m_settings.isPathForThisRun ? KeepOutcome::NotNeeded : Keep();
        if (kept)
            return then();
        ShowMessage(&m_pages,
            tr("No copy of the data file could be kept. Error: %1")
                .arg(static_cast<quint32>(kept.Error())),
            MessageIcon::Exclamation, MessageButtons::Ok, [then](MessageAnswer) { then(); });
    };
    if (m_failure == ErrorNumber::None)
        return finish();
    Questions::Of(&m_pages).Ask([this, finish] { return MakeFailureBox(finish); });
}

} // namespace Quillory
