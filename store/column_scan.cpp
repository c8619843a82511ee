// SPDX-License-Identifier: MIT
#include "store/column_scan.h"

#include <algorithm>

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

Result<void> ScanFilteredInPlace(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context, ScanOrder order,
    const Database::RecordVisitor& visitor)
{
    std::vector<PropertyId> ids(columns.begin(), columns.end());
    std::vector<FilterTest> tests;
    if (filters != nullptr) {
        for (const FilterEntry& entry : filters->entries) {
            tests.emplace_back(entry, context);
            ids.push_back(entry.column);
        }
    }
    const size_t firstTested = columns.size();
    return rows.ScanInPlace(ids, order, [&](const ScannedRecord& record) {
        return !RowPassesFilters(tests, record, firstTested) || visitor(record);
    });
}

Result<void> ScanFiltered(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context, ScanOrder order,
    const Database::Visitor& visitor)
{
    std::vector<PropertyValue> values(columns.size());
    for (size_t i = 0; i < columns.size(); ++i)
        values[i].id = columns[i];
    return ScanFilteredInPlace(
        rows, columns, filters, context, order, [&](const ScannedRecord& record) {
            for (size_t i = 0; i < values.size(); ++i)
                record.Read(i, values[i]);
            return visitor(record.Oid(), values);
        });
}

} // namespace Quillory
