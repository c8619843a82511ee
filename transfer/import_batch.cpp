// SPDX-License-Identifier: MIT
#include "transfer/import_batch.h"

#include "store/text_sort.h"
#include "transfer/list_file.h"
#include "values/column_type.h"

#include <QtEndian>

#include <algorithm>

namespace Quillory {

ImportBatch::ImportBatch(std::span<const PropertyId> columns, const ImportBatchLimits& limits)
    : m_limits(limits)
    , m_nameField(static_cast<size_t>(std::ranges::find(columns, PropName) - columns.begin()))
{ }

void ImportBatch::Add(std::span<const QStringView> fields)
{
    // Memory that is reserved and not used costs nothing; memory that moves costs twice.
    m_text.reserve(m_limits.text + m_limits.line);
    Line line;
    line.begin = static_cast<quint32>(m_text.size());
    for (size_t i = 0; i < fields.size(); ++i) {
        if (i == m_nameField) {
            line.nameBegin = static_cast<quint32>(m_text.size());
            line.nameLength = static_cast<quint32>(fields[i].size());
        }
        m_text.insert(m_text.end(), fields[i].utf16(), fields[i].utf16() + fields[i].size());
        m_text.push_back(i + 1 < fields.size() ? kFieldSeparator : u'\0');
    }
    m_lines.push_back(line);
}

bool ImportBatch::IsFull() const
{
    return m_lines.size() >= m_limits.lines || m_text.size() >= m_limits.text;
}

bool ImportBatch::Visit(const Visitor& visit) const
{
    // Sorted lines lie anywhere in a text larger than the processor's caches: each is asked for
    // while those before it are worked on.
    constexpr size_t kAhead = 8;
    const std::vector<quint32> order = SortNames();
    std::vector<QStringView> fields;
    for (size_t i = 0; i < order.size(); ++i) {
        if (i + kAhead < order.size())
            __builtin_prefetch(m_text.data() + m_lines[order[i + kAhead]].begin);
        fields.clear();
        const char16_t* begin = m_text.data() + m_lines[order[i]].begin;
        for (const char16_t* end = begin;; ++end) {
            if (*end != kFieldSeparator && *end != u'\0')
                continue;
            fields.emplace_back(begin, end);
            if (*end == u'\0')
                break;
            begin = end + 1;
        }
        if (!visit(fields))
            return false;
    }
    return true;
}

void ImportBatch::Clear()
{
    m_lines.clear();
    m_text.clear();
}

std::vector<quint32> ImportBatch::SortNames() const
{
    size_t bytes = 0;
    for (const Line& line : m_lines)
        bytes += line.nameLength * sizeof(char16_t);
    TextSort names(m_lines.size(), bytes);
    QByteArray name;
    for (quint32 position = 0; const Line& line : m_lines) {
        name.resize(qsizetype { line.nameLength } * qsizetype { sizeof(char16_t) });
        qToBigEndian<quint16>(m_text.data() + line.nameBegin, line.nameLength, name.data());
        names.Set(position++, name);
    }
    return names.Sort();
}

} // namespace Quillory
