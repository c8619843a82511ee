// SPDX-License-Identifier: MIT
#include "store/list_catalogue.h"

#include "values/column_type.h"

#include <QRandomGenerator>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr PropertyId kName = ListCatalogue::kByListName.key;
constexpr PropertyId kMapName = MakePropertyId(11002, CEVT_LPWSTR);
constexpr PropertyId kTableIcon = MakePropertyId(11003, CEVT_I2);
constexpr PropertyId kTableOption = MakePropertyId(11004, CEVT_UI4);
constexpr PropertyId kTableWarnColour = MakePropertyId(11005, CEVT_UI4);
constexpr PropertyId kTableWarnStart = MakePropertyId(11006, CEVT_I4);
constexpr PropertyId kTableColSizes = MakePropertyId(11007, CEVT_LPWSTR);
constexpr PropertyId kColumnOrder = MakePropertyId(11008, CEVT_BLOB);
constexpr PropertyId kTableFilters = MakePropertyId(11009, CEVT_BLOB);
constexpr PropertyId kTableExpiryColour = MakePropertyId(11010, CEVT_UI4);

/// The random numbers of map names and columns reach from 0 to here.
constexpr int kMaxRandom = 32767;
/// So much of a list's name begins its map name.
constexpr qsizetype kMapNameStem = 16;

quint16 RandomNumber()
{
    return static_cast<quint16>(QRandomGenerator::global()->bounded(kMaxRandom + 1));
}

QByteArray PackColumnOrder(const std::vector<quint32>& order)
{
    if (order.empty())
        return {};
    QByteArray bytes(static_cast<qsizetype>(order.size() * sizeof(quint32)), Qt::Uninitialized);
    qToLittleEndian<quint32>(order.data(), static_cast<qsizetype>(order.size()), bytes.data());
    return bytes;
}

std::vector<quint32> UnpackColumnOrder(const QByteArray& bytes)
{
    // One that is longer is none of this program's, which goes through it for each row.
    const qsizetype size = bytes.size() / qsizetype { sizeof(quint32) };
    std::vector<quint32> order(
        static_cast<size_t>(size > ListCatalogue::kMaxColumnOrder ? 0 : size));
    if (!order.empty())
        qFromLittleEndian<quint32>(
            bytes.data(), static_cast<qsizetype>(order.size()), order.data());
    return order;
}

void ApplyProperty(InventoryList& definition, const PropertyValue& value)
{
    switch (value.id) {
    case kTableOption:
        definition.TableOption = std::get<quint32>(value.value);
        break;
    case kTableWarnColour:
        definition.TableWarnColour = std::get<quint32>(value.value);
        break;
    case kTableWarnStart:
        definition.TableWarnStart = std::get<qint32>(value.value);
        break;
    case kTableColSizes:
        definition.TableColSizes = std::get<QString>(value.value);
        break;
    case kColumnOrder:
        definition.columnOrder = UnpackColumnOrder(std::get<QByteArray>(value.value));
        break;
    case kTableExpiryColour:
        definition.TableExpiryColour = std::get<quint32>(value.value);
        break;
    default:
        break;
    }
}

/// Settings present in `values` go to the definition; a column order that is not there leaves none.
void ApplyProperties(InventoryList& definition, std::span<const PropertyValue> values)
{
    definition.columnOrder.clear();
    for (const PropertyValue& value : values) {
        if (!value.IsMissing())
            ApplyProperty(definition, value);
    }
}

/// Name, map name, icon and settings.
void ApplyHeader(InventoryList& definition, std::span<const PropertyValue> values)
{
    if (const auto* name = FindProperty(values, kName))
        definition.Name = std::get<QString>(name->value);
    if (const auto* mapName = FindProperty(values, kMapName))
        definition.MapName = std::get<QString>(mapName->value);
    if (const auto* icon = FindProperty(values, kTableIcon))
        definition.TableIcon = std::get<qint16>(icon->value);
    ApplyProperties(definition, values);
}

