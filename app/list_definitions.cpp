// SPDX-License-Identifier: MIT
#include "app/list_definitions.h"

#include "app/data_file_session.h"
#include "app/home_list.h"
#include "listdef/list_sheet.h"
#include "res/string_table.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"

#include <optional>

namespace Quillory {

namespace {

/// The list as it is now, with what was entered for it: what nobody changed on the sheet stays as
/// another device may have left it meanwhile.
InventoryList WithChanges(
    InventoryList present, const InventoryList& before, const InventoryList& entered)
{
    const auto take = [&](auto field) {
        if (entered.*field != before.*field)
            present.*field = entered.*field;
    };
    take(&InventoryList::Name);
    take(&InventoryList::TableIcon);
    take(&InventoryList::TableOption);
    take(&InventoryList::TableWarnStart);
    take(&InventoryList::TableWarnColour);
    take(&InventoryList::TableExpiryColour);
    return present;
}

} // namespace

ListDefinitions::ListDefinitions(DataFileSession& session, PageStack& pages, HomeList& home)
    : m_session(session)
    , m_pages(pages)
    , m_home(home)
{ }

void ListDefinitions::MakeList()
{
    EnterNewList(NewInventoryList(), kNoObject);
}

void ListDefinitions::EnterNewList(const InventoryList& entered, ObjectId failed)
{
    auto* sheet = new ListSheet(SheetMode::NewList, NewInventoryList(), entered);
    m_pages.Push(sheet, [this, sheet, failed](PageResult result) {
        if (result != PageResult::Ok || sheet->Result().Name.isEmpty())
            return;
        // The line of the attempt before stood for this one.
        m_home.RemoveLine(failed);
        StoreNewList(sheet->Result());
    });
}

void ListDefinitions::StoreNewList(const InventoryList& entered)
{
    InventoryList list = entered;
    const ListCatalogue::CreateOutcome outcome = m_session.Catalogue().CreateList(list);
    if (outcome.oid != kNoObject)
        m_home.AddLine({ outcome.oid, list.Name, list.TableIcon });
    if (outcome.isCommitted)
        return;
    EnterNewList(entered, outcome.oid);
    if (outcome.oid == kNoObject)
        return;
    ShowMessage(&m_pages, LoadText(Text::CannotCreateUserDatabase), MessageIcon::Stop);
    ShowMessage(&m_pages, LoadText(Text::CannotCreateInventoryTable), MessageIcon::Stop);
}

void ListDefinitions::ShowProperties()
{
    const ObjectId oid = m_home.SelectedList();
    InventoryList list;
    if (m_session.Catalogue().OpenList(oid, list))
        EnterProperties(oid, list, list);
}

void ListDefinitions::EnterProperties(
    ObjectId list, const InventoryList& stored, const InventoryList& entered)
{
    auto* sheet = new ListSheet(SheetMode::ExistingList, stored, entered);
    m_pages.Push(sheet, [this, sheet, list, stored](PageResult result) {
        m_session.Catalogue().CloseRows();
        m_session.Volume().Flush();
        if (result != PageResult::Ok)
            return;
        const InventoryList changed = sheet->Result();
        if (StoreProperties(list, stored, changed))
            return;
        EnterProperties(list, stored, changed);
        // Its number may be that of another list by now.
        if (m_session.Catalogue().ReadListDefinition(list, nullptr) != stored.MapName)
            ShowMessage(
                &m_pages, tr("Another device has deleted this list."), MessageIcon::Exclamation);
    });
}

bool ListDefinitions::StoreProperties(
    ObjectId list, const InventoryList& stored, const InventoryList& entered)
{
    const std::optional<InventoryList> present = m_session.Catalogue().OpenListAgain(list, stored);
    m_session.Catalogue().CloseRows();
    if (!present)
        return false;
    const InventoryList definition = WithChanges(*present, stored, entered);
    if (!m_session.Catalogue().UpdateList(list, definition))
        return false;
    m_home.UpdateLine({ list, definition.Name, definition.TableIcon });
    return true;
}

} // namespace Quillory
