// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/schema.h"
#include "propdb/statement.h"

#include <memory>
#include <optional>

namespace Quillory {

enum class WalkDirection
{
    Forward,
    Backward,
};

/// A position among the records of a database in its sort order, at first that of the first record.
/// Stepping on costs one step of an index scan; a write in between costs one index search more.
class Cursor
{
public:
    Cursor(sqlite3* connection, std::shared_ptr<const DatabaseSchema> schema, SortOrder order);

    /// Each gives the new current record; kNoObject, as a value, when there is none.
    /// The current one is kNoObject at the end and where the record is gone.
    [[nodiscard]] Result<ObjectId> Current();
    [[nodiscard]] Result<ObjectId> First();
    [[nodiscard]] Result<ObjectId> Step(WalkDirection direction);
    [[nodiscard]] Result<ObjectId> SeekTo(ObjectId oid);

    /// Must come before every write to the volume: ends the scan under way, keeping the place.
    void Suspend();
    /// Must come before a rollback: keeps the place of a record that goes or comes back with it.
    void DoubtRecord();
    /// Must come before a record is deleted: keeps the place if it is the current one.
    [[nodiscard]] Result<void> LeaveRecord(ObjectId oid);
    /// Must come when it is deleted.
    void LoseRecord(ObjectId oid);

    /// Every record in sort order.
    [[nodiscard]] Result<std::vector<ObjectId>> List();

private:
    /// The parts of a walk: records with the key in its order, then records without it.
    enum class Part
    {
        Keyed,
        Keyless,
        Over,
    };

    sqlite3* m_connection;
    std::shared_ptr<const DatabaseSchema> m_schema;
    SortOrder m_order;

    /// What is known of the current record.
    enum class Standing
    {
        /// It is the first one, which nobody has asked for yet.
        First,
        There,
        /// It was deleted; m_key holds its key.
        Gone,
        /// One or the other; m_key holds its key.
        Doubtful,
    };

    /// kNoObject at the end.
    ObjectId m_oid = kNoObject;
    Standing m_standing = Standing::First;
    PropertyValue m_key;

    Statement m_readKey;
    Statement m_walk;
    Part m_part = Part::Over;
    WalkDirection m_direction = WalkDirection::Forward;
    bool m_isWalking = false;

    [[nodiscard]] QString PartSql(Part part, WalkDirection direction, bool isFromPlace) const;
    [[nodiscard]] Part FirstPart() const;
    [[nodiscard]] Part NextPart() const;
    [[nodiscard]] Result<void> EnterPart(Part part);
    /// Leaves the record either There or Gone.
    [[nodiscard]] Result<void> FindRecord();
    [[nodiscard]] Result<void> WalkFromPlace();
    [[nodiscard]] Result<bool> ReadKey(ObjectId oid);
    [[nodiscard]] Result<ObjectId> Advance();
    void Settle(ObjectId oid);
};

} // namespace Quillory
