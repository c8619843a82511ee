// SPDX-License-Identifier: MIT
#include "app/command_line_conditions.h"
#include "app/command_line_run.h"
#include "res/string_table.h"
#include "transfer/list_file.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// An operand or option value that stands for a standard stream.
bool IsStream(const QString& path)
{
    return path == u"-";
}

/// Writes what can be read of the list. Nothing waits for whoever reads the target.
[[nodiscard]] Database::VisitOutcome ExportTo(const CommandRun& run, TextOutput& target)
{
    const auto data = run.OpenForReading();
    data->OpenList(run.operands.front());
    const ExportOutcome outcome
        = ExportRows(data->Rows(), data->list, run.environment.context, target);
    return { outcome.passedOver, outcome.readError };
}

/// Runs an import from a file or the standard input.
template <typename Import>
ImportOutcome ImportFrom(const CommandRun& run, const QString& path, const Import& import)
{
    if (IsStream(path))
        return import(run.environment.input);
    const ListFile source = OpenListFile(path, run.DataFile());
    if (source.file == nullptr)
        Fail(u"cannot open %1: %2"_s.arg(path, source.failure));
    return import(*source.file);
}

void ReportImport(const CommandRun& run, const ImportOutcome& outcome)
{
    run.output.WriteLine(QString::number(outcome.rows));
    if (outcome.writeError != ErrorNumber::None)
        Fail(u"the rows cannot be stored: %1"_s.arg(ErrorText(outcome.writeError)));
    if (outcome.result == ImportResult::Failed)
        Fail(LoadString(StringId::ImportErrors));
    if (outcome.lines == 0)
        Complain(run.environment.errors,
            u"there is no line to import that ends with a carriage return and a line feed"_s);
    else if (outcome.rows == 0)
        Complain(run.environment.errors, u"no line gives a value"_s);
}

std::vector<PropertyId> ColumnOrder(const CommandRun& run, const InventoryList& list)
{
    return ReadColumnOrder(run.parser.value(u"columns"_s), list);
}

} // namespace

void RunExport(const CommandRun& run)
{
    const QString path = run.operands.value(1, u"-"_s);
    if (IsStream(path))
        return FailIfRowsAreMissing(ExportTo(run, run.output));
    const ListFile target = CreateListFile(path, run.DataFile());
    if (target.file == nullptr)
        Fail(u"cannot make %1: %2"_s.arg(path, target.failure));
    TextOutput text(*target.file);
    const auto missing = ExportTo(run, text);
    QString failure = text.Flush();
    if (failure.isEmpty())
        failure = target.Commit();
    if (!failure.isEmpty())
        Fail(u"cannot write %1: %2"_s.arg(path, failure));
    FailIfRowsAreMissing(missing);
}

void RunImport(const CommandRun& run)
{
    const ValueContext& context = run.environment.context;
    const bool isDryRun = run.parser.isSet(u"dry-run"_s);
    const auto data = isDryRun ? run.OpenForReading() : run.OpenForWriting();
    const ObjectId oid = data->OpenList(run.operands[0]);
    const auto columns = ColumnOrder(run, data->list);
    const ImportOutcome outcome
        = ImportFrom(run, run.operands[1], [&](QIODevice& source) -> ImportOutcome {
              if (isDryRun)
                  return CountImportRows(columns, context, source);
              return ImportRows(data->volume, columns, context, source);
          });
    if (!isDryRun && outcome.writeError == ErrorNumber::None)
        data->StoreColumnOrder(oid);
    ReportImport(run, outcome);
    run.KeepCopyOf(*data);
}

void RunCheck(const CommandRun& run)
{
    const auto data = run.OpenForReading();
    const auto faults = data->volume.MountedVolume()->Check();
    if (!faults)
        Fail(u"cannot check %1: %2"_s.arg(data->Path(), ErrorText(faults.Error())));
    for (const QString& fault : *faults)
        run.output.WriteLine(fault);
    if (!faults->empty())
        Fail(u"%1 is damaged"_s.arg(data->Path()));
    run.output.WriteLine(u"ok");
}

void RunBackup(const CommandRun& run)
{
    const QString path = run.operands.front();
    if (IsStream(path))
        FailUsage(u"a backup is a file, not a stream"_s);
    const auto data = run.OpenForReading();
    const auto done = data->volume.MountedVolume()->Backup(path);
    if (!done)
        Fail(u"cannot make %1: %2"_s.arg(path, ErrorText(done.Error())));
}

} // namespace Quillory
