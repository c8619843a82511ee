// SPDX-License-Identifier: MIT
#include "propdb/detail/database_state.h"

#include "propdb/identity.h"

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// The parameter of the first value of a new record, behind its identifier and its origin.
constexpr int kFirstValue = 3;
/// Rows that lack values in every combination must not fill the memory with statements.
constexpr size_t kMaxCachedStatements = 64;

std::vector<PropertyId> IdsOf(std::span<const PropertyValue> values)
{
    std::vector<PropertyId> ids;
    ids.reserve(values.size());
    for (const PropertyValue& value : values)
        ids.push_back(value.id);
    return ids;
}

/// Binds the values to the parameters from `parameter` on.
Result<void> BindAll(Statement& statement, int parameter, std::span<const PropertyValue> values)
{
    for (const PropertyValue& value : values) {
        if ((value.flags & CEDB_PROPDELETE) != 0)
            statement.BindNull(parameter);
        else if (!statement.Bind(parameter, value))
            return ErrorNumber::InvalidParameter;
        ++parameter;
    }
    return {};
}

} // namespace

Result<Statement*> StatementCache::Find(std::span<const PropertyId> ids, const Maker& make)
{
    if (m_last != nullptr && std::ranges::equal(ids, m_lastIds))
        return m_last;
    std::vector<PropertyId> key(ids.begin(), ids.end());
    auto found = m_statements.find(key);
    if (found == m_statements.end()) {
        QUILLORY_TRY_VALUE(auto made, make());
        if (m_statements.size() >= kMaxCachedStatements)
            Clear();
        found = m_statements.emplace(key, std::move(made)).first;
    }
    m_lastIds = std::move(key);
    m_last = &found->second;
    return m_last;
}

void StatementCache::Clear()
{
    m_statements.clear();
    m_last = nullptr;
}

DatabaseState::DatabaseState(VolumeState& volumeState,
    std::shared_ptr<const DatabaseSchema> databaseSchema, const SortOrder& sortOrder)
    : volume(volumeState)
    , schema(std::move(databaseSchema))
    , order(sortOrder)
    , cursor(volume.Connection(), schema, order)
{
    volume.NoteOpened(schema->oid);
}

DatabaseState::~DatabaseState()
{
    volume.NoteClosed(schema->oid);
}

QString DatabaseState::ColumnList(std::span<const PropertyId> ids) const
{
    QString list;
    for (const PropertyId id : ids) {
        const PropertyColumn* column = schema->Find(id);
        list += u", "_s + (column == nullptr ? u"NULL"_s : QuotedName(column->columnName));
    }
    return list;
}

QString DatabaseState::OriginColumn() const
{
    return schema->hasOrigins ? QString::fromLatin1(kOriginColumn) : u"NULL"_s;
}

Origin DatabaseState::OriginOf(ObjectId record, Origin stored) const
{
    return stored == kNoOrigin ? DerivedOrigin(schema->name, record) : stored;
}

Result<ObjectId> DatabaseState::Insert(std::span<const PropertyValue> values, Origin origin)
{
    volume.NoteOrderChange();
    const auto ids = IdsOf(values);
    const auto make = [&] {
        QString parameters;
        for (size_t i = 0; i < ids.size(); ++i)
            parameters += u", ?%1"_s.arg(i + kFirstValue);
        return Statement::Prepare(volume.Connection(),
            u"INSERT INTO %1(oid, %2%3) VALUES(?1, ?2%4)"_s.arg(
                QuotedName(schema->tableName), OriginColumn(), ColumnList(ids), parameters),
            true);
    };
    QUILLORY_TRY_VALUE(Statement* const statement, inserts.Find(ids, make));
    QUILLORY_TRY_VALUE(const auto oid, volume.AllocateOid());
    statement->Bind(1, oid);
    statement->Bind(2, static_cast<qint64>(origin == kNoOrigin ? volume.DrawOrigin() : origin));
    QUILLORY_TRY(BindAll(*statement, kFirstValue, values));
    QUILLORY_TRY(statement->Run());
    return oid;
}

Result<ObjectId> DatabaseState::Update(ObjectId oid, std::span<const PropertyValue> values)
{
    const auto ids = IdsOf(values);
    if (std::ranges::find(ids, order.key) != ids.end())
        volume.NoteOrderChange();
    const auto make = [&] {
        QString assignments;
        for (size_t i = 0; i < ids.size(); ++i) {
            assignments += i == 0 ? QString() : u", "_s;
            assignments += QuotedName(schema->Find(ids[i])->columnName) + u" = ?%1"_s.arg(i + 2);
        }
        return Statement::Prepare(volume.Connection(),
            u"UPDATE %1 SET %2 WHERE oid = ?1 RETURNING oid"_s.arg(
                QuotedName(schema->tableName), assignments),
            true);
    };
    QUILLORY_TRY_VALUE(Statement* const statement, updates.Find(ids, make));
    statement->Bind(1, oid);
    QUILLORY_TRY(BindAll(*statement, 2, values));
    const auto isThere = statement->Step();
    statement->Reset();
    QUILLORY_TRY(isThere);
    return *isThere ? Result<ObjectId>(oid) : ErrorNumber::NotFound;
}

Result<void> DatabaseState::Delete(ObjectId oid)
{
    volume.NoteOrderChange();
    // A position on the record notes the key that is about to go.
    QUILLORY_TRY(cursor.Current());
    QUILLORY_TRY_VALUE(auto remove,
        Statement::Prepare(volume.Connection(),
            u"DELETE FROM %1 WHERE oid = ?1 RETURNING oid"_s.arg(QuotedName(schema->tableName))));
    remove.Bind(1, oid);
    QUILLORY_TRY_VALUE(const bool isGone, remove.Step());
    return isGone ? ErrorNumber::None : ErrorNumber::NotFound;
}

Result<std::vector<ObjectId>> DatabaseState::ListRecords()
{
    QUILLORY_TRY_VALUE(const auto version, volume.ReadOrderVersion());
    if (listingVersion != version) {
        listingVersion.reset();
        QUILLORY_TRY_VALUE(auto listed, cursor.List());
        listing = std::move(listed);
        listingVersion = version;
    }
    return listing;
}

void DatabaseState::ForgetOlderSelects()
{
    if (areSelectsWithOrigins != schema->hasOrigins)
        selects.Clear();
    areSelectsWithOrigins = schema->hasOrigins;
}

Result<Record> DatabaseState::ReadRecord(ObjectId oid, std::span<const PropertyId> ids)
{
    ForgetOlderSelects();
    const auto make = [&] {
        return Statement::Prepare(volume.Connection(),
            u"SELECT oid, %1%2 FROM %3 WHERE oid = ?1"_s.arg(
                OriginColumn(), ColumnList(ids), QuotedName(schema->tableName)),
            true);
    };
    QUILLORY_TRY_VALUE(Statement* const statement, selects.Find(ids, make));
    statement->Bind(1, oid);
    QUILLORY_TRY_VALUE(const auto step, statement->Step());
    if (!step)
        return ErrorNumber::NotFound;
    Record record { oid, std::vector<PropertyValue>(ids.size()),
        OriginOf(oid, static_cast<Origin>(statement->Int64(1))) };
    for (size_t i = 0; i < ids.size(); ++i) {
        record.values[i].id = ids[i];
        statement->ReadProperty(static_cast<int>(i) + kOwnColumns, record.values[i]);
    }
    statement->Reset();
    return record;
}

} // namespace Quillory
