// SPDX-License-Identifier: MIT
#include "merge/merge_writer.h"

#include "store/data_file_check.h"
#include "store/list_catalogue.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>

namespace Quillory {

namespace {

constexpr DatabaseType kRows = ListCatalogue::kRowsType;

/// The values as a write takes them: one that is missing is taken out of the record.
std::vector<PropertyValue> ForWriting(std::vector<PropertyValue> values)
{
    for (PropertyValue& value : values)
        value.flags = value.IsMissing() ? CEDB_PROPDELETE : quint16 { 0 };
    return values;
}

/// Carries a plan out on a copy of this device's file.
class PlanWriter
{
public:
    explicit PlanWriter(DataVolume& data)
        : m_data(data)
        , m_catalogue(data)
    { }

    /// False where something fails; the volume has the reason.
    [[nodiscard]] bool Write(const MergePlan& plan)
    {
        if (m_catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
            return false;
        Transaction transaction(m_data);
        return transaction && m_catalogue.PurgeDeleted()
            && std::ranges::all_of(
                plan.lists, [this](const ListPlan& list) { return WriteList(list); })
            && m_data.WriteHistory(plan.history) && transaction.Commit();
    }

private:
    DataVolume& m_data;
    ListCatalogue m_catalogue;

    bool WriteList(const ListPlan& list)
    {
        if (list.isRemoved)
            return Remove(list.record);
        if (list.record == kNoObject)
            return Create(list.definition) && WriteRows(list);
        if (list.isRemade)
            return Remake(list);
        const bool isDefined
            = !list.isDefinitionChanged || m_catalogue.UpdateList(list.record, list.definition);
        InventoryList opened;
        return isDefined && m_catalogue.OpenList(list.record, opened) && WriteRows(list);
    }

    bool Remove(ObjectId record)
    {
        InventoryList list;
        if (!m_catalogue.OpenList(record, list))
            return false;
        const ObjectId rows = m_data.DatabaseOid(kRows);
        m_catalogue.CloseRows();
        return m_data.DeleteDatabase(rows)
            && m_data.DeleteRecord(ListCatalogue::kCatalogueType, record);
    }

    /// Adds a list of this very map name and columns, and opens it.
    bool Create(const InventoryList& definition)
    {
        m_catalogue.CloseRows();
        std::vector<PropertySpec> specs;
        for (const ColumnDefinition& column : definition.columns)
            specs.push_back({ column.id, column.name });
        const std::array orders { ListCatalogue::kByRowName };
        const bool isMade = m_catalogue.AddList(definition) != kNoObject
            && m_data.Create(definition.MapName, kRows, specs, orders) != kNoObject;
        return isMade && m_data.Open(definition.MapName, kRows, ListCatalogue::kByRowName);
    }

    /// Gives the rows of a list, as they become, to one of the planned name and columns.
    bool Remake(const ListPlan& list)
    {
        auto rows = ReadRows(list);
        if (!rows || !Remove(list.record) || !Create(list.definition))
            return false;
        for (const RowChange& change : list.rows) {
            if (change.what == RowChange::What::Add)
                rows->push_back({ kNoObject, change.values, change.origin });
        }
        return std::ranges::all_of(*rows, [this](Record& row) { return Add(std::move(row)); });
    }

    /// The rows that a list has and keeps, with what becomes of their values and origins, under the
    /// identifiers of the planned columns.
    std::optional<std::vector<Record>> ReadRows(const ListPlan& list)
    {
        std::unordered_map<quint32, const RowChange*> changes;
        for (const RowChange& change : list.rows)
            changes.emplace(static_cast<quint32>(change.row), &change);
        InventoryList old;
        if (!m_catalogue.OpenList(list.record, old))
            return std::nullopt;
        std::vector<PropertyId> ids;
        for (const ColumnDefinition& column : old.columns)
            ids.push_back(column.id);
        std::vector<Record> rows;
        const auto read = [&](Origin origin, const ScannedRecord& record) {
            const auto change = changes.find(static_cast<quint32>(record.Oid()));
            if (change == changes.end()) {
                Record row { kNoObject, std::vector<PropertyValue>(ids.size()), origin };
                for (size_t i = 0; i < ids.size(); ++i) {
                    row.values[i].id = ids[i];
                    record.Read(i, row.values[i]);
                    row.values[i].id = list.definition.columns[i].id;
                }
                rows.push_back(std::move(row));
            } else if (change->second->what == RowChange::What::Change) {
                rows.push_back({ kNoObject, change->second->values, change->second->origin });
            }
            return true;
        };
        if (!m_data.OpenDatabase(kRows)->ScanOrigins(ids, read))
            return std::nullopt;
        return rows;
    }

    bool Add(Record row)
    {
        row.values = ForWriting(std::move(row.values));
        return m_data.AddBack(kRows, row) != kNoObject;
    }

    bool WriteRows(const ListPlan& list)
    {
        return std::ranges::all_of(list.rows, [this](const RowChange& change) {
            switch (change.what) {
            case RowChange::What::Add:
                return Add({ kNoObject, change.values, change.origin });
            case RowChange::What::Change:
                return m_data.Write(kRows, change.row, ForWriting(change.values)) == change.row;
            case RowChange::What::Remove:
                break;
            }
            return m_data.DeleteRecord(kRows, change.row);
        });
    }
};

Result<void> WriteAndCheck(const MergePlan& plan, const QString& target)
{
    DataVolume data;
    if (const auto error = data.Mount(target, Disposition::OpenExisting);
        error != ErrorNumber::None)
        return error;
    if (!PlanWriter(data).Write(plan))
        return data.LastError() == ErrorNumber::None ? ErrorNumber::FileCorrupt : data.LastError();
    QUILLORY_TRY_VALUE(const auto faults, CheckDataFile(*data.MountedVolume()));
    return faults.isEmpty() ? ErrorNumber::None : ErrorNumber::FileCorrupt;
}

} // namespace

Result<void> WriteMerged(const MergePlan& plan, Volume& mine, const QString& target)
{
    QUILLORY_TRY(mine.Backup(target));
    const auto written = WriteAndCheck(plan, target);
    if (!written)
        QFile::remove(target);
    return written;
}

} // namespace Quillory
