// SPDX-License-Identifier: MIT
#include "tests/faults/believer.h"
#include "tests/faults/fault_run.h"
#include "tests/faults/system_calls.h"
#include "tests/file_bytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// What somebody else does to a data file that the program has open.
struct Mischief
{
    const char* name;
    void (*act)(const QByteArray& path);
    /// What makes the file usable again where the program can go on; null where its own file is
    /// lost or no longer at its place.
    void (*makeGood)(const QByteArray& path);
    /// Whether the program's own writes must be refused until then.
    bool isRefused;
};

constexpr QByteArrayView kLetter = "a letter to somebody\n";

QByteArray Aside(const QByteArray& path)
{
    return path + ".aside";
}

/// Another data file that lies beside it.
QByteArray Other(const QByteArray& path)
{
    return path + ".other";
}

void Write(const QByteArray& path, const QByteArray& bytes)
{
    WriteFileBytes(QFile::decodeName(path), bytes);
}

QByteArray Read(const QByteArray& path)
{
    return FileBytes(QFile::decodeName(path));
}

/// For what a call of the system returned.
void MustBeZero(int result)
{
    if (result != 0)
        qFatal("no mischief can be done");
}

void MoveBack(const QByteArray& path)
{
    // What may be there is a folder.
    rmdir(path.constData());
    rename(Aside(path).constData(), path.constData());
}

/// As programs do that keep folders alike on several machines.
void ReplaceByOther(const QByteArray& path)
{
    MustBeZero(rename(Other(path).constData(), path.constData()));
}

void Touch(const QByteArray& path)
{
    utimensat(AT_FDCWD, path.constData(), nullptr, 0);
}

using Path = const QByteArray&;

void ReplaceByText(Path path)
{
    Write(path, kLetter.toByteArray());
}

constexpr std::array kMischiefs {
    Mischief { "is removed", [](Path path) { unlink(path.constData()); }, nullptr, true },
    Mischief { "is moved away", [](Path) {}, MoveBack, true },
    Mischief { "is replaced by a text", ReplaceByText, MoveBack, true },
    Mischief { "is replaced by an empty file", [](Path path) { Write(path, {}); }, MoveBack, true },
    Mischief { "is replaced by another data file", ReplaceByOther, nullptr, true },
    Mischief { "is overwritten by another data file",
        [](Path path) { Write(path, Read(Other(path))); }, nullptr, true },
    Mischief { "is replaced by a link to nothing",
        [](Path path) { MustBeZero(symlink("/nowhere", path.constData())); }, MoveBack, true },
    Mischief { "is replaced by a link to itself",
        [](Path path) { MustBeZero(symlink(Aside(path).constData(), path.constData())); }, MoveBack,
        true },
    Mischief { "is replaced by a folder",
        [](Path path) { MustBeZero(mkdir(path.constData(), 0700)); }, MoveBack, true },
    Mischief { "gets a second name",
        [](Path path) { MustBeZero(link(path.constData(), Aside(path).constData())); },
        [](Path path) { unlink(Aside(path).constData()); }, false },
    // As by what was written by somebody who counts as many changes.
    Mischief { "is written at another time", Touch, nullptr, true },
    Mischief { "is cut to half its size",
        [](Path path) { MustBeZero(truncate(path.constData(), Read(path).size() / 2)); }, nullptr,
        true },
    Mischief {
        "is emptied", [](Path path) { MustBeZero(truncate(path.constData(), 0)); }, nullptr, true },
};

/// What is moved back was moved aside first.
void Act(const Mischief& mischief, const QByteArray& path)
{
    if (mischief.makeGood == &MoveBack)
        MustBeZero(rename(path.constData(), Aside(path).constData()));
    mischief.act(path);
}

/// The bytes at the path that are not the program's own, to see that they stay.
QByteArray BytesAt(const Files& files)
{
    const auto found = files.find("data.idb");
    return found == files.end() ? QByteArray() : found->second;
}

