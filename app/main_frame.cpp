// SPDX-License-Identifier: MIT
#include "app/main_frame.h"

#include "app/home_list.h"
#include "app/merge_page.h"
#include "app/plain_pages.h"
#include "listdef/display_options_page.h"
#include "res/dialog_table.h"
#include "res/string_table.h"
#include "rows/rows_view.h"
#include "widgets/help_page.h"
#include "widgets/message_box.h"
#include "widgets/wait_cursor.h"
#include "widgets/window_style.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QScopedValueRollback>
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
    { Command::Options, Qt::CTRL | Qt::Key_Comma, Needs::DataFile, &MainFrame::ShowOptions },
    { Command::About, {}, Needs::DataFile, &MainFrame::ShowAbout },
};

MainFrame::MainFrame(Settings settings, Places places, QWidget* parent)
    : QMainWindow(parent)
    , m_places(std::move(places))
    , m_settings(std::move(settings))
    , m_context(ContextOf(m_settings))
    , m_pages(new PageStack(this))
    , m_questions(Questions::Of(this))
    , m_home(new HomeList)
    , m_deletions(m_session.Catalogue(), *m_pages, *m_home)
    , m_definitions(m_session, *m_pages, *m_home)
    , m_landscape(*this)
{
    setCentralWidget(m_pages);
    BuildHome();
    ApplyWindowStyle(this);
    RestoreWindow();
    connect(&m_session, &DataFileSession::Opened, this, &MainFrame::ShowLists);
    // Not from inside the question whose answer this is.
    connect(&m_session, &DataFileSession::NotOpened, this, &QWidget::close, Qt::QueuedConnection);
    connect(&m_session, &DataFileSession::RetryChosen, this,
        [this] { m_merge.OfferReplaced([this] { ReopenDataFile(DataFileSession::Lost::Tell); }); });
    connect(&m_session, &DataFileSession::Updated, this, &MainFrame::TakeUpdate);
    connect(&m_session, &DataFileSession::Diverged, this, [this] { m_merge.OfferReplaced([] {}); });
    connect(&m_merge, &DeviceMerge::Merged, this, &MainFrame::ShowMerged);
    // On every page, not on the home list alone. Some desktops name no key of their own for the
    // end.
    connect(
        new QShortcut(Qt::CTRL | Qt::Key_Q, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Undo, this), &QShortcut::activated, this,
        [this] { m_deletions.Undo(); });
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
    m_home->SetRenamer([this](ObjectId oid, const QString& name) {
        return m_session.Catalogue().RenameList(oid, name);
    });
    for (const CommandEntry& entry : kCommands) {
        if (entry.shortcut != QKeyCombination())
            m_home->SetShortcut(entry.command, entry.shortcut);
    }
    m_home->ActionOf(Command::OpenReadOnly)->setCheckable(true);
    connect(m_pages, &PageStack::HelpRequested, this, &MainFrame::ShowHelp);
    connect(m_pages, &PageStack::TopChanged, this, &MainFrame::NameWindow);
    m_pages->SetHint(tr("Choose a list to see its rows."));
    m_pages->Push(m_home);
    UpdateCommands();
}

void MainFrame::RestoreWindow()
{
    resize(kFirstSize);
    if (!m_settings.windowGeometry.isEmpty())
        restoreGeometry(m_settings.windowGeometry);
}

void MainFrame::NameWindow()
{
    const QString program = LoadText(Text::Caption);
    const QString page = m_pages->Top() == nullptr ? QString() : m_pages->Top()->Title();
    // The toolkit takes "[*]" for a mark of its own, and two of them for one.
    setWindowTitle(page.isEmpty() || page == program
            ? program
            : tr("%1 – %2").arg(QString(page).replace(u"[*]"_s, u"[*][*]"_s), program));
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
        const bool isReady = m_session.IsOpen() && (entry.needs == Needs::DataFile || hasList);
        m_home->SetCommandEnabled(entry.command, isReady);
    }
    m_home->SetCommandChecked(Command::OpenReadOnly, m_settings.Options.test(kReadOnlyOption));
}

void MainFrame::SetFileChooser(DataFileSession::FileChooser chooser)
{
    m_session.SetFileChooser(std::move(chooser));
}

