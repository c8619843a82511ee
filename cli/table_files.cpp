// SPDX-License-Identifier: MIT
#include "cli/table_files.h"

#include "cli/conditions.h"
#include "cli/row_printer.h"
#include "cli/text_source.h"
#include "store/column_scan.h"
#include "transfer/table_export.h"
#include "transfer/table_import.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kFormatWords {
    std::pair(TableFormat::Csv, QLatin1StringView("csv")),
    std::pair(TableFormat::Tsv, QLatin1StringView("tsv")),
    std::pair(TableFormat::Json, QLatin1StringView("json")),
    std::pair(TableFormat::Html, QLatin1StringView("html")),
};

/// The encoding of a table, which is Unicode.
QStringConverter::Encoding TableEncoding(const CommandRun& run)
{
    const QString name = run.parser.value(u"encoding"_s);
    const auto unicode = ReadEncoding(name, run.environment.context).unicode;
    if (!name.isEmpty() && !unicode)
        FailUsage(u"a table is in utf-8 or utf-16"_s);
    return unicode.value_or(QStringConverter::Utf8);
}

} // namespace

std::optional<TableFormat> ReadTableFormat(const CommandRun& run)
{
    if (!run.parser.isSet(u"format"_s))
        return std::nullopt;
    return TableFormatOf(run.parser.value(u"format"_s));
}

TableFormat TableFormatOf(const QString& word)
{
    for (const auto& [format, known] : kFormatWords) {
        if (word == known)
            return format;
    }
    FailUsage(u"“%1” is no format"_s.arg(word));
}

QString TableFormatWord(TableFormat format)
{
    return std::ranges::find(kFormatWords, format, [](const auto& entry) {
        return entry.first;
    })->second;
}

TableImportRules RulesToRead(TableFormat format)
{
    if (format != TableFormat::Csv && format != TableFormat::Tsv)
        FailUsage(u"“%1” is not read, csv and tsv are"_s.arg(TableFormatWord(format)));
    return { format == TableFormat::Tsv ? QChar(u'\t') : QChar(), {}, false };
}

bool TellFaults(const CommandRun& run, const TableImportOutcome& outcome, const QString& fileName)
{
    const auto tell = [&](const QString& text) { Complain(run.environment.errors, text); };
    for (const TableFault& fault : outcome.faults) {
        QStringList place;
        if (!fileName.isEmpty())
            place << fileName;
        if (fault.line != 0)
            place << u"line %1"_s.arg(fault.line);
        if (!fault.column.isEmpty())
            place << u"column “%1”"_s.arg(fault.column);
        tell(place.isEmpty() ? fault.what : place.join(u", "_s) + u": "_s + fault.what);
    }
    const qint64 untold = outcome.faultCount - std::ssize(outcome.faults);
    if (untold > 0)
        tell(u"and %1 more"_s.arg(untold));
    return outcome.faultCount == 0;
}

Database::VisitOutcome WriteTable(
    CommandData& data, TableFormat format, const ValueContext& context, TextOutput& target)
{
    if (format == TableFormat::Csv || format == TableFormat::Tsv)
        return ExportTable(data.Rows(), ShownColumns(data.list),
            format == TableFormat::Csv ? u',' : u'\t', context, target);
    RowPrinter printer(
        target, format == TableFormat::Json ? RowForm::Json : RowForm::Html, data.list, context);
    const auto printed = ScanPastDamage(data.Rows(), printer.Ids(), nullptr, context,
        [&printer](const ScannedRecord& row) { return printer.Print(row); });
    printer.End();
    return printed;
}

void ImportTableFile(const CommandRun& run, TableFormat format)
{
    TableImportRules rules = RulesToRead(format);
    if (run.parser.isSet(u"columns"_s))
        FailUsage(u"the first line of a table names its columns, not --columns"_s);
    rules.isDryRun = run.parser.isSet(u"dry-run"_s);
    const auto data = rules.isDryRun ? run.OpenForReading() : run.OpenForWriting();
    const ObjectId oid = data->OpenList(run.operands[0]);
    if (run.parser.isSet(u"match"_s))
        rules.match = FindColumn(run.parser.value(u"match"_s), data->list).id;
    const TextSource source(run, run.operands[1], TableEncoding(run));
    const auto outcome = ImportTable(data->volume, data->list, rules, source.Device());
    if (!TellFaults(run, outcome))
        Fail(u"nothing was imported"_s);
    if (outcome.error != ErrorNumber::None)
        Fail(u"the rows cannot be stored: %1"_s.arg(ErrorText(outcome.error)));
    if (!rules.isDryRun) {
        data->StoreColumnOrder(oid);
        run.KeepCopyOf(*data);
    }
    if (!rules.match)
        return run.output.WriteLine(QString::number(outcome.added));
    run.output.WriteFields({ u"added"_s, QString::number(outcome.added) });
    run.output.WriteFields({ u"changed"_s, QString::number(outcome.updated) });
}

} // namespace Quillory
