// SPDX-License-Identifier: MIT
#include "report/html_table.h"

#include "values/column_type.h"

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kPageStyle
    = "<style>\n"
      ":root { color-scheme: light dark; --low: #8a5300; --expired: #b3261e; --quiet: #666; }\n"
      "@media (prefers-color-scheme: dark) {\n"
      "  :root { --low: #ffb95c; --expired: #ff8a80; --quiet: #aaa; }\n"
      "}\n"
      "body { font-family: sans-serif; margin: 1rem; }\n"
      "table { border-collapse: collapse; }\n"
      "th, td { border-bottom: 1px solid #8884; padding: 0.3rem 0.6rem; text-align: start;\n"
      "         vertical-align: top; white-space: pre-wrap; }\n"
      "thead th { border-bottom-color: currentColor; }\n"
      ".number { text-align: right; font-variant-numeric: tabular-nums; }\n"
      "thead { display: table-header-group; }\n"
      "tr { break-inside: avoid; }\n"
      ".low { color: var(--low); }\n"
      ".expired { color: var(--expired); }\n"
      ".mark { border: 1px solid; border-radius: 0.6em; display: inline-block; font-size: 0.8em;\n"
      "        padding: 0 0.4em; white-space: nowrap; }\n"
      "header { display: flex; gap: 0.8rem; align-items: center; }\n"
      "h1 { margin: 0; }\n"
      "header p { color: var(--quiet); margin: 0.2rem 0 0; }\n"
      "section + section { break-before: page; margin-top: 3rem; }\n"
      "figure { margin: 1.5rem 0; max-width: 40rem; }\n"
      "figcaption, caption { font-weight: bold; margin-bottom: 0.5rem; text-align: start; }\n"
      "svg { display: block; height: auto; max-width: 100%; }\n"
      ".totals { margin-top: 1.5rem; }\n"
      "</style>\n";

} // namespace

QByteArray HtmlText(const QString& text)
{
    return WithoutControls(text).toHtmlEscaped().toUtf8();
}

QByteArray HtmlBegin(const QString& title)
{
    return "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width\">\n<title>"
        + HtmlText(title) + "</title>\n" + kPageStyle + "</head>\n<body>\n";
}

QByteArray HtmlTableBegin(const std::vector<ColumnDefinition>& columns)
{
    QByteArray head = "<table>\n<thead>\n<tr>";
    for (const ColumnDefinition& column : columns)
        head += (IsNumberColumn(column.id) ? "<th scope=\"col\" class=\"number\">"
                                           : "<th scope=\"col\">")
            + HtmlText(column.name) + "</th>";
    return head + "</tr>\n</thead>\n<tbody>\n";
}

QByteArray HtmlRow(const std::vector<PropertyValue>& values, const RowWarnings& warnings,
    const ValueContext& context)
{
    QByteArray line = warnings.isExpired ? "<tr class=\"expired\">"
        : warnings.isLow                 ? "<tr class=\"low\">"
                                         : "<tr>";
    for (const PropertyValue& value : values) {
        line += IsNumberColumn(value.id) ? "<td class=\"number\">" : "<td>";
        line += HtmlText(ReportText(value, context));
        if (value.id == PropName && warnings != RowWarnings {})
            line += " <span class=\"mark\">" + HtmlText(WarningText(warnings)) + "</span>";
        line += "</td>";
    }
    return line + "</tr>\n";
}

} // namespace Quillory
