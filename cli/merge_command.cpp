// SPDX-License-Identifier: MIT
#include "cli/command_run.h"
#include "cli/row_printer.h"
#include "merge/file_merge.h"
#include "propdb/volume_path.h"

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

using Kind = MergeNote::Kind;

/// The word that a line about it begins with.
QString WordOf(const MergeNote& note)
{
    switch (note.kind) {
    case Kind::ListCame:
    case Kind::RowCame:
    case Kind::ValueCame:
        return u"came"_s;
    case Kind::ListWent:
    case Kind::RowWent:
        return u"went"_s;
    case Kind::ListKept:
    case Kind::RowKept:
        return note.wasDeletedHere ? u"came back"_s : u"kept"_s;
    case Kind::ListsJoined:
        return u"joined"_s;
    case Kind::RowCopied:
        return u"copied"_s;
    case Kind::ValueDecided:
        return u"decided"_s;
    case Kind::CountsAdded:
        return u"added"_s;
    case Kind::CountsLimited:
        break;
    }
    return u"limited"_s;
}

void PrintNotes(const CommandRun& run, const MergePlan& plan)
{
    JsonArrayWriter json(run.output, run.IsJson());
    const ValueContext& context = run.environment.context;
    for (const MergeNote& note : plan.notes) {
        const bool hasValues = !note.column.isEmpty();
        if (json.IsWanted()) {
            JsonMembers members { { u"what"_s, WordOf(note) }, { u"list"_s, note.list } };
            if (!note.row.isEmpty())
                members.append({ u"row"_s, note.row });
            if (hasValues)
                members << JsonMembers { { u"column"_s, note.column },
                    { u"value"_s, JsonOf(note.kept) }, { u"other"_s, JsonOf(note.other) } };
            json.Add(members);
            continue;
        }
        QStringList fields { WordOf(note), note.list };
        if (!note.row.isEmpty() || hasValues)
            fields << note.row;
        if (hasValues)
            fields << note.column << CellText(note.kept, context) << CellText(note.other, context);
        run.output.WriteFields(fields);
    }
    json.End();
}

/// Two data files, what they have in common, and what comes of bringing them together.
class FileComparison
{
public:
    FileComparison(const CommandRun& run, std::unique_ptr<CommandData> mine)
        : m_run(run)
        , m_mine(std::move(mine))
    {
        const QString path = run.operands.front();
        if (IsSameVolume(path, m_mine->Path()))
            FailUsage(u"the other file is the data file itself"_s);
        m_theirs = std::make_unique<CommandData>(
            path, VolumeAccess::ReadOnly, Disposition::OpenExisting, run.environment.errors);
        auto base = FindBase();
        if (!base)
            Fail(u"what both come from cannot be opened: %1"_s.arg(ReadErrorText(base.Error())));
        m_base = std::move(*base);
        auto plan = PlanMerge(Mine(), Theirs(), m_base.get());
        if (plan.Error() == ErrorNumber::InvalidParameter && run.parser.isSet(u"base"_s))
            Fail(u"the two files do not both come from %1"_s.arg(run.parser.value(u"base"_s)));
        if (!plan)
            Fail(u"the files cannot be compared: %1"_s.arg(ReadErrorText(plan.Error())));
        m_plan = std::move(*plan);
        if (m_plan.kinship == Kinship::Unrelated)
            Complain(run.environment.errors,
                u"it is not known what both files come from: what one of them lacks comes from the "
                "other, and nothing goes"_s);
    }

    [[nodiscard]] const MergePlan& Plan() const { return m_plan; }

    void Exchange()
    {
        const auto done = ExchangeMerged(
            m_plan, Mine(), Theirs(), m_mine->Path(), Copies(), QDateTime::currentDateTimeUtc());
        if (!done)
            Fail(u"nothing was changed: %1"_s.arg(ErrorText(done.Error())));
    }

private:
    const CommandRun& m_run;
    std::unique_ptr<CommandData> m_mine;
    std::unique_ptr<CommandData> m_theirs;
    std::unique_ptr<Volume> m_base;
    MergePlan m_plan;

    [[nodiscard]] Volume& Mine() const { return *m_mine->volume.MountedVolume(); }
    [[nodiscard]] Volume& Theirs() const { return *m_theirs->volume.MountedVolume(); }
    /// Of any data file, be it the configured one or not: no other command changes as much.
    [[nodiscard]] CopiesPlace Copies() const
    {
        return { m_run.environment.copiesFolder, m_run.environment.keptCopies };
    }
    [[nodiscard]] Result<std::unique_ptr<Volume>> FindBase() const
    {
        if (m_run.parser.isSet(u"base"_s))
            return Volume::Mount(
                m_run.parser.value(u"base"_s), Disposition::OpenExisting, VolumeAccess::ReadOnly);
        return OpenBase(Mine(), Theirs(), m_mine->Path(), Copies());
    }
};

} // namespace

void RunDiff(const CommandRun& run)
{
    const FileComparison comparison(run, run.OpenForReading());
    PrintNotes(run, comparison.Plan());
    run.found = comparison.Plan().kinship != Kinship::Known;
}

void RunMerge(const CommandRun& run)
{
    const bool isDryRun = run.parser.isSet(u"dry-run"_s);
    FileComparison comparison(run, isDryRun ? run.OpenForReading() : run.OpenForWriting());
    if (!isDryRun)
        comparison.Exchange();
    PrintNotes(run, comparison.Plan());
}

} // namespace Quillory
