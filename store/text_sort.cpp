// SPDX-License-Identifier: MIT
#include "store/text_sort.h"

#include <QtEndian>

#include <algorithm>

namespace Quillory {

namespace {

/// So many bytes of a text make a key. As many zeros end each text, which holds none, so that the
/// key of a text's end is smaller than that of a longer one.
constexpr size_t kKeyBytes = sizeof(quint64);
constexpr quint64 kLastUnit = 0xFFFF;

quint64 KeyAt(const char* text)
{
    return qFromBigEndian<quint64>(text);
}

int Compare(const char* a, const char* b)
{
    for (;; a += kKeyBytes, b += kKeyBytes) {
        const quint64 keyOfA = KeyAt(a);
        const quint64 keyOfB = KeyAt(b);
        if (keyOfA != keyOfB)
            return keyOfA < keyOfB ? -1 : 1;
        if ((keyOfA & kLastUnit) == 0)
            return 0;
    }
}

} // namespace

TextSort::TextSort(size_t count, size_t bytes)
    : m_begins(count)
{
    m_bytes.reserve(bytes == 0 ? 0 : bytes + (count + 1) * kKeyBytes);
    m_bytes.resize(kKeyBytes);
}

void TextSort::Set(quint32 position, QByteArrayView text)
{
    m_begins[position] = m_bytes.size();
    m_bytes.insert(m_bytes.end(), text.begin(), text.end());
    m_bytes.resize(m_bytes.size() + kKeyBytes);
}

std::vector<quint32> TextSort::Sort()
{
    std::vector<SortEntry> entries(m_begins.size());
    for (size_t i = 0; i < entries.size(); ++i)
        entries[i].position = static_cast<quint32>(i);
    SortFrom(entries, 0);
    return PositionsOf(entries);
}

const char* TextSort::TextOf(const SortEntry& entry) const
{
    return m_bytes.data() + m_begins[entry.position];
}

void TextSort::SortFrom(EntrySpan entries, size_t depth)
{
    constexpr size_t kFewEntries = 16;
    constexpr size_t kMaxDepth = 32 * kKeyBytes;
    if (entries.size() < kFewEntries || depth >= kMaxDepth)
        return SortWhole(entries, depth);
    for (SortEntry& entry : entries)
        entry.key = KeyAt(TextOf(entry) + depth);
    SortByKey(entries, m_spare);
    for (auto begin = entries.begin(); begin != entries.end();) {
        const quint64 key = begin->key;
        const auto end = std::find_if(
            begin, entries.end(), [key](const SortEntry& entry) { return entry.key != key; });
        if (end - begin > 1 && (key & kLastUnit) != 0)
            SortFrom({ begin, end }, depth + kKeyBytes);
        begin = end;
    }
}

void TextSort::SortWhole(EntrySpan entries, size_t depth) const
{
    std::ranges::sort(entries, [this, depth](const SortEntry& a, const SortEntry& b) {
        const int order = Compare(TextOf(a) + depth, TextOf(b) + depth);
        return order != 0 ? order < 0 : a.position < b.position;
    });
}

} // namespace Quillory
