// SPDX-License-Identifier: MIT
#include "merge/cell_merge.h"

#include "values/column_type.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace Quillory {

namespace {

/// A missing count is 0, as it is shown.
qint64 CountOf(const PropertyValue& value)
{
    const auto* count = std::get_if<qint32>(&value.value);
    return count == nullptr ? 0 : *count;
}

/// A value that both sides have changed, or that was in no base.
struct Conflict
{
    const PropertyValue& mine;
    const PropertyValue& theirs;
    /// Null if the row was in no base.
    const PropertyValue* base;
};

Settlement AddCounts(const Conflict& conflict, PropertyValue& value)
{
    using Limits = std::numeric_limits<qint32>;
    const qint64 sum = CountOf(conflict.mine) + CountOf(conflict.theirs) - CountOf(*conflict.base);
    const auto count = static_cast<qint32>(std::clamp<qint64>(sum, Limits::min(), Limits::max()));
    value = { conflict.mine.id, 0, count };
    return count == sum ? Settlement::Added : Settlement::Limited;
}

/// Counts that both sides have changed, be it alike: then two have taken one each.
bool AreToBeAdded(const Conflict& conflict, const Precedence& precedence)
{
    return conflict.mine.id == PropCount && conflict.base != nullptr && precedence.isBaseExact
        && !IsSame(conflict.mine, *conflict.base) && !IsSame(conflict.theirs, *conflict.base);
}

Settlement Settle(const Conflict& conflict, const Precedence& precedence, PropertyValue& value)
{
    const auto take = [&](const PropertyValue& taken) {
        value.flags = taken.flags;
        value.value = taken.value;
    };
    if (conflict.base != nullptr && IsSame(conflict.theirs, *conflict.base))
        return Settlement::Mine;
    if (conflict.base != nullptr && IsSame(conflict.mine, *conflict.base)) {
        take(conflict.theirs);
        return Settlement::Theirs;
    }
    if (AreToBeAdded(conflict, precedence))
        return AddCounts(conflict, value);
    if (precedence.isMine)
        return Settlement::MineDecided;
    take(conflict.theirs);
    return Settlement::TheirsDecided;
}

} // namespace

bool IsSame(const PropertyValue& a, const PropertyValue& b)
{
    const auto* number = std::get_if<double>(&a.value);
    const auto* other = std::get_if<double>(&b.value);
    if (number != nullptr && other != nullptr)
        return std::bit_cast<quint64>(*number) == std::bit_cast<quint64>(*other);
    return a.IsMissing() == b.IsMissing() && a.value == b.value;
}

MixedRow MixRow(const RowValues& mine, const RowValues& theirs, const RowValues* base,
    const Precedence& precedence)
{
    MixedRow mixed { mine, {}, {} };
    RowValues copy = mine;
    bool isTextLost = false;
    for (size_t i = 0; i < mine.size(); ++i) {
        const Conflict conflict { mine[i], theirs[i], base == nullptr ? nullptr : &(*base)[i] };
        if (IsSame(mine[i], theirs[i]) && !AreToBeAdded(conflict, precedence))
            continue;
        const Settlement how = Settle(conflict, precedence, mixed.values[i]);
        mixed.settled.push_back({ i, how });
        const bool isDecided = how == Settlement::MineDecided || how == Settlement::TheirsDecided;
        const PropertyValue& lost = how == Settlement::MineDecided ? theirs[i] : mine[i];
        copy[i] = { mine[i].id, isDecided ? lost.flags : mixed.values[i].flags,
            isDecided ? lost.value : mixed.values[i].value };
        isTextLost = isTextLost || (isDecided && PropertyType(mine[i].id) == CEVT_LPWSTR);
    }
    if (isTextLost)
        mixed.copy = std::move(copy);
    return mixed;
}

} // namespace Quillory
