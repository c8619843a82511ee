// SPDX-License-Identifier: MIT
#include "cli/command_run.h"
#include "cli/conditions.h"
#include "store/row_store.h"

#include <limits>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr DatabaseType kRowRecords = ListCatalogue::kRowsType;

/// A list that a command changes, opened for reading alone where nothing is to be stored.
class ChangedList
{
public:
    explicit ChangedList(const CommandRun& run)
        : m_run(run)
        , m_isDryRun(run.parser.isSet(u"dry-run"_s))
        , m_data(m_isDryRun ? run.OpenForReading() : run.OpenForWriting())
        , m_oid(m_data->OpenList(run.operands.front()))
    { }

    [[nodiscard]] CommandData& Data() const { return *m_data; }
    [[nodiscard]] ObjectId Oid() const { return m_oid; }
    [[nodiscard]] bool IsDryRun() const { return m_isDryRun; }

    /// The rows that meet the conditions, of which there must be one at least.
    [[nodiscard]] std::vector<ObjectId> ChosenRows() const
    {
        const ValueContext& context = m_run.environment.context;
        if (!m_run.parser.isSet(u"where"_s))
            FailUsage(u"--where says which rows"_s);
        const FilterSet filters
            = ReadConditions(m_run.parser.values(u"where"_s), m_data->list, context);
        Listing listing = RowStore(m_data->volume, m_data->list, context).FillFilteredRows(filters);
        if (listing.error != ErrorNumber::None)
            Fail(u"the rows cannot be read: %1"_s.arg(ReadErrorText(listing.error)));
        return std::move(listing.rows);
    }

    /// Changes rows one by one, all or none, and prints how many there are.
    void Change(std::span<const ObjectId> rows, const std::function<bool(ObjectId)>& change) const
    {
        if (!m_isDryRun && !rows.empty()) {
            Transaction transaction(m_data->volume);
            const bool isDone
                = transaction && std::ranges::all_of(rows, change) && transaction.Commit();
            if (!isDone)
                FailToWrite();
            m_run.KeepCopyOf(*m_data);
        }
        m_run.output.WriteLine(QString::number(rows.size()));
    }
    [[noreturn]] void FailToWrite() const
    {
        Fail(u"nothing was changed: %1"_s.arg(ErrorText(m_data->volume.LastError())));
    }

private:
    const CommandRun& m_run;
    bool m_isDryRun;
    std::unique_ptr<CommandData> m_data;
    ObjectId m_oid;
};

/// The values that the operands after the first give, as COLUMN=VALUE.
std::vector<PropertyValue> ReadAssignments(const CommandRun& run, const InventoryList& list)
{
    if (run.operands.size() < 2)
        FailUsage(u"no COLUMN=VALUE is named"_s);
    std::vector<PropertyValue> values;
    for (const QString& text : run.operands.mid(1)) {
        PropertyValue value = ReadAssignment(text, list, run.environment.context);
        const bool isSecond = std::ranges::any_of(
            values, [&value](const PropertyValue& other) { return other.id == value.id; });
        if (isSecond)
            FailUsage(u"“%1” gives a column its second value"_s.arg(text));
        values.push_back(std::move(value));
    }
    return values;
}

qint32 ReadStep(const QString& text)
{
    bool isNumber = false;
    const qint32 step = text.toInt(&isNumber);
    if (!isNumber || !(text.startsWith(u'+') || text.startsWith(u'-')))
        FailUsage(u"“%1” is no number of steps such as +1 or -2"_s.arg(text));
    return step;
}

} // namespace

void RunAdd(const CommandRun& run)
{
    const ChangedList changed(run);
    const auto values = ReadAssignments(run, changed.Data().list);
    constexpr std::array kOne { kNoObject };
    changed.Change(kOne, [&](ObjectId row) {
        return changed.Data().volume.Write(kRowRecords, row, values) != kNoObject;
    });
}

void RunSet(const CommandRun& run)
{
    const ChangedList changed(run);
    const auto values = ReadAssignments(run, changed.Data().list);
    changed.Change(changed.ChosenRows(),
        [&](ObjectId row) { return changed.Data().volume.Write(kRowRecords, row, values) == row; });
}

void RunCount(const CommandRun& run)
{
    const qint64 step = ReadStep(run.operands.at(1));
    const ChangedList changed(run);
    DataVolume& volume = changed.Data().volume;
    static_cast<void>(FindColumn(PropCount, changed.Data().list));
    changed.Change(changed.ChosenRows(), [&](ObjectId row) {
        constexpr std::array kIds { PropCount };
        const Record record
            = volume.SeekTo(kRowRecords, row) == row ? volume.Read(kRowRecords, kIds) : Record {};
        if (!record)
            return false;
        const PropertyValue& stored = record.values.front();
        const qint64 count = step + (stored.IsMissing() ? 0 : std::get<qint32>(stored.value));
        if (count != static_cast<qint32>(count))
            Fail(u"nothing was changed: a quantity would be %1"_s.arg(count));
        const std::array<PropertyValue, 1> values {
            { { PropCount, 0, static_cast<qint32>(count) } }
        };
        return volume.Write(kRowRecords, row, values) == row;
    });
}

void RunDelete(const CommandRun& run)
{
    const ChangedList changed(run);
    changed.Change(changed.ChosenRows(),
        [&](ObjectId row) { return changed.Data().volume.DeleteRecord(kRowRecords, row); });
}

void RunRename(const CommandRun& run)
{
    const QString& name = run.operands.at(1);
    CheckListName(name);
    const ChangedList changed(run);
    ListCatalogue& catalogue = changed.Data().catalogue;
    const ObjectId namesake = catalogue.FindList(name);
    if (namesake != kNoObject && namesake != changed.Oid())
        Fail(u"there is a list named “%1” already"_s.arg(name));
    if (changed.IsDryRun())
        return;
    if (!catalogue.RenameList(changed.Oid(), name))
        changed.FailToWrite();
    run.KeepCopyOf(changed.Data());
}

void RunRemove(const CommandRun& run)
{
    const ChangedList changed(run);
    ListCatalogue& catalogue = changed.Data().catalogue;
    const auto count = changed.Data().Rows().RecordCount();
    if (!count)
        Fail(u"cannot count the rows: %1"_s.arg(ReadErrorText(count.Error())));
    if (!changed.IsDryRun()) {
        catalogue.CloseRows();
        if (!catalogue.DeleteList(changed.Oid()))
            changed.FailToWrite();
        if (!catalogue.PurgeDeleted())
            Complain(run.environment.errors,
                u"the rows are gone from the list, but not from the file yet: %1"_s.arg(
                    ErrorText(changed.Data().volume.LastError())));
        run.KeepCopyOf(changed.Data());
    }
    run.output.WriteLine(QString::number(*count));
}

} // namespace Quillory
