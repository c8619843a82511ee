// SPDX-License-Identifier: MIT
#pragma once

#include "app/data_file_opener.h"
#include "app/data_file_watch.h"
#include "merge/file_merge.h"
#include "store/kept_copies.h"
#include "store/list_catalogue.h"
#include "store/settings.h"
#include "widgets/questions.h"

#include <QObject>

#include <functional>
#include <memory>

namespace Quillory {

class PageStack;

/// The data file of one run of the window: opened, opened again where a write failed, kept as a
/// copy, and ended. What there is to ask is asked over the window.
class DataFileSession : public QObject
{
    Q_OBJECT

public:
    /// `settings` and `pages` outlive the session. Copies of the file go to `copiesFolder`.
    DataFileSession(Settings& settings, QString copiesFolder, PageStack& pages);

    /// Asks for a place for the data file; calls `then` with an empty path if none was chosen.
    using FileChooser = std::function<void(std::function<void(const QString&)> then)>;
    /// Replaces the file dialog of the first start.
    void SetFileChooser(FileChooser chooser) { m_chooser = std::move(chooser); }

    [[nodiscard]] DataVolume& Volume() { return m_volume; }
    [[nodiscard]] ListCatalogue& Catalogue() { return m_catalogue; }
    [[nodiscard]] const QString& Path() const { return m_settings.DbPath; }
    [[nodiscard]] bool IsOpen() const { return m_isOpen; }
    /// Whether the settings belong to a data file. Not so at a first start that chose none.
    [[nodiscard]] bool HasSettings() const { return m_hasSettings; }

    /// Opens the data file, asking where need be. Opened() or NotOpened() comes once.
    void Open();
    enum class Lost
    {
        /// A file that is gone from its place is kept as a copy if it had changes of this run, and
        /// told of.
        Tell,
        /// Nothing is: what the old file held is in the new one.
        Nothing,
    };
    /// Opens what is in the data file's place now. False if nothing could be opened; then nothing
    /// is.
    [[nodiscard]] bool Reopen(Lost lost);
    /// Whether another file has taken the place of the open one.
    [[nodiscard]] bool IsReplaced();
    [[nodiscard]] CopiesPlace Copies() const { return { m_copiesFolder, m_settings.keptCopies }; }
    /// Takes the file away from the pages: nothing of theirs gets into it any more.
    void Abandon();
    /// A failed write that was told already, by whoever wrote, is not told again.
    void ForgetFailure() { m_failure = ErrorNumber::None; }
    /// From now on Updated() tells of another device's version in the place of the data file.
    void WatchForUpdates();
    /// Keeps the copy of this run and tells what is still to be told. `then` is called once the
    /// window may close; not if the user wants to try again.
    void End(const std::function<void()>& then);

Q_SIGNALS:
    void Opened();
    void NotOpened();
    /// A write failed, and the file is to be opened again.
    void RetryChosen();
    /// Another whole data file has come in the place of the open one. Updated() if the open one
    /// holds no change of this run that would be lost, so that the other may be opened instead;
    /// else Diverged(). Told again until it is.
    void Updated();
    void Diverged();

private:
    Settings& m_settings;
    QString m_copiesFolder;
    PageStack& m_pages;
    DataVolume m_volume;
    ListCatalogue m_catalogue { m_volume };
    FileChooser m_chooser;
    std::unique_ptr<DataFileOpener> m_opener;
    DataFileWatch m_watch;
    bool m_isOpen = false;
    bool m_hasSettings = false;
    /// A failed write that the user has not been told of, or has not answered yet.
    ErrorNumber m_failure = ErrorNumber::None;

    [[nodiscard]] DataFileOpener::Prompts Prompts();
    void EndOpening(DataFileOpener::Outcome outcome);
    void NoteFailure(ErrorNumber error);
    [[nodiscard]] Question MakeFailureBox(const std::function<void()>& otherwise);
    /// As Volume::VerifyInPlace() tells of the data file, if it holds changes of this run.
    [[nodiscard]] ErrorNumber PlaceError();
    [[nodiscard]] Result<KeepOutcome> Keep();
    void LookForUpdate();
    /// Whether the file holds changes of this run that the one in its place lacks.
    [[nodiscard]] bool WouldLose();
    /// Keeps the file as it was found, if that is not what this device left, once it is changed.
    void KeepBeforeFirstChange();
    /// Keeps what would go with a file that is no longer in its place, and says so.
    [[nodiscard]] QString KeepLostFile(ErrorNumber placeError);
};

} // namespace Quillory
