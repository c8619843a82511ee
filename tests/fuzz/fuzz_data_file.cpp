// SPDX-License-Identifier: MIT
#include "propdb/confined_vfs.h"
#include "store/salvage.h"
#include "tests/faults/fault_run.h"
#include "tests/fuzz/fuzz_context.h"
#include "tests/fuzz/hostile_file.h"

#include <QFile>

using namespace Quillory;

namespace {

const QByteArray kData = "data.idb";
const QByteArray kJournal = "data.idb-journal";
const QByteArray kNeighbour = "victim.txt";
const QByteArray kSalvaged = "salvaged.idb";

/// Files as the program leaves them after a workload, at rest and in the middle of a change.
std::vector<HostileFile> MakeSamples(const FaultRun& run)
{
    std::vector<HostileFile> samples;
    for (const quint32 seed : { 1U, 2U }) {
        constexpr size_t kOneRound = 2;
        const Script script = MakeScript(seed, kOneRound);
        const std::vector<Files> stages = MakeStages(run, script);
        for (size_t i = 2; i < stages.size(); i += 3) {
            const QByteArray before = stages[i - 1].at(kData);
            const QByteArray after = stages[i].at(kData);
            samples.push_back({ after, {} });
            if (before != after)
                samples.push_back({ after, MakeJournal(before, after) });
        }
    }
    return samples;
}

/// Looks at hostile files as the program does. Whatever they hold it must come to an end, leave
/// what it refuses as it was, and reach nothing else.
class Target
{
public:
    Target()
        : m_run(0, 1)
        , m_samples(MakeSamples(m_run))
    { }

    [[nodiscard]] const std::vector<HostileFile>& Samples() const { return m_samples; }

    void Try(const HostileFile& hostile)
    {
        m_files = { { kData, hostile.file }, { kNeighbour, "precious" } };
        if (!hostile.journal.isEmpty())
            m_files[kJournal] = hostile.journal;
        Read();
        Write();
        Salvage();
    }

private:
    FaultRun m_run;
    std::vector<HostileFile> m_samples;
    Files m_files;

    /// `isRestored` says that a journal may have been played back.
    void RequireUnchanged(bool isRestored, const char* what) const
    {
        const Files after = m_run.Taken();
        if (!isRestored)
            return Require(after == m_files, what);
        RequireAlone(after);
        // It may make whole a last page that was cut off.
        const qsizetype most = (m_files.at(kData).size() + kPageSize - 1) / kPageSize * kPageSize;
        Require(after.at(kData).size() <= most, "a file grew by its journal");
    }
    static void RequireAlone(Files after)
    {
        Require(after.count(kData) == 1, "the file is still there");
        after.erase(kJournal);
        Require(
            after.size() == 2 && after.at(kNeighbour) == "precious", "no other file is touched");
    }
    [[nodiscard]] bool HasJournal() const { return m_files.count(kJournal) != 0; }

    void Read() const
    {
        m_run.Place(m_files);
        {
            Session session;
            if (session.Start(m_run.DataFile(), VolumeAccess::ReadOnly) == ErrorNumber::None) {
                static_cast<void>(session.Check());
                static_cast<void>(session.ReadLists());
            }
        }
        RequireUnchanged(HasJournal(), "reading changes nothing");
    }
    void Write() const
    {
        m_run.Place(m_files);
        bool isStarted = false;
        bool isWhole = false;
        {
            Session session;
            isStarted = session.Start(m_run.DataFile()) == ErrorNumber::None;
            isWhole
                = isStarted && session.Check() == ErrorNumber::None && session.Contents().IsOk();
            if (isStarted)
                Work(session);
        }
        if (!isStarted)
            return RequireUnchanged(HasJournal(), "what is refused is not changed");
        RequireAlone(m_run.Taken());
        if (isWhole) {
            const Reading reading = ReadDataFile(m_run.DataFile());
            Require(reading.error == ErrorNumber::None, "what was whole is whole after changes");
        }
    }
    /// Every change there is, on the lists that the samples have.
    static void Work(Session& session)
    {
        const std::vector<ModelRow> rows(
            2, { QStringLiteral("New"), 1, true, 250, { 2026, 1, 2 } });
        for (int number = 1; number <= 3; ++number) {
            const QString list = QStringLiteral("List %1.").arg(number);
            for (const Action action : { Action::AddRow, Action::ChangeRow, Action::AddOne,
                     Action::Tick, Action::CopyRow, Action::ChangeOptions, Action::ImportRows,
                     Action::DeleteRow, Action::RenameList, Action::AddList, Action::DeleteAllRows,
                     Action::DeleteList }) {
                const Step step { action, list, list + u'r', 1, rows, 7 };
                static_cast<void>(session.Run(step).isDone);
            }
        }
    }
    void Salvage() const
    {
        const QString path = QFile::decodeName(m_run.DataFile());
        const QByteArray target = m_run.Folder() + '/' + kSalvaged;
        m_run.Place(m_files);
        static_cast<void>(ExamineLists(path).IsOk());
        RequireUnchanged(false, "examining changes nothing");
        const bool isSalvaged = SalvageLists(path, QFile::decodeName(target)).IsOk();
        if (isSalvaged)
            Require(ReadDataFile(target).error == ErrorNumber::None, "what was salvaged is whole");
        Require(QFile::remove(QFile::decodeName(target)) == isSalvaged, "salvage makes its file");
        RequireUnchanged(false, "salvaging changes nothing else");
    }
};

Target& TheTarget()
{
    static Target target;
    return target;
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(
    uint8_t* data, size_t size, size_t maxSize, unsigned int seed)
{
    constexpr size_t kSmallest = 100;
    constexpr unsigned kMostChanges = 3;
    Spoiler spoiler(TheTarget().Samples(), seed);
    HostileFile hostile
        = size < kSmallest ? spoiler.SomeSample() : HostileFile::FromInput({ data, size });
    for (unsigned i = 0; i <= seed % kMostChanges; ++i)
        spoiler.Spoil(hostile);
    return hostile.ToInput({ data, maxSize });
}

/// A data file and its journal, as HostileFile::FromInput takes them.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TheTarget().Try(HostileFile::FromInput({ data, size }));
    return 0;
}
