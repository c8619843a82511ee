// SPDX-License-Identifier: MIT
#include "propdb/damaged_volume.h"

#include "propdb/detail/page_tree.h"
#include "propdb/detail/schema.h"
#include "propdb/detail/stored_record.h"

#include <QHash>

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Where the table of a database and its index begin, and which column holds which property.
struct DatabaseLayout
{
    quint32 tableRoot = 0;
    quint32 indexRoot = 0;
    /// Property identifiers by the places of their columns behind the identifier.
    std::map<size_t, PropertyId> columns;
    QString database;

    [[nodiscard]] Record Decode(const StoredRecord& stored) const
    {
        Record record { stored.Oid(), {}, OriginOf(stored) };
        for (const auto& [position, id] : columns) {
            PropertyValue value { id, 0, {} };
            stored.Read(position, value);
            if (!value.IsMissing())
                record.values.push_back(std::move(value));
        }
        return record;
    }

private:
    /// It stands behind the properties.
    [[nodiscard]] Origin OriginOf(const StoredRecord& stored) const
    {
        const size_t place = columns.empty() ? 0 : columns.rbegin()->first + 1;
        const auto origin = static_cast<Origin>(stored.Integer(place));
        return origin == kNoOrigin ? DerivedOrigin(database, stored.Oid()) : origin;
    }
};

/// Columns of a record of sqlite_schema.
enum SchemaColumn : size_t
{
    SchemaType,
    SchemaName,
    SchemaTable,
    SchemaRoot,
    SchemaSql,
};

/// Root pages by the names of tables; those of indexes by the names of their tables.
struct Roots
{
    QHash<QString, quint32> tables;
    QHash<QString, quint32> indexes;
    qint64 lostPages = 0;
};

Roots ReadRoots(const PageFile& file)
{
    Roots roots;
    PageTreeReader reader(file, PageTreeReader::Doubt::Believe);
    std::set<qint64> known;
    roots.lostPages = reader.Visit(1, [&](qint64 rowId, QByteArrayView bytes) {
        const StoredRecord record(rowId, bytes, 0);
        const qint64 root = record.Integer(SchemaRoot);
        const QString name = record.Text(SchemaName);
        const bool isTable = record.Text(SchemaType) == u"table"_s;
        // The words say the name once more, and no two trees have one root.
        const QString words = (isTable ? u"CREATE TABLE "_s : u"CREATE INDEX "_s);
        const QString sql = record.Text(SchemaSql);
        if (root < 2 || !(sql.startsWith(words + QuotedName(name)) || sql.startsWith(words + name))
            || !known.insert(root).second)
            return;
        if (isTable)
            roots.tables.insert(name, static_cast<quint32>(root));
        else
            roots.indexes.insert(record.Text(SchemaTable), static_cast<quint32>(root));
    });
    // These were made first, in every file.
    for (const auto& [name, root] :
        { std::pair(u"property_database"_s, 3U), { u"property"_s, 4U } }) {
        if (!roots.tables.contains(name))
            roots.tables.insert(name, root);
    }
    return roots;
}

} // namespace

struct DamagedVolume::State
{
    explicit State(PageFile pages)
        : file(std::move(pages))
    { }

    PageFile file;
    std::vector<DatabaseContent> databases;
    std::vector<DatabaseLayout> layouts;
    bool areDatabasesLost = false;
    bool wasChangedOutside = false;
    Roots roots;

    void Load()
    {
        roots = ReadRoots(file);
        const qint64 lostPages = LoadDatabases();
        areDatabasesLost = roots.lostPages + lostPages > 0;
        LoadProperties(roots.tables.value(u"property"_s));
    }

    /// Adds the identifiers in a database's index; gives the number of its pages that are lost.
    qint64 ReadIndex(const DatabaseLayout& layout, std::set<quint32>& oids) const
    {
        // An entry is the key and, last, the record's identifier.
        return PageTreeReader(file).Visit(
            layout.indexRoot, [&oids](qint64 rowId, QByteArrayView bytes) {
                const StoredRecord entry(rowId, bytes, 0);
                if (entry.Size() > 0)
                    oids.insert(static_cast<quint32>(entry.Integer(entry.Size() - 1)));
            });
    }
    /// Visits the records on pages that belong to no tree, and did when they were last written.
    void VisitStrays(const std::function<void(const StoredRecord& record)>& visitor) const
    {
        PageTreeReader reader(file);
        const auto ignore = [](qint64, QByteArrayView) {};
        reader.Visit(1, ignore);
        for (const auto& tree : { roots.tables, roots.indexes }) {
            for (const quint32 root : tree)
                reader.Visit(root, ignore);
        }
        if (!reader.PassOverFreePages())
            return;
        for (quint32 number = 1; number <= file.PageCount(); ++number)
            reader.VisitStray(number, [&visitor](qint64 rowId, QByteArrayView bytes) {
                visitor(StoredRecord(rowId, bytes, 1));
            });
    }

private:
    enum DatabaseColumn : size_t
    {
        DatabaseName,
        DatabaseTypeNumber,
        DatabaseTable,
    };
    enum PropertyColumnPlace : size_t
    {
        PropertyDatabase,
        PropertyPosition,
        PropertyNumberAndType,
        PropertyName,
        PropertyColumnName,
        PropertyIsDeclared,
    };

