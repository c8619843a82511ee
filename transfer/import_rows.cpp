// SPDX-License-Identifier: MIT
#include "transfer/import_rows.h"

#include "transfer/list_file.h"

#include <algorithm>
#include <utility>

namespace Quillory {

namespace {

/// Takes fields from a line one by one. The TAB behind each becomes a NUL, in the line itself: that
/// shows where a later line's buffer still holds this one's rest.
class FieldTaker
{
public:
    explicit FieldTaker(char16_t* line)
        : m_next(line)
    { }

    /// Null when there is none left.
    [[nodiscard]] QStringView Take()
    {
        while (*m_next == kFieldSeparator)
            ++m_next;
        if (*m_next == u'\0')
            return {};
        const char16_t* const start = m_next;
        while (*m_next != kFieldSeparator && *m_next != u'\0')
            ++m_next;
        const QStringView field(start, m_next);
        if (*m_next != u'\0')
            *m_next++ = u'\0';
        return field;
    }

private:
    char16_t* m_next;
};

} // namespace

ImportFieldReader::ImportFieldReader(
    QIODevice& source, size_t maxFields, int codePage, size_t maxLine)
    : m_lines(source, codePage, maxLine)
    , m_maxFields(maxFields)
{
    m_fields.reserve(maxFields);
}

bool ImportFieldReader::Next()
{
    while (m_lines.Next()) {
        m_fields.clear();
        FieldTaker fields(m_lines.Line());
        QStringView field = fields.Take();
        for (; !field.isNull() && m_fields.size() < m_maxFields; field = fields.Take())
            m_fields.push_back(field);
        // Without one behind it the last field may go on beyond the cut.
        const bool isLost = m_lines.IsCut() && field.isNull();
        m_isLineLost = m_isLineLost || isLost;
        if (!isLost && !m_fields.empty())
            return true;
    }
    return false;
}

void ReadFields(std::span<const QStringView> fields, std::span<const PropertyId> columns,
    const ValueContext& context, std::vector<PropertyValue>& values)
{
    values.clear();
    const size_t count = std::min(fields.size(), columns.size());
    for (size_t i = 0; i < count; ++i) {
        if (auto value = ParseImportText(columns[i], fields[i], context))
            values.push_back(std::move(*value));
    }
}

} // namespace Quillory
