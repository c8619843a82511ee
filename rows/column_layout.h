// SPDX-License-Identifier: MIT
#pragma once

class QHeaderView;

namespace Quillory {

struct InventoryList;

/// Wider columns are no work of a person's hand.
constexpr int kMaxColumnWidth = 10000;

/// Gives the sections of a rows view the widths and the order that the list stores. A width that is
/// missing or absurd is the usual one of the column's type; an order that is none is passed over.
void ApplyColumnLayout(QHeaderView& header, const InventoryList& list);
/// Puts the widths and the order of the sections into the list's definition.
void StoreColumnLayout(const QHeaderView& header, InventoryList& list);

} // namespace Quillory
