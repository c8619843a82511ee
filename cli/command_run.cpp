// SPDX-License-Identifier: MIT
#include "cli/command_run.h"

#include "propdb/volume_path.h"

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

CommandFailure::CommandFailure(ExitCode code, QString message)
    : m_code(code)
    , m_message(std::move(message))
{ }

void Fail(const QString& message)
{
    throw CommandFailure(ExitCode::Failed, message);
}

void FailUsage(const QString& message)
{
    throw CommandFailure(ExitCode::WrongUsage, message);
}

void CheckListName(const QString& name)
{
    if (name.isEmpty() || name.size() > kMaxListNameLength)
        FailUsage(u"a list's name has 1 to %1 characters"_s.arg(kMaxListNameLength));
}

void Complain(QIODevice& errors, const QString& message)
{
    errors.write("quillory: " + message.toUtf8() + '\n');
}

void FailIfListsAreMissing(const ListCatalogue::HomeListing& listing)
{
    if (listing.error != ErrorNumber::None)
        Fail(u"some lists cannot be read: %1"_s.arg(ReadErrorText(listing.error)));
}

void FailIfRowsAreMissing(const Database::VisitOutcome& outcome)
{
    if (outcome.passedOver > 0)
        Fail(u"rows that cannot be read were passed over, %1 of them: %2"_s.arg(
            QString::number(outcome.passedOver), ReadErrorText(outcome.error)));
    if (outcome.error != ErrorNumber::None)
        Fail(u"the list was read only in part: %1"_s.arg(ReadErrorText(outcome.error)));
}

qint32 ReadInteger(
    const QCommandLineParser& parser, const QString& option, qint32 least, qint32 most)
{
    bool isNumber = false;
    const qint32 number = parser.value(option).toInt(&isNumber);
    if (!isNumber || number < least || number > most)
        FailUsage(u"--%1 takes a whole number from %2 to %3"_s.arg(option).arg(least).arg(most));
    return number;
}

QString ErrorText(ErrorNumber error)
{
    if (error == ErrorNumber::Cancelled)
        throw WriterWaits();
    return u"%1 (error %2)"_s.arg(
        QLatin1StringView(ErrorPhrase(error)), QString::number(static_cast<quint32>(error)));
}

QString ReadErrorText(ErrorNumber error)
{
    const QString text = ErrorText(error);
    if (error == ErrorNumber::ChangedOutside)
        return u"%1; “quillory restore FILE --salvage” takes what it holds into a new file"_s.arg(
            text);
    return error != ErrorNumber::FileCorrupt
        ? text
        : u"%1; “quillory restore” lists copies and what can be saved"_s.arg(text);
}

