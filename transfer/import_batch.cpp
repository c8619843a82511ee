#include "transfer/import_batch.h"

#include "transfer/list_file.h"
#include "values/column_type.h"

#include <algorithm>

namespace Quillory {

ImportBatch::ImportBatch(std::span<const PropertyId> columns, const ImportBatchLimits& limits)
    : m_limits(limits)
    , m_nameField(NameFieldOf(columns))
{ }

size_t ImportBatch::NameFieldOf(std::span<const PropertyId> columns)
{
    return static_cast<size_t>(
        std::find(columns.begin(), columns.end(), PropName) - columns.begin());
}

void ImportBatch::Add(std::span<const QStringView> fields)
{
    // Memory that is reserved and not used costs nothing; memory that moves costs twice.
    m_text.reserve(m_limits.text + m_limits.line);
    Line line;
    line.begin = static_cast<quint32>(m_text.size());
    for (size_t i = 0; i < fields.size(); ++i) {
        if (i == m_nameField)
            NoteName(line, fields[i]);
        m_text.insert(m_text.end(), fields[i].utf16(), fields[i].utf16() + fields[i].size());
        m_text.push_back(i + 1 < fields.size() ? kFieldSeparator : u'\0');
    }
    m_lines.push_back(line);
}

void ImportBatch::NoteName(Line& line, QStringView name) const
{
    constexpr int kPrefixUnits = 4;
    constexpr int kUnitBits = 16;
    line.nameBegin = static_cast<quint32>(m_text.size());
    line.nameLength = static_cast<quint32>(name.size());
    for (int i = 0; i < kPrefixUnits; ++i) {
        const quint64 unit = i < name.size() ? name[i].unicode() : 0;
        line.prefix = line.prefix << kUnitBits | unit;
    }
}

bool ImportBatch::IsFull() const
{
    return m_lines.size() >= m_limits.lines || m_text.size() >= m_limits.text;
}

QStringView ImportBatch::NameOf(const Line& line) const
{
    return { m_text.data() + line.nameBegin, static_cast<qsizetype>(line.nameLength) };
}

void ImportBatch::CutLine(const char16_t* begin, std::vector<QStringView>& fields)
{
    fields.clear();
    for (const char16_t* end = begin;; ++end) {
        if (*end != kFieldSeparator && *end != u'\0')
            continue;
        fields.emplace_back(begin, end);
        if (*end == u'\0')
            return;
        begin = end + 1;
    }
}

bool ImportBatch::StandsBefore(const Line& a, const Line& b) const
{
    // A field is never empty: a line without a name comes last, as its row does.
    if ((a.nameLength == 0) != (b.nameLength == 0))
        return b.nameLength == 0;
    if (a.prefix != b.prefix)
        return a.prefix < b.prefix;
    const int order = NameOf(a).compare(NameOf(b));
    return order != 0 ? order < 0 : a.begin < b.begin;
}

void ImportBatch::Visit(const Visitor& visit)
{
    std::sort(m_lines.begin(), m_lines.end(),
        [this](const Line& a, const Line& b) { return StandsBefore(a, b); });
    std::vector<QStringView> fields;
    for (const Line& line : m_lines) {
        CutLine(m_text.data() + line.begin, fields);
        if (!visit(fields))
            break;
    }
}

void ImportBatch::Clear()
{
    m_lines = std::vector<Line>();
    m_text = std::vector<char16_t>();
}

} // namespace Quillory
