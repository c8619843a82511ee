// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/volume_file.h"
#include "propdb/property_value.h"
#include "propdb/result.h"
#include "propdb/volume.h"

#include <QHash>
#include <QString>

#include <map>
#include <memory>
#include <vector>

struct sqlite3;

namespace Quillory {

/// A property of a database and the table column that holds it.
struct PropertyColumn
{
    PropertyId id {};
    QString name;
    QString columnName;
    bool isDeclared = true;
};

/// How a database is laid out: one table, a column per property, an index per sort order.
struct DatabaseSchema
{
    ObjectId oid = kNoObject;
    QString name;
    DatabaseType type {};
    QString tableName;
    std::vector<PropertyColumn> properties;
    std::vector<SortOrder> sortOrders;
    /// Whether the table has a column for the origins of records: not in files of version 1.
    bool hasOrigins = true;

    /// Null if the database has no such property.
    [[nodiscard]] const PropertyColumn* Find(PropertyId id) const;
};

/// What a file may hold of each; more is no program's but one that wants to be slow.
constexpr size_t kMaxDatabases = 25'000;
/// The table has columns for the identifier and the origin besides.
constexpr size_t kMaxDatabaseProperties = 511;
constexpr int kOwnColumns = 2;
/// The column for the origins, quoted; no property's column has a name with such a sign.
constexpr char kOriginColumn[] = "\"$origin\"";

/// The layout of a whole volume as its own tables describe it.
class VolumeSchema
{
public:
    explicit VolumeSchema(int formatVersion = kFormatVersion)
        : m_formatVersion(formatVersion)
    { }

    /// By their identifiers, oldest first.
    using Databases = std::map<ObjectId, std::shared_ptr<DatabaseSchema>>;
    [[nodiscard]] const Databases& All() const { return m_databases; }
    /// Null if there is none.
    [[nodiscard]] std::shared_ptr<DatabaseSchema> Find(ObjectId oid) const;
    [[nodiscard]] std::shared_ptr<DatabaseSchema> Find(const QString& name) const;

    /// Adds a database, or puts it in the place of the one with its identifier.
    void Insert(std::shared_ptr<DatabaseSchema> database);
    void Remove(const DatabaseSchema& database);
    void Rename(DatabaseSchema& database, const QString& name, DatabaseType type);

    /// The version of the file's layout, and of every database in it.
    [[nodiscard]] int FormatVersion() const { return m_formatVersion; }
    void SetFormatVersion(int version);

private:
    int m_formatVersion;
    Databases m_databases;
    QHash<QString, ObjectId> m_oids;
};

/// The identifier in double quotes, as SQL wants it.
[[nodiscard]] QString QuotedName(const QString& name);
/// The name of the index that serves the order by `key`.
[[nodiscard]] QString IndexName(const DatabaseSchema& schema, const PropertyColumn& key);

/// The type that the column of a property is declared to hold.
[[nodiscard]] const char* DeclaredType(PropertyId id);
/// Whether a property of this type can be stored.
[[nodiscard]] bool IsStorableType(quint16 type);

/// A column for a property of `schema`, under a name that no other column of the table has.
[[nodiscard]] PropertyColumn MakeColumn(const DatabaseSchema& schema, const PropertySpec& spec);
/// The name of the table of a database.
[[nodiscard]] QString MakeTableName(const QString& databaseName, ObjectId oid);

/// Makes the tables of an empty volume, in a transaction.
[[nodiscard]] Result<void> CreateVolumeSchema(sqlite3* connection);
/// This and the two that follow belong to a transaction of the caller, who undoes it where one of
/// them fails.
[[nodiscard]] Result<void> CreateDatabaseSchema(sqlite3* connection, const DatabaseSchema& schema);
/// Stores the name and type that `schema` has now.
[[nodiscard]] Result<void> RenameDatabaseSchema(sqlite3* connection, const DatabaseSchema& schema);
[[nodiscard]] Result<void> DropDatabaseSchema(sqlite3* connection, const DatabaseSchema& schema);
/// Gives the file of an older version, of which this is the schema, the tables and columns of the
/// newest. Takes one reading of each table; no record is written.
[[nodiscard]] Result<void> CarryOverSchema(sqlite3* connection, const VolumeSchema& schema);

/// Reads the layout and proves that the file holds these tables and indexes, by exactly the SQL by
/// which this program makes them, and nothing else, or by which it made them in the version that
/// the file says to be of: each database with a name, an identifier and a table of its own, and no
/// more than there may be. FileCorrupt if not.
[[nodiscard]] Result<VolumeSchema> LoadVolumeSchema(sqlite3* connection);

} // namespace Quillory
