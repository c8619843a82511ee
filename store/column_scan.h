// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/database.h"
#include "values/filters.h"

#include <algorithm>
#include <functional>
#include <span>
#include <vector>

namespace Quillory {

/// A value for each record of a sequence, found in constant time where identifiers lie close
/// together, as those of one list mostly do. Needs a value and the slack between identifiers, or a
/// value and four bytes, a record.
template <typename Value> class RecordMap
{
public:
    /// Every record of the sequence has the value `absent`, and so has any that is not in it.
    RecordMap(std::span<const ObjectId> records, Value absent)
        : m_absent(absent)
    {
        if (records.empty())
            return;
        constexpr quint64 kSlack = 4096;
        const auto [low, high] = std::ranges::minmax_element(records);
        m_first = static_cast<quint32>(*low);
        quint64 places = quint64 { static_cast<quint32>(*high) } - m_first + 1;
        if (places > 4 * records.size() + kSlack) {
            m_sparse.assign(records.begin(), records.end());
            std::ranges::sort(m_sparse);
            places = records.size();
        }
        m_values.assign(places, absent);
    }

    /// Does nothing for a record that is not in the sequence.
    void Set(ObjectId record, Value value)
    {
        if (const size_t place = PlaceOf(record); place < m_values.size())
            m_values[place] = value;
    }
    [[nodiscard]] Value Find(ObjectId record) const
    {
        const size_t place = PlaceOf(record);
        return place < m_values.size() ? m_values[place] : m_absent;
    }

private:
    Value m_absent;
    quint32 m_first = 0;
    std::vector<Value> m_values;
    /// The records in the order of their values, where they lie too far apart for a place each.
    std::vector<ObjectId> m_sparse;

    [[nodiscard]] size_t PlaceOf(ObjectId record) const
    {
        if (m_sparse.empty())
            return static_cast<quint32>(record) - m_first;
        const auto found = std::ranges::lower_bound(m_sparse, record);
        return found != m_sparse.end() && *found == record
            ? static_cast<size_t>(found - m_sparse.begin())
            : m_values.size();
    }
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

/// Visits every row that passes, in the order of names, as above. One that cannot be read is passed
/// over; an index that cannot be read is done without. Rows are missing without being counted only
/// where the outcome has an error but no row that was passed over.
[[nodiscard]] Database::VisitOutcome ScanPastDamage(Database& rows,
    std::span<const PropertyId> columns, const FilterSet* filters, const ValueContext& context,
    const Database::RecordVisitor& visitor);
} // namespace Quillory
