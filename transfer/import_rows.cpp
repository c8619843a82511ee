#include "transfer/import_rows.h"

#include "transfer/list_file.h"

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

ImportRowReader::ImportRowReader(
    QIODevice& source, std::span<const PropertyId> columns, const ValueContext& context)
    : m_lines(source, context.userLocale.codePage)
    , m_columns(columns.begin(), columns.end())
    , m_context(context)
{
    m_values.reserve(columns.size());
}

bool ImportRowReader::Next()
{
    while (m_lines.Next()) {
        ReadFields(m_lines.Line());
        if (!m_values.empty())
            return true;
    }
    return false;
}

void ImportRowReader::ReadFields(char16_t* line)
{
    m_values.clear();
    FieldTaker fields(line);
    QStringView field = fields.Take();
    for (size_t i = 0; i < m_columns.size() && !field.isNull(); ++i) {
        if (auto value = ParseImportText(m_columns[i], field, m_context))
            m_values.push_back(std::move(*value));
        field = fields.Take();
    }
}

} // namespace Quillory
