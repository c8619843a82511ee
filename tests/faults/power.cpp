// SPDX-License-Identifier: MIT
#include "tests/faults/disk.h"

#include <QHash>

#include <sqlite3.h>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Of so many images that need recovery one has its recovery cut too.
constexpr quint32 kRecoveryShare = 40;
/// The first hundreds show the first start, which is never weakened.
constexpr int kFewestCarelessImages = 2000;

/// Reads images of data files, each different one once.
class ImageReader
{
public:
    explicit ImageReader(const FaultRun& run)
        : m_run(run)
    { }

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

private:
    const FaultRun& m_run;
    std::map<size_t, Reading> m_readings;
};

const QByteArray* Find(const Files& files, const QByteArray& name)
{
    const auto found = files.find(name);
    return found == files.end() ? nullptr : &found->second;
}

/// What is wrong with the files that a power cut left; empty if nothing is.
QString JudgeImage(
    ImageReader& reader, const Script& script, size_t acknowledged, const Files& image)
{
    const QByteArray* file = Find(image, "data.idb");
    if (file == nullptr)
        return acknowledged == 0 ? QString() : u"the file is gone"_s;
    const Reading& reading = reader.Read(*file, Find(image, "data.idb-journal"));
    if (reading.error != ErrorNumber::None)
        return u"the file cannot be used: "_s + QLatin1StringView(ErrorPhrase(reading.error));
    if (!script.Allows(acknowledged, reading.contents))
        return u"an acknowledged change is lost, or half of one is there"_s;
    for (size_t i = 0; i < script.steps.size(); ++i) {
        if (script.steps[i].action != Action::Backup)
            continue;
        const QByteArray* copy = Find(image, BackupPath("data.idb", script.steps[i].number));
        if (copy == nullptr && i < acknowledged)
            return u"a backup is gone"_s;
        if (copy == nullptr)
            continue;
        const Reading& copied = reader.Read(*copy, nullptr);
        if (copied.error != ErrorNumber::None || copied.contents != script.After(i + 1))
            return u"a backup is not whole"_s;
    }
    return {};
}

/// The connection that was opened last.
sqlite3*& LatestConnection()
{
    static sqlite3* connection = nullptr;
    return connection;
}

int NoteConnection(sqlite3* connection, char** /*message*/, const void* /*routines*/)
{
    LatestConnection() = connection;
    return SQLITE_OK;
}

/// Makes the connection of the session that was just started less careful.
void Weaken(const char* synchronous)
{
    const QByteArray sql = QByteArray("PRAGMA synchronous = ") + synchronous;
    if (sqlite3_exec(LatestConnection(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("the medium cannot be weakened");
}

/// `synchronous` is a value of that pragma, for tests that must find faults; null leaves what the
/// program sets.
void RecordCalls(
    const FaultRun& run, const Script& script, const char* synchronous, Recorder& recorder)
{
    run.Clear();
    const WatchScope watch(run.Folder(), recorder);
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        qFatal("the workload cannot start");
    if (synchronous != nullptr)
        Weaken(synchronous);
    RunScript(session, script, [&](size_t) { recorder.Acknowledge(); });
}

/// Cuts the power while the program recovers from an earlier power cut.
void CutRecovery(FaultRun& run, ImageReader& reader, const Script& script, size_t acknowledged,
    const Files& image, std::mt19937& random)
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
        if (const QString wrong = JudgeImage(reader, script, acknowledged, after); !wrong.isEmpty())
            run.Blame(u"recovery cut short: "_s + wrong, after);
    }
}

/// Cuts the power after every call of a recorded script, in every way.
void CutEverywhere(FaultRun& run, const Script& script, const Recorder& recorder)
{
    std::mt19937 random(run.Seed());
    ImageReader reader(run);
    Disk disk({});
    for (const Recorder::Event& event : recorder.Events()) {
        disk.Apply(event);
        for (int way = 0; way < kLossCount && run.CountSoFar() < run.Runs(); ++way) {
            const Files image = disk.AfterPowerCut(static_cast<Loss>(way), random);
            run.Count();
            const QString wrong = JudgeImage(reader, script, event.acknowledged, image);
            if (!wrong.isEmpty())
                run.Blame(
                    u"way %1 after %2 steps: "_s.arg(way).arg(event.acknowledged) + wrong, image);
            else if (image.contains("data.idb-journal") && random() % kRecoveryShare == 0)
                CutRecovery(run, reader, script, event.acknowledged, image, random);
        }
    }
}

void CutPower(FaultRun& run, const char* synchronous)
{
    OnScripts(run, [&](const Script& script) {
        Recorder recorder;
        RecordCalls(run, script, synchronous, recorder);
        CutEverywhere(run, script, recorder);
    });
}

} // namespace

void CutPowerEverywhere(FaultRun& run)
{
    CutPower(run, nullptr);
}

void CutPowerOfCarelessFiles(FaultRun& run)
{
    using Routine = void (*)();
    sqlite3_auto_extension(reinterpret_cast<Routine>(&NoteConnection));
    for (const char* synchronous : { "OFF", "NORMAL", "FULL" }) {
        FaultRun careless(std::max(run.Runs(), kFewestCarelessImages), run.Seed());
        careless.KeepQuiet();
        CutPower(careless, synchronous);
        for (int i = 0; i < careless.CountSoFar(); ++i)
            run.Count();
        std::printf("  synchronous=%s: %d of %d images guilty\n", synchronous, careless.Blames(),
            careless.CountSoFar());
        if (careless.Blames() == 0)
            run.Blame(
                u"synchronous=%1 was found innocent"_s.arg(QLatin1StringView(synchronous)), {});
    }
    sqlite3_cancel_auto_extension(reinterpret_cast<Routine>(&NoteConnection));
}

} // namespace Quillory
