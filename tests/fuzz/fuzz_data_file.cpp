// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "store/salvage.h"
#include "tests/faults/sealed_file.h"
#include "tests/fuzz/require.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <random>
#include <span>

/// Of libFuzzer: changes `size` bytes, or makes up to `maxSize` of them, and returns how many.
extern "C" size_t LLVMFuzzerMutate(uint8_t* data, size_t size, size_t maxSize);

using namespace Quillory;

namespace {

constexpr qsizetype kSectorSize = 512;
constexpr qsizetype kSizeBytes = 2;

/// Where the parts of a journal lie: a header that fills a sector, and records.
constexpr qsizetype kNoncePlace = 12;
constexpr qsizetype kPageNumberSize = 4;
constexpr qsizetype kRecordSize = kPageNumberSize + kPageSize + 4;

/// The sum that stands behind a page in a journal.
quint32 JournalSum(const char* page, quint32 nonce)
{
    constexpr qsizetype kStep = 200;
    quint32 sum = nonce;
    for (qsizetype place = kPageSize - kStep; place > 0; place -= kStep)
        sum += static_cast<quint8>(page[place]);
    return sum;
}

/// A data file and the journal beside it, if that is not empty, as one input of a fuzzer.
struct HostileFile
{
    QByteArray file;
    QByteArray journal;

    /// Two bytes tell how many sectors of 512 bytes the file has; the journal follows it.
    [[nodiscard]] static HostileFile FromInput(QByteArrayView input)
    {
        if (input.size() < kSizeBytes)
            return {};
        const qsizetype wanted = qFromLittleEndian<quint16>(input.data()) * kSectorSize;
        const QByteArray bytes = input.sliced(kSizeBytes).toByteArray();
        return { bytes.left(wanted), bytes.mid(wanted) };
    }
    /// Writes as much of it as there is room for; returns how much that is.
    [[nodiscard]] size_t ToInput(std::span<quint8> input) const
    {
        const auto sectors = static_cast<quint16>(file.size() / kSectorSize);
        QByteArray bytes(kSizeBytes, '\0');
        qToLittleEndian(sectors, bytes.data());
        bytes += file.left(sectors * kSectorSize) + journal;
        const size_t size = std::min(input.size(), static_cast<size_t>(bytes.size()));
        std::copy_n(bytes.constData(), size, input.begin());
        return size;
    }
};

/// The journal of a transaction that makes `after` of the file `before`.
QByteArray MakeJournal(const QByteArray& before, const QByteArray& after)
{
    constexpr quint32 kNonce = 1;
    QByteArray records;
    quint32 count = 0;
    for (qsizetype begin = 0; begin + kPageSize <= before.size(); begin += kPageSize) {
        const QByteArray page = before.mid(begin, kPageSize);
        if (page == after.mid(begin, kPageSize))
            continue;
        const auto number = static_cast<quint32>(begin / kPageSize + 1);
        records += BigEndian(number) + page + BigEndian(JournalSum(page.constData(), kNonce));
        ++count;
    }
    return JournalHead(count, kNonce, static_cast<quint32>(before.size() / kPageSize)) + records;
}

/// Spoils files so that the damage gets past the checksums, as somebody would who knows the format.
class Spoiler
{
public:
    /// `samples` are what to begin with.
    Spoiler(const std::vector<HostileFile>& samples, quint32 seed)
        : m_samples(samples)
        , m_random(seed)
    { }

    [[nodiscard]] HostileFile SomeSample()
    {
        return m_samples[static_cast<size_t>(Below(std::ssize(m_samples)))];
    }
    /// One change of the file or its journal.
    void Spoil(HostileFile& hostile)
    {
        constexpr int kWays = 16;
        const qsizetype way = Below(kWays);
        if (way == 0)
            Resize(hostile.file);
        else if (way == 1)
            MovePage(hostile.file);
        else if (way == 2)
            Resize(hostile.journal);
        else if (way == 3)
            hostile.journal = MakeJournal(SomeSample().file, hostile.file);
        else if (way < 8)
            SpoilJournal(hostile.journal);
        else
            SpoilPage(hostile.file);
    }

private:
    const std::vector<HostileFile>& m_samples;
    std::mt19937 m_random;

