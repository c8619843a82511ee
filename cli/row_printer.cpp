// SPDX-License-Identifier: MIT
#include "cli/row_printer.h"

#include "values/column_type.h"
#include "values/exchange_text.h"

#include <algorithm>
#include <cmath>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kPageStyle
    = "<style>\n"
      ":root { color-scheme: light dark; }\n"
      "body { font-family: sans-serif; margin: 1rem; }\n"
      "table { border-collapse: collapse; }\n"
      "th, td { border-bottom: 1px solid; padding: 0.3rem 0.6rem; text-align: left;\n"
      "         vertical-align: top; white-space: pre-wrap; }\n"
      ".number { text-align: right; font-variant-numeric: tabular-nums; }\n"
      "thead { display: table-header-group; }\n"
      "</style>\n";

/// Null for a missing value and for a price that is no finite number.
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

/// Pages have no control characters but TABs and ends of lines.
QByteArray HtmlText(QString text)
{
    std::replace_if(
        text.begin(), text.end(),
        [](QChar unit) {
            return unit.category() == QChar::Other_Control && unit != u'\t' && unit != u'\n';
        },
        QChar(u' '));
    return text.toHtmlEscaped().toUtf8();
}

bool IsNumber(PropertyId column)
{
    const ColumnType type = ColumnTypeOf(column);
    return type == ColumnType::Integer || type == ColumnType::Price;
}

QByteArray HtmlCell(const PropertyValue& value, const ValueContext& context)
{
    const ColumnType type = ColumnTypeOf(value.id);
    const auto* isChecked = std::get_if<bool>(&value.value);
    const QString text = type != ColumnType::Checkbox ? CellText(value, context)
        : isChecked != nullptr && *isChecked          ? u"✓"_s
                                                      : QString();
    return (IsNumber(value.id) ? "<td class=\"number\">" : "<td>") + HtmlText(text) + "</td>";
}

} // namespace

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
        BeginPage(list.Name, names);
}

bool RowPrinter::Print(const ScannedRecord& row)
{
    for (size_t i = 0; i < m_values.size(); ++i)
        row.Read(i, m_values[i]);
    if (m_form == RowForm::Json) {
        PrintJsonRow();
    } else if (m_form == RowForm::Html) {
        PrintHtmlRow();
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

void RowPrinter::BeginPage(const QString& title, const QStringList& names)
{
    const QByteArray name = HtmlText(title);
    m_output.WriteRaw("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
                      "<meta name=\"viewport\" content=\"width=device-width\">\n<title>"
        + name + "</title>\n" + kPageStyle + "</head>\n<body>\n<h1>" + name
        + "</h1>\n<table>\n<thead>\n<tr>");
    for (qsizetype i = 0; i < names.size(); ++i) {
        const bool isNumber = IsNumber(m_ids[static_cast<size_t>(i)]);
        m_output.WriteRaw((isNumber ? "<th scope=\"col\" class=\"number\">" : "<th scope=\"col\">")
            + HtmlText(names[i]) + "</th>");
    }
    m_output.WriteRaw("</tr>\n</thead>\n<tbody>\n");
}

void RowPrinter::PrintHtmlRow()
{
    QByteArray line = "<tr>";
    for (const PropertyValue& value : m_values)
        line += HtmlCell(value, m_context);
    m_output.WriteRaw(line + "</tr>\n");
}

void RowPrinter::PrintJsonRow()
{
    JsonMembers members;
    for (qsizetype i = 0; i < m_keys.size(); ++i)
        members.append({ m_keys[i], JsonOf(m_values[static_cast<size_t>(i)]) });
    m_json.Add(members);
}

} // namespace Quillory
