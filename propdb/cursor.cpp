// SPDX-License-Identifier: MIT
#include "propdb/cursor.h"

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

QString Cursor::PartSql(Part part, WalkDirection direction, bool isFromPlace) const
{
    const bool isForward = direction == WalkDirection::Forward;
    const QString table = QuotedName(m_schema->tableName);
    const QString key = QuotedName(m_schema->Find(m_order.key)->columnName);
    const QString comparison = isForward ? u">"_s : u"<"_s;
    const QString turn = isForward ? QString() : u" DESC"_s;
    if (part == Part::Keyless) {
        const QString place = isFromPlace ? u" AND oid %1 ?2"_s.arg(comparison) : QString();
        return u"SELECT oid FROM %1 WHERE %2 IS NULL%3 ORDER BY oid%4"_s.arg(
            table, key, place, turn);
    }
    const QString place = isFromPlace ? u"(%1, oid) %2 (?1, ?2)"_s.arg(key, comparison)
                                      : u"%1 IS NOT NULL"_s.arg(key);
    return u"SELECT oid FROM %1 WHERE %2 ORDER BY %3%4, oid%4"_s.arg(table, place, key, turn);
}

Cursor::Part Cursor::FirstPart() const
{
    return m_direction == WalkDirection::Forward ? Part::Keyed : Part::Keyless;
}

Cursor::Part Cursor::NextPart() const
{
    const Part last = m_direction == WalkDirection::Forward ? Part::Keyless : Part::Keyed;
    if (m_part == last)
        return Part::Over;
    return last;
}

Result<void> Cursor::EnterPart(Part part)
{
    m_part = part;
    auto statement = Statement::Prepare(m_connection, PartSql(part, m_direction, false));
    if (!statement)
        return statement.Error();
    m_walk = std::move(*statement);
    m_isWalking = true;
    return {};
}

Result<bool> Cursor::ReadKey(ObjectId oid)
{
    if (!m_readKey) {
        const QString sql = u"SELECT %1 FROM %2 WHERE oid = ?1"_s.arg(
            QuotedName(m_schema->Find(m_order.key)->columnName), QuotedName(m_schema->tableName));
        auto select = Statement::Prepare(m_connection, sql, true);
        if (!select)
            return select.Error();
        m_readKey = std::move(*select);
    }
    m_readKey.Bind(1, oid);
    const auto step = m_readKey.Step();
    if (step && *step)
        m_readKey.ReadProperty(0, m_key);
    m_readKey.Reset();
    return step;
}

Result<void> Cursor::FindRecord()
{
    if (m_standing == Standing::First) {
        const auto first = First();
        Suspend();
        return first.Error();
    }
    if (m_standing != Standing::Doubtful)
        return {};
    const auto isThere = ReadKey(m_oid);
    if (isThere)
        m_standing = *isThere ? Standing::There : Standing::Gone;
    return isThere.Error();
}

Result<void> Cursor::WalkFromPlace()
{
    if (m_oid != kNoObject && m_standing == Standing::There) {
        const auto isThere = ReadKey(m_oid);
        if (!isThere)
            return isThere.Error();
        // One that another program deleted has left no place.
        if (!*isThere)
            Settle(kNoObject);
    }
    if (m_oid == kNoObject)
        return m_direction == WalkDirection::Forward ? ErrorNumber::None
                                                     : EnterPart(FirstPart()).Error();
    m_part = m_key.IsMissing() ? Part::Keyless : Part::Keyed;
    auto statement = Statement::Prepare(m_connection, PartSql(m_part, m_direction, true));
    if (!statement)
        return statement.Error();
    if (!m_key.IsMissing() && !statement->Bind(1, m_key))
        return ErrorNumber::InvalidData;
    statement->Bind(2, m_oid);
    m_walk = std::move(*statement);
    m_isWalking = true;
    return {};
}

Result<ObjectId> Cursor::Advance()
{
    while (m_isWalking) {
        if (m_walk.Next()) {
            m_oid = m_walk.Oid(0);
            m_standing = Standing::There;
            return m_oid;
        }
        if (m_walk.Error() != ErrorNumber::None) {
            m_isWalking = false;
            return m_walk.Error();
        }
        const Part next = NextPart();
        if (next == Part::Over)
            break;
        if (const auto entered = EnterPart(next); !entered)
            return entered.Error();
    }
    Settle(kNoObject);
    return kNoObject;
}

void Cursor::Settle(ObjectId oid)
{
    Suspend();
    m_oid = oid;
    m_standing = Standing::There;
}

void Cursor::Suspend()
{
    if (m_isWalking)
        m_walk.Reset();
    m_isWalking = false;
}

Result<ObjectId> Cursor::Current()
{
    if (const auto found = FindRecord(); !found)
        return found.Error();
    return m_standing == Standing::Gone ? kNoObject : m_oid;
}

Result<ObjectId> Cursor::First()
{
    Suspend();
    m_direction = WalkDirection::Forward;
    if (const auto entered = EnterPart(FirstPart()); !entered)
        return entered.Error();
    return Advance();
}

Result<ObjectId> Cursor::Step(WalkDirection direction)
{
    if (!m_isWalking || direction != m_direction) {
        Suspend();
        if (const auto found = FindRecord(); !found)
            return found.Error();
        m_direction = direction;
        if (const auto started = WalkFromPlace(); !started)
            return started.Error();
    }
    return Advance();
}

Result<ObjectId> Cursor::SeekTo(ObjectId oid)
{
    Suspend();
    const auto isThere = ReadKey(oid);
    if (!isThere)
        return isThere.Error();
    Settle(*isThere ? oid : kNoObject);
    return m_oid;
}

void Cursor::DoubtRecord()
{
    Suspend();
    if (m_oid == kNoObject)
        return;
    if (m_standing == Standing::There) {
        const auto isThere = ReadKey(m_oid);
        if (!isThere || !*isThere)
            return;
    }
    m_standing = Standing::Doubtful;
}

Result<void> Cursor::LeaveRecord(ObjectId oid)
{
    Suspend();
    if (const auto found = FindRecord(); !found)
        return found;
    if (oid != m_oid || m_standing == Standing::Gone)
        return {};
    return ReadKey(oid).Error();
}

void Cursor::LoseRecord(ObjectId oid)
{
    if (oid == m_oid)
        m_standing = Standing::Gone;
}

Result<std::vector<ObjectId>> Cursor::List()
{
    std::vector<ObjectId> oids;
    for (const Part part : { Part::Keyed, Part::Keyless }) {
        auto statement
            = Statement::Prepare(m_connection, PartSql(part, WalkDirection::Forward, false));
        if (!statement)
            return statement.Error();
        while (statement->Next())
            oids.push_back(statement->Oid(0));
        if (statement->Error() != ErrorNumber::None)
            return statement->Error();
    }
    return oids;
}

} // namespace Quillory
