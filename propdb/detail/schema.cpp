// SPDX-License-Identifier: MIT
#include "propdb/detail/schema.h"

#include "propdb/detail/statement.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

struct SystemTable
{
    const char* name;
    const char* sql;
    /// The first version of the layout that has it.
    int since = 1;
};

/// The tables that describe a volume. Their words are compared when a file is opened.
constexpr std::array kSystemTables {
    SystemTable {
        "object_counter", "CREATE TABLE object_counter(next_oid INTEGER NOT NULL) STRICT" },
    SystemTable { "property_database",
        "CREATE TABLE property_database(oid INTEGER PRIMARY KEY, name TEXT NOT NULL, "
        "type INTEGER NOT NULL, table_name TEXT NOT NULL) STRICT" },
    SystemTable { "property",
        "CREATE TABLE property(database INTEGER NOT NULL, position INTEGER NOT NULL, "
        "id INTEGER NOT NULL, name TEXT NOT NULL, column_name TEXT NOT NULL, "
        "is_declared INTEGER NOT NULL, PRIMARY KEY(database, position)) STRICT, WITHOUT ROWID" },
    SystemTable { "sort_order",
        "CREATE TABLE sort_order(database INTEGER NOT NULL, position INTEGER NOT NULL, "
        "id INTEGER NOT NULL, PRIMARY KEY(database, position)) STRICT, WITHOUT ROWID" },
    SystemTable { "history",
        "CREATE TABLE history(position INTEGER PRIMARY KEY, state INTEGER NOT NULL, "
        "revision INTEGER NOT NULL) STRICT",
        2 },
};

constexpr qsizetype kMaxNameLength = 64;

/// Those of a version; each has all of the ones before.
std::span<const SystemTable> TablesOf(int formatVersion)
{
    const auto end = std::ranges::find_if(
        kSystemTables, [formatVersion](const auto& table) { return table.since > formatVersion; });
    return { kSystemTables.begin(), end };
}

QString ColumnSql(const PropertyColumn& column)
{
    return QuotedName(column.columnName) + u' ' + QLatin1StringView(DeclaredType(column.id));
}

QString OriginColumnSql()
{
    return QLatin1StringView(kOriginColumn) + u" INTEGER"_s;
}

QString TableSql(const DatabaseSchema& schema)
{
    QString sql = u"CREATE TABLE "_s + QuotedName(schema.tableName) + u"(oid INTEGER PRIMARY KEY"_s;
    for (const PropertyColumn& column : schema.properties)
        sql += u", "_s + ColumnSql(column);
    if (schema.hasOrigins)
        sql += u", "_s + OriginColumnSql();
    return sql + u") STRICT"_s;
}

QString IndexSql(const DatabaseSchema& schema, const PropertyColumn& key)
{
    return u"CREATE INDEX "_s + QuotedName(IndexName(schema, key)) + u" ON "_s
        + QuotedName(schema.tableName) + u'(' + QuotedName(key.columnName) + u')';
}

/// What is left of a name when it has to serve as one in SQL: plain letters, digits and spaces.
QString PlainName(const QString& name)
{
    QString plain = name.left(kMaxNameLength);
    for (QChar& unit : plain) {
        const bool isPlain = unit.isLetterOrNumber() || unit == u' ' || unit == u'-';
        if (!isPlain || unit.isSurrogate())
            unit = u'_';
    }
    return plain.trimmed();
}

Result<void> RunSql(sqlite3* connection, const QString& sql)
{
    QUILLORY_TRY_VALUE(auto statement, Statement::Prepare(connection, sql));
    return statement.Run();
}

Result<void> InsertProperty(sqlite3* connection, const DatabaseSchema& schema,
    const PropertyColumn& column, qint64 position)
{
    QUILLORY_TRY_VALUE(auto insert,
        Statement::Prepare(connection, u"INSERT INTO property VALUES(?1, ?2, ?3, ?4, ?5, ?6)"_s));
    insert.Bind(1, schema.oid);
    insert.Bind(2, position);
    insert.Bind(3, static_cast<qint64>(column.id));
    insert.Bind(4, QStringView(column.name));
    insert.Bind(5, QStringView(column.columnName));
    insert.Bind(6, qint64 { column.isDeclared });
    return insert.Run();
}

