// SPDX-License-Identifier: MIT
#pragma once

#include "app/data_file_opener.h"
#include "app/landscape_shape.h"
#include "app/settings.h"
#include "app/single_instance.h"
#include "store/last_deletion.h"
#include "transfer/text_import.h"
#include "values/value_text.h"
#include "widgets/page_stack.h"

#include <QMainWindow>

#include <functional>
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
        /// The note of a turned screen; empty where the screen is not to be turned.
        QString turnedOutput {};
    };
    /// Takes the settings over, to be written back at the end; the data file is opened by
    /// OpenDataFile() alone.
    MainFrame(Settings settings, Places places, QWidget* parent = nullptr);
    ~MainFrame() override;

    /// Asks for a place for the data file; calls `then` with an empty path if none was chosen.
    using FileChooser = std::function<void(std::function<void(const QString&)> then)>;
    /// Replaces the file dialog of the first start.
    void SetFileChooser(FileChooser chooser);

    /// Opens the data file, asking where need be, and then the list so named unless it is empty.
    /// A failure closes the window.
    void OpenDataFile(const QString& listName);

    /// Comes to the front and opens the list that a later start names.
    StartAnswer TakeStartRequest(const StartRequest& request);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    /// One line of the table of commands.
    struct CommandEntry;
    static const CommandEntry kCommands[];

    Places m_places;
    Settings m_settings;
    ValueContext m_context;
    DataVolume m_volume;
    ListCatalogue m_catalogue { m_volume };
    LastDeletion m_deletion { m_catalogue };
    FileChooser m_chooser;
    std::unique_ptr<DataFileOpener> m_opener;
    /// The list to open once the data file is.
    QString m_wantedList;
    bool m_isDataFileOpen = false;
    /// A failed write that the person has not been told of yet.
    ErrorNumber m_writeFailure = ErrorNumber::None;
    bool m_savesSettings = false;

    /// The list that is open, and its rows.
    ObjectId m_openList = kNoObject;
    InventoryList m_list;
    std::unique_ptr<RowStore> m_rows;

    PageStack* m_pages;
    HomeList* m_home;
    LandscapeShape m_landscape;

    void BuildHome();
    void RestoreWindow();
    void RunCommand(Command command);
    void UpdateCommands();

    [[nodiscard]] DataFileOpener::Prompts OpenerPrompts();
    void EndOpening(DataFileOpener::Outcome outcome);
    void FillHome();
    void BringToFront(const QString& activationToken);
    /// Ends the pages from the top. False where one has input that would be lost, or stays.
    [[nodiscard]] bool CloseAllPages();
    void AskToDiscardInput();
    /// False if it is gone from its place, which is told before the window closes.
    [[nodiscard]] bool EndDataFile();
    void ShowHelp(const QString& anchor);

    [[nodiscard]] StartAnswer OpenNamedList(const QString& name);
    void OpenSelectedList();
    void OpenList(ObjectId oid);
    void CloseList();

    void NewList();
    void StoreNewList(InventoryList list);
    void ShowProperties();
    void StoreProperties(ObjectId oid, const InventoryList& list);
    void RenameList();
    void DeleteList();
    void DeleteAllRecords();
    [[nodiscard]] bool DeleteRow(ObjectId row);
    void OfferUndo(const QString& text);
    void UndoDeletion();
    void ShowRestored(const LastDeletion::Restored& restored);
    void ShowOptions();
    void ImportList();
    void ChooseImportOrder(const QString& path);
    void ImportFrom(const QString& path, const std::vector<PropertyId>& order);
    void EndImport(const ImportOutcome& outcome);
    void ExportList();
    void ExportTo(const QString& path);
    void TellWriteFailure();
    /// As Volume::VerifyInPlace() tells of the data file, if it holds changes of this run.
    [[nodiscard]] ErrorNumber PlaceError();
    /// Keeps what would go with the old file, and tells of it.
    void KeepReplacedFile();
    void ReopenDataFile();
    /// Opens the data file and the open list anew. False if they are not what the pages show.
    [[nodiscard]] bool RemountUnderPages();
    void RefreshPages();
    void TellStop(const QString& text, const std::function<void()>& then = {});
    void ToggleReadOnly();
    void ShowAbout();
};

} // namespace Quillory
