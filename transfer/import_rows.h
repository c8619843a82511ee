// SPDX-License-Identifier: MIT
#pragma once

#include "transfer/text_lines.h"
#include "values/value_text.h"

#include <QStringView>

#include <span>
#include <vector>

namespace Quillory {

/// The lines of a text file, cut into fields.
///
/// Fields stand between TABs. There are no empty ones: TABs side by side count as one, those at
/// either end of a line as none.
class ImportFieldReader
{
public:
    /// Fields beyond `maxFields` are dropped. A line that does not hold that many in its first
    /// `maxLine` characters, and is longer, is passed over.
    ImportFieldReader(QIODevice& source, size_t maxFields, int codePage, size_t maxLine = kMaxLine);

    /// Goes to the next line that has a field. False at the end and on failure.
    bool Next();
    /// The fields of the current line. Valid until the next call.
    [[nodiscard]] std::span<const QStringView> Fields() const { return m_fields; }

    /// The file could not be read, had nothing behind its mark, or a line was passed over.
    [[nodiscard]] bool HasFailed() const { return m_isLineLost || m_lines.HasFailed(); }
    /// As TextLineReader tells.
    [[nodiscard]] bool HasOpenLine() const { return m_lines.HasOpenLine(); }
    [[nodiscard]] qint64 BytesRead() const { return m_lines.BytesRead(); }
    /// Lines without a field included.
    [[nodiscard]] qint64 LinesRead() const { return m_lines.LinesRead(); }

private:
    TextLineReader m_lines;
    size_t m_maxFields;
    std::vector<QStringView> m_fields;
    bool m_isLineLost = false;
};

/// Puts the values that the fields give into `values`, field i for column i. A date that cannot be
/// read gives none.
void ReadFields(std::span<const QStringView> fields, std::span<const PropertyId> columns,
    const ValueContext& context, std::vector<PropertyValue>& values);

} // namespace Quillory
