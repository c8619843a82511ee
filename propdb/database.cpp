// SPDX-License-Identifier: MIT
#include "propdb/database.h"

#include "propdb/detail/database_state.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Lets the page cache hold a whole table while its records are read through the index, which
/// would otherwise read each page as many times as it has records. The memory is given back.
class RoomyCache
{
public:
    explicit RoomyCache(sqlite3* connection)
        : m_connection(connection)
    {
        static_cast<void>(Execute(m_connection, "PRAGMA cache_size = -98304").IsOk());
    }
    ~RoomyCache()
    {
        static_cast<void>(Execute(m_connection, kUsualCache).IsOk());
        sqlite3_db_release_memory(m_connection);
    }
    RoomyCache(const RoomyCache&) = delete;
    RoomyCache& operator=(const RoomyCache&) = delete;

private:
    sqlite3* m_connection;
};

/// Reads properties of records by SQL and has them visited.
class RecordSelect
{
public:
    /// Origins are not read unless `origins` names their column: an index can do without it.
    RecordSelect(const DatabaseState& state, std::span<const PropertyId> ids,
        const Database::RecordVisitor& visitor, const QString& origins = u"NULL"_s)
        : m_state(state)
        , m_visitor(visitor)
    {
        for (const PropertyId id : ids)
            m_classes.push_back(ClassesOfDeclaration(DeclaredType(id)));
        m_select
            = u"SELECT %1(oid, %2%3) FROM %4"_s.arg(QLatin1StringView(RecordVisit::kFunctionName),
                origins, state.ColumnList(ids), QuotedName(state.schema->tableName));
    }
    RecordSelect(const RecordSelect&) = delete;
    RecordSelect& operator=(const RecordSelect&) = delete;

    [[nodiscard]] Result<Statement> Prepare(const QString& clauses) const
    {
        if (m_classes.size() > RecordVisit::kMaxProperties)
            return ErrorNumber::InvalidParameter;
        return Statement::Prepare(m_state.volume.Connection(), m_select + clauses);
    }
    /// False where the visitor wants no more.
    [[nodiscard]] Result<bool> Run(Statement& statement)
    {
        return m_state.volume.Visit().Run(statement, m_classes, m_limit, m_visitor);
    }
    /// Whether more was read than the file has: the rest would be read just as slowly, for nothing.
    [[nodiscard]] bool IsLimitPassed() const { return m_limit.IsPassed(); }

private:
    const DatabaseState& m_state;
    ReadingLimit m_limit;
    const Database::RecordVisitor& m_visitor;
    std::vector<ValueClasses> m_classes;
    QString m_select;
};

Result<void> CheckValues(const DatabaseSchema& schema, std::span<const PropertyValue> values)
{
    if (values.empty())
        return ErrorNumber::InvalidParameter;
    for (size_t i = 0; i < values.size(); ++i) {
        if (schema.Find(values[i].id) == nullptr)
            return ErrorNumber::InvalidParameter;
        for (size_t k = 0; k < i; ++k) {
            if (values[k].id == values[i].id)
                return ErrorNumber::AlreadyExists;
        }
    }
    return {};
}

} // namespace

Database::Database(std::unique_ptr<DatabaseState> state)
    : m_state(std::move(state))
{ }

Database::~Database() = default;

ObjectId Database::Oid() const
{
    return m_state->schema->oid;
}

Result<qint64> Database::RecordCount()
{
    sqlite3* connection = m_state->volume.Connection();
    QUILLORY_TRY_VALUE(const qint64 limit, ReadRecordLimit(connection));
    QUILLORY_TRY_VALUE(auto count,
        Statement::Prepare(connection,
            u"SELECT count(*) FROM (SELECT 1 FROM %1 LIMIT ?1)"_s.arg(
                QuotedName(m_state->schema->tableName))));
    count.Bind(1, limit);
    QUILLORY_TRY(count.Step());
    if (count.Int64(0) == limit)
        return ErrorNumber::FileCorrupt;
    return count.Int64(0);
}

std::vector<PropertySpec> Database::Properties() const
{
    std::vector<PropertySpec> specs;
    for (const PropertyColumn& column : m_state->schema->properties) {
        if (column.isDeclared)
            specs.push_back({ column.id, column.name });
    }
    return specs;
}

bool Database::Has(PropertyId id) const
{
    return m_state->schema->Find(id) != nullptr;
}

Result<ObjectId> Database::SeekFirst()
{
    return m_state->cursor.First();
}

Result<ObjectId> Database::SeekNext(int n)
{
    const auto direction = n < 0 ? WalkDirection::Backward : WalkDirection::Forward;
    if (n == 0)
        return m_state->cursor.Current();
    Result<ObjectId> place = kNoObject;
    for (int i = 0; i != n; i += n < 0 ? -1 : 1) {
        place = m_state->cursor.Step(direction);
        if (!place || *place == kNoObject)
            break;
    }
    return place;
}