std::vector<PropertyValue> OptionValues(const InventoryList& definition)
{
    return {
        { kTableOption, 0, definition.TableOption },
        { kTableWarnColour, 0, definition.TableWarnColour },
        { kTableWarnStart, 0, definition.TableWarnStart },
        { kTableColSizes, 0, definition.TableColSizes },
        { kColumnOrder, 0, PackColumnOrder(definition.columnOrder) },
        { kTableExpiryColour, 0, definition.TableExpiryColour },
    };
}

int KindOf(PropertyId column)
{
    if (column == PropName)
        return kKindName;
    if (column == PropCount)
        return kKindCount;
    return static_cast<int>(ColumnTypeOf(column));
}

std::vector<PropertySpec> SpecsOf(const InventoryList& definition)
{
    std::vector<PropertySpec> specs;
    for (const ColumnDefinition& column : definition.columns)
        specs.push_back({ column.id, column.name });
    return specs;
}

bool HasSameWarnings(const InventoryList& a, const InventoryList& b)
{
    return a.TableOption == b.TableOption && a.TableWarnStart == b.TableWarnStart
        && a.TableWarnColour == b.TableWarnColour && a.TableExpiryColour == b.TableExpiryColour;
}

/// The name under which the rows of a list are kept aside.
QString DeletedName(const QString& mapName)
{
    return mapName + ListCatalogue::kDeletedMark;
}

/// Writes onto a record that there is; none is added.
bool WriteOnto(DataVolume& volume, ObjectId oid, std::span<const PropertyValue> values)
{
    return oid != kNoObject && volume.Write(ListCatalogue::kCatalogueType, oid, values) == oid;
}

} // namespace

ListCatalogue::ListCatalogue(DataVolume& volume)
    : m_volume(volume)
{ }

ListCatalogue::OpenOutcome ListCatalogue::OpenCatalogue()
{
    if (!m_volume.Exists(kCatalogueType) && !CreateCatalogue())
        return OpenOutcome::CannotCreateTable;
    const auto open = [this] {
        return m_volume.OpenSession() && m_volume.Open(kDatabaseName, kCatalogueType, kByListName);
    };
    if (open())
        CompleteCatalogue();
    return open() ? OpenOutcome::Opened : OpenOutcome::CannotOpen;
}

bool ListCatalogue::IsWithoutTables() const
{
    if (!m_volume.IsMounted())
        return false;
    const auto databases = m_volume.MountedVolume()->Databases();
    return databases && databases->empty();
}

std::span<const PropertySpec> ListCatalogue::RecordProperties()
{
    static const std::array<PropertySpec, 10> specs { {
        { kName, u"Name"_s },
        { kMapName, u"MapName"_s },
        { kTableIcon, u"TableIcon"_s },
        { kTableOption, u"TableOption"_s },
        { kTableWarnColour, u"TableWarnColour"_s },
        { kTableWarnStart, u"TableWarnStart"_s },
        { kTableColSizes, u"TableColSizes"_s },
        { kTableFilters, u"TableFilters"_s },
        { kTableExpiryColour, u"TableExpiryColour"_s },
        { kColumnOrder, u"ColumnOrder"_s, false },
    } };
    return specs;
}

bool ListCatalogue::CreateCatalogue()
{
    return m_volume.Create(
               kDatabaseName, kCatalogueType, RecordProperties(), std::span(&kByListName, 1))
        != kNoObject;
}

void ListCatalogue::CompleteCatalogue()
{
    if (m_volume.OpenDatabase(kCatalogueType)->Has(kColumnOrder)
        || m_volume.RecordCount(kCatalogueType) != 0)
        return;
    Transaction transaction(m_volume);
    const ObjectId catalogue = m_volume.DatabaseOid(kCatalogueType);
    m_volume.Close(kCatalogueType);
    // Where this fails the catalogue is as it was, and only the first list cannot be made.
    if (transaction && m_volume.DeleteDatabase(catalogue) && CreateCatalogue())
        transaction.Commit();
}

