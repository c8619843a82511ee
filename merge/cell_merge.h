// SPDX-License-Identifier: MIT
#pragma once

#include "merge/contents.h"

#include <optional>
#include <span>

namespace Quillory {

/// What decides where both sides have changed the same.
struct Precedence
{
    /// This device's state is the greater one.
    bool isMine = false;
    /// The base is the latest that both sides come from.
    bool isBaseExact = false;
};

/// What became of a value that the two sides had different.
enum class Settlement
{
    /// Only this side had changed it.
    Mine,
    Theirs,
    /// Both had.
    MineDecided,
    TheirsDecided,
    Added,
    Limited,
};
struct SettledValue
{
    size_t column = 0;
    Settlement how {};
};

struct MixedRow
{
    RowValues values;
    /// Those that were different, and counts that both sides have changed alike.
    std::vector<SettledValue> settled;
    /// The row with the values that were decided against, if a text is among them.
    std::optional<RowValues> copy;
};

/// Whether two values are the same to the last bit, or both missing.
[[nodiscard]] bool IsSame(const PropertyValue& a, const PropertyValue& b);
/// A row that both sides have, from its values on both and, if it was there, in the base (else
/// null). The three have the same columns; `values` bears mine's identifiers.
[[nodiscard]] MixedRow MixRow(const RowValues& mine, const RowValues& theirs, const RowValues* base,
    const Precedence& precedence);

} // namespace Quillory
