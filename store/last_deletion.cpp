// SPDX-License-Identifier: MIT
#include "store/last_deletion.h"

#include <utility>

namespace Quillory {

LastDeletion::LastDeletion(ListCatalogue& catalogue)
    : m_catalogue(catalogue)
{ }

LastDeletion::~LastDeletion()
{
    try {
        Forget();
    } catch (...) {
        // What could not be ended now is at the next deletion.
    }
}

bool LastDeletion::DeleteList(ObjectId list)
{
    Forget();
    InventoryList definition;
    if (!m_catalogue.ReadListHeader(list, definition) || !m_catalogue.DeleteList(list))
        return false;
    m_what = What::List;
    m_definition = definition;
    return true;
}

ListCatalogue::EmptyOutcome LastDeletion::DeleteAllRows(ObjectId list)
{
    Forget();
    const ListCatalogue::EmptyOutcome outcome = m_catalogue.DeleteAllRows(list);
    if (outcome == ListCatalogue::EmptyOutcome::Done) {
        m_what = What::AllRows;
        m_list = list;
    }
    return outcome;
}

bool LastDeletion::DeleteRow(ObjectId list, RowStore& rows, ObjectId row)
{
    Record record = rows.ReadRow(row);
    if (!rows.DeleteRow(row))
        return false;
    Forget();
    m_what = What::Row;
    m_list = list;
    m_row = std::move(record);
    return true;
}

bool LastDeletion::CanUndoIn(ObjectId list) const
{
    return list == m_list && (m_what == What::Row || m_what == What::AllRows);
}

ObjectId LastDeletion::RestoreRow()
{
    DataVolume& volume = m_catalogue.Volume();
    const bool isOpen = volume.DatabaseOid(ListCatalogue::kRowsType) != kNoObject;
    InventoryList definition;
    if (!m_row || (!isOpen && !m_catalogue.OpenList(m_list, definition)))
        return kNoObject;
    const ObjectId row = volume.AddBack(ListCatalogue::kRowsType, m_row);
    if (!isOpen)
        m_catalogue.CloseRows();
    return row;
}

std::optional<LastDeletion::Restored> LastDeletion::Undo()
{
    Restored restored { m_list, kNoObject };
    bool isDone = false;
    switch (m_what) {
    case What::Nothing:
        return std::nullopt;
    case What::Row:
        restored.row = RestoreRow();
        isDone = restored.row != kNoObject;
        break;
    case What::AllRows:
        isDone = m_catalogue.RestoreRows(m_list);
        break;
    case What::List:
        restored.list = m_catalogue.RestoreList(m_definition);
        isDone = restored.list != kNoObject;
        break;
    }
    if (!isDone)
        return std::nullopt;
    m_what = What::Nothing;
    m_row = {};
    return restored;
}

void LastDeletion::Abandon()
{
    m_what = What::Nothing;
    m_row = {};
}

void LastDeletion::Forget()
{
    Abandon();
    // What could not be ended now is at the next deletion.
    m_catalogue.PurgeDeleted();
}

} // namespace Quillory
