// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <compare>
#include <span>
#include <variant>
#include <vector>

namespace Quillory {

/// The kind of value a property holds; the low half of its identifier. The codes are stored in
/// data files and never change.
enum ValueType : quint16
{
    CEVT_I2 = 2,
    CEVT_I4 = 3,
    CEVT_R8 = 5,
    CEVT_BOOL = 11,
    CEVT_UI4 = 19,
    CEVT_LPWSTR = 31,
    CEVT_FILETIME = 64,
    CEVT_BLOB = 65,
};

/// Identifies a property: its number in the high 16 bits, its ValueType in the low 16 bits.
enum class PropertyId : quint32
{
};

constexpr PropertyId MakePropertyId(quint16 number, quint16 type)
{
    return static_cast<PropertyId>((static_cast<quint32>(number) << 16) | type);
}
constexpr quint16 PropertyNumber(PropertyId id)
{
    return static_cast<quint16>(static_cast<quint32>(id) >> 16);
}
/// The low half of the identifier; one of ValueType in every file that this program wrote.
constexpr quint16 PropertyType(PropertyId id)
{
    return static_cast<quint16>(static_cast<quint32>(id) & 0xFFFF);
}

/// Identifies a record or a database within its volume. Never used again after a deletion.
enum class ObjectId : quint32
{
};
constexpr ObjectId kNoObject {};

/// Tells a record from all others, in whichever copies of its volume it is: drawn at random when
/// the record is added, and kept through all changes of it.
enum class Origin : quint64
{
};
constexpr Origin kNoOrigin {};

/// Tells the databases of a volume apart; several may share one.
enum class DatabaseType : quint32
{
};

/// 100-nanosecond steps since 1601-01-01 00:00, in local time: no time-zone shift is ever applied.
struct FileTime
{
    quint64 ticks = 0;

    // The linter takes the zero that comparisons end in for a pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const FileTime&, const FileTime&) = default;
};

/// Nothing, or a value of the alternative that belongs to a ValueType.
using PropertyVariant = std::variant<std::monostate, qint16, qint32, quint32, double, bool, QString,
    FileTime, QByteArray>;

/// The record holds no such property; `value` is empty. Set by reads.
constexpr quint16 CEDB_PROPNOTFOUND = 0x100;
/// Take the property out of the record. Given to writes.
constexpr quint16 CEDB_PROPDELETE = 0x200;

/// One property of a record. `value` holds the alternative that the type of `id` names:
/// CEVT_I2 qint16, CEVT_I4 qint32, CEVT_UI4 quint32, CEVT_R8 double, CEVT_BOOL bool,
/// CEVT_LPWSTR QString, CEVT_FILETIME FileTime, CEVT_BLOB QByteArray.
struct PropertyValue
{
    PropertyId id {};
    quint16 flags = 0;
    PropertyVariant value;

    [[nodiscard]] bool IsMissing() const { return (flags & CEDB_PROPNOTFOUND) != 0; }
};

/// A record as read. An `oid` of kNoObject means that the read failed.
struct Record
{
    ObjectId oid = kNoObject;
    std::vector<PropertyValue> values;
    Origin origin = kNoOrigin;

    explicit operator bool() const { return oid != kNoObject; }
};

/// A property that the records of a database can have, from its creation on.
struct PropertySpec
{
    PropertyId id {};
    QString name;
    /// False for one that is read and written as any other but not told of as a property of the
    /// database.
    bool isDeclared = true;
};

/// The one key by which a database keeps its records: ascending by 16-bit unit for strings and by
/// value otherwise (file times from 2^63 on, which are no dates, before all others), equal keys by
/// object identifier, records without the key last.
struct SortOrder
{
    PropertyId key {};

    friend bool operator==(const SortOrder&, const SortOrder&) = default;
};

/// A request for change notifications. It is kept while its database is open; no notification is
/// ever sent.
using NotifyRequest = std::array<std::byte, 20>;

/// The property with exactly this identifier that is present in `values`; null if there is none.
[[nodiscard]] const PropertyValue* FindProperty(
    std::span<const PropertyValue> values, PropertyId id);

} // namespace Quillory