ListCatalogue::HomeListing ListCatalogue::FillHomeList()
{
    HomeListing listing;
    Database* catalogue = m_volume.OpenDatabase(kCatalogueType);
    if (catalogue == nullptr) {
        listing.error = IsWithoutTables() ? ErrorNumber::None : ErrorNumber::InvalidHandle;
        return listing;
    }
    constexpr std::array kIds { kName, kTableIcon };
    listing.error = catalogue
                        ->Scan(kIds, ScanOrder::Sorted,
                            [&listing](ObjectId oid, std::span<const PropertyValue> values) {
                                HomeListEntry entry { oid, {}, 0 };
                                if (const auto* name = std::get_if<QString>(&values[0].value))
                                    entry.name = *name;
                                if (const auto* icon = std::get_if<qint16>(&values[1].value))
                                    entry.icon = *icon;
                                listing.lists.push_back(std::move(entry));
                                return true;
                            })
                        .Error();
    return listing;
}

ObjectId ListCatalogue::FindList(const QString& name)
{
    const auto entries = FillHomeList().lists;
    const auto found = std::find_if(entries.begin(), entries.end(),
        [&name](const HomeListEntry& entry) { return entry.name == name; });
    return found == entries.end() ? kNoObject : found->oid;
}

std::optional<QString> ListCatalogue::ReadListName(ObjectId oid)
{
    constexpr std::array kIds { kName };
    if (m_volume.SeekTo(kCatalogueType, oid) == kNoObject)
        return std::nullopt;
    const Record record = m_volume.Read(kCatalogueType, kIds);
    if (!record || record.values.front().IsMissing())
        return std::nullopt;
    return std::get<QString>(record.values.front().value);
}

bool ListCatalogue::ReadListHeader(ObjectId oid, InventoryList& definition)
{
    if (m_volume.SeekTo(kCatalogueType, oid) == kNoObject)
        return false;
    const Record record = m_volume.ReadAll(kCatalogueType);
    if (!record)
        return false;
    ApplyHeader(definition, record.values);
    return true;
}

InventoryList ListCatalogue::DefinitionOf(std::span<const PropertyValue> record)
{
    InventoryList definition;
    ApplyHeader(definition, record);
    return definition;
}

std::vector<ColumnDefinition> ListCatalogue::ColumnsOf(std::span<const PropertySpec> properties)
{
    std::vector<ColumnDefinition> columns;
    for (const PropertySpec& property : properties)
        columns.push_back({ property.name, KindOf(property.id), property.id });
    return columns;
}

std::optional<QString> ListCatalogue::ReadListDefinition(ObjectId oid, InventoryList* definition)
{
    constexpr std::array kIds { kMapName, kTableOption, kTableWarnColour, kTableWarnStart,
        kTableColSizes, kColumnOrder, kTableExpiryColour };
    if (m_volume.SeekTo(kCatalogueType, oid) == kNoObject)
        return std::nullopt;
    const Record record = m_volume.Read(kCatalogueType, kIds);
    if (!record || record.values.front().IsMissing())
        return std::nullopt;
    if (definition != nullptr)
        ApplyProperties(*definition, record.values);
    return std::get<QString>(record.values.front().value);
}

ObjectId ListCatalogue::AddList(const InventoryList& definition)
{
    std::vector<PropertyValue> values {
        { kName, 0, definition.Name },
        { kMapName, 0, definition.MapName },
        { kTableIcon, 0, definition.TableIcon },
    };
    for (PropertyValue& value : OptionValues(definition)) {
        if (value.id != kColumnOrder || !definition.columnOrder.empty())
            values.push_back(std::move(value));
    }
    return m_volume.Write(kCatalogueType, kNoObject, values);
}

