// SPDX-License-Identifier: MIT
#pragma once

#include "merge/contents.h"

#include <QString>

namespace Quillory {

/// A list on both sides and in the base; null where it is not there.
struct ListMatch
{
    const ListContents* mine = nullptr;
    const ListContents* theirs = nullptr;
    const ListContents* base = nullptr;
    /// What the list is to be told by on both devices.
    ListKey target;
    /// Made on both devices apart, under one name and with equal columns.
    bool isJoined = false;
};
/// Every list of either side, in an order that both devices agree on. `base` is null if it is not
/// known. The contents outlive the result.
[[nodiscard]] std::vector<ListMatch> MatchLists(
    const FileContents& mine, const FileContents& theirs, const FileContents* base);

/// What two devices have in common of a list's definition, as if it were a row: its name, icon and
/// warnings, each flag for itself.
[[nodiscard]] RowValues SettingsOf(const InventoryList& list);
void ApplySettings(InventoryList& list, const RowValues& settings);
/// English, in the order of the settings.
[[nodiscard]] QString SettingName(size_t setting);

/// Whether a side has set the list otherwise than the base, or has rows that the base has not so.
[[nodiscard]] bool HasNews(const ListContents& side, const ListContents& base);

} // namespace Quillory
