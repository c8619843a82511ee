// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/cursor.h"
#include "propdb/detail/schema.h"
#include "propdb/detail/statement.h"
#include "propdb/detail/volume_state.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace Quillory {

/// A cache of prepared statements by the properties they name: most calls repeat the last one's.
class StatementCache
{
public:
    using Maker = std::function<Result<Statement>()>;
    /// The statement for `ids`, made if there is none; valid until the next call.
    [[nodiscard]] Result<Statement*> Find(std::span<const PropertyId> ids, const Maker& make);
    void Clear();

private:
    std::map<std::vector<PropertyId>, Statement> m_statements;
    std::vector<PropertyId> m_lastIds;
    Statement* m_last = nullptr;
};

/// An open database within its volume.
struct DatabaseState
{
    DatabaseState(VolumeState& volumeState, std::shared_ptr<const DatabaseSchema> databaseSchema,
        const SortOrder& sortOrder);
    ~DatabaseState();
    DatabaseState(const DatabaseState&) = delete;
    DatabaseState& operator=(const DatabaseState&) = delete;

    VolumeState& volume;
    std::shared_ptr<const DatabaseSchema> schema;
    SortOrder order;
    Cursor cursor;
    StatementCache inserts;
    StatementCache updates;
    StatementCache selects;
    bool areSelectsWithOrigins = false;
    std::vector<ObjectId> listing;
    /// What `listing` is true of; none if there is no listing.
    std::optional<VolumeState::OrderVersion> listingVersion;

    /// The columns so listed, as SQL; NULL for one that the database has no column for.
    [[nodiscard]] QString ColumnList(std::span<const PropertyId> ids) const;
    /// The column of the origins, as SQL; NULL where there is none.
    [[nodiscard]] QString OriginColumn() const;
    [[nodiscard]] Origin OriginOf(ObjectId record, Origin stored) const;
    /// Each within a write.
    /// kNoOrigin draws one.
    [[nodiscard]] Result<ObjectId> Insert(std::span<const PropertyValue> values, Origin origin);
    [[nodiscard]] Result<ObjectId> Update(ObjectId oid, std::span<const PropertyValue> values);
    [[nodiscard]] Result<void> Delete(ObjectId oid);
    /// Reads without an origin's column do not see one that came since.
    void ForgetOlderSelects();
    /// Every record in sort order.
    [[nodiscard]] Result<std::vector<ObjectId>> ListRecords();
    [[nodiscard]] Result<Record> ReadRecord(ObjectId oid, std::span<const PropertyId> ids);
};

} // namespace Quillory
