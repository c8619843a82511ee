// SPDX-License-Identifier: MIT
#include "store/salvage.h"

#include "propdb/damaged_volume.h"
#include "propdb/volume_path.h"
#include "store/list_catalogue.h"
#include "values/column_type.h"

#include <QFile>
#include <QHash>
#include <QScopeGuard>

#include <algorithm>
#include <optional>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// The lists' definitions by the names of their row databases.
using Definitions = QHash<QString, InventoryList>;

Definitions ReadDefinitions(const DamagedVolume& volume, SalvageReport& report)
{
    Definitions definitions;
    const auto& databases = volume.Databases();
    for (size_t i = 0; i < databases.size(); ++i) {
        if (databases[i].info.type != ListCatalogue::kCatalogueType)
            continue;
        const auto outcome = volume.ReadRecords(i, [&definitions](const Record& record) {
            const InventoryList definition = ListCatalogue::DefinitionOf(record.values);
            definitions.insert(definition.MapName, definition);
        });
        report.mayListsBeLost = report.mayListsBeLost || outcome.lostPages > 0;
    }
    return definitions;
}

/// The definition of a list whose rows are `content`, from what is left of it.
InventoryList DefinitionFor(
    const DamagedVolume::DatabaseContent& content, const Definitions& definitions)
{
    // Names end at a NUL: one that went on would not be found by what is kept of it.
    const auto upToNul = [](const QString& name) { return name.left(name.indexOf(QChar(u'\0'))); };
    InventoryList list = definitions.value(content.info.name);
    list.Name = upToNul(list.Name);
    if (list.Name.isEmpty())
        list.Name = upToNul(content.info.name);
    list.columns = ListCatalogue::ColumnsOf(content.properties);
    // Rows stand in the order of their names: without that column there is no list.
    if (std::ranges::find(list.columns, PropName, &ColumnDefinition::id) == list.columns.end())
        list.columns.insert(list.columns.begin(), NewInventoryList().columns.front());
    std::erase_if(
        list.columnOrder, [&list](quint32 index) { return index >= list.columns.size(); });
    return list;
}

/// Writes the rows of one list into a list made for them, in one transaction.
class ListWriter
{
public:
    ListWriter(ListCatalogue& catalogue, const InventoryList& list)
        : m_data(catalogue.Volume())
        , m_list(list)
    {
        for (const ColumnDefinition& column : list.columns)
            m_oldIds.push_back(column.id);
        m_error = Create(catalogue);
        if (m_error == ErrorNumber::None && !m_transaction.emplace(m_data))
            m_error = m_data.LastError();
    }

    void Write(const Record& record)
    {
        // Without its list it has no columns.
        if (m_error != ErrorNumber::None)
            return;
        std::vector<PropertyValue> values;
        for (const PropertyValue& value : record.values) {
            const auto place = std::ranges::find(m_oldIds, value.id) - m_oldIds.begin();
            if (place < std::ssize(m_oldIds))
                values.push_back({ m_list.columns[static_cast<size_t>(place)].id, 0, value.value });
        }
        if (!values.empty()
            && m_data.AddBack(
                   ListCatalogue::kRowsType, { kNoObject, std::move(values), record.origin })
                == kNoObject)
            m_error = m_data.LastError();
    }
    [[nodiscard]] Result<void> End()
    {
        if (m_error == ErrorNumber::None && !m_transaction->Commit())
            m_error = m_data.LastError();
        return m_error;
    }

private:
    DataVolume& m_data;
    InventoryList m_list;
    std::vector<PropertyId> m_oldIds;
    ErrorNumber m_error = ErrorNumber::None;
    std::optional<Transaction> m_transaction;

    /// Columns get new identifiers, drawn at random.
    [[nodiscard]] ErrorNumber Create(ListCatalogue& catalogue)
    {
        const auto created = catalogue.CreateListRedrawing(m_list);
        const bool isOpen = created.isCommitted && catalogue.OpenList(created.oid, m_list);
        return isOpen ? ErrorNumber::None : m_data.LastError();
    }
};

/// Saves into `catalogue`, or only counts if it is null.
Result<SalvageReport> Salvage(const DamagedVolume& volume, ListCatalogue* catalogue)
{
    SalvageReport report;
    report.mayListsBeLost = volume.AreDatabasesLost();
    report.wasChangedOutside = volume.WasChangedOutside();
    Definitions definitions = ReadDefinitions(volume, report);
    const auto& databases = volume.Databases();
    for (size_t i = 0; i < databases.size(); ++i) {
        const DamagedVolume::DatabaseContent& content = databases[i];
        if (content.info.type != ListCatalogue::kRowsType || content.properties.empty())
            continue;
        const InventoryList list = DefinitionFor(content, definitions);
        std::optional<ListWriter> writer;
        if (catalogue != nullptr)
            writer.emplace(*catalogue, list);
        const auto outcome = volume.ReadRecords(i, [&writer](const Record& record) {
            if (writer)
                writer->Write(record);
        });
        if (writer)
            QUILLORY_TRY(writer->End());
        report.lists.push_back({ list.Name, outcome.records, outcome.lostRecords,
            content.isComplete && outcome.lostPages == 0 });
        definitions.remove(content.info.name);
    }
    for (const InventoryList& lost : std::as_const(definitions))
        report.lostLists << lost.Name;
    report.lostLists.sort();
    report.mendedPages = volume.MendedPages();
    return report;
}

Result<SalvageReport> SalvageInto(
    const DamagedVolume& volume, const QString& damaged, const QString& path)
{
    DataVolume data;
    if (const auto error = data.Mount(path, Disposition::OpenAlways); error != ErrorNumber::None)
        return error;
    QUILLORY_TRY(TakeModeOf(QFile::encodeName(damaged), QFile::encodeName(path)));
    ListCatalogue catalogue(data);
    if (catalogue.OpenCatalogue() != ListCatalogue::OpenOutcome::Opened)
        return data.LastError();
    return Salvage(volume, &catalogue);
}

} // namespace

Result<SalvageReport> ExamineLists(const QString& damaged)
{
    QUILLORY_TRY_VALUE(const auto volume, DamagedVolume::Open(damaged));
    return Salvage(volume, nullptr);
}

Result<SalvageReport> SalvageLists(const QString& damaged, const QString& target)
{
    QUILLORY_TRY_VALUE(const auto volume, DamagedVolume::Open(damaged));
    QUILLORY_TRY_VALUE(const auto path, ResolveVolumePath(target));
    if (QFile::exists(QFile::decodeName(path)))
        return ErrorNumber::FileExists;
    const QByteArray unfinished = UnfinishedName(path);
    const auto removeUnfinished
        = qScopeGuard([&] { QFile::remove(QFile::decodeName(unfinished)); });
    auto report = SalvageInto(volume, damaged, QFile::decodeName(unfinished));
    const bool isLost = report && (report->mayListsBeLost || !report->lostLists.isEmpty());
    if (isLost && report->lists.empty())
        return ErrorNumber::FileCorrupt;
    if (report)
        QUILLORY_TRY(PublishFile(unfinished, path));
    return report;
}

} // namespace Quillory
