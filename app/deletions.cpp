// SPDX-License-Identifier: MIT
#include "app/deletions.h"

#include "app/home_list.h"
#include "res/string_table.h"
#include "rows/rows_view.h"
#include "values/column_type.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"

namespace Quillory {

Deletions::Deletions(ListCatalogue& catalogue, PageStack& pages, HomeList& home)
    : m_catalogue(catalogue)
    , m_pages(pages)
    , m_home(home)
{ }

void Deletions::Ask(const QString& question, const std::function<void()>& then)
{
    ShowMessage(&m_pages, question, MessageIcon::Exclamation, MessageButtons::YesNo,
        [then](MessageAnswer answer) {
            if (answer == MessageAnswer::Yes)
                then();
        });
}

void Deletions::AskToDeleteList()
{
    const ObjectId oid = m_home.SelectedList();
    const QString name = m_home.SelectedName();
    Ask(FillIn(LoadString(StringId::DeleteListQuestion), name), [this, oid, name] {
        if (!m_last.DeleteList(oid))
            return;
        m_home.RemoveLine(oid);
        OfferUndo(tr("The list '%1' was deleted.").arg(name));
    });
}

void Deletions::AskToDeleteAllRows()
{
    const ObjectId oid = m_home.SelectedList();
    const QString name = m_home.SelectedName();
    Ask(FillIn(LoadString(StringId::DeleteAllRowsQuestion), name), [this, oid, name] {
        const auto outcome = m_last.DeleteAllRows(oid);
        if (outcome == ListCatalogue::EmptyOutcome::CannotCreateRows)
            ShowMessage(&m_pages, LoadText(Text::CannotCreateUserDatabase), MessageIcon::Stop);
        else if (outcome == ListCatalogue::EmptyOutcome::Done)
            OfferUndo(tr("All rows of '%1' were deleted.").arg(name));
    });
}

bool Deletions::DeleteRow(RowStore& rows, ObjectId row)
{
    const QString name = rows.FormatCellText(PropName, row);
    if (!m_last.DeleteRow(m_openList, rows, row))
        return false;
    OfferUndo(tr("'%1' was deleted.").arg(name));
    return true;
}

void Deletions::OfferUndo(const QString& text)
{
    m_pages.Top()->OfferUndo(text, [this] { Undo(); });
}

void Deletions::Undo()
{
    Page* page = m_pages.Top();
    auto* rows = qobject_cast<RowsView*>(page);
    const bool mayUndo = rows != nullptr ? rows->MayShowRestored() && m_last.CanUndoIn(m_openList)
                                         : page == &m_home && m_last.CanUndoOutside();
    if (!mayUndo)
        return;
    page->WithdrawUndo();
    const auto restored = m_last.Undo();
    if (!restored)
        return;
    if (rows == nullptr)
        return ShowOnHome(restored->list);
    if (restored->row != kNoObject)
        return rows->ShowRestored(restored->row);
    // All rows came back, and with them another database in the place of the open one.
    InventoryList reopened;
    if (m_catalogue.OpenList(restored->list, reopened))
        rows->Fill();
}

void Deletions::ShowOnHome(ObjectId list)
{
    InventoryList definition;
    if (m_home.Has(list))
        m_home.Select(list);
    else if (m_catalogue.ReadListHeader(list, definition))
        m_home.AddLine({ list, definition.Name, definition.TableIcon });
}

void Deletions::Forget()
{
    m_last.Forget();
    WithdrawOffers();
}

void Deletions::Abandon()
{
    m_last.Abandon();
    WithdrawOffers();
}

void Deletions::WithdrawOffers()
{
    for (Page* page : m_pages.findChildren<Page*>())
        page->WithdrawUndo();
}

} // namespace Quillory
