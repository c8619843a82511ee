// SPDX-License-Identifier: MIT
#include "propdb/detail/cursor.h"

#include "propdb/detail/reading_limit.h"

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

Cursor::Cursor(sqlite3* connection, std::shared_ptr<const DatabaseSchema> schema, SortOrder order)
    : m_connection(connection)
    , m_schema(std::move(schema))
    , m_order(order)
{
    m_key.id = order.key;
}

QString Cursor::KeyName() const
{
    return QuotedName(m_schema->Find(m_order.key)->columnName);
}

QString Cursor::RangeSql(const QString& columns, Range range, WalkDirection direction) const
{
    const bool isForward = direction == WalkDirection::Forward;
    const QString comparison = isForward ? u">"_s : u"<"_s;
    const QString turn = isForward ? QString() : u" DESC"_s;
    const QString key = KeyName();
    const QString records
        = u"SELECT %1 FROM %2 WHERE %3"_s.arg(columns, QuotedName(m_schema->tableName), key);
    const QString byKey = u" ORDER BY %1%2, oid%2"_s.arg(key, turn);
    const QString byOid = u" ORDER BY oid"_s + turn;
    switch (range) {
    case Range::SameKey:
        return records + u" IS ?1 AND oid %1 ?2"_s.arg(comparison) + byOid;
    case Range::OtherKeys:
        return records + u" %1 ?1"_s.arg(comparison) + byKey;
    case Range::Keyed:
        return records + u" IS NOT NULL"_s + byKey;
    case Range::Keyless:
        break;
    }
    return records + u" IS NULL"_s + byOid;
}

Result<bool> Cursor::ReadKey(ObjectId oid)
{
    if (!m_readKey) {
        const QString sql
            = u"SELECT %1 FROM %2 WHERE oid = ?1"_s.arg(KeyName(), QuotedName(m_schema->tableName));
        QUILLORY_TRY_VALUE(auto select, Statement::Prepare(m_connection, sql, true));
        m_readKey = std::move(select);
    }
    m_readKey.Bind(1, oid);
    const auto step = m_readKey.Step();
    if (step && *step)
        m_readKey.ReadProperty(0, m_key);
    m_readKey.Reset();
    return step;
}

Result<bool> Cursor::Search(Range range, WalkDirection direction)
{
    const size_t place
        = 2 * static_cast<size_t>(range) + (direction == WalkDirection::Forward ? 0 : 1);
    Statement& search = m_searches.at(place);
    if (!search) {
        const QString columns = u"oid, "_s + KeyName();
        QUILLORY_TRY_VALUE(auto prepared,
            Statement::Prepare(
                m_connection, RangeSql(columns, range, direction) + u" LIMIT 1"_s, true));
        search = std::move(prepared);
    }
    if (range == Range::SameKey || range == Range::OtherKeys) {
        if (m_key.IsMissing())
            search.BindNull(1);
        else if (!search.Bind(1, m_key))
            return ErrorNumber::InvalidData;
    }
    if (range == Range::SameKey)
        search.Bind(2, m_oid);
    const auto step = search.Step();
    if (step && *step) {
        m_oid = search.Oid(0);
        search.ReadProperty(1, m_key);
    }
    search.Reset();
    return step;
}

Result<ObjectId> Cursor::SearchIn(std::initializer_list<Range> ranges, WalkDirection direction)
{
    for (const Range range : ranges) {
        QUILLORY_TRY_VALUE(const auto isFound, Search(range, direction));
        if (isFound)
            return m_oid;
    }
    return m_oid = kNoObject;
}

Result<ObjectId> Cursor::Place()
{
    return m_isPlaced ? m_oid : First();
}

Result<ObjectId> Cursor::Current()
{
    const auto place = Place();
    if (!place || *place == kNoObject)
        return place;
    QUILLORY_TRY_VALUE(const bool isThere, ReadKey(*place));
    return isThere ? *place : kNoObject;
}

Result<ObjectId> Cursor::First()
{
    m_isPlaced = true;
    return SearchIn({ Range::Keyed, Range::Keyless }, WalkDirection::Forward);
}

Result<ObjectId> Cursor::Step(WalkDirection direction)
{
    // The record may have another key by now.
    QUILLORY_TRY(Current());
    const bool isForward = direction == WalkDirection::Forward;
    if (m_oid == kNoObject) {
        if (isForward)
            return kNoObject;
        return SearchIn({ Range::Keyless, Range::Keyed }, direction);
    }
    if (m_key.IsMissing())
        return isForward ? SearchIn({ Range::SameKey }, direction)
                         : SearchIn({ Range::SameKey, Range::Keyed }, direction);
    return isForward ? SearchIn({ Range::SameKey, Range::OtherKeys, Range::Keyless }, direction)
                     : SearchIn({ Range::SameKey, Range::OtherKeys }, direction);
}

Result<ObjectId> Cursor::SeekTo(ObjectId oid)
{
    QUILLORY_TRY_VALUE(const bool isThere, ReadKey(oid));
    m_isPlaced = true;
    m_oid = isThere ? oid : kNoObject;
    return m_oid;
}

Result<std::vector<ObjectId>> Cursor::List()
{
    std::vector<ObjectId> oids;
    ReadingLimit limit;
    for (const Range range : { Range::Keyed, Range::Keyless }) {
        QUILLORY_TRY_VALUE(auto statement,
            Statement::Prepare(m_connection, RangeSql(u"oid"_s, range, WalkDirection::Forward)));
        while (statement.Next()) {
            // Each takes its bytes in the table too.
            if (!limit.Add(m_connection, kLeastRecordBytes))
                return ErrorNumber::FileCorrupt;
            oids.push_back(statement.Oid(0));
        }
        if (statement.Error() != ErrorNumber::None)
            return statement.Error();
    }
    return oids;
}

} // namespace Quillory