Result<void> InsertSortOrder(
    sqlite3* connection, const DatabaseSchema& schema, const SortOrder& order, qint64 position)
{
    QUILLORY_TRY_VALUE(auto insert,
        Statement::Prepare(connection, u"INSERT INTO sort_order VALUES(?1, ?2, ?3)"_s));
    insert.Bind(1, schema.oid);
    insert.Bind(2, position);
    insert.Bind(3, static_cast<qint64>(order.key));
    return insert.Run();
}

/// Whether the number in a column is one of 32 bits without a sign.
bool Fits(const Statement& row, int column)
{
    const qint64 number = row.Int64(column);
    return number >= 0 && number <= std::numeric_limits<quint32>::max();
}

bool HasOrigins(int formatVersion)
{
    constexpr int kFirstWithOrigins = 2;
    return formatVersion >= kFirstWithOrigins;
}

Result<int> ReadFormatVersion(sqlite3* connection)
{
    QUILLORY_TRY_VALUE(auto select, Statement::Prepare(connection, u"PRAGMA user_version"_s));
    QUILLORY_TRY(select.Step());
    return static_cast<int>(select.Int64(0));
}

Result<void> LoadDatabases(sqlite3* connection, VolumeSchema& volume)
{
    QUILLORY_TRY_VALUE(auto select,
        Statement::Prepare(connection,
            u"SELECT oid, name, type, table_name FROM property_database ORDER BY oid"_s));
    QSet<QString> tables;
    while (select.Next()) {
        auto schema = std::make_shared<DatabaseSchema>();
        schema->hasOrigins = HasOrigins(volume.FormatVersion());
        schema->oid = select.Oid(0);
        schema->name = select.Text(1);
        schema->type = static_cast<DatabaseType>(select.Int64(2));
        schema->tableName = select.Text(3);
        const bool isOne = Fits(select, 0) && Fits(select, 2) && schema->oid != kNoObject
            && volume.Find(schema->name) == nullptr && !tables.contains(schema->tableName);
        if (!isOne || volume.All().size() >= kMaxDatabases)
            return ErrorNumber::FileCorrupt;
        tables.insert(schema->tableName);
        volume.Insert(std::move(schema));
    }
    return select.Error();
}

Result<void> LoadProperties(sqlite3* connection, const VolumeSchema& volume)
{
    QUILLORY_TRY_VALUE(auto select,
        Statement::Prepare(connection,
            u"SELECT database, id, name, column_name, is_declared FROM property "_s
            u"ORDER BY database, position"_s));
    while (select.Next()) {
        const auto schema = volume.Find(select.Oid(0));
        const auto id = static_cast<PropertyId>(select.Int64(1));
        const bool isOne = Fits(select, 0) && Fits(select, 1) && schema != nullptr
            && schema->Find(id) == nullptr && IsStorableType(PropertyType(id));
        if (!isOne || schema->properties.size() >= kMaxDatabaseProperties)
            return ErrorNumber::FileCorrupt;
        schema->properties.push_back({ id, select.Text(2), select.Text(3), select.Int64(4) != 0 });
    }
    return select.Error();
}

Result<void> LoadSortOrders(sqlite3* connection, const VolumeSchema& volume)
{
    QUILLORY_TRY_VALUE(auto select,
        Statement::Prepare(
            connection, u"SELECT database, id FROM sort_order ORDER BY database, position"_s));
    while (select.Next()) {
        const auto schema = volume.Find(select.Oid(0));
        const auto id = static_cast<PropertyId>(select.Int64(1));
        // A database has one order at most.
        if (!Fits(select, 0) || !Fits(select, 1) || schema == nullptr || schema->Find(id) == nullptr
            || !schema->sortOrders.empty())
            return ErrorNumber::FileCorrupt;
        schema->sortOrders.push_back({ id });
    }
    return select.Error();
}

/// Name and words of everything the file should hold.
QHash<QString, QString> ExpectedObjects(const VolumeSchema& volume)
{
    QHash<QString, QString> expected;
    for (const SystemTable& table : TablesOf(volume.FormatVersion()))
        expected.insert(QString::fromLatin1(table.name), QString::fromLatin1(table.sql));
    for (const auto& [oid, schema] : volume.All()) {
        expected.insert(schema->tableName, TableSql(*schema));
        for (const SortOrder& order : schema->sortOrders) {
            const PropertyColumn& key = *schema->Find(order.key);
            expected.insert(IndexName(*schema, key), IndexSql(*schema, key));
        }
    }
    return expected;
}

