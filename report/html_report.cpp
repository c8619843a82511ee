// SPDX-License-Identifier: MIT
#include "report/html_report.h"

#include "report/charts.h"
#include "report/html_table.h"
#include "res/list_icon.h"

#include <QFile>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// The icon, in the colour of text.
QByteArray InlineIcon(int index)
{
    QFile file(ListIconFile(index));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll()
        .replace("<svg ", "<svg width=\"40\" height=\"40\" aria-hidden=\"true\" ")
        .replace("#000", "currentColor");
}

} // namespace

HtmlReport::HtmlReport(QIODevice& target, const QString& title)
    : m_target(target)
{
    m_target.write(HtmlBegin(title));
}

Database::VisitOutcome HtmlReport::Add(const ReportSource& list)
{
    const ReportFacts facts = list.Facts();
    m_target.write("<section>\n<header>\n" + InlineIcon(list.List().TableIcon) + "<div>\n<h1>"
        + HtmlText(list.List().Name) + "</h1>\n<p>" + HtmlText(ReportSubtitle(list, facts))
        + "</p>\n</div>\n</header>\n");
    for (const Chart& chart : DrawCharts(list, facts, "currentColor"))
        m_target.write("<figure>\n<figcaption>" + HtmlText(chart.title) + "</figcaption>\n"
            + chart.drawing + "</figure>\n");
    m_target.write(HtmlTableBegin(list.Columns()));
    const auto outcome = list.Visit([&](const ReportRow& row) {
        return m_target.write(HtmlRow(row.values, row.warnings, list.Context())) >= 0;
    });
    m_target.write("</tbody>\n</table>\n");
    const ListTotals totals = list.Totals();
    if (!totals.lines.empty() && totals.error == ErrorNumber::None) {
        m_target.write("<table class=\"totals\">\n<caption>" + HtmlText(ReportTotalsTitle())
            + "</caption>\n<tbody>\n");
        for (const ColumnTotal& total : totals.lines)
            m_target.write("<tr><th scope=\"row\">" + HtmlText(total.name)
                + "</th><td class=\"number\">" + HtmlText(total.text) + "</td></tr>\n");
        m_target.write("</tbody>\n</table>\n");
    }
    m_target.write("</section>\n");
    return outcome;
}

void HtmlReport::End()
{
    m_target.write("</body>\n</html>\n");
}

} // namespace Quillory
