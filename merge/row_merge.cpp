// SPDX-License-Identifier: MIT
#include "merge/row_merge.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>

namespace Quillory {

namespace {

/// Goes through marks from one origin to the next.
class MarkWalk
{
public:
    explicit MarkWalk(std::span<const RowMark> marks)
        : m_rest(marks)
    { }

    /// The next origin; the greatest there is at the end, where IsAtEnd() tells.
    [[nodiscard]] bool IsAtEnd() const { return m_rest.empty(); }
    [[nodiscard]] Origin Next() const
    {
        return IsAtEnd() ? static_cast<Origin>(std::numeric_limits<quint64>::max())
                         : m_rest.front().origin;
    }
    /// The mark of this origin, which is passed; null if the next is another's.
    const RowMark* Take(Origin origin)
    {
        if (IsAtEnd() || m_rest.front().origin != origin)
            return nullptr;
        const RowMark* taken = &m_rest.front();
        m_rest = m_rest.subspan(1);
        return taken;
    }

private:
    std::span<const RowMark> m_rest;
};

bool AreEqual(const RowMark* a, const RowMark* b)
{
    return a != nullptr && b != nullptr && a->fingerprint == b->fingerprint;
}

/// Nothing where the row is on this side as it is to be.
std::optional<RowFate> FateOf(const RowMark* mine, const RowMark* theirs, const RowMark* base)
{
    if (mine != nullptr && theirs != nullptr) {
        // Changed alike, they may both have counted.
        const bool isSettled = AreEqual(mine, theirs) && (base == nullptr || AreEqual(mine, base));
        return isSettled ? std::nullopt : std::optional(RowFate::Mixes);
    }
    if (mine != nullptr && base != nullptr)
        return AreEqual(mine, base) ? RowFate::Goes : RowFate::Stays;
    if (theirs == nullptr)
        return std::nullopt;
    if (base == nullptr)
        return RowFate::Comes;
    return AreEqual(theirs, base) ? std::nullopt : std::optional(RowFate::ComesBack);
}

ObjectId RowOf(const RowMark* mark)
{
    return mark == nullptr ? kNoObject : mark->row;
}

} // namespace

std::vector<RowDecision> DecideRows(
    std::span<const RowMark> mine, std::span<const RowMark> theirs, std::span<const RowMark> base)
{
    std::vector<RowDecision> decisions;
    MarkWalk onMine(mine);
    MarkWalk onTheirs(theirs);
    MarkWalk onBase(base);
    while (!onMine.IsAtEnd() || !onTheirs.IsAtEnd()) {
        const Origin origin = std::min({ onMine.Next(), onTheirs.Next(), onBase.Next() });
        const RowMark* here = onMine.Take(origin);
        const RowMark* there = onTheirs.Take(origin);
        const RowMark* before = onBase.Take(origin);
        if (const auto fate = FateOf(here, there, before))
            decisions.push_back({ *fate, origin, RowOf(here), RowOf(there), RowOf(before) });
    }
    return decisions;
}

bool HasNews(std::span<const RowMark> side, std::span<const RowMark> base)
{
    MarkWalk onBase(base);
    for (const RowMark& mark : side) {
        while (!onBase.IsAtEnd() && onBase.Next() < mark.origin)
            onBase.Take(onBase.Next());
        if (!AreEqual(&mark, onBase.Take(mark.origin)))
            return true;
    }
    return false;
}

std::vector<RowPair> PairEqualRows(std::span<const RowMark> mine, std::span<const RowMark> theirs)
{
    const auto hasOrigin = [](std::span<const RowMark> marks, Origin origin) {
        const auto found = std::ranges::lower_bound(marks, origin, {}, &RowMark::origin);
        return found != marks.end() && found->origin == origin;
    };
    std::multimap<quint64, size_t> free;
    for (size_t i = 0; i < mine.size(); ++i) {
        if (!hasOrigin(theirs, mine[i].origin))
            free.emplace(mine[i].fingerprint, i);
    }
    std::vector<RowPair> pairs;
    for (size_t i = 0; i < theirs.size(); ++i) {
        // Of equal keys the one that was put in first is found.
        const auto found = hasOrigin(mine, theirs[i].origin)
            ? free.end()
            : free.lower_bound(theirs[i].fingerprint);
        if (found == free.end() || found->first != theirs[i].fingerprint)
            continue;
        pairs.push_back({ found->second, i });
        free.erase(found);
    }
    return pairs;
}

} // namespace Quillory
