// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"
#include "store/inventory_list.h"
#include "values/value_text.h"

#include <QIODevice>

#include <span>

namespace Quillory {

/// Writes rows in the order of names as a table (separated_text.h) of values as programs exchange
/// them (exchange_text.h), in UTF-8, behind a line of the names of the columns. A lone surrogate
/// becomes a question mark. Ends early where the target fails, which tells so itself.
[[nodiscard]] Database::VisitOutcome ExportTable(Database& rows,
    std::span<const ColumnDefinition> columns, QChar separator, const ValueContext& context,
    QIODevice& target);

} // namespace Quillory
