// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"

#include <vector>

namespace Quillory {

/// `rows` ordered by a column, ascending; rows equal in it keep their order, and a missing value
/// counts as 0, unchecked or the empty text. Reads the column once, in the order given. Needs some
/// 40 bytes a row, and the texts of a column of text.
[[nodiscard]] Result<std::vector<ObjectId>> SortByColumn(Database& database,
    const std::vector<ObjectId>& rows, PropertyId column, ScanOrder order = ScanOrder::Any);

/// Every row in the order of names: by their index, or, where that is damaged, by the names
/// themselves, which costs and needs as much as SortByColumn().
[[nodiscard]] Result<std::vector<ObjectId>> ListByName(Database& database);

} // namespace Quillory