bool ListCatalogue::RenameList(ObjectId oid, const QString& name)
{
    const std::array<PropertyValue, 1> values { { { kName, 0, name } } };
    return WriteOnto(m_volume, oid, values);
}

bool ListCatalogue::UpdateListOptions(ObjectId oid, const InventoryList& definition)
{
    const std::vector<PropertyValue> values = OptionValues(definition);
    InventoryList stored;
    if (oid == kNoObject || !ReadListHeader(oid, stored) || !HasSameWarnings(stored, definition))
        return WriteOnto(m_volume, oid, values);
    const bool isSame = stored.TableColSizes == definition.TableColSizes
        && stored.columnOrder == definition.columnOrder;
    return isSame || m_volume.WriteLayout(kCatalogueType, oid, values);
}

bool ListCatalogue::UpdateList(ObjectId oid, const InventoryList& definition)
{
    std::vector<PropertyValue> values = OptionValues(definition);
    values.push_back({ kName, 0, definition.Name });
    values.push_back({ kTableIcon, 0, definition.TableIcon });
    return WriteOnto(m_volume, oid, values);
}

ListCatalogue::CreateOutcome ListCatalogue::CreateList(InventoryList& definition)
{
    definition.MapName = definition.Name.left(kMapNameStem) + QString::number(RandomNumber());
    if (definition.columnOrder.empty())
        definition.columnOrder = NaturalColumnOrder(definition);
    CreateOutcome outcome;
    Transaction transaction(m_volume);
    if (!transaction)
        return outcome;
    outcome.oid = AddList(definition);
    if (outcome.oid == kNoObject)
        return outcome;
    const std::vector<ColumnDefinition> undrawn = definition.columns;
    outcome.isCommitted = CreateRowDatabase(definition) && transaction.Commit();
    // Kept, a number that collided would be taken for that of a built-in column the next time.
    if (!outcome.isCommitted)
        definition.columns = undrawn;
    return outcome;
}

ListCatalogue::CreateOutcome ListCatalogue::CreateListRedrawing(InventoryList& definition)
{
    constexpr int kDraws = 8;
    CreateOutcome outcome;
    for (int draw = 0; draw < kDraws && !outcome.isCommitted; ++draw) {
        outcome = CreateList(definition);
        const ErrorNumber error = m_volume.LastError();
        if (error != ErrorNumber::AlreadyExists && error != ErrorNumber::DuplicateName)
            break;
    }
    return outcome;
}

bool ListCatalogue::CreateRowDatabase(InventoryList& definition)
{
    // Two columns that draw one number make the creation fail, and with it the whole list.
    for (ColumnDefinition& column : definition.columns) {
        if (!IsBuiltInColumn(column.id))
            column.id = MakePropertyId(RandomNumber(), PropertyType(column.id));
    }
    return m_volume.Create(
               definition.MapName, kRowsType, SpecsOf(definition), std::span(&kByRowName, 1))
        != kNoObject;
}

bool ListCatalogue::OpenList(ObjectId oid, InventoryList& definition)
{
    CloseRows();
    definition = InventoryList {};
    if (!ReadListHeader(oid, definition)
        || !m_volume.Open(definition.MapName, kRowsType, kByRowName))
        return false;
    const auto specs = m_volume.PropertySpecs(kRowsType, m_volume.PropertyCount(kRowsType));
    definition.columns = ColumnsOf(specs);
    return true;
}

std::optional<InventoryList> ListCatalogue::OpenListAgain(ObjectId oid, const InventoryList& known)
{
    InventoryList present;
    if (OpenList(oid, present) && present.MapName == known.MapName
        && present.columns == known.columns)
        return present;
    CloseRows();
    return std::nullopt;
}

void ListCatalogue::CloseRows()
{
    m_volume.Close(kRowsType);
}