void MainFrame::OpenDataFile(const StartRequest& wanted)
{
    m_wanted = wanted;
    m_session.Open();
}

void MainFrame::ShowLists()
{
    FillHome();
    m_home->FocusLines();
    UpdateCommands();
    // What a program that was killed had kept aside; once the lists are on the screen.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_deletions.Forget();
            m_session.WatchForUpdates();
            m_merge.OfferBeside();
        },
        Qt::QueuedConnection);
    const StartRequest wanted = std::exchange(m_wanted, {});
    const QString lastList = std::exchange(m_settings.lastList, QString());
    if (!lastList.isEmpty() && !wanted.NamesPage()) {
        const ObjectId oid = m_session.Catalogue().FindList(lastList);
        if (oid != kNoObject)
            GoToList(oid);
    }
    if (wanted.NamesPage() && TakeStartRequest(wanted) == StartAnswer::UnknownList)
        NoteUnknownList(wanted.listName);
}

void MainFrame::FillHome()
{
    const auto home = m_session.Catalogue().FillHomeList();
    m_home->Fill(home.lists);
    if (home.error != ErrorNumber::None)
        ShowMessage(this,
            tr("Some lists cannot be read. Error: %1").arg(static_cast<quint32>(home.error)),
            MessageIcon::Stop);
}

Front MainFrame::WhatIsInFront() const
{
    if (!m_questions.IsIdle())
        return m_questions.Shown() == nullptr ? Front::Work : Front::Question;
    if (m_pages->HasUnsavedInput())
        return Front::Input;
    return QApplication::activePopupWidget() != nullptr ? Front::Popup : Front::Pages;
}

void MainFrame::TellOutOfMemory()
{
    ShowMessage(this, LoadText(Text::OutOfMemory), MessageIcon::Stop);
}

bool MainFrame::LetSessionEnd()
{
    m_pages->Top()->CommitInPlace();
    return ResponseTo(Interruption::SessionEnd, WhatIsInFront()) == Response::Pass;
}

void MainFrame::Meet(Interruption what, const std::function<void()>& act)
{
    switch (ResponseTo(what, WhatIsInFront())) {
    case Response::ComeForward:
        return act();
    case Response::EndPages:
        return m_pages->CloseAll(act);
    case Response::Pass:
        return;
    case Response::Wait:
        return m_questions.WhenIdle([this, what, act] { Meet(what, act); });
    }
}

StartAnswer MainFrame::TakeStartRequest(const StartRequest& request)
{
    Meet(Interruption::Start, [this, token = request.activationToken] { BringToFront(token); });
    if (!request.NamesPage())
        return StartAnswer::Done;
    if (!m_session.IsOpen()) {
        m_wanted = request;
        return StartAnswer::Done;
    }
    if (request.isNewList) {
        Meet(Interruption::StartWithList, [this] { NewList(); });
        return StartAnswer::Done;
    }
    const ObjectId oid = m_session.Catalogue().FindList(request.listName);
    if (oid == kNoObject)
        return StartAnswer::UnknownList;
    if (oid != m_openList)
        GoToList(oid);
    return StartAnswer::Done;
}

void MainFrame::GoToList(ObjectId oid)
{
    Meet(Interruption::StartWithList, [this, oid] {
        m_home->Select(oid);
        OpenList(oid);
    });
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
    QWidget* front
        = m_questions.Shown() == nullptr ? static_cast<QWidget*>(this) : m_questions.Shown();
    front->raise();
    front->activateWindow();
}

void MainFrame::closeEvent(QCloseEvent* event)
{
    const QScopedValueRollback inside(m_isInCloseEvent, true);
    // Before the data file is open there is nothing to lose, whatever is being asked.
    if (!m_session.IsOpen()) {
        m_questions.Drop();
        m_mayClose = true;
    }
    if (!m_mayClose)
        Meet(Interruption::End, [this] { EndRun(); });
    event->setAccepted(m_mayClose);
    if (!m_mayClose || !m_session.HasSettings())
        return;
    m_settings.windowGeometry = saveGeometry();
    WriteSettings(m_places.settings, m_settings);
}

