// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"
#include "store/inventory_list.h"

#include <QString>

#include <optional>

namespace Quillory {

struct RowWarnings
{
    bool isLow = false;
    bool isExpired = false;

    friend bool operator==(const RowWarnings&, const RowWarnings&) = default;
};

/// The expiry date at a place of a record; none where the row has none.
[[nodiscard]] std::optional<FileTime> ExpiryOf(const ScannedRecord& record, size_t place);

/// Which warnings of the list hold for a row of this count, 0 where it has none, and this expiry
/// date. `today` is midnight of the day.
[[nodiscard]] RowWarnings WarningsFor(
    qint32 count, std::optional<FileTime> expiry, const InventoryList& list, FileTime today);

/// The warnings that colours show, in words; empty for none.
[[nodiscard]] QString WarningText(const RowWarnings& warnings);

} // namespace Quillory