Result<ObjectId> Database::SeekTo(ObjectId oid)
{
    return m_state->cursor.SeekTo(oid);
}

Result<Record> Database::ReadAll()
{
    std::vector<PropertyId> ids;
    for (const PropertyColumn& column : m_state->schema->properties)
        ids.push_back(column.id);
    auto record = Read(ids);
    if (record)
        std::erase_if(record->values, [](const PropertyValue& value) { return value.IsMissing(); });
    return record;
}

Result<Record> Database::Read(std::span<const PropertyId> ids)
{
    QUILLORY_TRY_VALUE(const auto place, m_state->cursor.Place());
    return m_state->ReadRecord(place, ids);
}

Result<ObjectId> Database::Write(
    ObjectId oid, std::span<const PropertyValue> values, ChangeKind kind)
{
    QUILLORY_TRY(CheckValues(*m_state->schema, values));
    return m_state->volume.Write(
        [&] {
            return oid == kNoObject ? m_state->Insert(values, kNoOrigin)
                                    : m_state->Update(oid, values);
        },
        kind);
}

Result<ObjectId> Database::AddBack(const Record& record)
{
    QUILLORY_TRY(CheckValues(*m_state->schema, record.values));
    return m_state->volume.Write([&] { return m_state->Insert(record.values, record.origin); });
}

Result<void> Database::DeleteRecord(ObjectId oid)
{
    return m_state->volume.Write([&] { return m_state->Delete(oid); });
}

Result<std::vector<ObjectId>> Database::ListRecords()
{
    return m_state->ListRecords();
}

Result<void> Database::Scan(
    std::span<const PropertyId> ids, ScanOrder order, const Visitor& visitor)
{
    std::vector<PropertyValue> values(ids.size());
    for (size_t i = 0; i < ids.size(); ++i)
        values[i].id = ids[i];
    return ScanInPlace(ids, order, [&](const ScannedRecord& record) {
        for (size_t i = 0; i < values.size(); ++i)
            record.Read(i, values[i]);
        return visitor(record.Oid(), values);
    });
}

Result<void> Database::ScanInPlace(
    std::span<const PropertyId> ids, ScanOrder order, const RecordVisitor& visitor)
{
    sqlite3* connection = m_state->volume.Connection();
    RecordSelect select(*m_state, ids, visitor);
    const auto run = [&select](const QString& clauses) -> Result<bool> {
        QUILLORY_TRY_VALUE(auto statement, select.Prepare(clauses));
        return select.Run(statement);
    };
    if (order != ScanOrder::Sorted)
        return run(order == ScanOrder::Stored ? u" NOT INDEXED"_s : QString()).Error();
    const PropertyColumn& keyColumn = *m_state->schema->Find(m_state->order.key);
    const QString key = QuotedName(keyColumn.columnName);
    // A record is visited when it is read, not once it would be sorted: the index has to lead.
    const QString byIndex
        = u" INDEXED BY %1 WHERE %2"_s.arg(QuotedName(IndexName(*m_state->schema, keyColumn)), key);
    const RoomyCache roomyCache(connection);
    for (const QString& part :
        { u" IS NOT NULL ORDER BY %1, oid"_s.arg(key), u" IS NULL ORDER BY oid"_s }) {
        QUILLORY_TRY_VALUE(const bool goesOn, run(byIndex + part));
        if (!goesOn)
            break;
    }
    return {};
}

Result<void> Database::ScanOrigins(std::span<const PropertyId> ids, const OriginVisitor& visitor)
{
    const RecordVisitor visit = [&](const ScannedRecord& record) {
        return visitor(m_state->OriginOf(record.Oid(), record.StoredOrigin()), record);
    };
    RecordSelect select(*m_state, ids, visit, m_state->OriginColumn());
    QUILLORY_TRY_VALUE(auto statement, select.Prepare(u" NOT INDEXED"_s));
    return select.Run(statement).Error();
}

Database::VisitOutcome Database::VisitEach(
    std::span<const ObjectId> oids, std::span<const PropertyId> ids, const RecordVisitor& visitor)
{
    VisitOutcome outcome;
    RecordSelect select(*m_state, ids, visitor);
    auto statement = select.Prepare(u" WHERE oid = ?1"_s);
    if (!statement) {
        outcome.error = statement.Error();
        return outcome;
    }
    const RoomyCache roomyCache(m_state->volume.Connection());
    for (const ObjectId oid : oids) {
        statement->Bind(1, oid);
        const Result<bool> done
            = select.IsLimitPassed() ? ErrorNumber::FileCorrupt : select.Run(*statement);
        if (done && !*done)
            break;
        if (!done && outcome.passedOver++ == 0)
            outcome.error = done.Error();
    }
    return outcome;
}

} // namespace Quillory
