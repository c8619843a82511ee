#include "store/column_scan.h"

#include <algorithm>

namespace Quillory {

RowPositions::RowPositions(const std::vector<ObjectId>& rows)
{
    if (rows.empty())
        return;
    constexpr quint64 kSlack = 4096;
    const auto [low, high] = std::minmax_element(rows.begin(), rows.end());
    m_first = static_cast<quint32>(*low);
    const quint64 span = quint64 { static_cast<quint32>(*high) } - m_first + 1;
    if (span <= 4 * rows.size() + kSlack) {
        m_dense.assign(span, kNowhere);
        for (size_t i = 0; i < rows.size(); ++i)
            m_dense[static_cast<quint32>(rows[i]) - m_first] = static_cast<quint32>(i);
        return;
    }
    m_sparse.reserve(rows.size());
    for (size_t i = 0; i < rows.size(); ++i)
        m_sparse.push_back({ static_cast<quint32>(rows[i]), static_cast<quint32>(i) });
    std::sort(m_sparse.begin(), m_sparse.end(),
        [](const Entry& a, const Entry& b) { return a.oid < b.oid; });
}

quint32 RowPositions::Find(ObjectId row) const
{
    const auto oid = static_cast<quint32>(row);
    if (!m_dense.empty())
        return oid - m_first < m_dense.size() ? m_dense[oid - m_first] : kNowhere;
    const auto found = std::lower_bound(m_sparse.begin(), m_sparse.end(), oid,
        [](const Entry& entry, quint32 wanted) { return entry.oid < wanted; });
    return found != m_sparse.end() && found->oid == oid ? found->position : kNowhere;
}

Result<void> ScanFiltered(Database& rows, std::span<const PropertyId> columns,
    const FilterSet* filters, const ValueContext& context, ScanOrder order,
    const Database::Visitor& visitor)
{
    std::vector<PropertyId> ids(columns.begin(), columns.end());
    std::vector<FilterTest> tests;
    if (filters != nullptr) {
        for (const FilterEntry& entry : filters->entries) {
            tests.emplace_back(entry, context);
            ids.push_back(entry.column);
        }
    }
    return rows.Scan(ids, order, [&](ObjectId oid, std::span<const PropertyValue> values) {
        for (size_t i = 0; i < tests.size(); ++i) {
            const PropertyValue& value = values[columns.size() + i];
            if (!tests[i].Matches(value.IsMissing() ? nullptr : &value))
                return true;
        }
        return visitor(oid, values.first(columns.size()));
    });
}

} // namespace Quillory
