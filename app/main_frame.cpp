// SPDX-License-Identifier: MIT
#include "app/main_frame.h"

#include "app/file_dialog.h"
#include "app/home_list.h"
#include "app/plain_pages.h"
#include "app/settings_context.h"
#include "listdef/display_options_page.h"
#include "res/dialog_table.h"
#include "res/string_table.h"
#include "rows/rows_view.h"
#include "store/kept_copies.h"
#include "widgets/help_page.h"
#include "widgets/message_box.h"
#include "widgets/wait_cursor.h"
#include "widgets/window_style.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QShortcut>

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kFirstSize { 360, 640 };

/// What must be there before a command can be chosen.
enum class Needs
{
    DataFile,
    /// A selected line of the home list.
    List,
};

} // namespace

struct MainFrame::CommandEntry
{
    Command command;
    QKeyCombination shortcut;
    Needs needs;
    void (MainFrame::*run)();
};

const MainFrame::CommandEntry MainFrame::kCommands[] {
    { Command::New, Qt::CTRL | Qt::Key_N, Needs::DataFile, &MainFrame::NewList },
    { Command::ListProperties, Qt::ALT | Qt::Key_Return, Needs::List, &MainFrame::ShowProperties },
    { Command::Rename, Qt::Key_F2, Needs::List, &MainFrame::RenameList },
    { Command::Import, {}, Needs::List, &MainFrame::ImportList },
    { Command::Export, {}, Needs::List, &MainFrame::ExportList },
    { Command::Delete, Qt::Key_Delete, Needs::List, &MainFrame::DeleteList },
    { Command::DeleteAllRecords, {}, Needs::List, &MainFrame::DeleteAllRecords },
    { Command::OpenReadOnly, {}, Needs::DataFile, &MainFrame::ToggleReadOnly },
    { Command::Options, {}, Needs::DataFile, &MainFrame::ShowOptions },
    { Command::About, {}, Needs::DataFile, &MainFrame::ShowAbout },
};

