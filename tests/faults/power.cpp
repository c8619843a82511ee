// SPDX-License-Identifier: MIT
#include "tests/faults/fault_run.h"
#include "tests/faults/system_calls.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <random>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kSectorSize = 512;

QByteArray NameOf(const QByteArray& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

bool IsAboutNames(CallKind kind)
{
    return kind == CallKind::Create || kind == CallKind::Remove || kind == CallKind::Rename;
}

/// Writes down what changes the files of a folder, in order.
class Recorder : public CallWatcher
{
public:
    struct Event
    {
        SystemCall call;
        /// The bytes that call.bytes no longer leads to.
        QByteArray bytes;
        /// How many steps were acknowledged before it.
        size_t acknowledged = 0;
    };

    void AfterCall(const SystemCall& call) override
    {
        if (!call.IsMutating())
            return;
        const QByteArray bytes
            = call.kind == CallKind::Write ? QByteArray(call.bytes, call.size) : QByteArray();
        m_events.push_back({ call, bytes, m_acknowledged });
    }
    void Acknowledge() { ++m_acknowledged; }

    [[nodiscard]] const std::vector<Event>& Events() const { return m_events; }

private:
    std::vector<Event> m_events;
    size_t m_acknowledged = 0;
};

/// What the end of the program does to changes that no sync has covered: it is killed, or the power
/// is cut.
enum class Loss
{
    /// It is killed after the latest change, or amid it: half of what was written is there.
    Nothing,
    HalfAWrite,
    Everything,
    /// Files have their bytes, but names are as they were at the last sync of the folder.
    Names,
    /// Names are there, but what was written to the files is not.
    Bytes,
    /// The newest changes, from a random one on.
    Tail,
    /// Random writes.
    RandomWrites,
    /// Random sectors of random writes.
    RandomSectors,
    /// As above, and one write was under way: its lost sectors hold junk.
    JunkSectors,
};
constexpr int kLossCount = 9;

/// A medium as it is between the syncs: what is safe, and what is still on its way.
class Disk
{
public:
    /// Holds these files, all of them safe.
    explicit Disk(const Files& files)
    {
        for (const auto& [name, bytes] : files) {
            m_safeNames[name] = static_cast<int>(m_safeBytes.size());
            m_safeBytes.push_back(bytes);
        }
        m_names = m_safeNames;
    }

    void Apply(const Recorder::Event& event)
    {
        const SystemCall& call = event.call;
        if (call.kind == CallKind::SyncFolder)
            return MakeNamesSafe();
        const QByteArray name = NameOf(call.path);
        Change change { call.kind, 0, event.bytes, 0, name, NameOf(call.target) };
        if (call.kind == CallKind::Create) {
            change.file = static_cast<int>(m_safeBytes.size());
            m_safeBytes.emplace_back();
        } else {
            const auto found = m_names.find(name);
            if (found == m_names.end())
                qFatal("%s changes and was never made", name.constData());
            change.file = found->second;
        }
        if (call.kind == CallKind::Sync)
            return MakeSafe(change.file);
        change.place = call.kind == CallKind::Truncate ? call.size : call.offset;
        if (IsAboutNames(call.kind))
            ApplyToNames(change, m_names);
        m_pending.push_back(std::move(change));
    }
    /// The files that are found after a power cut.
    [[nodiscard]] Files AfterPowerCut(Loss loss, std::mt19937& random) const
    {
        const bool isKilled = loss == Loss::Nothing || loss == Loss::HalfAWrite;
        const bool keepsNames = isKilled || loss == Loss::Bytes;
        const bool losesNames = loss == Loss::Everything || loss == Loss::Names;
        const size_t count = m_pending.size();
        // Changes of names reach the medium in their order.
        const size_t cut = count == 0 ? 0 : random() % (count + 1);
        const size_t junk = count == 0 ? 0 : random() % count;
        const size_t namesEnd = keepsNames ? count : losesNames ? 0 : cut;
        std::vector<QByteArray> contents = m_safeBytes;
        Names names = m_safeNames;
        for (size_t i = 0; i < count; ++i) {
            const Change& change = m_pending[i];
            if (IsAboutNames(change.kind)) {
                if (i < namesEnd)
                    ApplyToNames(change, names);
                continue;
            }
            QByteArray& bytes = contents[static_cast<size_t>(change.file)];
            const bool isSectors = loss == Loss::RandomSectors || loss == Loss::JunkSectors;
            const bool isKept = isKilled || loss == Loss::Names || (loss == Loss::Tail && i < cut)
                || (loss == Loss::RandomWrites && random() % 2 == 0);
            if (loss == Loss::HalfAWrite && i + 1 == count)
                ApplyToBytes(HalfOf(change), bytes);
            else if (isSectors)
                ApplySectors(change, bytes, loss == Loss::JunkSectors && i == junk, random);
            else if (isKept)
                ApplyToBytes(change, bytes);
        }
        Files files;
        for (const auto& [name, file] : names)
            files[name] = contents[static_cast<size_t>(file)];
        return files;
    }

private:
    struct Change
    {
        CallKind kind {};
        int file = 0;
        QByteArray bytes;
        qint64 place = 0;
        QByteArray name;
        QByteArray target;
    };

    using Names = std::map<QByteArray, int>;
    std::vector<QByteArray> m_safeBytes;
    Names m_safeNames;
    /// The names as the running program sees them.
    Names m_names;
    std::vector<Change> m_pending;

    void MakeSafe(int file)
    {
        std::erase_if(m_pending, [&](const Change& change) {
            if (IsAboutNames(change.kind) || change.file != file)
                return false;
            ApplyToBytes(change, m_safeBytes[static_cast<size_t>(file)]);
            return true;
        });
    }
    void MakeNamesSafe()
    {
        std::erase_if(m_pending, [&](const Change& change) {
            if (!IsAboutNames(change.kind))
                return false;
            ApplyToNames(change, m_safeNames);
            return true;
        });
    }
    static void ApplyToNames(const Change& change, Names& names)
    {
        if (change.kind == CallKind::Create) {
            names[change.name] = change.file;
            return;
        }
        const auto found = names.find(change.name);
        if (found == names.end())
            return;
        if (change.kind == CallKind::Rename)
            names[change.target] = found->second;
        names.erase(change.name);
    }
    static void ApplyToBytes(const Change& change, QByteArray& bytes)
    {
        if (change.kind == CallKind::Truncate) {
            bytes.resize(change.place);
            return;
        }
        const qint64 end = change.place + change.bytes.size();
        if (bytes.size() < end)
            bytes.append(end - bytes.size(), '\0');
        std::memcpy(bytes.data() + change.place, change.bytes.constData(),
            static_cast<size_t>(change.bytes.size()));
    }
    static Change HalfOf(Change change)
    {
        change.bytes.truncate(change.bytes.size() / 2);
        return change;
    }
    static void ApplySectors(
        const Change& change, QByteArray& bytes, bool isJunkLeft, std::mt19937& random)
    {
        if (change.kind == CallKind::Truncate)
            return ApplyToBytes(change, bytes);
        const qint64 end = change.place + change.bytes.size();
        for (qint64 begin = change.place; begin < end;) {
            const qint64 sectorEnd = std::min((begin / kSectorSize + 1) * kSectorSize, end);
            Change sector = change;
            sector.place = begin;
            sector.bytes = change.bytes.mid(begin - change.place, sectorEnd - begin);
            const bool isKept = random() % 2 == 0;
            if (!isKept && isJunkLeft)
                sector.bytes.fill(static_cast<char>(random()));
            if (isKept || isJunkLeft)
                ApplyToBytes(sector, bytes);
            begin = sectorEnd;
        }
    }
};

/// Of so many images that need recovery one has its recovery cut too.
constexpr quint32 kRecoveryShare = 40;
/// The first hundreds show the first start, of which nothing is ignored.
constexpr int kFewestCarelessImages = 2000;

/// Looks at images of what a script left, and reads each different data file once.
class ImageJudge
{
public:
    ImageJudge(const FaultRun& run, const Script& script)
        : m_run(run)
        , m_script(script)
    { }

    /// What is wrong with the files that a power cut left; empty if nothing is.
    QString Judge(size_t acknowledged, const Files& image)
    {
        const auto read = [&](const QByteArray& name) -> std::optional<Reading> {
            const auto file = image.find(name);
            const auto journal = image.find(name + "-journal");
            if (file == image.end())
                return std::nullopt;
            return Read(file->second, journal == image.end() ? nullptr : &journal->second);
        };
        return Quillory::Judge(m_script, acknowledged, read);
    }

private:
    const FaultRun& m_run;
    const Script& m_script;
    std::map<size_t, Reading> m_readings;

    /// What the program finds in this file, beside its journal if there is one.
    const Reading& Read(const QByteArray& file, const QByteArray* journal)
    {
        const size_t key = journal == nullptr ? qHash(file) : qHashMulti(1, file, *journal);
        const auto found = m_readings.find(key);
        if (found != m_readings.end())
            return found->second;
        Files files { { "data.idb", file } };
        if (journal != nullptr)
            files["data.idb-journal"] = *journal;
        m_run.Place(files);
        return m_readings.emplace(key, ReadDataFile(m_run.DataFile())).first->second;
    }
};

void RecordCalls(const FaultRun& run, const Script& script, Recorder& recorder)
{
    run.Clear();
    const WatchScope watch(run.Folder(), recorder);
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        qFatal("the workload cannot start");
    RunScript(session, script, [&](size_t) { recorder.Acknowledge(); });
}

/// Cuts the power while the program recovers from an earlier power cut.
void CutRecovery(
    FaultRun& run, ImageJudge& judge, size_t acknowledged, const Files& image, std::mt19937& random)
{
    run.Place(image);
    Recorder recorder;
    {
        const WatchScope watch(run.Folder(), recorder);
        static_cast<void>(ReadDataFile(run.DataFile()));
    }
    Disk disk(image);
    for (const Recorder::Event& event : recorder.Events()) {
        disk.Apply(event);
        const Files after = disk.AfterPowerCut(static_cast<Loss>(random() % kLossCount), random);
        run.Count();
        if (const QString wrong = judge.Judge(acknowledged, after); !wrong.isEmpty())
            run.Blame(u"recovery cut short: "_s + wrong, after);
    }
}

/// Kills the program and cuts the power after every call of a recorded script, in every way. The
/// medium ignores one kind of calls after the first step, for tests that must find faults.
void CutEverywhere(
    FaultRun& run, const Script& script, const Recorder& recorder, std::optional<CallKind> ignored)
{
    std::mt19937 random(run.Seed());
    ImageJudge judge(run, script);
    Disk disk({});
    for (const Recorder::Event& event : recorder.Events()) {
        if (event.acknowledged == 0 || event.call.kind != ignored)
            disk.Apply(event);
        for (int way = 0; way < kLossCount && run.CountSoFar() < run.Runs(); ++way) {
            const Files image = disk.AfterPowerCut(static_cast<Loss>(way), random);
            run.Count();
            const QString wrong = judge.Judge(event.acknowledged, image);
            if (!wrong.isEmpty())
                run.Blame(
                    u"way %1 after %2 steps: "_s.arg(way).arg(event.acknowledged) + wrong, image);
            else if (image.contains("data.idb-journal") && random() % kRecoveryShare == 0)
                CutRecovery(run, judge, event.acknowledged, image, random);
        }
    }
}

void CutPower(FaultRun& run, std::optional<CallKind> ignored)
{
    OnScripts(run, [&](const Script& script) {
        Recorder recorder;
        RecordCalls(run, script, recorder);
        CutEverywhere(run, script, recorder, ignored);
    });
}

} // namespace

void CutPowerEverywhere(FaultRun& run)
{
    CutPower(run, std::nullopt);
}

void CutPowerOfCarelessMedia(FaultRun& run)
{
    for (const CallKind ignored : { CallKind::Sync, CallKind::SyncFolder }) {
        FaultRun careless(std::max(run.Runs(), kFewestCarelessImages), run.Seed());
        careless.KeepQuiet();
        CutPower(careless, ignored);
        for (int i = 0; i < careless.CountSoFar(); ++i)
            run.Count();
        const bool isOfFiles = ignored == CallKind::Sync;
        std::printf("  syncs of %s ignored: %d of %d images guilty\n",
            isOfFiles ? "files" : "folders", careless.Blames(), careless.CountSoFar());
        if (careless.Blames() == 0)
            run.Blame(u"a medium that ignores syncs was found innocent"_s, {});
    }
}

} // namespace Quillory