/// Between two operations.
QString ActBetween(const FaultRun& run, const Mischief& mischief)
{
    const Step step = AnotherList();
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        qFatal("the workload cannot start");
    Act(mischief, run.DataFile());
    const Files before = run.Taken();
    const bool isDone = session.Run(step).isDone;
    if (isDone && mischief.isRefused)
        return u"a change was told to be done"_s;
    if (mischief.isRefused && BytesAt(run.Taken()) != BytesAt(before))
        return u"somebody else's file was written into"_s;
    if (mischief.isRefused && HasNoReason(session.LastError()))
        return u"the change failed for no known reason"_s;
    if (mischief.makeGood == nullptr)
        return {};
    mischief.makeGood(run.DataFile());
    Step again = step;
    if (isDone)
        again.list += u" again"_s;
    return session.Run(again).isDone ? QString() : u"the file is back and is not written"_s;
}

/// Acts when the file is at one of the calls of an operation.
class Actor : public CallWatcher
{
public:
    Actor(const Mischief& mischief, QByteArray path, int callNumber)
        : m_mischief(mischief)
        , m_path(std::move(path))
        , m_callNumber(callNumber)
    { }

    std::optional<CallFault> BeforeCall(const SystemCall& /*call*/) override
    {
        if (++m_count == m_callNumber)
            Act(m_mischief, m_path);
        return std::nullopt;
    }
    /// Acts now if the operations made too few calls.
    void ActAtLast() const
    {
        if (m_count < m_callNumber)
            Act(m_mischief, m_path);
    }

private:
    const Mischief& m_mischief;
    QByteArray m_path;
    int m_callNumber;
    int m_count = 0;
};

/// Within an operation: nothing can be promised of the file, but the program must live on, tell
/// reasons, and not write into what is not its own.
QString ActWithin(
    const FaultRun& run, const Mischief& mischief, const Script& script, size_t step, int call)
{
    const QByteArray other = Read(Other(run.DataFile()));
    {
        Session session;
        if (session.Start(run.DataFile()) != ErrorNumber::None)
            qFatal("the workload cannot start");
        Actor actor(mischief, run.DataFile(), call);
        {
            const WatchScope watch(run.Folder(), actor);
            for (size_t i = step; i < std::min(step + 3, script.steps.size()); ++i)
                static_cast<void>(session.Run(script.steps[i]));
        }
        actor.ActAtLast();
    }
    if (mischief.act == &ReplaceByText && BytesAt(run.Taken()) != kLetter)
        return u"somebody else's file was written into"_s;
    Session next;
    const ErrorNumber error = next.Start(run.DataFile());
    if (mischief.act == &ReplaceByOther && BytesAt(run.Taken()) != other)
        return u"the other data file was written into"_s;
    return HasNoReason(error) ? u"the next start fails for no known reason"_s : QString();
}

} // namespace

void MeddleWithOpenFile(FaultRun& run)
{
    const Script script = MakeScript(run.Seed());
    const std::vector<Files> stages = MakeStages(run, script);
    const auto note = [&](const Mischief& mischief, const QString& wrong) {
        run.Count();
        if (!wrong.isEmpty())
            run.Blame(
                u"the file %1: "_s.arg(QLatin1StringView(mischief.name)) + wrong, run.Taken());
    };
    const auto place = [&](size_t step) {
        Files files = stages[step];
        files["data.idb.other"] = stages[1].at("data.idb");
        run.Place(files);
    };
    for (const Mischief& mischief : kMischiefs) {
        place(stages.size() - 1);
        note(mischief, ActBetween(run, mischief));
    }
    for (int round = 0; run.CountSoFar() < run.Runs(); ++round) {
        constexpr int kCallsCovered = 60;
        const size_t step = 1 + static_cast<size_t>(round) % (script.steps.size() - 1);
        for (const Mischief& mischief : kMischiefs) {
            place(step);
            note(mischief, ActWithin(run, mischief, script, step, 1 + round * 7 % kCallsCovered));
        }
    }
}

} // namespace Quillory
