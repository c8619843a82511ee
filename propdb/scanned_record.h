// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"

#include <QByteArrayView>

namespace Quillory {

/// A record that a scan has come to, read in place: what is not asked for is not decoded.
/// Properties go by their places in the list that the scan was given. Valid during the visit.
class ScannedRecord
{
public:
    ScannedRecord() = default;
    virtual ~ScannedRecord();
    ScannedRecord(const ScannedRecord&) = delete;
    ScannedRecord& operator=(const ScannedRecord&) = delete;

    [[nodiscard]] virtual ObjectId Oid() const = 0;
    /// As it is stored: kNoOrigin for a record that was stored without one, and where it was not
    /// asked for.
    [[nodiscard]] virtual Origin StoredOrigin() const = 0;
    [[nodiscard]] virtual bool IsMissing(size_t place) const = 0;
    /// A property of a whole number, a flag or a file time; 0 where it is missing.
    [[nodiscard]] virtual qint64 Integer(size_t place) const = 0;
    /// A property of a number of any kind; 0 where it is missing.
    [[nodiscard]] virtual double Number(size_t place) const = 0;
    /// The bytes of a blob, or the units of a text, the high byte of each first: their order by
    /// bytes is the order of the texts. Empty where it is missing.
    [[nodiscard]] virtual QByteArrayView Bytes(size_t place) const = 0;

    /// Reads a property into `value` by the type of `value.id`, flagging it where it is missing.
    /// Text reuses the memory of the string that is there.
    void Read(size_t place, PropertyValue& value) const;

private:
    template <typename Value>
    void ReadNumber(size_t place, PropertyValue& value, Value number) const;
};

} // namespace Quillory
