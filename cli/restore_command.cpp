// SPDX-License-Identifier: MIT
#include "cli/command_run.h"
#include "store/kept_copies.h"
#include "store/salvage.h"

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Prints copies and what can be saved, as lines or as JSON.
class RestorePrinter
{
public:
    explicit RestorePrinter(const CommandRun& run)
        : m_run(run)
        , m_json(run.output, run.IsJson())
    { }

    void PrintCopies(const std::vector<KeptCopy>& copies)
    {
        for (size_t i = 0; i < copies.size(); ++i) {
            const auto number = static_cast<qint64>(i) + 1;
            const QString time = copies[i].time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s);
            if (m_json.IsWanted())
                m_json.Add(
                    { { u"copy"_s, number }, { u"time"_s, copies[i].time.toString(Qt::ISODate) },
                        { u"bytes"_s, copies[i].bytes } });
            else
                m_run.output.WriteFields(
                    { QString::number(number), time, QString::number(copies[i].bytes) });
        }
    }
    /// With `lead` before each line.
    void PrintReport(const SalvageReport& report, const QStringList& lead)
    {
        for (const SalvageReport::List& list : report.lists)
            PrintList(list, lead);
        for (const QString& name : report.lostLists)
            PrintList({ name, 0, 0, false }, lead);
    }
    void End() { m_json.End(); }

private:
    const CommandRun& m_run;
    JsonArrayWriter m_json;

    void PrintList(const SalvageReport::List& list, const QStringList& lead)
    {
        if (m_json.IsWanted()) {
            m_json.Add({ { u"salvage"_s, list.name }, { u"rows"_s, list.rows },
                { u"lost"_s, list.lostRows }, { u"complete"_s, list.isComplete } });
            return;
        }
        QString state = u"complete"_s;
        if (list.lostRows > 0)
            state = u"%1 lost"_s.arg(list.lostRows);
        else if (!list.isComplete)
            state = u"some lost"_s;
        m_run.output.WriteFields(
            lead + QStringList { list.name, QString::number(list.rows), state });
    }
};

void ListChoices(const CommandRun& run)
{
    const QString path = run.DataFile();
    const auto copies = ListKeptCopies(path, run.environment.copiesFolder);
    const auto report = ExamineLists(path);
    if (copies.empty() && !report)
        Fail(u"there is no copy of %1, and nothing of it can be read: %2"_s.arg(
            path, ErrorText(report.Error())));
    RestorePrinter printer(run);
    printer.PrintCopies(copies);
    if (report)
        printer.PrintReport(*report, { u"salvage"_s });
    printer.End();
}

void RestoreFrom(const CommandRun& run, const QString& target)
{
    const QString path = run.DataFile();
    const auto number = static_cast<size_t>(ReadInteger(run.parser, u"from"_s, 1, kMostCopies));
    const auto copies = ListKeptCopies(path, run.environment.copiesFolder);
    if (number > copies.size())
        Fail(u"there is no copy %1 of %2"_s.arg(QString::number(number), path));
    const auto restored = RestoreCopy(copies[number - 1], target);
    if (!restored)
        Fail(u"cannot make %1: %2"_s.arg(target, ErrorText(restored.Error())));
}

void SalvageTo(const CommandRun& run, const QString& target)
{
    const QString path = run.DataFile();
    const auto report = SalvageLists(path, target);
    if (!report)
        Fail(u"cannot save %1 in %2: %3"_s.arg(path, target, ErrorText(report.Error())));
    RestorePrinter printer(run);
    printer.PrintReport(*report, {});
    printer.End();
    if (report->wasChangedOutside)
        Complain(run.environment.errors,
            u"another program had written into %1; what it held was taken as it stood"_s.arg(path));
    if (report->mendedPages > 0)
        Complain(run.environment.errors,
            u"pages in which one bit had turned were set right, %1 of them"_s.arg(
                report->mendedPages));
    if (report->mayListsBeLost)
        Complain(run.environment.errors,
            u"parts of the list of lists are lost, and lists may be with them"_s);
}

} // namespace

void RunRestore(const CommandRun& run)
{
    const bool isFrom = run.parser.isSet(u"from"_s);
    const bool isSalvage = run.parser.isSet(u"salvage"_s);
    if (isFrom && isSalvage)
        FailUsage(u"--from and --salvage exclude each other"_s);
    if (!isFrom && !isSalvage) {
        if (!run.operands.isEmpty())
            FailUsage(u"a file is made with --from N or --salvage"_s);
        return ListChoices(run);
    }
    const QString target = run.operands.value(0);
    if (run.operands.isEmpty())
        FailUsage(u"an argument is missing"_s);
    if (target == u"-")
        FailUsage(u"a data file is a file, not a stream"_s);
    run.RefuseJournal(target);
    if (isFrom)
        RestoreFrom(run, target);
    else
        SalvageTo(run, target);
}

} // namespace Quillory
