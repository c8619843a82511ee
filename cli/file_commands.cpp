// SPDX-License-Identifier: MIT
#include "cli/command_run.h"
#include "cli/conditions.h"
#include "cli/encoding.h"
#include "res/string_table.h"
#include "store/data_file_check.h"
#include "transfer/list_file.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"

#include <optional>

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
ImportOutcome ImportFrom(const CommandRun& run, const QString& path,
    const std::optional<QStringConverter::Encoding>& unicode, const Import& import)
{
    const ListFile file = IsStream(path) ? ListFile() : OpenListFile(path, run.DataFile());
    if (!file.failure.isEmpty())
        Fail(u"cannot open %1: %2"_s.arg(path, file.failure));
    QIODevice& source = file.file == nullptr ? run.environment.input : *file.file;
    if (!unicode)
        return import(source);
    RecodedText text(source, *unicode);
    return import(text);
}

void ReportImport(const CommandRun& run, const ImportOutcome& outcome)
{
    run.output.WriteLine(QString::number(outcome.rows));
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
    const auto [unicode, context]
        = ReadEncoding(run.parser.value(u"encoding"_s), run.environment.context);
    const bool isDryRun = run.parser.isSet(u"dry-run"_s);
    const auto data = isDryRun ? run.OpenForReading() : run.OpenForWriting();
    const ObjectId oid = data->OpenList(run.operands[0]);
    const auto columns = ColumnOrder(run, data->list);
    const ImportOutcome outcome = ImportFrom(
        run, run.operands[1], unicode, [&, &rules = context](QIODevice& source) -> ImportOutcome {
            if (isDryRun)
                return CountImportRows(columns, rules, source);
            return ImportRows(data->volume, columns, rules, source);
        });
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
