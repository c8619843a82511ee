// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/schema.h"
#include "propdb/detail/statement.h"

#include <array>
#include <initializer_list>
#include <memory>

namespace Quillory {

enum class WalkDirection
{
    Forward,
    Backward,
};

/// A position among the records of a database in its sort order, at first that of the first record.
/// It is a key and an identifier, so that it outlives its record; each step is a search of the
/// index.
class Cursor
{
public:
    Cursor(sqlite3* connection, std::shared_ptr<const DatabaseSchema> schema, SortOrder order);

    /// The record of the position, which may be gone; kNoObject, as a value, at the end.
    [[nodiscard]] Result<ObjectId> Place();
    /// Each gives the record that is at the position now; kNoObject, as a value, if there is none.
    [[nodiscard]] Result<ObjectId> Current();
    [[nodiscard]] Result<ObjectId> First();
    [[nodiscard]] Result<ObjectId> Step(WalkDirection direction);
    [[nodiscard]] Result<ObjectId> SeekTo(ObjectId oid);

    /// Every record in sort order.
    [[nodiscard]] Result<std::vector<ObjectId>> List();

private:
    /// Where the next record is searched for. Records with the key come in its order, those of one
    /// key in that of their identifiers, those without it after them.
    enum class Range
    {
        /// On from the identifier of the position, among records of its key.
        SameKey,
        /// On from the key of the position.
        OtherKeys,
        Keyed,
        Keyless,
    };

    sqlite3* m_connection;
    std::shared_ptr<const DatabaseSchema> m_schema;
    SortOrder m_order;

    /// False until somebody asks for the first record.
    bool m_isPlaced = false;
    /// kNoObject at the end.
    ObjectId m_oid = kNoObject;
    /// The key that the record had when it was last looked at.
    PropertyValue m_key;

    Statement m_readKey;
    /// By range and direction.
    std::array<Statement, 8> m_searches;

    /// As SQL wants it.
    [[nodiscard]] QString KeyName() const;
    [[nodiscard]] QString RangeSql(
        const QString& columns, Range range, WalkDirection direction) const;
    [[nodiscard]] Result<bool> ReadKey(ObjectId oid);
    /// Whether there is a record in that direction in the range; goes to the next one.
    [[nodiscard]] Result<bool> Search(Range range, WalkDirection direction);
    /// Goes to the next record, or the end, by searching in one range after another.
    [[nodiscard]] Result<ObjectId> SearchIn(
        std::initializer_list<Range> ranges, WalkDirection direction);
};

} // namespace Quillory
