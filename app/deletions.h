// SPDX-License-Identifier: MIT
#pragma once

#include "store/last_deletion.h"

#include <QCoreApplication>

namespace Quillory {

class HomeList;
class PageStack;

/// Deletes lists and rows, offers for some seconds to undo that, and decides where it may be
/// undone: only where the user sees what comes back, and never in a list that is only read.
class Deletions
{
    Q_DECLARE_TR_FUNCTIONS(Deletions)

public:
    /// All three outlive the object.
    Deletions(ListCatalogue& catalogue, PageStack& pages, HomeList& home);

    /// Which list is open above the home list; kNoObject if none is.
    void SetOpenList(ObjectId list) { m_openList = list; }

    /// Asks before the list selected on the home list is deleted, or all its rows.
    void AskToDeleteList();
    void AskToDeleteAllRows();
    /// Deletes a row of the open list; true if it did.
    [[nodiscard]] bool DeleteRow(RowStore& rows, ObjectId row);
    /// Brings back what was deleted last; nothing where that may not be.
    void Undo();
    /// Ends what could be undone. Nothing of it is left in the file.
    void Forget();
    /// The same where another file is open than the one of the deletion: nothing is written there.
    void Abandon();

private:
    ListCatalogue& m_catalogue;
    PageStack& m_pages;
    HomeList& m_home;
    LastDeletion m_last { m_catalogue };
    ObjectId m_openList = kNoObject;

    void Ask(const QString& question, const std::function<void()>& then);
    void OfferUndo(const QString& text);
    void WithdrawOffers();
    void ShowOnHome(ObjectId list);
};

} // namespace Quillory
