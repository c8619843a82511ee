// SPDX-License-Identifier: MIT
#pragma once

#include "cli/output.h"
#include "store/inventory_list.h"

#include <QByteArray>

#include <vector>

namespace Quillory {

/// The file of a folder of exported lists that tells of the others: a JSON array with an object per
/// list, of what is kept of it beside its rows, and of the name of its file.
inline const QString kListIndexName = QStringLiteral("lists.json");

struct IndexedList
{
    InventoryList list;
    QString fileName;
};

void AddToListIndex(JsonArrayWriter& index, const IndexedList& entry);
/// The lists that such a file tells of; the numbers of their columns are drawn when they are made.
/// Ends the command if it is no such file.
[[nodiscard]] std::vector<IndexedList> ReadListIndex(const QByteArray& bytes);

} // namespace Quillory
