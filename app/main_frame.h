// SPDX-License-Identifier: MIT
#pragma once

#include "app/data_file_session.h"
#include "app/deletions.h"
#include "app/device_merge.h"
#include "app/list_definitions.h"
#include "app/list_transfer.h"
#include "desktop/interruptions.h"
#include "desktop/landscape_shape.h"
#include "desktop/single_instance.h"
#include "store/row_store.h"
#include "store/settings.h"
#include "widgets/page_stack.h"
#include "widgets/questions.h"

#include <QMainWindow>

#include <memory>

namespace Quillory {

class HomeList;

/// The program's one window: the home list, and above it the pages that its commands open.
class MainFrame : public QMainWindow
{
    Q_OBJECT

public:
    /// Where the program keeps what is not in the data file.
    struct Places
    {
        QString settings;
        /// The folder of the copies of data files.
        QString copies;
    };
    /// Takes the settings over, to be written back at the end; the data file is opened by
    /// OpenDataFile() alone.
    MainFrame(Settings settings, Places places, QWidget* parent = nullptr);
    ~MainFrame() override;

    /// Replaces the file dialog of the first start.
    void SetFileChooser(DataFileSession::FileChooser chooser);

    /// Opens the data file, asking where need be, and then what the start asks for. A failure
    /// closes the window.
    void OpenDataFile(const StartRequest& wanted);

    /// Comes to the front, and opens what a later start asks for as soon as that can be.
    StartAnswer TakeStartRequest(const StartRequest& request);

    /// A command ended for want of memory.
    void TellOutOfMemory();

    /// The desktop's session is about to end: takes over what is typed in the place of a line's
    /// text. False where there is something to ask or to wait for before the window may close.
    [[nodiscard]] bool LetSessionEnd();

protected:
    /// Accepts only once nothing is asked, typed or running any more; until then the window stays.
    void closeEvent(QCloseEvent* event) override;

private:
    /// One line of the table of commands.
    struct CommandEntry;
    static const CommandEntry kCommands[];

    Places m_places;
    Settings m_settings;
    ValueContext m_context;
    PageStack* m_pages;
    Questions& m_questions;
    HomeList* m_home;
    DataFileSession m_session { m_settings, m_places.copies, *m_pages };
    Deletions m_deletions;
    ListDefinitions m_definitions;
    DeviceMerge m_merge { m_session, *m_pages };
    ListTransfer m_transfer { m_session, *m_pages, m_context };
    LandscapeShape m_landscape;
    /// What to open once the data file is.
    StartRequest m_wanted;
    bool m_mayClose = false;
    bool m_isInCloseEvent = false;

    /// The list that is open, and its rows.
    ObjectId m_openList = kNoObject;
    InventoryList m_list;
    std::unique_ptr<RowStore> m_rows;

    void BuildHome();
    void RestoreWindow();
    /// By the page that is seen.
    void NameWindow();
    void RunCommand(Command command);
    void UpdateCommands();
    void ShowLists();
    void FillHome();
    void BringToFront(const QString& activationToken);
    void ShowHelp(const QString& anchor);

    [[nodiscard]] Front WhatIsInFront() const;
    /// Has `act` follow on an interruption, when and as that is met.
    void Meet(Interruption what, const std::function<void()>& act);
    void EndRun();
    void ReopenDataFile(DataFileSession::Lost lost);
    void TakeUpdate();
    void ShowMerged(const MergePlan& plan);
    /// Whether the open list is still there with its columns; its definition is the file's then.
    [[nodiscard]] bool ReopenList();
    void RefreshPages();

    void OpenSelectedList();
    /// Leaves whatever is open first, asking where input would be lost.
    void GoToList(ObjectId oid);
    void OpenList(ObjectId oid);
    void CloseList(PageResult result);
    void NewList() { m_definitions.MakeList(); }
    void ShowProperties() { m_definitions.ShowProperties(); }
    void RenameList();
    void DeleteList() { m_deletions.AskToDeleteList(); }
    void DeleteAllRecords() { m_deletions.AskToDeleteAllRows(); }
    void ImportList();
    void ExportList();
    void ToggleReadOnly();
    void ShowOptions();
    void ShowAbout();
};

} // namespace Quillory