    [[nodiscard]] qsizetype Below(qsizetype limit)
    {
        return limit <= 0 ? 0 : static_cast<qsizetype>(m_random()) % limit;
    }
    void SpoilPage(QByteArray& file)
    {
        // The head of a page says where everything on it lies.
        constexpr qsizetype kHeadSize = 120;
        constexpr int kSeldom = 8;
        const qsizetype page = Below(file.size() / kPageSize);
        const bool isHead = Below(2) == 0;
        const qsizetype begin = isHead ? 0 : Below(kPageSize);
        SpoilBytes(file, page * kPageSize + begin, isHead ? kHeadSize : kPageSize - begin);
        if (file.size() >= (page + 1) * kPageSize && Below(kSeldom) != 0)
            SealPage(file, page);
    }
    void MovePage(QByteArray& file)
    {
        const qsizetype pages = file.size() / kPageSize;
        if (pages == 0)
            return;
        const qsizetype target = Below(pages);
        file.replace(target * kPageSize, kPageSize, file.mid(Below(pages) * kPageSize, kPageSize));
        SealPage(file, target);
    }
    void Resize(QByteArray& bytes)
    {
        if (Below(4) == 0)
            bytes.clear();
        else if (Below(2) == 0)
            bytes.truncate(Below(bytes.size()) / kSectorSize * kSectorSize);
        else
            bytes += bytes.left(kPageSize * (1 + Below(3)));
    }
    void SpoilJournal(QByteArray& journal)
    {
        const qsizetype records = (journal.size() - kSectorSize) / kRecordSize;
        if (records <= 0 || Below(3) == 0)
            return SpoilBytes(journal, 0, Below(2) == 0 ? kSectorSize / 8 : journal.size());
        const qsizetype begin = kSectorSize + Below(records) * kRecordSize;
        const qsizetype part = Below(3) == 0 ? 0 : Below(kRecordSize);
        SpoilBytes(journal, begin + part, std::min(kRecordSize - part, 1 + Below(kRecordSize)));
        char* const page = journal.data() + begin + kPageNumberSize;
        SealPage(page, qFromBigEndian<quint32>(journal.constData() + begin));
        const auto nonce = qFromBigEndian<quint32>(journal.constData() + kNoncePlace);
        qToBigEndian(JournalSum(page, nonce), page + kPageSize);
    }
    void SpoilBytes(QByteArray& bytes, qsizetype begin, qsizetype size)
    {
        QByteArray part = bytes.mid(begin, size);
        const auto length = static_cast<size_t>(part.size());
        if (length == 0)
            return;
        LLVMFuzzerMutate(reinterpret_cast<uint8_t*>(part.data()), length, length);
        bytes.replace(begin, part.size(), part);
    }
};

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
        std::erase_if(after, [](const auto& file) { return file.first.startsWith(kJournal); });
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
        RequireUnchanged(HasJournal(), "examining changes nothing");
        const bool isSalvaged = SalvageLists(path, QFile::decodeName(target)).IsOk();
        if (isSalvaged)
            Require(ReadDataFile(target).error == ErrorNumber::None, "what was salvaged is whole");
        Require(QFile::remove(QFile::decodeName(target)) == isSalvaged, "salvage makes its file");
        RequireUnchanged(HasJournal(), "salvaging changes nothing else");
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
    HostileFile hostile = size < kSmallest
        ? spoiler.SomeSample()
        : HostileFile::FromInput({ data, static_cast<qsizetype>(size) });
    for (unsigned i = 0; i <= seed % kMostChanges; ++i)
        spoiler.Spoil(hostile);
    return hostile.ToInput({ data, maxSize });
}

/// A data file and its journal, as HostileFile::FromInput takes them.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    TheTarget().Try(HostileFile::FromInput({ data, static_cast<qsizetype>(size) }));
    return 0;
}