bool ListCatalogue::DeleteList(ObjectId oid)
{
    InventoryList definition;
    if (!PurgeDeleted() || !OpenList(oid, definition))
        return false;
    const ObjectId rows = m_volume.DatabaseOid(kRowsType);
    CloseRows();
    Transaction transaction(m_volume);
    return transaction
        && m_volume.RenameDatabase(rows, DeletedName(definition.MapName), kDeletedRowsType)
        && m_volume.DeleteRecord(kCatalogueType, oid) && transaction.Commit() && m_volume.Flush();
}

ListCatalogue::EmptyOutcome ListCatalogue::DeleteAllRows(ObjectId oid)
{
    InventoryList definition;
    if (!PurgeDeleted() || !OpenList(oid, definition))
        return EmptyOutcome::CannotOpen;
    const ObjectId rows = m_volume.DatabaseOid(kRowsType);
    CloseRows();
    Transaction transaction(m_volume);
    if (!transaction
        || !m_volume.RenameDatabase(rows, DeletedName(definition.MapName), kDeletedRowsType))
        return EmptyOutcome::CannotOpen;
    const ObjectId created = m_volume.Create(
        definition.MapName, kRowsType, SpecsOf(definition), std::span(&kByRowName, 1));
    const bool isDone = created != kNoObject && transaction.Commit() && m_volume.Flush();
    return isDone ? EmptyOutcome::Done : EmptyOutcome::CannotCreateRows;
}

ObjectId ListCatalogue::DeletedRowsOf(const QString& mapName)
{
    // One deletion is kept at a time.
    const std::vector<ObjectId> deleted = m_volume.DatabasesOf(kDeletedRowsType);
    if (deleted.empty() || m_volume.DatabaseName(deleted.front()) != DeletedName(mapName))
        return kNoObject;
    return deleted.front();
}

ObjectId ListCatalogue::RestoreList(const InventoryList& definition)
{
    const ObjectId rows = DeletedRowsOf(definition.MapName);
    Transaction transaction(m_volume);
    if (rows == kNoObject || !transaction
        || !m_volume.RenameDatabase(rows, definition.MapName, kRowsType))
        return kNoObject;
    const ObjectId oid = AddList(definition);
    return oid != kNoObject && transaction.Commit() ? oid : kNoObject;
}

bool ListCatalogue::RestoreRows(ObjectId oid)
{
    InventoryList definition;
    if (!OpenList(oid, definition))
        return false;
    const ObjectId added = m_volume.DatabaseOid(kRowsType);
    CloseRows();
    const ObjectId deleted = DeletedRowsOf(definition.MapName);
    Transaction transaction(m_volume);
    return deleted != kNoObject && transaction
        && CopyRows(definition.MapName, DeletedName(definition.MapName))
        && m_volume.DeleteDatabase(added)
        && m_volume.RenameDatabase(deleted, definition.MapName, kRowsType) && transaction.Commit();
}

bool ListCatalogue::CopyRows(const QString& from, const QString& to)
{
    bool isDone = m_volume.Open(from, kRowsType, kByRowName)
        && m_volume.Open(to, kDeletedRowsType, kByRowName);
    if (isDone) {
        ObjectId row = m_volume.SeekFirst(kRowsType);
        while (isDone && row != kNoObject) {
            const Record record = m_volume.ReadAll(kRowsType);
            isDone = record && m_volume.AddBack(kDeletedRowsType, record) != kNoObject;
            row = m_volume.SeekTo(kRowsType, row) == kNoObject ? kNoObject
                                                               : m_volume.SeekNext(kRowsType);
        }
    }
    m_volume.Close(kRowsType);
    m_volume.Close(kDeletedRowsType);
    return isDone;
}

bool ListCatalogue::PurgeDeleted()
{
    for (const ObjectId database : m_volume.DatabasesOf(kDeletedRowsType)) {
        if (!m_volume.PurgeDatabase(database))
            return false;
    }
    return true;
}

} // namespace Quillory
