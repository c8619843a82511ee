#pragma once

#include "transfer/text_lines.h"
#include "values/value_text.h"

#include <span>
#include <vector>

namespace Quillory {

/// The rows of a text file: a line's fields, as values of the columns that they fill.
///
/// Fields stand between TABs. There are no empty ones: TABs side by side count as one, those at
/// either end of a line as none. Field i fills column i of `columns`; further fields are dropped.
class ImportRowReader
{
public:
    ImportRowReader(
        QIODevice& source, std::span<const PropertyId> columns, const ValueContext& context);

    /// Goes to the next line that gives a value at all. False at the end and on failure.
    bool Next();
    /// The current row, for its reader to move from; a date that cannot be read is not among them.
    /// Valid until the next call.
    [[nodiscard]] std::span<PropertyValue> Values() { return m_values; }

    [[nodiscard]] bool HasFailed() const { return m_lines.HasFailed(); }
    [[nodiscard]] qint64 BytesRead() const { return m_lines.BytesRead(); }

private:
    TextLineReader m_lines;
    std::vector<PropertyId> m_columns;
    const ValueContext& m_context;
    std::vector<PropertyValue> m_values;

    void ReadFields(char16_t* line);
};

} // namespace Quillory
