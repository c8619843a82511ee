// SPDX-License-Identifier: MIT
#pragma once

#include "store/key_sort.h"

#include <QByteArrayView>

#include <span>
#include <vector>

namespace Quillory {

/// Sorts texts by their UTF-16 units. Needs some 50 bytes a text, and the texts.
class TextSort
{
public:
    /// As many texts, all empty so far. Where it is known how many bytes they have, no more memory
    /// is taken than they need.
    explicit TextSort(size_t count, size_t bytes = 0);

    /// Gives the text of a position, once: big-endian UTF-16 without a NUL.
    void Set(quint32 position, QByteArrayView text);
    /// The positions by their texts; those of equal texts in their own order.
    [[nodiscard]] std::vector<quint32> Sort();

private:
    using EntrySpan = std::span<SortEntry>;

    /// Where each text begins. One that was not given is the empty text at the front.
    std::vector<size_t> m_begins;
    std::vector<char> m_bytes;
    std::vector<SortEntry> m_spare;

    [[nodiscard]] const char* TextOf(const SortEntry& entry) const;
    /// Sorts entries whose texts are equal in their first `depth` bytes, and that stand in the
    /// order of their positions.
    void SortFrom(EntrySpan entries, size_t depth);
    /// As SortFrom, comparing the texts themselves.
    void SortWhole(EntrySpan entries, size_t depth) const;
};

} // namespace Quillory
