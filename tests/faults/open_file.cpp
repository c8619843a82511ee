#include "tests/faults/believer.h"
#include "tests/faults/fault_run.h"
#include "tests/faults/system_calls.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr size_t kScriptLength = 40;

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

QByteArray Aside(const QByteArray& path)
{
    return path + ".aside";
}

void Spill(const QByteArray& path, const QByteArray& bytes)
{
    std::FILE* file = std::fopen(path.constData(), "wb");
    if (file == nullptr
        || std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), file)
            != static_cast<size_t>(bytes.size())
        || std::fclose(file) != 0)
        qFatal("cannot write %s", path.constData());
}

void MoveAside(const QByteArray& path)
{
    rename(path.constData(), Aside(path).constData());
}

void MoveBack(const QByteArray& path)
{
    rename(Aside(path).constData(), path.constData());
}

void ReplaceByText(const QByteArray& path)
{
    MoveAside(path);
    Spill(path, "a letter to somebody\n");
}

/// Another data file that lies beside it.
QByteArray Other(const QByteArray& path)
{
    return path + ".other";
}

/// As programs do that keep folders alike on several machines.
void ReplaceByOther(const QByteArray& path)
{
    if (rename(Other(path).constData(), path.constData()) != 0)
        qFatal("cannot replace");
}

QByteArray Slurp(const QByteArray& path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void OverwriteByOther(const QByteArray& path)
{
    Spill(path, Slurp(Other(path)));
}

void ReplaceByLink(const QByteArray& path)
{
    MoveAside(path);
    if (symlink("/nowhere", path.constData()) != 0)
        qFatal("no link");
}

void ReplaceByFolder(const QByteArray& path)
{
    MoveAside(path);
    if (mkdir(path.constData(), 0700) != 0)
        qFatal("no folder");
}

void RemoveFolder(const QByteArray& path)
{
    rmdir(path.constData());
    MoveBack(path);
}

void ReplaceByEmpty(const QByteArray& path)
{
    MoveAside(path);
    Spill(path, {});
}

void Remove(const QByteArray& path)
{
    unlink(path.constData());
}

void Touch(const QByteArray& path)
{
    utimensat(AT_FDCWD, path.constData(), nullptr, 0);
}

void LinkAgain(const QByteArray& path)
{
    if (link(path.constData(), Aside(path).constData()) != 0)
        qFatal("no second name");
}

void RemoveSecondName(const QByteArray& path)
{
    unlink(Aside(path).constData());
}

void CutShort(const QByteArray& path)
{
    struct stat status
    { };
    if (stat(path.constData(), &status) != 0 || truncate(path.constData(), status.st_size / 2) != 0)
        qFatal("cannot cut");
}

void Empty(const QByteArray& path)
{
    if (truncate(path.constData(), 0) != 0)
        qFatal("cannot empty");
}

constexpr std::array kMischiefs {
    Mischief { "is removed", &Remove, nullptr, true },
    Mischief { "is moved away", &MoveAside, &MoveBack, true },
    Mischief { "is replaced by a text", &ReplaceByText, &MoveBack, true },
    Mischief { "is replaced by an empty file", &ReplaceByEmpty, &MoveBack, true },
    Mischief { "is replaced by another data file", &ReplaceByOther, nullptr, true },
    Mischief { "is overwritten by another data file", &OverwriteByOther, nullptr, true },
    Mischief { "is replaced by a link to nothing", &ReplaceByLink, &MoveBack, true },
    Mischief { "is replaced by a folder", &ReplaceByFolder, &RemoveFolder, true },
    Mischief { "gets a second name", &LinkAgain, &RemoveSecondName, false },
    Mischief { "is touched", &Touch, &Touch, false },
    Mischief { "is cut to half its size", &CutShort, nullptr, true },
    Mischief { "is emptied", &Empty, nullptr, true },
};

/// The bytes at the path that are not the program's own, to see that they stay.
QByteArray BytesAt(const Files& files)
{
    const auto found = files.find("data.idb");
    return found == files.end() ? QByteArray() : found->second;
}

/// Between two operations.
QString ActBetween(const FaultRun& run, const Mischief& mischief)
{
    const Step step { Action::AddList, u"Afterwards"_s, {}, 0, {}, 0 };
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        qFatal("the workload cannot start");
    mischief.act(run.DataFile());
    const Files before = run.Taken();
    const bool isDone = session.Run(step).isDone;
    if (isDone && mischief.isRefused)
        return u"a change was told to be done"_s;
    if (mischief.isRefused && BytesAt(run.Taken()) != BytesAt(before))
        return u"somebody else's file was written into"_s;
    if (mischief.isRefused && QByteArrayView(ErrorPhrase(session.LastError())) == "general failure")
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
            m_mischief.act(m_path);
        return std::nullopt;
    }
    /// Acts now if the operations made too few calls.
    void ActAtLast() const
    {
        if (m_count < m_callNumber)
            m_mischief.act(m_path);
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
    const QByteArray other = Slurp(Other(run.DataFile()));
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
    if (mischief.act == &ReplaceByText && BytesAt(run.Taken()) != "a letter to somebody\n")
        return u"somebody else's file was written into"_s;
    Session next;
    const ErrorNumber error = next.Start(run.DataFile());
    if (mischief.act == &ReplaceByOther && BytesAt(run.Taken()) != other)
        return u"the other data file was written into"_s;
    return QByteArrayView(ErrorPhrase(error)) == "general failure"
        ? u"the next start fails for no known reason"_s
        : QString();
}

} // namespace

void MeddleWithOpenFile(FaultRun& run)
{
    const Script script = MakeScript(run.Seed(), kScriptLength);
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
