// SPDX-License-Identifier: MIT
#include "transfer/import_batch.h"

#include "transfer/list_file.h"
#include "values/column_type.h"

#include <algorithm>

namespace Quillory {

namespace {

/// Units of a name that make a key.
constexpr quint32 kKeyUnits = 4;
constexpr int kUnitBits = 16;
constexpr quint64 kUnitMask = (quint64 { 1 } << kUnitBits) - 1;

} // namespace

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
    line.length = static_cast<quint32>(m_text.size()) - line.begin;
    m_lines.push_back(line);
}

bool ImportBatch::IsFull() const
{
    return m_lines.size() >= m_limits.lines || m_text.size() >= m_limits.text;
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

QStringView ImportBatch::NameOf(const Line& line) const
{
    return { m_text.data() + line.nameBegin, static_cast<qsizetype>(line.nameLength) };
}

quint64 ImportBatch::KeyOf(const Line& line, quint32 depth) const
{
    quint64 key = 0;
    for (quint32 place = depth; place < depth + kKeyUnits; ++place) {
        const quint64 unit = place < line.nameLength ? m_text[line.nameBegin + place] : 0;
        key = key << kUnitBits | unit;
    }
    return key;
}

void ImportBatch::SortWhole(std::span<Line> lines, quint32 depth) const
{
    std::ranges::sort(lines, [this, depth](const Line& a, const Line& b) {
        const int order = NameOf(a).mid(depth).compare(NameOf(b).mid(depth));
        return order != 0 ? order < 0 : a.begin < b.begin;
    });
}

void ImportBatch::SortByName(std::span<Line> lines, quint32 depth) const
{
    // Names that are equal for so long are few, or equal to their end.
    constexpr quint32 kMaxDepth = 16 * kKeyUnits;
    if (depth >= kMaxDepth)
        return SortWhole(lines, depth);
    for (Line& line : lines)
        line.key = KeyOf(line, depth);
    std::ranges::sort(lines, [](const Line& a, const Line& b) {
        return a.key != b.key ? a.key < b.key : a.begin < b.begin;
    });
    for (auto begin = lines.begin(); begin != lines.end();) {
        const auto end = std::find_if(
            begin, lines.end(), [begin](const Line& line) { return line.key != begin->key; });
        // A name holds no NUL: where the key ends in one, so do the names.
        if (end - begin > 1 && (begin->key & kUnitMask) != 0)
            SortByName({ begin, end }, depth + kKeyUnits);
        begin = end;
    }
}

void ImportBatch::VisitLines(const std::function<bool(const KeptLine& line)>& visit)
{
    // A field is never empty: a line without a name comes last, as its row does.
    const auto nameless = std::partition(
        m_lines.begin(), m_lines.end(), [](const Line& line) { return line.nameLength != 0; });
    SortByName({ m_lines.begin(), nameless }, 0);
    SortByName({ nameless, m_lines.end() }, 0);
    for (const Line& line : m_lines) {
        const QStringView text(m_text.data() + line.begin, static_cast<qsizetype>(line.length));
        const bool isNamed = line.nameLength != 0;
        if (!visit({ text, isNamed ? line.nameBegin - line.begin : 0, line.nameLength }))
            break;
    }
}

void ImportBatch::Visit(const Visitor& visit)
{
    std::vector<QStringView> fields;
    VisitLines([&](const KeptLine& line) {
        CutLine(line.text.utf16(), fields);
        return visit(fields);
    });
}

void ImportBatch::Clear()
{
    m_lines = std::vector<Line>();
    m_text = std::vector<char16_t>();
}

} // namespace Quillory
