// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"
#include "propdb/result.h"
#include "propdb/scanned_record.h"
#include "propdb/volume.h"

#include <functional>
#include <memory>

namespace Quillory {

struct DatabaseState;

/// In which order a scan visits the records.
enum class ScanOrder
{
    /// The order of the handle; reads each record through the index.
    Sorted,
    /// Whichever order reads them quickest.
    Any,
    /// The order in which they are stored; reads no index, which may be damaged.
    Stored,
};

/// An open database: a position among its records, and reads and writes of them.
///
/// The position is at the first record when the database is opened; that record is looked for when
/// the position is first used. It stays on its record whatever is written. A record deleted from
/// under it, or undone with its transaction, leaves it where the record was: reads fail, and a seek
/// goes on from there.
class Database
{
public:
    explicit Database(std::unique_ptr<DatabaseState> state);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    [[nodiscard]] ObjectId Oid() const;
    [[nodiscard]] Result<qint64> RecordCount();
    /// The declared properties in the order of their declaration.
    [[nodiscard]] std::vector<PropertySpec> Properties() const;
    /// Whether the records can have this property, be it declared or not.
    [[nodiscard]] bool Has(PropertyId id) const;

    /// kNoObject, as a value, where there is no record at that place; a seek that finds none leaves
    /// the position at the end.
    [[nodiscard]] Result<ObjectId> SeekFirst();
    /// Goes `n` records on, back where `n` is negative, and nowhere where it is 0. From the end the
    /// last record is one back.
    [[nodiscard]] Result<ObjectId> SeekNext(int n);
    [[nodiscard]] Result<ObjectId> SeekTo(ObjectId oid);

    /// The current record; NotFound where there is none. Properties come in the order of the list,
    /// those that are missing flagged; without a list, all that the record has.
    [[nodiscard]] Result<Record> ReadAll();
    [[nodiscard]] Result<Record> Read(std::span<const PropertyId> ids);

    /// Adds a record (kNoObject) or changes the listed properties of one, and gives its identifier.
    /// NotFound if there is no such record, InvalidParameter for no values, a property that the
    /// database does not have or a value that is not of its type, AlreadyExists for a property
    /// listed twice, BadLength if the record would be larger than 20 MB. Strings are kept up to
    /// their first NUL.
    [[nodiscard]] Result<ObjectId> Write(
        ObjectId oid, std::span<const PropertyValue> values, ChangeKind kind = ChangeKind::Content);
    /// Adds a record with the values and the origin of one that there was: in another copy of the
    /// volume, or here before it was deleted. Its identifier is new; so is the origin if it has
    /// none.
    [[nodiscard]] Result<ObjectId> AddBack(const Record& record);
    /// NotFound if there is no such record.
    [[nodiscard]] Result<void> DeleteRecord(ObjectId oid);

    /// Every record in the order of the handle, by one scan of its index. Kept, at four bytes a
    /// record, until a write that can change it.
    [[nodiscard]] Result<std::vector<ObjectId>> ListRecords();
    /// Called with each record; the values are in the order asked for and valid during the call.
    /// False ends the scan early. The visitor must not write to the volume.
    using Visitor = std::function<bool(ObjectId oid, std::span<const PropertyValue> values)>;
    /// Reads the listed properties of all records without touching the position.
    [[nodiscard]] Result<void> Scan(
        std::span<const PropertyId> ids, ScanOrder order, const Visitor& visitor);
    using RecordVisitor = std::function<bool(const ScannedRecord& record)>;
    /// As above for visitors that look at little of a record: nothing is copied. InvalidParameter
    /// for more than 64 properties.
    [[nodiscard]] Result<void> ScanInPlace(
        std::span<const PropertyId> ids, ScanOrder order, const RecordVisitor& visitor);

    using OriginVisitor = std::function<bool(Origin origin, const ScannedRecord& record)>;
    /// As above for every record in the order in which they are stored, with its origin.
    [[nodiscard]] Result<void> ScanOrigins(
        std::span<const PropertyId> ids, const OriginVisitor& visitor);

    struct VisitOutcome
    {
        /// Records that could not be read and were passed over.
        qint64 passedOver = 0;
        /// Why the first of them could not, or why there was no visit at all; None if neither.
        ErrorNumber error = ErrorNumber::None;
    };
    /// Visits the records so listed, in that order. One that cannot be read is passed over; one
    /// that is no more is left out.
    [[nodiscard]] VisitOutcome VisitEach(std::span<const ObjectId> oids,
        std::span<const PropertyId> ids, const RecordVisitor& visitor);

private:
    std::unique_ptr<DatabaseState> m_state;
};

} // namespace Quillory
