// SPDX-License-Identifier: MIT
#include "store/column_scan.h"

#include "store/row_sort.h"

#include <algorithm>
#include <utility>

namespace Quillory {

RowSet::RowSet(std::span<const ObjectId> rows)
{
    if (rows.empty())
        return;
    constexpr quint64 kBitsPerRow = 1024;
    constexpr quint64 kSlack = quint64 { 1 } << 20;
    const auto [low, high] = std::ranges::minmax_element(rows);
    m_first = static_cast<quint32>(*low);
    const quint64 span = quint64 { static_cast<quint32>(*high) } - m_first + 1;
    if (span <= kBitsPerRow * rows.size() + kSlack) {
        m_dense.resize(span);
        for (const ObjectId row : rows)
            m_dense[static_cast<quint32>(row) - m_first] = true;
        return;
    }
    m_sparse.assign(rows.begin(), rows.end());
    std::ranges::sort(m_sparse);
}

bool RowSet::Contains(ObjectId row) const
{
    if (m_dense.empty())
        return std::ranges::binary_search(m_sparse, row);
    const quint32 place = static_cast<quint32>(row) - m_first;
    return place < m_dense.size() && m_dense[place];
}

namespace {

/// A visitor that has the rows that pass visited.
class FilteredVisit
{
public:
    FilteredVisit(std::span<const PropertyId> columns, const FilterSet* filters,
        const ValueContext& context, const Database::RecordVisitor& visitor)
        : m_visitor(visitor)
        , m_ids(columns.begin(), columns.end())
    {
        if (filters == nullptr)
            return;
        for (const FilterEntry& entry : filters->entries) {
            const auto place = std::ranges::find(m_ids, entry.column) - m_ids.begin();
            m_tests.emplace_back(FilterTest(entry, context), static_cast<size_t>(place));
            if (std::cmp_equal(place, m_ids.size()))
                m_ids.push_back(entry.column);
        }
    }

    /// What is to be read: `columns`, then what else the filters test.
    [[nodiscard]] std::span<const PropertyId> Ids() const { return m_ids; }
    bool operator()(const ScannedRecord& record) const
    {
        const bool passes = std::ranges::all_of(m_tests,
            [&record](const auto& test) { return test.first.Matches(record, test.second); });
        return !passes || m_visitor(record);
    }

private:
    const Database::RecordVisitor& m_visitor;
    std::vector<PropertyId> m_ids;
    /// With the place of what each tests.
    std::vector<std::pair<FilterTest, size_t>> m_tests;
};

} // namespace

Result<void> ScanFilteredInPlace(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context, ScanOrder order,
    const Database::RecordVisitor& visitor)
{
    if (filters == nullptr)
        return rows.ScanInPlace(columns, order, visitor);
    const FilteredVisit visit(columns, filters, context, visitor);
    return rows.ScanInPlace(visit.Ids(), order, std::cref(visit));
}

Database::VisitOutcome ScanPastDamage(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context, const Database::RecordVisitor& visitor)
{
    const FilteredVisit visit(columns, filters, context, visitor);
    size_t visited = 0;
    const auto done
        = rows.ScanInPlace(visit.Ids(), ScanOrder::Sorted, [&](const ScannedRecord& record) {
              ++visited;
              return visit(record);
          });
    if (done)
        return {};
    const auto rest = ListByName(rows);
    if (!rest)
        return { 0, done.Error() };
    // The scan went along the same order.
    return rows.VisitEach(
        std::span(*rest).subspan(std::min(visited, rest->size())), visit.Ids(), std::cref(visit));
}

} // namespace Quillory