    qint64 LoadDatabases()
    {
        PageTreeReader reader(file, PageTreeReader::Doubt::Believe);
        qint64 lostDatabases = 0;
        const auto add = [&](qint64 rowId, QByteArrayView bytes) {
            const StoredRecord record(rowId, bytes, 1);
            const QString table = record.Text(DatabaseTable);
            // A table's name ends in its database's identifier.
            if (!roots.tables.contains(table) || !table.endsWith(MakeTableName({}, record.Oid()))) {
                ++lostDatabases;
                return;
            }
            databases.push_back(
                { { record.Oid(), record.Text(DatabaseName),
                      static_cast<DatabaseType>(record.Integer(DatabaseTypeNumber)) },
                    {}, false });
            layouts.push_back({ roots.tables.value(table), roots.indexes.value(table), {},
                record.Text(DatabaseName) });
        };
        const qint64 lostPages = reader.Visit(roots.tables.value(u"property_database"_s), add);
        return lostPages + lostDatabases;
    }
    /// Properties stand in the order of their positions; one that is lost leaves a gap.
    void LoadProperties(quint32 root)
    {
        const qint64 lostPages = PageTreeReader(file, PageTreeReader::Doubt::Believe)
                                     .Visit(root, [this](qint64 rowId, QByteArrayView bytes) {
                                         AddProperty(StoredRecord(rowId, bytes, 0));
                                     });
        for (size_t i = 0; i < databases.size(); ++i) {
            const auto& columns = layouts[i].columns;
            const bool hasGap = columns.empty() || columns.rbegin()->first + 1 != columns.size();
            databases[i].isComplete = lostPages == 0 && !hasGap;
        }
    }
    void AddProperty(const StoredRecord& record)
    {
        const auto oid = static_cast<ObjectId>(record.Integer(PropertyDatabase));
        const auto found = std::ranges::find_if(
            databases, [oid](const DatabaseContent& content) { return content.info.oid == oid; });
        const auto id = static_cast<PropertyId>(record.Integer(PropertyNumberAndType));
        const auto position = static_cast<size_t>(record.Integer(PropertyPosition));
        if (found == databases.end() || !IsStorableType(PropertyType(id))
            || position >= kMaxDatabaseProperties)
            return;
        const auto place = static_cast<size_t>(found - databases.begin());
        const bool isNew = layouts[place].columns.emplace(position, id).second;
        if (isNew && record.Integer(PropertyIsDeclared) != 0)
            found->properties.push_back({ id, record.Text(PropertyName) });
    }
};

DamagedVolume::DamagedVolume(std::unique_ptr<State> state)
    : m_state(std::move(state))
{ }

DamagedVolume::DamagedVolume(DamagedVolume&& other) noexcept = default;
DamagedVolume& DamagedVolume::operator=(DamagedVolume&& other) noexcept = default;
DamagedVolume::~DamagedVolume() = default;

Result<DamagedVolume> DamagedVolume::Open(const QString& path)
{
    // Opened as ever it gets its journal played back, and tells why it is refused.
    const ErrorNumber mounted
        = Volume::Mount(path, Disposition::OpenExisting, VolumeAccess::ReadOnly).Error();
    const bool wasChangedOutside = mounted == ErrorNumber::ChangedOutside;
    QUILLORY_TRY_VALUE(auto file,
        PageFile::Open(
            path, wasChangedOutside ? PageFile::Trust::AsItStands : PageFile::Trust::Checksums));
    auto state = std::make_unique<State>(std::move(file));
    state->wasChangedOutside = wasChangedOutside;
    state->Load();
    return DamagedVolume(std::move(state));
}

const std::vector<DamagedVolume::DatabaseContent>& DamagedVolume::Databases() const
{
    return m_state->databases;
}

bool DamagedVolume::AreDatabasesLost() const
{
    return m_state->areDatabasesLost;
}

bool DamagedVolume::WasChangedOutside() const
{
    return m_state->wasChangedOutside;
}

qint64 DamagedVolume::MendedPages() const
{
    return m_state->file.MendedPages();
}

DamagedVolume::ReadOutcome DamagedVolume::ReadRecords(
    size_t place, const std::function<void(const Record& record)>& visitor) const
{
    const DatabaseLayout& layout = m_state->layouts[place];
    ReadOutcome outcome;
    std::set<quint32> read;
    const auto visit = [&](const StoredRecord& stored) {
        read.insert(static_cast<quint32>(stored.Oid()));
        ++outcome.records;
        visitor(layout.Decode(stored));
    };
    outcome.lostPages = PageTreeReader(m_state->file)
                            .Visit(layout.tableRoot, [&visit](qint64 rowId, QByteArrayView bytes) {
                                visit(StoredRecord(rowId, bytes, 1));
                            });
    if (outcome.lostPages == 0 || layout.indexRoot == 0)
        return outcome;
    std::set<quint32> missing;
    const qint64 lostIndexPages = m_state->ReadIndex(layout, missing);
    for (const quint32 oid : read)
        missing.erase(oid);
    // Records below a lost page still stand on pages of their own. The index says whose they are.
    if (lostIndexPages == 0)
        m_state->VisitStrays([&](const StoredRecord& stored) {
            if (missing.erase(static_cast<quint32>(stored.Oid())) > 0)
                visit(stored);
        });
    outcome.lostRecords = static_cast<qint64>(missing.size());
    return outcome;
}

} // namespace Quillory