CommandData::CommandData(
    const QString& path, VolumeAccess access, Disposition disposition, QIODevice& errors)
    : catalogue(volume)
    , m_path(path)
{
    const ErrorNumber error = volume.Mount(path, disposition, access);
    if (error == ErrorNumber::SharingViolation)
        Fail(u"%1 is open in Quillory; close it first"_s.arg(path));
    if (error != ErrorNumber::None)
        Fail(u"cannot open %1: %2"_s.arg(path, ReadErrorText(error)));
    if (const QString aside = volume.MountedVolume()->JournalPutAside(); !aside.isEmpty())
        Complain(
            errors, u"beside %1 lay the journal of another file; it is now %2"_s.arg(path, aside));
    // A reader makes no table for the lists that are not there yet.
    if (access == VolumeAccess::ReadOnly && catalogue.IsWithoutTables())
        return;
    if (catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
        Fail(u"cannot open the lists of %1: %2"_s.arg(path, ReadErrorText(volume.LastError())));
}

ObjectId CommandData::OpenList(const QString& name)
{
    const ObjectId oid = catalogue.FindList(name);
    if (oid == kNoObject) {
        if (volume.LastError() == ErrorNumber::Cancelled)
            throw WriterWaits();
        FailIfListsAreMissing(catalogue.FillHomeList());
        Fail(u"there is no list named “%1”"_s.arg(name));
    }
    OpenList(oid);
    return oid;
}

void CommandData::OpenList(ObjectId oid)
{
    if (!catalogue.OpenList(oid, list))
        Fail(u"cannot open the list: %1"_s.arg(ReadErrorText(volume.LastError())));
}

Database& CommandData::Rows()
{
    Database* rows = volume.OpenDatabase(ListCatalogue::kRowsType);
    if (rows == nullptr)
        Fail(u"no list is open"_s);
    return *rows;
}

void CommandData::StoreColumnOrder(ObjectId oid)
{
    if (!list.columnOrder.empty())
        return;
    list.columnOrder = NaturalColumnOrder(list);
    if (!catalogue.UpdateListOptions(oid, list))
        Fail(u"cannot store the order of the columns: %1"_s.arg(ErrorText(volume.LastError())));
}

QString CommandRun::DataFile() const
{
    QString path = parser.isSet(u"data"_s) ? parser.value(u"data"_s) : environment.dataFile;
    if (path.isEmpty())
        FailUsage(u"no data file is set; name one with --data FILE"_s);
    return path;
}

std::unique_ptr<CommandData> CommandRun::OpenForReading() const
{
    return std::make_unique<CommandData>(
        DataFile(), VolumeAccess::ReadOnly, Disposition::OpenExisting, environment.errors);
}

std::unique_ptr<CommandData> CommandRun::OpenForWriting(Disposition disposition) const
{
    auto data = std::make_unique<CommandData>(
        DataFile(), VolumeAccess::Exclusive, disposition, environment.errors);
    if (KeepsCopiesOf(*data)) {
        Volume& volume = *data->volume.MountedVolume();
        volume.SetFirstChangeListener([this, &volume, path = data->Path()] {
            ComplainUnlessKept(path,
                KeepFound(volume, path, environment.copiesFolder, QDateTime::currentDateTimeUtc(),
                    environment.keptCopies));
        });
    }
    return data;
}

bool CommandRun::KeepsCopiesOf(const CommandData& data) const
{
    // Other files are tried out, sent and mended; what they hold is not this program's to keep.
    return IsSameVolume(environment.dataFile, data.Path());
}

void CommandRun::ComplainUnlessKept(const QString& path, const Result<KeepOutcome>& kept) const
{
    if (!kept)
        Complain(environment.errors,
            u"no copy of %1 could be kept: %2"_s.arg(path, ErrorText(kept.Error())));
}

void CommandRun::VisitLists(
    CommandData& data, const ListVisitor& visit, const std::function<void()>& end) const
{
    bool isWhole = true;
    const auto listing = data.catalogue.FillHomeList();
    for (const ListCatalogue::HomeListEntry& entry : listing.lists) {
        try {
            data.OpenList(entry.oid);
            visit(entry);
        } catch (const CommandFailure& failure) {
            Complain(environment.errors, u"“%1”: %2"_s.arg(entry.name, failure.Message()));
            isWhole = false;
        }
    }
    end();
    FailIfListsAreMissing(listing);
    if (!isWhole)
        Fail(u"not every list could be read"_s);
}

void CommandRun::RefuseJournal(const QString& path) const
{
    if (IsJournalOf(path, DataFile()))
        Fail(u"cannot make %1: it is the name of the data file's journal"_s.arg(path));
}

void CommandRun::KeepCopyOf(CommandData& data) const
{
    if (KeepsCopiesOf(data))
        ComplainUnlessKept(data.Path(),
            KeepCopy(data.volume, data.Path(), environment.copiesFolder,
                QDateTime::currentDateTimeUtc(), environment.keptCopies));
}

bool CommandRun::IsJson() const
{
    return parser.isSet(u"json"_s);
}

} // namespace Quillory