void MainFrame::EndRun()
{
    // Where both are brought together the window stays, and says what came of it.
    m_merge.OfferReplaced([this] {
        m_deletions.Forget();
        m_session.End([this] {
            // A window that is gone must leave nothing to be answered.
            m_questions.WhenIdle([this] {
                m_mayClose = true;
                if (!m_isInCloseEvent)
                    close();
            });
        });
    });
}

void MainFrame::ReopenDataFile(DataFileSession::Lost lost)
{
    if (m_session.Reopen(lost)) {
        // What was deleted from another file must not come back in this one.
        m_deletions.Abandon();
        if (ReopenList())
            return RefreshPages();
    }
    // The pages are not those of the file that is there now: nothing of theirs may get into it.
    // What is entered on them can be kept as long as they stay.
    m_session.Abandon();
    m_pages->CloseAll([this] {
        OpenDataFile({});
        UpdateCommands();
    });
}

void MainFrame::TakeUpdate()
{
    ReopenDataFile(DataFileSession::Lost::Nothing);
    m_pages->Top()->Say(tr("Updated from another device"));
}

void MainFrame::ShowMerged(const MergePlan& plan)
{
    // A write that failed because the other version was there can be tried again.
    m_session.ForgetFailure();
    ReopenDataFile(DataFileSession::Lost::Nothing);
    if (!plan.notes.empty() || plan.kinship == Kinship::Unrelated)
        m_pages->Push(new MergePage(plan, m_context));
}

bool MainFrame::ReopenList()
{
    if (m_openList == kNoObject)
        return true;
    std::optional<InventoryList> reopened = m_session.Catalogue().OpenListAgain(m_openList, m_list);
    if (!reopened)
        return false;
    // How it is laid out is this window's.
    reopened->TableColSizes = m_list.TableColSizes;
    reopened->columnOrder = m_list.columnOrder;
    m_list = *reopened;
    return true;
}

void MainFrame::RefreshPages()
{
    // What is typed in the place of a name goes into the file that is there now.
    m_pages->Top()->CommitInPlace();
    m_home->KeepPlace([this] { FillHome(); });
    for (RowsView* view : m_pages->findChildren<RowsView*>())
        view->Refresh();
    NameWindow();
}

void MainFrame::OpenSelectedList()
{
    const ObjectId oid = m_home->SelectedList();
    if (oid == kNoObject)
        return;
    if (oid == m_openList)
        return m_pages->FocusTop();
    // Beside the open list its line stays the selected one until it is left.
    m_home->Select(m_openList);
    GoToList(oid);
}

void MainFrame::OpenList(ObjectId oid)
{
    const WaitCursor wait;
    m_list = {};
    if (!m_session.Catalogue().OpenList(oid, m_list))
        return;
    m_rows = std::make_unique<RowStore>(m_session.Volume(), m_list, m_context);
    const RowsViewOptions options { m_settings.Options.test(kReadOnlyOption),
        m_settings.Options.test(kAlternateColourOption) };
    auto* view = new RowsView(*m_rows, m_list, m_context, options, m_pages);
    view->SetRowDeleter([this](ObjectId row) { return m_deletions.DeleteRow(*m_rows, row); });
    // Not before all that needs much memory is there.
    m_openList = oid;
    m_deletions.SetOpenList(oid);
    if (m_settings.Options.test(kLandscapeOption))
        m_landscape.Enter();
    m_pages->Push(view, [this](PageResult result) { CloseList(result); });
}

void MainFrame::CloseList(PageResult result)
{
    m_settings.lastList = result == PageResult::Closing ? m_list.Name : QString();
    // The rows stay behind: the page that is leaving still refers to them.
    m_session.Catalogue().UpdateListOptions(m_openList, m_list);
    m_session.Catalogue().CloseRows();
    m_session.Volume().Flush();
    m_openList = kNoObject;
    m_deletions.SetOpenList(kNoObject);
    if (m_settings.Options.test(kLandscapeOption))
        m_landscape.Leave();
    m_home->FocusLines();
}

void MainFrame::RenameList()
{
    m_home->BeginRename();
}

void MainFrame::ImportList()
{
    const ObjectId oid = m_home->SelectedList();
    m_transfer.Import(oid, [this, oid] { OpenList(oid); });
}

void MainFrame::ExportList()
{
    m_transfer.Export(m_home->SelectedList());
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
