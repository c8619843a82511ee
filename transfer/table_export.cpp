// SPDX-License-Identifier: MIT
#include "transfer/table_export.h"

#include "store/column_scan.h"
#include "transfer/separated_text.h"
#include "values/exchange_text.h"

#include <vector>

namespace Quillory {

using namespace Qt::StringLiterals;

Database::VisitOutcome ExportTable(Database& rows, std::span<const ColumnDefinition> columns,
    QChar separator, const ValueContext& context, QIODevice& target)
{
    std::vector<PropertyId> ids;
    std::vector<PropertyValue> values;
    QString line;
    const auto writeLine = [&target, &line] {
        const QByteArray bytes = (line + u"\r\n"_s).toUtf8();
        line.clear();
        return target.write(bytes) == bytes.size();
    };
    for (const ColumnDefinition& column : columns) {
        line += ids.empty() ? QString() : QString(separator);
        AppendSeparatedField(line, column.name, separator);
        ids.push_back(column.id);
        values.push_back({ column.id, 0, {} });
    }
    if (!writeLine())
        return {};
    return ScanPastDamage(rows, ids, nullptr, context, [&](const ScannedRecord& row) {
        for (size_t i = 0; i < values.size(); ++i) {
            row.Read(i, values[i]);
            line += i == 0 ? QString() : QString(separator);
            const QString text = FormatExchangeText(values[i]);
            const bool isText = std::holds_alternative<QString>(values[i].value);
            if (isText || !text.isEmpty())
                AppendSeparatedField(line, text, separator);
        }
        return writeLine();
    });
}

} // namespace Quillory
