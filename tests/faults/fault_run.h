// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/session.h"

#include <QTemporaryDir>

#include <functional>
#include <map>
#include <optional>

namespace Quillory {

/// The bytes of files by their names within the scratch folder.
using Files = std::map<QByteArray, QByteArray>;

/// One run of one kind of fault: how large, where, and what it found.
class FaultRun
{
public:
    FaultRun(int runCount, quint32 firstSeed);

    /// How often the fault is to be made.
    [[nodiscard]] int Runs() const { return m_runs; }
    [[nodiscard]] quint32 Seed() const { return m_seed; }
    /// A folder in memory where there is one.
    [[nodiscard]] QByteArray Folder() const;
    [[nodiscard]] QByteArray DataFile() const;

    /// Empties the scratch folder, or fills it with these files and nothing else.
    void Clear() const;
    void Place(const Files& files) const;
    [[nodiscard]] Files Taken() const;

    /// Counts a fault that was made.
    void Count() { ++m_count; }
    [[nodiscard]] int CountSoFar() const { return m_count; }
    /// Tells of a broken promise and keeps the files that show it.
    void Blame(const QString& what, const Files& evidence);
    /// Only counts what it is blamed for: for runs that must go wrong.
    void KeepQuiet() { m_isQuiet = true; }
    [[nodiscard]] int Blames() const { return m_blames; }

private:
    int m_runs;
    quint32 m_seed;
    int m_count = 0;
    int m_blames = 0;
    bool m_isQuiet = false;
    QTemporaryDir m_folder;
};

/// What the next start of the program would find in the file of this name; none if there is none.
using ReadByName = std::function<std::optional<Reading>(const QByteArray& name)>;
/// Looks at what a fault left. Empty if it holds the acknowledged steps of the script and at most
/// one whole transaction more, passes the check, and every backup is whole; else what is wrong.
[[nodiscard]] QString Judge(const Script& script, size_t acknowledged, const ReadByName& read);
/// The same for the scratch folder.
[[nodiscard]] QString Judge(const FaultRun& run, const Script& script, size_t acknowledged);

/// The files before each step of the script, which is run once to make them; before the first step
/// there are none. The scratch folder is empty afterwards.
[[nodiscard]] std::vector<Files> MakeStages(const FaultRun& run, const Script& script);

/// Works on one script after another until the run has made its faults.
void OnScripts(FaultRun& run, const std::function<void(const Script& script)>& work);

// The kinds of faults. Each makes its fault run.Runs() times or a little more.
/// Kills the program and cuts the power.
void CutPowerEverywhere(FaultRun& run);
/// The same on media that ignore syncs, which must be found out.
void CutPowerOfCarelessMedia(FaultRun& run);
void LetCallsFail(FaultRun& run);
void ExhaustMemory(FaultRun& run);
/// The same with the memory of all code that is not SQLite's.
void ExhaustHeap(FaultRun& run);
/// Somebody removes, moves, replaces or cuts the file that the program has open.
void MeddleWithOpenFile(FaultRun& run);
void DamageFiles(FaultRun& run);
/// Each foreign file there is in its table, once, however many runs are asked for.
void RefuseForeignFiles(FaultRun& run);
void LayJournals(FaultRun& run);
/// Other processes read, write and lock the file beside the program.
void ShareTheFile(FaultRun& run);
/// Three devices change copies of one file, exchange them and bring them together.
void MergeDevices(FaultRun& run);

} // namespace Quillory
