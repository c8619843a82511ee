// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"

#include <QCoreApplication>

namespace Quillory {

class DataFileSession;
class HomeList;
class PageStack;

/// Makes lists, and changes what they are called and what they warn of. What could not be stored
/// comes back to be tried again.
class ListDefinitions
{
    Q_DECLARE_TR_FUNCTIONS(ListDefinitions)

public:
    /// All three outlive the object, which outlives the pages that it opens.
    ListDefinitions(DataFileSession& session, PageStack& pages, HomeList& home);

    void MakeList();
    /// Of the list selected on the home list.
    void ShowProperties();

private:
    DataFileSession& m_session;
    PageStack& m_pages;
    HomeList& m_home;

    /// Opens the sheet of a new list. `failed` is the line of an attempt that could not be stored;
    /// kNoObject for the first.
    void EnterNewList(const InventoryList& entered, ObjectId failed);
    void StoreNewList(const InventoryList& entered);
    void EnterProperties(ObjectId list, const InventoryList& stored, const InventoryList& entered);
    /// Writes what `entered` changed of `stored`; false, and nothing written, on failure.
    bool StoreProperties(ObjectId list, const InventoryList& stored, const InventoryList& entered);
};

} // namespace Quillory
