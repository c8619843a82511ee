// SPDX-License-Identifier: MIT
#include "cli/row_printer.h"

#include "report/html_table.h"
#include "values/column_type.h"
#include "values/exchange_text.h"

#include <algorithm>
#include <cmath>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Columns may share a name, keys may not: the second "Size" becomes "Size (2)".
QStringList UniqueKeys(const QStringList& names)
{
    QStringList keys;
    for (const QString& name : names) {
        QString key = name;
        for (int number = 2; keys.contains(key); ++number)
            key = u"%1 (%2)"_s.arg(name).arg(number);
        keys << key;
    }
    return keys;
}

} // namespace

QJsonValue JsonOf(const PropertyValue& value)
{
    if (const auto* text = std::get_if<QString>(&value.value))
        return *text;
    if (const auto* number = std::get_if<qint32>(&value.value))
        return *number;
    if (const auto* price = std::get_if<double>(&value.value))
        return std::isfinite(*price) ? QJsonValue(*price) : QJsonValue();
    if (const auto* isChecked = std::get_if<bool>(&value.value))
        return *isChecked;
    if (std::holds_alternative<FileTime>(value.value))
        return FormatExchangeText(value);
    return {};
}

QString CellText(const PropertyValue& value, const ValueContext& context)
{
    if (ColumnTypeOf(value.id) == ColumnType::Checkbox)
        return FormatExportText(value, context);
    return FormatCellText(value.IsMissing() ? nullptr : &value, value.id, context);
}

RowPrinter::RowPrinter(
    TextOutput& output, RowForm form, const InventoryList& list, const ValueContext& context)
    : m_output(output)
    , m_form(form)
    , m_context(context)
    , m_json(output, form == RowForm::Json)
{
    QStringList names;
    for (const ColumnDefinition& column : ShownColumns(list)) {
        m_ids.push_back(column.id);
        m_values.push_back({ column.id, 0, {} });
        names << column.name;
    }
    m_keys = UniqueKeys(names);
    if (m_form == RowForm::Lines)
        m_output.WriteFields(names);
    else if (m_form == RowForm::Html)
        m_output.WriteRaw(HtmlBegin(list.Name) + "<h1>" + HtmlText(list.Name) + "</h1>\n"
            + HtmlTableBegin(ShownColumns(list)));
}

bool RowPrinter::Print(const ScannedRecord& row)
{
    for (size_t i = 0; i < m_values.size(); ++i)
        row.Read(i, m_values[i]);
    if (m_form == RowForm::Json) {
        PrintJsonRow();
    } else if (m_form == RowForm::Html) {
        m_output.WriteRaw(HtmlRow(m_values, {}, m_context));
    } else {
        QStringList fields;
        for (const PropertyValue& value : m_values)
            fields << CellText(value, m_context);
        m_output.WriteFields(fields);
    }
    return !m_output.HasFailed();
}

void RowPrinter::End()
{
    m_json.End();
    if (m_form == RowForm::Html)
        m_output.WriteRaw("</tbody>\n</table>\n</body>\n</html>\n");
}

void RowPrinter::PrintJsonRow()
{
    JsonMembers members;
    for (qsizetype i = 0; i < m_keys.size(); ++i)
        members.append({ m_keys[i], JsonOf(m_values[static_cast<size_t>(i)]) });
    m_json.Add(members);
}

} // namespace Quillory