Result<QHash<QString, QString>> ActualObjects(sqlite3* connection)
{
    QHash<QString, QString> actual;
    QUILLORY_TRY_VALUE(
        auto select, Statement::Prepare(connection, u"SELECT name, sql FROM sqlite_schema"_s));
    while (select.Next())
        actual.insert(select.Text(0), select.Text(1));
    if (select.Error() != ErrorNumber::None)
        return select.Error();
    return actual;
}

} // namespace

const PropertyColumn* DatabaseSchema::Find(PropertyId id) const
{
    const auto found = std::find_if(properties.begin(), properties.end(),
        [id](const PropertyColumn& column) { return column.id == id; });
    return found == properties.end() ? nullptr : &*found;
}

std::shared_ptr<DatabaseSchema> VolumeSchema::Find(ObjectId oid) const
{
    const auto found = m_databases.find(oid);
    return found == m_databases.end() ? nullptr : found->second;
}

std::shared_ptr<DatabaseSchema> VolumeSchema::Find(const QString& name) const
{
    return Find(m_oids.value(name, kNoObject));
}

void VolumeSchema::Insert(std::shared_ptr<DatabaseSchema> database)
{
    m_oids.insert(database->name, database->oid);
    m_databases[database->oid] = std::move(database);
}

void VolumeSchema::Remove(const DatabaseSchema& database)
{
    m_oids.remove(database.name);
    m_databases.erase(database.oid);
}

void VolumeSchema::Rename(DatabaseSchema& database, const QString& name, DatabaseType type)
{
    m_oids.remove(database.name);
    database.name = name;
    database.type = type;
    m_oids.insert(name, database.oid);
}

void VolumeSchema::SetFormatVersion(int version)
{
    m_formatVersion = version;
    for (const auto& [oid, database] : m_databases)
        database->hasOrigins = HasOrigins(version);
}

QString QuotedName(const QString& name)
{
    QString quoted = name;
    return u'"' + quoted.replace(u'"', u"\"\""_s) + u'"';
}

QString IndexName(const DatabaseSchema& schema, const PropertyColumn& key)
{
    return schema.tableName + u" by "_s + key.columnName;
}

const char* DeclaredType(PropertyId id)
{
    switch (PropertyType(id)) {
    case CEVT_R8:
        // A column of type REAL would store -0.0 as 0.
        return "ANY";
    case CEVT_LPWSTR:
        return "TEXT";
    case CEVT_BLOB:
        return "BLOB";
    default:
        return "INTEGER";
    }
}

bool IsStorableType(quint16 type)
{
    switch (type) {
    case CEVT_I2:
    case CEVT_I4:
    case CEVT_R8:
    case CEVT_BOOL:
    case CEVT_UI4:
    case CEVT_LPWSTR:
    case CEVT_FILETIME:
    case CEVT_BLOB:
        return true;
    default:
        return false;
    }
}

PropertyColumn MakeColumn(const DatabaseSchema& schema, const PropertySpec& spec)
{
    const auto isTaken = [&schema](const QString& name) {
        const auto isSame = [&name](const QString& other) {
            return other.compare(name, Qt::CaseInsensitive) == 0;
        };
        return name.isEmpty() || isSame(u"oid"_s) || isSame(u"rowid"_s) || isSame(u"_rowid_"_s)
            || std::any_of(schema.properties.begin(), schema.properties.end(),
                [&](const PropertyColumn& column) { return isSame(column.columnName); });
    };
    QString columnName = PlainName(spec.name);
    if (isTaken(columnName))
        columnName += u"_%1"_s.arg(PropertyNumber(spec.id));
    while (isTaken(columnName))
        columnName += u'_';
    return { spec.id, spec.name, columnName, spec.isDeclared };
}

QString MakeTableName(const QString& databaseName, ObjectId oid)
{
    const QString plain = PlainName(databaseName);
    // SQLite keeps such names for itself.
    const bool isReserved = plain.startsWith(u"sqlite_"_s, Qt::CaseInsensitive);
    const QString number = QString::number(static_cast<quint32>(oid));
    return (isReserved ? u"_"_s : QString()) + plain + u" ("_s + number + u')';
}

