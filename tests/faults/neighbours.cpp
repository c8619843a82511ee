// SPDX-License-Identifier: MIT
#include "propdb/detail/confined_vfs.h"
#include "tests/faults/believer.h"
#include "tests/faults/fault_run.h"
#include "values/column_type.h"

#include <QFile>

#include <sqlite3.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Another process on the same file. It is made before this one opens anything, since a copy of an
/// open connection would know of locks that it does not have.
class Neighbour
{
public:
    /// `work` is called in the other process each time that it is asked; it answers with a sign.
    explicit Neighbour(const std::function<char()>& work)
    {
        std::array<int, 2> ends {};
        if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0)
            qFatal("no way to a neighbour");
        std::fflush(nullptr);
        m_process = fork();
        if (m_process == 0) {
            close(ends[0]);
            for (char sign = 0; read(ends[1], &sign, 1) == 1;) {
                sign = work();
                if (write(ends[1], &sign, 1) != 1)
                    break;
            }
            _exit(0);
        }
        close(ends[1]);
        m_end = ends[0];
    }
    ~Neighbour()
    {
        close(m_end);
        waitpid(m_process, nullptr, 0);
    }
    Neighbour(const Neighbour&) = delete;
    Neighbour& operator=(const Neighbour&) = delete;

    /// The sign that its work ends with; NUL if it died.
    [[nodiscard]] char Ask() const
    {
        char sign = '+';
        if (write(m_end, &sign, 1) != 1 || read(m_end, &sign, 1) != 1)
            return '\0';
        return sign;
    }

private:
    pid_t m_process = -1;
    int m_end = -1;
};

/// The sqlite3 shell, as far as the file notices; keeps its connection from one call to the next.
bool RunAsShell(const QByteArray& path, const char* sql)
{
    static sqlite3* connection = nullptr;
    if (connection == nullptr && sqlite3_open(path.constData(), &connection) != SQLITE_OK)
        return false;
    return sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

QString SecondProgramIsRefused(const FaultRun& run, const Script& script)
{
    Neighbour second([&] {
        Session session;
        return session.Start(run.DataFile()) == ErrorNumber::SharingViolation ? 'r' : 'o';
    });
    Believer first(run.DataFile(), script, script.steps.size());
    first.Run(0);
    const char answer = second.Ask();
    first.End();
    if (answer != 'r')
        return u"a second program may write"_s;
    return second.Ask() == 'o' ? first.Judge() : u"the file stays locked"_s;
}

QString ReaderSeesWholeSteps(const FaultRun& run, const Script& script)
{
    Neighbour reader([&] {
        DataVolume volume;
        const QString path = QFile::decodeName(run.DataFile());
        if (volume.Mount(path, Disposition::OpenExisting, VolumeAccess::ReadOnly)
            != ErrorNumber::None)
            return 'n';
        const auto faults = volume.MountedVolume()->Check();
        return faults && faults->empty() ? 'w' : 'd';
    });
    run.Clear();
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None)
        return u"the workload cannot start"_s;
    for (const Step& step : script.steps) {
        if (!session.Run(step).isDone)
            return u"a change fails because of a reader"_s;
        if (reader.Ask() != 'w')
            return u"a reader cannot read beside the program"_s;
    }
    return {};
}

/// A lock that somebody else holds makes a change wait, fail with its reason, and work afterwards.
template <bool isReading> QString LockMakesChangeFail(const FaultRun& run, const Script& script)
{
    const char* locking = isReading ? "BEGIN; SELECT * FROM property" : "BEGIN IMMEDIATE";
    bool isLocked = false;
    Neighbour shell([&] {
        isLocked = !isLocked;
        return RunAsShell(run.DataFile(), isLocked ? locking : "COMMIT") ? 'y' : 'n';
    });
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None || shell.Ask() != 'y')
        return u"the file cannot be locked"_s;
    if (session.Run(AnotherList()).isDone || session.LastError() != ErrorNumber::SharingViolation)
        return u"a change does not heed the lock"_s;
    if (shell.Ask() != 'y' || !session.Run(AnotherList()).isDone)
        return u"no change can be made after the lock is gone"_s;
    Model model;
    for (const Step& step : script.steps)
        model.Apply(step);
    model.Apply(AnotherList());
    const auto contents = session.Contents();
    return contents && *contents == model.Contents() ? QString() : u"the rows are others"_s;
}

QString StrangersRowsAreNotShown(const FaultRun& run, const Script& script)
{
    Neighbour shell([&] {
        return RunAsShell(run.DataFile(), "UPDATE property_database SET name = name || '!'") ? 'y'
                                                                                             : 'n';
    });
    Session session;
    if (session.Start(run.DataFile()) != ErrorNumber::None || shell.Ask() != 'y')
        return u"the file cannot be changed"_s;
    const auto contents = session.Contents();
    // Lists that cannot be read are missing; what is shown is the program's own.
    if (contents && !script.After(script.steps.size()).contains(*contents))
        return u"a stranger's change is shown"_s;
    return session.Check() == ErrorNumber::FileCorrupt ? QString()
                                                       : u"the check does not notice it"_s;
}

/// One that opens the file amid a change need not read all of it.
QString ReaderDoesNotCheckForAWriter(const FaultRun& run, const Script& /*script*/)
{
    const QString path = QFile::decodeName(run.DataFile());
    Neighbour reader([&path] {
        DataVolume volume;
        return volume.Mount(path, Disposition::OpenExisting, VolumeAccess::ReadOnly)
                == ErrorNumber::None
            ? 'o'
            : 'r';
    });
    // A page that nobody needs to open the file.
    QByteArray bytes = run.Taken().at("data.idb");
    constexpr char kTableLeaf = 0x0D;
    qsizetype page = bytes.size() - kPageSize;
    while (bytes[page] != kTableLeaf)
        page -= kPageSize;
    bytes[page + kPageSize - 1] = static_cast<char>(bytes[page + kPageSize - 1] ^ 1);
    run.Place({ { "data.idb", bytes } });
    DataVolume writer;
    const std::array specs { PropertySpec { PropName, {} } };
    if (writer.Mount(path, Disposition::OpenExisting) != ErrorNumber::None || !writer.OpenSession()
        || !writer.BeginTransaction()
        || writer.Create(u"new"_s, DatabaseType { 1 }, specs, {}) == kNoObject
        || !QFile::exists(path + u"-journal"_s))
        return u"no change can be begun"_s;
    return reader.Ask() == 'o' ? QString() : u"a reader reads the whole file amid a change"_s;
}

constexpr std::array kCases {
    &ReaderDoesNotCheckForAWriter,
    &SecondProgramIsRefused,
    &ReaderSeesWholeSteps,
    &StrangersRowsAreNotShown,
    &LockMakesChangeFail<false>,
    &LockMakesChangeFail<true>,
};

} // namespace

void ShareTheFile(FaultRun& run)
{
    const Script script = MakeScript(run.Seed(), 20);
    const std::vector<Files> stages = MakeStages(run, script);
    while (run.CountSoFar() < run.Runs()) {
        const auto number = static_cast<size_t>(run.CountSoFar()) % kCases.size();
        run.Place(stages.back());
        run.Count();
        if (const QString wrong = kCases[number](run, script); !wrong.isEmpty())
            run.Blame(wrong, run.Taken());
    }
}

} // namespace Quillory
