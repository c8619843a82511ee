// SPDX-License-Identifier: MIT
#include "cli/command_run.h"
#include "cli/conditions.h"
#include "cli/list_folder.h"
#include "cli/table_files.h"
#include "cli/text_source.h"
#include "res/string_table.h"
#include "store/data_file_check.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"

#include <optional>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

void ReportImport(const CommandRun& run, const ImportOutcome& outcome)
{
    run.output.WriteLine(QString::number(outcome.rows));
    if (!outcome.ambiguousDate.isEmpty())
        Complain(run.environment.errors,
            u"dates such as %1 were read as %2; \"export --dates iso\" writes dates that are read "
            "alike everywhere"_s.arg(
                outcome.ambiguousDate, run.environment.context.userLocale.shortDatePicture));
    if (outcome.writeError != ErrorNumber::None)
        Fail(u"the rows cannot be stored: %1"_s.arg(ErrorText(outcome.writeError)));
    if (outcome.result == ImportResult::Failed)
        Fail(LoadString(StringId::ImportErrors));
    if (outcome.lines == 0)
        Fail(u"there is no line to import that ends with a carriage return and a line feed"_s);
    if (outcome.isLastLineOpen)
        Fail(u"the last line is not in: it does not end with a carriage return and a line feed"_s);
    if (outcome.rows == 0)
        Fail(u"no line gives a value"_s);
}

/// How an export writes values; ends the command if `--dates` names no form, or none is to be
/// chosen.
ValueContext ExportContext(const CommandRun& run, bool isTable)
{
    ValueContext context = run.environment.context;
    if (!run.parser.isSet(u"dates"_s))
        return context;
    if (run.parser.value(u"dates"_s) != u"iso")
        FailUsage(u"“%1” is no form of dates"_s.arg(run.parser.value(u"dates"_s)));
    if (isTable)
        FailUsage(u"--dates does not go with --format and --all"_s);
    context.systemLocale.shortDatePicture = u"yyyy-MM-dd"_s;
    return context;
}

std::vector<PropertyId> ColumnOrder(const CommandRun& run, const InventoryList& list)
{
    return ReadColumnOrder(run.parser.value(u"columns"_s), list);
}

void RequireOperands(const CommandRun& run, qsizetype count)
{
    if (run.operands.size() < count)
        FailUsage(u"an argument is missing"_s);
}

} // namespace

void RunExport(const CommandRun& run)
{
    const auto format = ReadTableFormat(run);
    const bool isAll = run.parser.isSet(u"all"_s);
    const ValueContext context = ExportContext(run, format || isAll);
    if (isAll)
        return ExportAllLists(run, format.value_or(TableFormat::Csv));
    RequireOperands(run, 1);
    const auto write = [&](TextOutput& target) -> Database::VisitOutcome {
        const auto data = run.OpenForReading();
        data->OpenList(run.operands.front());
        if (format)
            return WriteTable(*data, *format, context, target);
        const ExportOutcome outcome = ExportRows(data->Rows(), data->list, context, target);
        return { outcome.passedOver, outcome.readError };
    };
    FailIfRowsAreMissing(WriteTextFile(run, run.operands.value(1, u"-"_s), write));
}

void RunImport(const CommandRun& run)
{
    if (run.parser.isSet(u"all"_s))
        return ImportAllLists(run);
    RequireOperands(run, 2);
    if (run.parser.isSet(u"create"_s))
        FailUsage(u"--create goes with --all"_s);
    if (const auto format = ReadTableFormat(run))
        return ImportTableFile(run, *format);
    if (run.parser.isSet(u"match"_s))
        FailUsage(u"rows are matched by --format csv or tsv"_s);
    const auto [unicode, context]
        = ReadEncoding(run.parser.value(u"encoding"_s), run.environment.context);
    const bool isDryRun = run.parser.isSet(u"dry-run"_s);
    const auto data = isDryRun ? run.OpenForReading() : run.OpenForWriting();
    const ObjectId oid = data->OpenList(run.operands[0]);
    const auto columns = ColumnOrder(run, data->list);
    const TextSource source(run, run.operands[1], unicode);
    const ImportOutcome outcome = isDryRun
        ? CountImportRows(columns, context, source.Device())
        : ImportRows(data->volume, columns, context, source.Device());
    if (!isDryRun && outcome.writeError == ErrorNumber::None) {
        data->StoreColumnOrder(oid);
        run.KeepCopyOf(*data);
    }
    ReportImport(run, outcome);
}

void RunCheck(const CommandRun& run)
{
    const auto data = run.OpenForReading();
    const auto faults = CheckDataFile(*data->volume.MountedVolume());
    if (!faults)
        Fail(u"cannot check %1: %2"_s.arg(data->Path(), ErrorText(faults.Error())));
    for (const QString& fault : *faults)
        run.output.WriteLine(fault);
    if (!faults->isEmpty())
        Fail(u"%1 is damaged"_s.arg(data->Path()));
    run.output.WriteLine(u"ok");
}

void RunBackup(const CommandRun& run)
{
    const QString path = run.operands.front();
    if (IsStream(path))
        FailUsage(u"a backup is a file, not a stream"_s);
    run.RefuseJournal(path);
    const auto data = run.OpenForReading();
    const auto done = data->volume.MountedVolume()->Backup(path);
    if (!done)
        Fail(u"cannot make %1: %2"_s.arg(path, ErrorText(done.Error())));
}

} // namespace Quillory
