// SPDX-License-Identifier: MIT
#pragma once

#include "store/list_catalogue.h"
#include "tests/faults/model.h"
#include "values/value_text.h"

namespace Quillory {

/// The program as far as data goes: does the steps of a workload by the code that its windows and
/// commands use.
class Session
{
public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Starts as the program does, on a missing file too, or as a command that only reads. None, or
    /// why not.
    [[nodiscard]] ErrorNumber Start(
        const QByteArray& path, VolumeAccess access = VolumeAccess::Exclusive);
    struct Outcome
    {
        bool isDone = false;
        /// Rows that an import says are stored, also where it ended early.
        qint64 importedRows = 0;
    };
    [[nodiscard]] Outcome Run(const Step& step);
    /// One list as text, through the export.
    struct ListText
    {
        QString heading;
        QString rows;
        /// Why rows are missing; None if all are there.
        ErrorNumber error = ErrorNumber::None;
    };
    [[nodiscard]] std::vector<ListText> ReadLists();
    /// Every list with its options and rows, or why something is missing.
    [[nodiscard]] Result<QByteArray> Contents();
    /// Whether a change, of nothing, is taken.
    [[nodiscard]] bool CanWrite();
    /// What is wrong with what the file holds: None or FileCorrupt, or why it could not look.
    [[nodiscard]] ErrorNumber Check();
    /// The same as `quillory check` finds it, which reads free pages too.
    [[nodiscard]] ErrorNumber CheckAll();
    [[nodiscard]] ErrorNumber LastError() const { return m_volume.LastError(); }

private:
    DataVolume m_volume;
    ListCatalogue m_catalogue;
    InventoryList m_list;
    ValueContext m_context;
    QByteArray m_path;

    bool AddList(const Step& step);
    Outcome Import(const Step& step);
    bool Backup(int number);
    bool RunOnList(const Step& step, ObjectId list);
    bool RunOnRow(const Step& step);
};

/// Where a workload on a data file puts a backup.
[[nodiscard]] QByteArray BackupPath(const QByteArray& dataFile, int number);

/// Whether nothing can be told but that something failed.
[[nodiscard]] bool HasNoReason(ErrorNumber error);

/// What a file holds for somebody who starts the program on it.
struct Reading
{
    /// None, or why it is refused or damaged.
    ErrorNumber error = ErrorNumber::None;
    QByteArray contents;
};
/// Starts on the file, reads all and verifies all. A missing file is an empty one.
[[nodiscard]] Reading ReadDataFile(const QByteArray& path);

/// Carries out the steps of a script one after another, telling of each that was done.
template <typename Acknowledge>
void RunScript(Session& session, const Script& script, const Acknowledge& acknowledge)
{
    for (size_t i = 0; i < script.steps.size(); ++i) {
        if (!session.Run(script.steps[i]).isDone)
            qFatal("step %zu failed: %s", i, ErrorPhrase(session.LastError()));
        acknowledge(i + 1);
    }
}

} // namespace Quillory
