#pragma once

#include "propdb/database.h"
#include "values/filters.h"

#include <functional>
#include <vector>

namespace Quillory {

/// Finds the place of a record in a sequence of them, in constant time and four bytes a record
/// where identifiers lie close together, as those of one list mostly do.
class RowPositions
{
public:
    explicit RowPositions(const std::vector<ObjectId>& rows);

    static constexpr quint32 kNowhere = 0xFFFFFFFF;
    /// kNowhere for a record that is not in the sequence.
    [[nodiscard]] quint32 Find(ObjectId row) const;

private:
    struct Entry
    {
        quint32 oid;
        quint32 position;
    };

    quint32 m_first = 0;
    std::vector<quint32> m_dense;
    /// In place of m_dense where it would be too large; sorted by identifier.
    std::vector<Entry> m_sparse;
};

/// A set of records: a bit for each identifier between the least and the greatest, or the sorted
/// identifiers where these lie far apart.
class RowSet
{
public:
    explicit RowSet(std::span<const ObjectId> rows);

    [[nodiscard]] bool Contains(ObjectId row) const;

private:
    quint32 m_first = 0;
    std::vector<bool> m_dense;
    std::vector<ObjectId> m_sparse;
};

/// Visits every row that passes `filters` (all rows if null), `columns` at the first places of its
/// record.
[[nodiscard]] Result<void> ScanFilteredInPlace(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context, ScanOrder order,
    const Database::RecordVisitor& visitor);
/// As above for visitors that want the values of `columns`.
[[nodiscard]] Result<void> ScanFiltered(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context, ScanOrder order,
    const Database::Visitor& visitor);

} // namespace Quillory
