// SPDX-License-Identifier: MIT
#include "tests/faults/fault_run.h"

#include "tests/file_bytes.h"

#include <QDir>

#include <cstdio>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// More of them tell nothing new.
constexpr int kMaxToldBlames = 10;

QString ScratchTemplate()
{
    const QString memory = u"/dev/shm"_s;
    const bool isThere = QFileInfo(memory).isWritable();
    return (isThere ? memory : QDir::tempPath()) + u"/quillory-faults-XXXXXX"_s;
}

void WriteFiles(const QString& folder, const Files& files)
{
    for (const auto& [name, bytes] : files)
        WriteFileBytes(folder + u'/' + QFile::decodeName(name), bytes);
}

} // namespace

FaultRun::FaultRun(int runCount, quint32 firstSeed)
    : m_runs(runCount)
    , m_seed(firstSeed)
    , m_folder(ScratchTemplate())
{
    if (!m_folder.isValid())
        qFatal("no scratch folder can be made");
}

QByteArray FaultRun::Folder() const
{
    return QFile::encodeName(m_folder.path());
}

QByteArray FaultRun::DataFile() const
{
    return Folder() + "/data.idb";
}

void FaultRun::Clear() const
{
    QDir folder(m_folder.path());
    for (const QString& name :
        folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)) {
        if (!folder.remove(name) && !QDir(folder.filePath(name)).removeRecursively())
            qFatal("cannot remove %s", qPrintable(name));
    }
}

void FaultRun::Place(const Files& files) const
{
    Clear();
    WriteFiles(m_folder.path(), files);
}

Files FaultRun::Taken() const
{
    Files files;
    const QDir folder(m_folder.path());
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden))
        files[QFile::encodeName(name)] = FileBytes(folder.filePath(name));
    return files;
}

void FaultRun::Blame(const QString& what, const Files& evidence)
{
    if (++m_blames > kMaxToldBlames || m_isQuiet)
        return;
    const QString folder
        = QDir::current().filePath(u"fault-evidence/%1-%2"_s.arg(m_seed).arg(m_blames));
    QDir().mkpath(folder);
    WriteFiles(folder, evidence);
    std::printf(
        "FAULT seed %u: %s\n  files kept in %s\n", m_seed, qPrintable(what), qPrintable(folder));
}

QString Judge(const Script& script, size_t acknowledged, const ReadByName& read)
{
    const auto found = read("data.idb");
    if (!found)
        return acknowledged == 0 ? QString() : u"the file is gone"_s;
    const QString when = u"after %1 steps "_s.arg(acknowledged);
    if (found->error != ErrorNumber::None)
        return when + u"the file cannot be used: "_s + QLatin1StringView(ErrorPhrase(found->error));
    if (!script.Allows(acknowledged, found->contents))
        return when + u"a change is lost, or half of one is there"_s;
    for (size_t i = 0; i < script.steps.size(); ++i) {
        if (script.steps[i].action != Action::Backup)
            continue;
        const auto copy = read(BackupPath("data.idb", script.steps[i].number));
        if (!copy && i < acknowledged)
            return when + u"a backup is gone"_s;
        if (copy && (copy->error != ErrorNumber::None || copy->contents != script.After(i + 1)))
            return u"the backup of step %1 is not whole"_s.arg(i + 1);
    }
    return {};
}

QString Judge(const FaultRun& run, const Script& script, size_t acknowledged)
{
    const QString wrong
        = Judge(script, acknowledged, [&run](const QByteArray& name) -> std::optional<Reading> {
              const QByteArray path = run.Folder() + '/' + name;
              if (!QFile::exists(QFile::decodeName(path)))
                  return std::nullopt;
              return ReadDataFile(path);
          });
    const bool isOwnPutAside
        = !QDir(QFile::decodeName(run.Folder())).entryList({ u"*.left-*"_s }).isEmpty();
    return isOwnPutAside ? u"the file's own journal was put aside"_s : wrong;
}

std::vector<Files> MakeStages(const FaultRun& run, const Script& script)
{
    run.Clear();
    std::vector<Files> stages { {} };
    {
        Session session;
        if (session.Start(run.DataFile()) != ErrorNumber::None)
            qFatal("the workload cannot start");
        // Between two steps no lock is held that reading the file could drop.
        RunScript(session, script, [&](size_t) { stages.push_back(run.Taken()); });
    }
    run.Clear();
    return stages;
}

void OnScripts(FaultRun& run, const std::function<void(const Script& script)>& work)
{
    for (quint32 round = 0; run.CountSoFar() < run.Runs(); ++round)
        work(MakeScript(run.Seed() + round));
}

} // namespace Quillory
