// SPDX-License-Identifier: MIT
#include "transfer/export_lines.h"

#include "transfer/list_file.h"

namespace Quillory {

ExportLineBuilder::ExportLineBuilder(const InventoryList& list, const ValueContext& context)
    : m_context(context)
    , m_valueLimit(list.columnOrder.size())
    , m_isThere(list.columns.size())
{
    for (const ColumnDefinition& column : list.columns)
        m_columns.push_back(column.id);
    for (const quint32 index : list.columnOrder) {
        if (index < list.columns.size())
            m_fields.push_back(index);
    }
}

void ExportLineBuilder::AppendLine(std::u16string& text, const ScannedRecord& row)
{
    FindValues(row);
    size_t start = text.size();
    size_t length = 0;
    for (size_t i = 0; i < m_fields.size(); ++i) {
        if (i > 0)
            text.push_back(kFieldSeparator);
        const size_t column = m_fields[i];
        const size_t next = text.size();
        if (m_isThere[column] != 0)
            AppendExportText(text, row, column, m_columns[column], m_context);
        else
            text.append(text, start, length);
        start = next;
        length = text.size() - next;
    }
    text.append(u"\r\n");
}

/// A row's record holds what the row has and nothing else; what stands in it beyond the limit
/// counts as missing.
void ExportLineBuilder::FindValues(const ScannedRecord& row)
{
    size_t present = 0;
    for (size_t i = 0; i < m_columns.size(); ++i) {
        const bool isThere = !row.IsMissing(i);
        m_isThere[i] = isThere && present < m_valueLimit ? 1 : 0;
        present += isThere ? 1 : 0;
    }
}

} // namespace Quillory
