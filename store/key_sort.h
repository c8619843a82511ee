// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <span>
#include <vector>

namespace Quillory {

/// A key beside the position of what it belongs to, so that a sort touches nothing else.
struct SortEntry
{
    quint64 key = 0;
    quint32 position = 0;

    friend bool operator<(const SortEntry& a, const SortEntry& b)
    {
        return a.key != b.key ? a.key < b.key : a.position < b.position;
    }
};

/// The positions in the order of the entries.
[[nodiscard]] std::vector<quint32> PositionsOf(std::span<const SortEntry> entries);

/// Sorts entries that stand in the order of their positions. `spare` is room that grows to their
/// number and can be given again.
void SortByKey(std::span<SortEntry> entries, std::vector<SortEntry>& spare);

} // namespace Quillory
