// SPDX-License-Identifier: MIT
#include "cli/command_run.h"
#include "cli/text_source.h"
#include "report/html_report.h"
#include "report/pdf_report.h"
#include "report/report_application.h"

#include <memory>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// The format that the option names, or else what the file's name ends in; PDF without either.
bool IsHtmlWanted(const CommandRun& run, const QString& path)
{
    const QString format = run.parser.value(u"format"_s);
    if (!run.parser.isSet(u"format"_s))
        return path.endsWith(u".html"_s, Qt::CaseInsensitive);
    if (format != u"pdf" && format != u"html")
        FailUsage(u"“%1” is no format of a report"_s.arg(format));
    return format == u"html";
}

Database::VisitOutcome AddList(const CommandRun& run, CommandData& data, ReportWriter& writer)
{
    return writer.Add(ReportSource(data.volume, data.Rows(), data.list, run.environment.context));
}

} // namespace

void RunReport(const CommandRun& run)
{
    const bool isAll = run.parser.isSet(u"all"_s);
    if (!isAll && run.operands.isEmpty())
        FailUsage(u"an argument is missing"_s);
    if (isAll && run.operands.size() > 1)
        FailUsage(u"“%1” is one argument too many"_s.arg(run.operands[1]));
    const QString path = run.operands.value(isAll ? 0 : 1, u"-"_s);
    const bool isHtml = IsHtmlWanted(run, path);
    const auto application = MakeReportApplication();
    FailIfRowsAreMissing(WriteTextFile(run, path, [&](TextOutput& target) {
        const auto data = run.OpenForReading();
        const QString title = isAll ? u"Quillory"_s : run.operands.front();
        std::unique_ptr<ReportWriter> writer;
        if (isHtml)
            writer = std::make_unique<HtmlReport>(target, title);
        else
            writer = std::make_unique<PdfReport>(target, title);
        Database::VisitOutcome outcome;
        if (isAll) {
            run.VisitLists(
                *data,
                [&](const ListCatalogue::HomeListEntry&) {
                    FailIfRowsAreMissing(AddList(run, *data, *writer));
                },
                [&] { writer->End(); });
        } else {
            data->OpenList(run.operands.front());
            outcome = AddList(run, *data, *writer);
            // Else it is begun again.
            if (outcome.error != ErrorNumber::Cancelled)
                writer->End();
        }
        return outcome;
    }));
}

} // namespace Quillory
