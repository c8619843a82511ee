// SPDX-License-Identifier: MIT
#include "app/home_list.h"
#include "app/main_frame.h"
#include "listdef/list_sheet.h"
#include "res/string_table.h"
#include "rows/rows_view.h"
#include "values/column_type.h"
#include "widgets/message_box.h"
#include "widgets/wait_cursor.h"

#include <QApplication>

#include <functional>
#include <memory>

namespace Quillory {

StartAnswer MainFrame::OpenNamedList(const QString& name)
{
    const ObjectId oid = m_catalogue.FindList(name);
    if (oid == kNoObject)
        return StartAnswer::UnknownList;
    // A page that asks before it ends, or a question, keeps its place.
    const bool isFree = QApplication::activeModalWidget() == nullptr;
    if (oid != m_openList && isFree && CloseAllPages()) {
        m_home->Select(oid);
        OpenList(oid);
    }
    return StartAnswer::Done;
}

void MainFrame::OpenSelectedList()
{
    const ObjectId oid = m_home->SelectedList();
    if (oid != kNoObject)
        OpenList(oid);
}

void MainFrame::OpenList(ObjectId oid)
{
    const WaitCursor wait;
    m_list = {};
    if (!m_catalogue.OpenList(oid, m_list))
        return;
    m_openList = oid;
    m_rows = std::make_unique<RowStore>(m_volume, m_list, m_context);
    if (m_settings.Options.test(kLandscapeOption))
        m_landscape.Enter(m_settings.ListOrientation);
    const RowsViewOptions options { m_settings.Options.test(kReadOnlyOption),
        m_settings.Options.test(kAlternateColourOption) };
    auto* view = new RowsView(*m_rows, m_list, m_context, options);
    view->SetRowDeleter([this](ObjectId row) { return DeleteRow(row); });
    m_pages->Push(view, [this](PageResult) { CloseList(); });
}

void MainFrame::CloseList()
{
    // The rows stay behind: the page that is leaving still refers to them.
    m_catalogue.UpdateListOptions(m_openList, m_list);
    m_catalogue.CloseRows();
    m_volume.Flush();
    m_openList = kNoObject;
    if (m_settings.Options.test(kLandscapeOption))
        m_landscape.Leave();
    m_home->FocusLines();
}

void MainFrame::NewList()
{
    auto* sheet = new ListSheet(SheetMode::NewList, NewInventoryList());
    m_pages->Push(sheet, [this, sheet](PageResult result) {
        if (result == PageResult::Ok && !sheet->Result().Name.isEmpty())
            StoreNewList(sheet->Result());
    });
}

void MainFrame::StoreNewList(InventoryList list)
{
    const ListCatalogue::CreateOutcome outcome = m_catalogue.CreateList(list);
    if (outcome.oid == kNoObject)
        return;
    m_home->AddLine({ outcome.oid, list.Name, list.TableIcon });
    if (outcome.isCommitted)
        return;
    TellStop(LoadText(Text::CannotCreateUserDatabase),
        [this] { TellStop(LoadText(Text::CannotCreateInventoryTable)); });
}

void MainFrame::ShowProperties()
{
    const ObjectId oid = m_home->SelectedList();
    InventoryList list;
    if (!m_catalogue.OpenList(oid, list))
        return;
    auto* sheet = new ListSheet(SheetMode::ExistingList, list);
    m_pages->Push(sheet, [this, sheet, oid](PageResult result) {
        m_catalogue.CloseRows();
        m_volume.Flush();
        if (result == PageResult::Ok)
            StoreProperties(oid, sheet->Result());
    });
}

void MainFrame::StoreProperties(ObjectId oid, const InventoryList& list)
{
    if (m_catalogue.UpdateList(oid, list))
        m_home->UpdateLine({ oid, list.Name, list.TableIcon });
}

void MainFrame::RenameList()
{
    m_home->BeginRename();
}

void MainFrame::DeleteList()
{
    const ObjectId oid = m_home->SelectedList();
    ShowMessage(this, FillIn(LoadString(StringId::DeleteListQuestion), m_home->SelectedName()),
        MessageIcon::Exclamation, MessageButtons::YesNo, [this, oid](MessageAnswer answer) {
            if (answer != MessageAnswer::Yes || !m_deletion.DeleteList(oid))
                return;
            OfferUndo(tr("The list '%1' was deleted.").arg(m_home->SelectedName()));
            m_home->RemoveLine(oid);
        });
}

void MainFrame::DeleteAllRecords()
{
    const ObjectId oid = m_home->SelectedList();
    ShowMessage(this, FillIn(LoadString(StringId::DeleteAllRowsQuestion), m_home->SelectedName()),
        MessageIcon::Exclamation, MessageButtons::YesNo, [this, oid](MessageAnswer answer) {
            if (answer != MessageAnswer::Yes)
                return;
            const auto outcome = m_deletion.DeleteAllRows(oid);
            if (outcome == ListCatalogue::EmptyOutcome::CannotCreateRows)
                TellStop(LoadText(Text::CannotCreateUserDatabase));
            else if (outcome == ListCatalogue::EmptyOutcome::Done)
                OfferUndo(tr("All rows of '%1' were deleted.").arg(m_home->SelectedName()));
        });
}

bool MainFrame::DeleteRow(ObjectId row)
{
    const QString name = m_rows->FormatCellText(PropName, row);
    if (!m_deletion.DeleteRow(m_openList, *m_rows, row))
        return false;
    OfferUndo(tr("'%1' was deleted.").arg(name));
    return true;
}

void MainFrame::OfferUndo(const QString& text)
{
    m_pages->Top()->OfferUndo(text, [this] { UndoDeletion(); });
}

void MainFrame::UndoDeletion()
{
    // Elsewhere nobody could see what comes back, and a list that is only read stays as it is.
    const auto* rows = qobject_cast<RowsView*>(m_pages->Top());
    const bool isRows = rows != nullptr && rows->MayShowRestored();
    if (m_pages->Top() != m_home && !(isRows && m_deletion.CanUndoIn(m_openList)))
        return;
    m_pages->Top()->WithdrawUndo();
    if (const auto restored = m_deletion.Undo())
        ShowRestored(*restored);
}

void MainFrame::ShowRestored(const LastDeletion::Restored& restored)
{
    if (auto* view = qobject_cast<RowsView*>(m_pages->Top())) {
        if (restored.row != kNoObject)
            return view->ShowRestored(restored.row);
        // All rows came back, and with them another database in the place of the open one.
        InventoryList reopened;
        if (m_catalogue.OpenList(restored.list, reopened))
            view->Fill();
        return;
    }
    InventoryList list;
    if (m_home->Has(restored.list))
        m_home->Select(restored.list);
    else if (m_catalogue.ReadListHeader(restored.list, list))
        m_home->AddLine({ restored.list, list.Name, list.TableIcon });
}

void MainFrame::TellStop(const QString& text, const std::function<void()>& then)
{
    ShowMessage(this, text, MessageIcon::Stop, MessageButtons::Ok, [then](MessageAnswer) {
        if (then)
            then();
    });
}

} // namespace Quillory
