// SPDX-License-Identifier: MIT
#pragma once

#include "store/list_catalogue.h"
#include "store/row_store.h"

#include <optional>

namespace Quillory {

/// Deletes rows and lists so that the latest deletion can be undone, until the next one or the end
/// of the program. Then nothing of it is left in the file.
class LastDeletion
{
public:
    /// `catalogue` outlives the object.
    explicit LastDeletion(ListCatalogue& catalogue);
    /// As Forget().
    ~LastDeletion();
    LastDeletion(const LastDeletion&) = delete;
    LastDeletion& operator=(const LastDeletion&) = delete;

    /// As ListCatalogue deletes them; durable. On failure nothing is deleted.
    bool DeleteList(ObjectId list);
    [[nodiscard]] ListCatalogue::EmptyOutcome DeleteAllRows(ObjectId list);
    /// Deletes a row of the list that `rows` shows.
    bool DeleteRow(ObjectId list, RowStore& rows, ObjectId row);

    [[nodiscard]] bool CanUndo() const { return m_what != What::Nothing; }
    /// Whether what comes back is seen outside any list: a list, or all rows of one.
    [[nodiscard]] bool CanUndoOutside() const
    {
        return m_what == What::AllRows || m_what == What::List;
    }
    /// Whether it was a row of this list that was deleted, or all of them.
    [[nodiscard]] bool CanUndoIn(ObjectId list) const;

    /// What came back, under identifiers that may be new.
    struct Restored
    {
        ObjectId list = kNoObject;
        /// kNoObject unless it was one row.
        ObjectId row = kNoObject;
    };
    /// Brings back what was deleted last, durably. Nothing, and nothing changed, if it cannot or if
    /// there is nothing. A row database that was open is closed afterwards, but not the one of the
    /// list whose single row came back.
    std::optional<Restored> Undo();

    /// Ends what could be undone.
    void Forget();
    /// The same without a write, for a file that is no longer the one of the deletion: what it
    /// keeps aside is its own.
    void Abandon();

private:
    enum class What
    {
        Nothing,
        Row,
        AllRows,
        List,
    };

    ListCatalogue& m_catalogue;
    What m_what = What::Nothing;
    ObjectId m_list = kNoObject;
    InventoryList m_definition;
    Record m_row;

    [[nodiscard]] ObjectId RestoreRow();
};

} // namespace Quillory
