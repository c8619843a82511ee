// SPDX-License-Identifier: MIT
#pragma once

#include "store/data_volume.h"
#include "store/inventory_list.h"
#include "store/totals.h"
#include "values/filters.h"
#include "values/value_text.h"

#include <optional>
#include <vector>

namespace Quillory {

/// Rows by their identifiers, in the order in which they are shown.
struct Listing
{
    std::vector<ObjectId> rows;
    /// Why rows may be missing, or stand in another order than was asked for; None if that is not
    /// so.
    ErrorNumber error = ErrorNumber::None;
};

/// The rows of the list whose row database is open (ListCatalogue::OpenList).
///
/// Rows are known by the identifiers of their records; the texts are asked for one by one when they
/// are shown.
class RowStore
{
public:
    /// All three outlive the store; `list` is the definition that OpenList filled.
    RowStore(DataVolume& volume, const InventoryList& list, const ValueContext& context);

    /// Every row in the order of names. One that cannot be had ends the listing: those before it
    /// are there.
    [[nodiscard]] Listing FillRows();
    /// The rows that pass, in the order of names; a row that cannot be read ends the listing, as
    /// above.
    [[nodiscard]] Listing FillFilteredRows(const FilterSet& filters);
    /// How many rows the list has; 0 where that cannot be read.
    [[nodiscard]] qint64 RowCount();
    /// The rows whose names begin with a text, whatever its case, in no order; none where they
    /// cannot be read.
    [[nodiscard]] std::vector<ObjectId> RowsNamed(const QString& beginning);
    /// `rows` ordered by a column, ascending; rows equal in it keep their order. A missing value
    /// counts as 0, unchecked or the empty text. Reads the column once, not row by row. Where it
    /// cannot be read, `rows` as they were.
    [[nodiscard]] Listing SortRows(std::vector<ObjectId> rows, PropertyId column);

    /// One text per column, in column order. A date that cannot be read gets no value. The new
    /// row, or kNoObject.
    ObjectId WriteNewRow(std::span<const QString> texts);
    /// As above onto an existing row; a date that cannot be read keeps its stored value. False, and
    /// the row as it was, if there is no such row, no text gives a value or it cannot be written.
    bool ModifyRow(ObjectId row, std::span<const QString> texts);
    /// A new row with the same values; kNoObject on failure.
    ObjectId CopyRow(ObjectId row);
    /// False, and nothing deleted, if there is no such row or it cannot be deleted.
    bool DeleteRow(ObjectId row);
    /// Adds `step` to the row's Count, 0 where it has none, by 32-bit two's complement, all or
    /// nothing. The new count; nothing on failure, also where the list has no such column.
    std::optional<qint32> AdjustCount(ObjectId row, qint32 step);
    /// False, and the row as it was, if there is no such row or it cannot be written.
    bool SetCheckboxValue(ObjectId row, PropertyId column, bool isChecked);

    /// Every property of a row; false in a condition if it cannot be found.
    [[nodiscard]] Record ReadRow(ObjectId row);
    /// Whether there is no such row; false also where that cannot be found out.
    [[nodiscard]] bool IsGone(ObjectId row);
    /// As ComputeTotals().
    [[nodiscard]] ListTotals Totals(const FilterSet* filters);
    /// The text of one cell as the rows view shows it; "<Err>" if the row cannot be found.
    [[nodiscard]] QString FormatCellText(PropertyId column, ObjectId row);

private:
    DataVolume& m_volume;
    const InventoryList& m_list;
    const ValueContext& m_context;

    [[nodiscard]] std::vector<PropertyValue> ParseTexts(std::span<const QString> texts) const;
};

} // namespace Quillory
