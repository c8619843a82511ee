// SPDX-License-Identifier: MIT
#pragma once

#include "merge/contents.h"

#include <span>

namespace Quillory {

/// What a merge does to a row that is not the same on both sides.
enum class RowFate
{
    /// The other side has made it.
    Comes,
    /// Deleted here, changed there.
    ComesBack,
    /// Untouched here, deleted there.
    Goes,
    /// Changed here, deleted there.
    Stays,
    /// Both sides have it, with different values, or with the same and others than in the base.
    Mixes,
};
struct RowDecision
{
    RowFate fate {};
    Origin origin = kNoOrigin;
    /// kNoObject where the side does not have it.
    ObjectId mine = kNoObject;
    ObjectId theirs = kNoObject;
    ObjectId base = kNoObject;
};

/// Goes through the rows of a list on both sides, and in the base if there is one: without it
/// nothing goes. Each is in the order of origins; so is what is decided.
[[nodiscard]] std::vector<RowDecision> DecideRows(
    std::span<const RowMark> mine, std::span<const RowMark> theirs, std::span<const RowMark> base);

/// Whether a side has rows that the base has not, or has otherwise.
[[nodiscard]] bool HasNews(std::span<const RowMark> side, std::span<const RowMark> base);

struct RowPair
{
    size_t mine = 0;
    size_t theirs = 0;
};
/// Pairs rows of equal values, by their places, that have their origins for themselves: each once,
/// in the order of origins on both sides.
[[nodiscard]] std::vector<RowPair> PairEqualRows(
    std::span<const RowMark> mine, std::span<const RowMark> theirs);

} // namespace Quillory