MainFrame::MainFrame(Settings settings, Places places, QWidget* parent)
    : QMainWindow(parent)
    , m_places(std::move(places))
    , m_settings(std::move(settings))
    , m_context(ContextOf(m_settings))
    , m_pages(new PageStack(this))
    , m_home(new HomeList)
    , m_landscape(*this, m_places.turnedOutput)
{
    // A data file that is there already is opened, so there is nothing to warn of.
    m_chooser = [this](const auto& then) {
        ChooseFile(this, FileUse::MakeOrOpen,
            { LoadText(Text::InventoryDatabase), u"idb"_s, u"Quillory.idb"_s }, then);
    };

    m_volume.SetWriteFailureListener([this](ErrorNumber error) {
        if (m_writeFailure != ErrorNumber::None)
            return;
        m_writeFailure = error;
        // Not from inside the operation that failed.
        QMetaObject::invokeMethod(this, &MainFrame::TellWriteFailure, Qt::QueuedConnection);
    });
    setCentralWidget(m_pages);
    ApplyWindowStyle(this);
    BuildHome();
    RestoreWindow();
    // On every page, not on the home list alone.
    connect(new QShortcut(QKeySequence::Quit, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this,
        &MainFrame::UndoDeletion);
}

MainFrame::~MainFrame()
{
    // The pages read from the members that go before the child widgets do.
    delete m_pages;
}

void MainFrame::BuildHome()
{
    connect(m_home, &HomeList::ListChosen, this, &MainFrame::OpenSelectedList);
    connect(m_home, &HomeList::SelectionChanged, this, &MainFrame::UpdateCommands);
    connect(m_home, &HomeList::MenuAboutToOpen, this, &MainFrame::UpdateCommands);
    connect(m_home, &HomeList::CommandChosen, this, &MainFrame::RunCommand);
    m_home->SetRenamer(
        [this](ObjectId oid, const QString& name) { return m_catalogue.RenameList(oid, name); });
    for (const CommandEntry& entry : kCommands) {
        if (entry.shortcut != QKeyCombination())
            m_home->SetShortcut(entry.command, entry.shortcut);
    }
    m_home->ActionOf(Command::OpenReadOnly)->setCheckable(true);
    connect(m_pages, &PageStack::HelpRequested, this, &MainFrame::ShowHelp);
    m_pages->Push(m_home);
    UpdateCommands();
}

void MainFrame::RestoreWindow()
{
    setWindowTitle(LoadText(Text::Caption));
    resize(kFirstSize);
    if (!m_settings.windowGeometry.isEmpty())
        restoreGeometry(m_settings.windowGeometry);
}

void MainFrame::RunCommand(Command command)
{
    for (const CommandEntry& entry : kCommands) {
        if (entry.command == command)
            return (this->*entry.run)();
    }
}

void MainFrame::UpdateCommands()
{
    const bool hasList = m_home->SelectedList() != kNoObject;
    for (const CommandEntry& entry : kCommands) {
        const bool isReady = m_isDataFileOpen && (entry.needs == Needs::DataFile || hasList);
        m_home->SetCommandEnabled(entry.command, isReady);
    }
    m_home->SetCommandChecked(Command::OpenReadOnly, m_settings.Options.test(kReadOnlyOption));
}

void MainFrame::SetFileChooser(FileChooser chooser)
{
    m_chooser = std::move(chooser);
}

void MainFrame::OpenDataFile(const QString& listName)
{
    m_wantedList = listName;
    m_opener = std::make_unique<DataFileOpener>(m_catalogue, m_settings, m_places.copies,
        OpenerPrompts(), [this](DataFileOpener::Outcome outcome) { EndOpening(outcome); });
    m_opener->Start();
}

DataFileOpener::Prompts MainFrame::OpenerPrompts()
{
    return {
        [this](
            const auto& then) { m_pages->Push(new WelcomePage, [then](PageResult) { then(); }); },
        [this](const auto& then) { m_chooser(then); },
        [this](const QString& text, MessageIcon icon, MessageButtons buttons, const auto& then) {
            ShowMessage(this, text, icon, buttons, then);
        },
    };
}

void MainFrame::EndOpening(DataFileOpener::Outcome outcome)
{
    m_savesSettings = outcome != DataFileOpener::Outcome::NothingChosen;
    m_isDataFileOpen = outcome == DataFileOpener::Outcome::Opened;
    if (!m_isDataFileOpen) {
        // Not from inside the question whose answer this is.
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
        return;
    }
    FillHome();
    m_home->FocusLines();
    UpdateCommands();
    // What a program that was killed had kept aside; once the lists are on the screen.
    QMetaObject::invokeMethod(
        this, [this] { m_deletion.Forget(); }, Qt::QueuedConnection);
    if (!m_wantedList.isEmpty() && OpenNamedList(m_wantedList) == StartAnswer::UnknownList)
        NoteUnknownList(m_wantedList);
}

StartAnswer MainFrame::TakeStartRequest(const StartRequest& request)
{
    BringToFront(request.activationToken);
    if (request.listName.isEmpty())
        return StartAnswer::Done;
    if (!m_isDataFileOpen) {
        m_wantedList = request.listName;
        return StartAnswer::Done;
    }
    return OpenNamedList(request.listName);
}

void MainFrame::FillHome()
{
    const auto home = m_catalogue.FillHomeList();
    m_home->Fill(home.lists);
    if (home.error != ErrorNumber::None)
        TellStop(tr("Some lists cannot be read. Error: %1").arg(static_cast<quint32>(home.error)));
}

void MainFrame::BringToFront(const QString& activationToken)
{
    // Where the toolkit looks for it when a window asks to be activated.
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

bool MainFrame::CloseAllPages()
{
    int depth = 0;
    do {
        if (m_pages->Top()->HasUnsavedInput())
            return false;
        depth = m_pages->Depth();
        if (m_pages->CloseTopmost())
            return true;
    } while (m_pages->Depth() < depth);
    return false;
}

void MainFrame::AskToDiscardInput()
{
    ShowMessage(this, tr("Do you want to discard what you have entered?"), MessageIcon::Exclamation,
        MessageButtons::YesNo, [this](MessageAnswer answer) {
            if (answer != MessageAnswer::Yes)
                return;
            static_cast<void>(m_pages->CloseTopmost());
            close();
        });
}

bool MainFrame::EndDataFile()
{
    const WaitCursor wait;
    m_deletion.Forget();
    const KeepOutcome outcome = KeepCopy(m_volume, m_settings.DbPath, m_places.copies,
        QDateTime::currentDateTimeUtc(), m_settings.keptCopies);
    if (PlaceError() == ErrorNumber::None)
        return true;
    TellStop(outcome == KeepOutcome::Kept
            ? tr("The data file is no longer in its place. What it held is kept as a copy; "
                 "\"quillory restore\" lists the copies.")
            : tr("The data file is no longer in its place. No copy could be kept of it."),
        [this] {
            m_isDataFileOpen = false;
            close();
        });
    return false;
}

void MainFrame::closeEvent(QCloseEvent* event)
{
    // Before the data file is open there is nothing to lose. Later, work that shows its progress,
    // questions, and pages that ask first are not left behind.
    if (m_isDataFileOpen) {
        if (QApplication::activeModalWidget() != nullptr)
            return event->ignore();
        if (PlaceError() == ErrorNumber::SharingViolation) {
            // Whoever closes the window should know of it as well as whoever changes something.
            ReopenDataFile();
            return event->ignore();
        }
        if (!CloseAllPages()) {
            if (m_pages->Top()->HasUnsavedInput())
                AskToDiscardInput();
            return event->ignore();
        }
        if (!EndDataFile())
            return event->ignore();
    }
    if (m_savesSettings) {
        m_settings.windowGeometry = saveGeometry();
        WriteSettings(m_places.settings, m_settings);
    }
    event->accept();
}

void MainFrame::TellWriteFailure()
{
    if (m_writeFailure == ErrorNumber::None)
        return;
    ShowMessage(this,
        tr("The change could not be saved. Error: %1\n\nTap Retry to open the data file again.")
            .arg(static_cast<quint32>(m_writeFailure)),
        MessageIcon::Stop, MessageButtons::RetryCancel, [this](MessageAnswer answer) {
            m_writeFailure = ErrorNumber::None;
            if (answer == MessageAnswer::Retry)
                ReopenDataFile();
        });
}

ErrorNumber MainFrame::PlaceError()
{
    const Volume* volume = m_volume.MountedVolume();
    return volume != nullptr && volume->HasChanged() ? volume->VerifyInPlace().Error()
                                                     : ErrorNumber::None;
}

void MainFrame::KeepReplacedFile()
{
    const KeepOutcome outcome = KeepCopy(m_volume, m_settings.DbPath, m_places.copies,
        QDateTime::currentDateTimeUtc(), m_settings.keptCopies);
    TellStop(outcome == KeepOutcome::Kept
            ? tr("Another file was put in the place of the data file. The old one is kept as a "
                 "copy; \"quillory restore\" lists the copies.")
            : tr("Another file was put in the place of the data file. No copy could be kept of "
                 "the old one."));
}

bool MainFrame::RemountUnderPages()
{
    m_volume.Unmount();
    if (m_volume.Mount(m_settings.DbPath, Disposition::OpenExisting) != ErrorNumber::None
        || m_catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
        return false;
    // What was deleted from another file must not come back in this one.
    m_deletion.Forget();
    m_home->WithdrawUndo();
    // Nor need the identifier be that of the same list.
    InventoryList reopened;
    return m_openList == kNoObject
        || (m_catalogue.OpenList(m_openList, reopened) && reopened.columns == m_list.columns);
}

void MainFrame::ReopenDataFile()
{
    if (PlaceError() == ErrorNumber::SharingViolation)
        KeepReplacedFile();
    if (RemountUnderPages())
        return RefreshPages();
    // The pages are not those of the file that is there now: nothing of theirs may get into it.
    m_volume.Unmount();
    // What is entered on them can only be kept as long as they stay.
    if (!CloseAllPages())
        return AskToDiscardInput();
    m_isDataFileOpen = false;
    UpdateCommands();
    OpenDataFile({});
}

void MainFrame::RefreshPages()
{
    const ObjectId selected = m_home->SelectedList();
    FillHome();
    m_home->Select(selected);
    // Something else may stand in the file now.
    for (RowsView* view : m_pages->findChildren<RowsView*>()) {
        view->WithdrawUndo();
        view->Fill();
    }
}

void MainFrame::ToggleReadOnly()
{
    m_settings.Options.flip(kReadOnlyOption);
    UpdateCommands();
}

void MainFrame::ShowOptions()
{
    const DisplayOptions options { m_settings.Options.test(kLandscapeOption),
        m_settings.ListOrientation == kLandscapeRightHanded,
        m_settings.Options.test(kAlternateColourOption) };
    auto* page = new DisplayOptionsPage(options);
    m_pages->Push(page, [this, page](PageResult result) {
        if (result != PageResult::Ok)
            return;
        const DisplayOptions chosen = page->Result();
        m_settings.Options.set(kLandscapeOption, chosen.isLandscape);
        m_settings.ListOrientation
            = chosen.isRightHanded ? kLandscapeRightHanded : kLandscapeLeftHanded;
        m_settings.Options.set(kAlternateColourOption, chosen.hasAlternateLines);
    });
}

void MainFrame::ShowHelp(const QString& anchor)
{
    // Help on help is the help that is open.
    if (qobject_cast<HelpPage*>(m_pages->Top()) == nullptr)
        m_pages->Push(new HelpPage(anchor.isEmpty() ? QString::fromLatin1(kHelpMain) : anchor));
}

void MainFrame::ShowAbout()
{
    m_pages->Push(new AboutPage);
}

} // namespace Quillory
