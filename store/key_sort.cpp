// SPDX-License-Identifier: MIT
#include "store/key_sort.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

namespace {

/// Digits of a key, from the lowest.
constexpr int kDigitBits = 11;
constexpr size_t kDigits = 6;
using DigitCounts = std::array<std::array<quint32, size_t { 1 } << kDigitBits>, kDigits>;

size_t DigitOf(quint64 key, size_t digit)
{
    return static_cast<size_t>(key >> (digit * kDigitBits)) & ((size_t { 1 } << kDigitBits) - 1);
}

/// Sorts entries that stand in the order of their positions, digit by digit; digits that all keys
/// share cost nothing.
void SortDigits(std::span<SortEntry> entries, std::vector<SortEntry>& spare)
{
    DigitCounts counts {};
    for (const SortEntry& entry : entries) {
        for (size_t digit = 0; digit < kDigits; ++digit)
            ++counts[digit][DigitOf(entry.key, digit)];
    }
    spare.resize(std::max(spare.size(), entries.size()));
    std::span<SortEntry> from = entries;
    std::span<SortEntry> to = std::span(spare).first(entries.size());
    for (size_t digit = 0; digit < kDigits; ++digit) {
        auto& places = counts[digit];
        if (places[DigitOf(entries.front().key, digit)] == entries.size())
            continue;
        quint32 next = 0;
        for (quint32& place : places)
            next += std::exchange(place, next);
        for (const SortEntry& entry : from)
            to[places[DigitOf(entry.key, digit)]++] = entry;
        std::swap(from, to);
    }
    if (from.data() != entries.data())
        std::ranges::copy(from, entries.begin());
}

} // namespace

std::vector<quint32> PositionsOf(std::span<const SortEntry> entries)
{
    std::vector<quint32> positions(entries.size());
    std::ranges::transform(entries, positions.begin(), &SortEntry::position);
    return positions;
}

void SortByKey(std::span<SortEntry> entries, std::vector<SortEntry>& spare)
{
    constexpr size_t kWorthCounting = 4096;
    if (entries.size() < kWorthCounting)
        std::sort(entries.begin(), entries.end());
    else
        SortDigits(entries, spare);
}

} // namespace Quillory
