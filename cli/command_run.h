// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_line.h"
#include "cli/output.h"
#include "store/kept_copies.h"
#include "store/list_catalogue.h"

#include <QCommandLineParser>

#include <exception>
#include <functional>
#include <memory>
#include <span>

namespace Quillory {

/// Ends a command with a message on standard error.
class CommandFailure : public std::exception
{
public:
    CommandFailure(ExitCode code, QString message);

    [[nodiscard]] ExitCode Code() const { return m_code; }
    [[nodiscard]] const QString& Message() const { return m_message; }

private:
    ExitCode m_code;
    QString m_message;
};

/// Ends a command that reads because somebody waits to change the file. Nothing of it was printed
/// yet, and it is to be run again.
class WriterWaits : public std::exception
{ };

[[noreturn]] void Fail(const QString& message);
[[noreturn]] void FailUsage(const QString& message);
/// Ends the command unless a list may have this name.
void CheckListName(const QString& name);
/// Writes a message as a line of its own to standard error.
void Complain(QIODevice& errors, const QString& message);
/// Fails if a listing of the catalogue lacks lists. What could be read was shown.
void FailIfListsAreMissing(const ListCatalogue::HomeListing& listing);
/// Fails if rows could not be read; what could was printed.
void FailIfRowsAreMissing(const Database::VisitOutcome& outcome);
/// The value of an option as a whole number; one outside the limits ends the command.
[[nodiscard]] qint32 ReadInteger(
    const QCommandLineParser& parser, const QString& option, qint32 least, qint32 most);
/// A phrase and the number of an error, such as "no space left (error 112)". Throws WriterWaits
/// where that is the reason.
[[nodiscard]] QString ErrorText(ErrorNumber error);
/// The same of an error in reading the data file; of damage with what can be done.
[[nodiscard]] QString ReadErrorText(ErrorNumber error);

/// A data file with its catalogue open. Every way not to get there ends the command; what else
/// there is to say of the file goes to `errors`.
class CommandData
{
public:
    CommandData(
        const QString& path, VolumeAccess access, Disposition disposition, QIODevice& errors);

    /// Finds a list by its name and opens it.
    ObjectId OpenList(const QString& name);
    void OpenList(ObjectId oid);
    /// The rows of the list that is open.
    [[nodiscard]] Database& Rows();
    /// Gives the open list the order of its columns as its column order if none was ever stored.
    void StoreColumnOrder(ObjectId oid);

    [[nodiscard]] const QString& Path() const { return m_path; }

    DataVolume volume;
    ListCatalogue catalogue;
    InventoryList list;

private:
    QString m_path;
};

/// One call of a sub-command: its options and operands, and where it reads and writes.
struct CommandRun
{
    const CommandEnvironment& environment;
    const QCommandLineParser& parser;
    /// After the sub-command's name.
    QStringList operands;
    TextOutput& output;
    /// Set by a command whose exit code tells whether there was something.
    bool& found;

    [[nodiscard]] QString DataFile() const;
    /// The data file opened for reading, also beside another process that has it.
    [[nodiscard]] std::unique_ptr<CommandData> OpenForReading() const;
    [[nodiscard]] std::unique_ptr<CommandData> OpenForWriting(
        Disposition disposition = Disposition::OpenExisting) const;
    using ListVisitor = std::function<void(const ListCatalogue::HomeListEntry& entry)>;
    /// Opens one list after another for `visit`, then calls `end`. A list that fails is told of on
    /// standard error and the next one follows; after `end` the command fails.
    void VisitLists(
        CommandData& data, const ListVisitor& visit, const std::function<void()>& end) const;
    /// Ends the command if a file to be made would be taken for the data file's journal.
    void RefuseJournal(const QString& path) const;
    /// Keeps a copy of a data file that the command has changed, or tells why not; to be called at
    /// its good end.
    void KeepCopyOf(CommandData& data) const;
    /// Tells if a copy of the file at `path` could not be kept.
    void ComplainUnlessKept(const QString& path, const Result<KeepOutcome>& kept) const;
    [[nodiscard]] bool IsJson() const;

private:
    [[nodiscard]] bool KeepsCopiesOf(const CommandData& data) const;
};

} // namespace Quillory