Result<void> CreateVolumeSchema(sqlite3* connection)
{
    QUILLORY_TRY(Execute(connection, "BEGIN IMMEDIATE"));
    for (const SystemTable& table : kSystemTables)
        QUILLORY_TRY(Execute(connection, table.sql));
    return Execute(connection, "INSERT INTO object_counter VALUES(1); COMMIT");
}

Result<void> CreateDatabaseSchema(sqlite3* connection, const DatabaseSchema& schema)
{
    QUILLORY_TRY_VALUE(auto insert,
        Statement::Prepare(connection, u"INSERT INTO property_database VALUES(?1, ?2, ?3, ?4)"_s));
    insert.Bind(1, schema.oid);
    insert.Bind(2, QStringView(schema.name));
    insert.Bind(3, static_cast<qint64>(schema.type));
    insert.Bind(4, QStringView(schema.tableName));
    QUILLORY_TRY(insert.Run());
    for (size_t i = 0; i < schema.properties.size(); ++i)
        QUILLORY_TRY(
            InsertProperty(connection, schema, schema.properties[i], static_cast<qint64>(i)));
    QUILLORY_TRY(RunSql(connection, TableSql(schema)));
    for (size_t i = 0; i < schema.sortOrders.size(); ++i) {
        const SortOrder& order = schema.sortOrders[i];
        QUILLORY_TRY(InsertSortOrder(connection, schema, order, static_cast<qint64>(i)));
        QUILLORY_TRY(RunSql(connection, IndexSql(schema, *schema.Find(order.key))));
    }
    return {};
}

Result<void> RenameDatabaseSchema(sqlite3* connection, const DatabaseSchema& schema)
{
    QUILLORY_TRY_VALUE(auto update,
        Statement::Prepare(
            connection, u"UPDATE property_database SET name = ?2, type = ?3 WHERE oid = ?1"_s));
    update.Bind(1, schema.oid);
    update.Bind(2, QStringView(schema.name));
    update.Bind(3, static_cast<qint64>(schema.type));
    return update.Run();
}

Result<void> DropDatabaseSchema(sqlite3* connection, const DatabaseSchema& schema)
{
    QUILLORY_TRY(RunSql(connection, u"DROP TABLE "_s + QuotedName(schema.tableName)));
    for (const QString& sql : { u"DELETE FROM sort_order WHERE database = ?1"_s,
             u"DELETE FROM property WHERE database = ?1"_s,
             u"DELETE FROM property_database WHERE oid = ?1"_s }) {
        QUILLORY_TRY_VALUE(auto statement, Statement::Prepare(connection, sql));
        statement.Bind(1, schema.oid);
        QUILLORY_TRY(statement.Run());
    }
    return {};
}

Result<void> CarryOverSchema(sqlite3* connection, const VolumeSchema& schema)
{
    const size_t present = TablesOf(schema.FormatVersion()).size();
    for (const SystemTable& table : std::span(kSystemTables).subspan(present))
        QUILLORY_TRY(Execute(connection, table.sql));
    for (const auto& [oid, database] : schema.All()) {
        if (!database->hasOrigins)
            QUILLORY_TRY(RunSql(connection,
                u"ALTER TABLE "_s + QuotedName(database->tableName) + u" ADD COLUMN "_s
                    + OriginColumnSql()));
    }
    return {};
}

Result<VolumeSchema> LoadVolumeSchema(sqlite3* connection)
{
    // While a row is being read no other program's write comes between one table and the next.
    QUILLORY_TRY_VALUE(auto hold, Statement::Prepare(connection, u"SELECT 1 FROM sqlite_schema"_s));
    QUILLORY_TRY(hold.Step());
    QUILLORY_TRY_VALUE(const auto actual, ActualObjects(connection));
    QUILLORY_TRY_VALUE(const int formatVersion, ReadFormatVersion(connection));
    for (const SystemTable& table : TablesOf(formatVersion)) {
        if (actual.value(QString::fromLatin1(table.name)) != QString::fromLatin1(table.sql))
            return ErrorNumber::FileCorrupt;
    }
    VolumeSchema volume(formatVersion);
    QUILLORY_TRY(LoadDatabases(connection, volume));
    QUILLORY_TRY(LoadProperties(connection, volume));
    QUILLORY_TRY(LoadSortOrders(connection, volume));
    if (ExpectedObjects(volume) != actual)
        return ErrorNumber::FileCorrupt;
    return volume;
}

} // namespace Quillory
