// SPDX-License-Identifier: MIT
#include "propdb/detail/stored_record.h"

#include <QtEndian>

#include <array>
#include <bit>

namespace Quillory {

namespace {

/// Serial types. From kFirstBlob on, even ones are bytes and odd ones text.
constexpr quint64 kNull = 0;
constexpr quint64 kDouble = 7;
constexpr quint64 kZero = 8;
constexpr quint64 kOne = 9;
constexpr quint64 kFirstBlob = 12;

/// The bytes of a column; -1 for a kind that no file holds.
qsizetype SizeOf(quint64 kind)
{
    constexpr std::array<qsizetype, kFirstBlob> kSizes { 0, 1, 2, 3, 4, 6, 8, 8, 0, 0, -1, -1 };
    constexpr quint64 kMaxKind = quint64 { 1 } << 32;
    if (kind > kMaxKind)
        return -1;
    return kind < kFirstBlob ? kSizes[kind] : static_cast<qsizetype>((kind - kFirstBlob) / 2);
}

/// A whole number of up to eight bytes, the first of which holds its sign.
qint64 SignedNumber(QByteArrayView bytes)
{
    // Not every machine's char has a sign.
    const bool isNegative = !bytes.isEmpty() && static_cast<qint8>(bytes.front()) < 0;
    quint64 number = isNegative ? ~quint64 {} : 0;
    for (const char byte : bytes)
        number = number << 8 | static_cast<quint8>(byte);
    return static_cast<qint64>(number);
}

} // namespace

StoredNumber ReadStoredNumber(QByteArrayView bytes)
{
    constexpr qsizetype kMostBytes = 9;
    StoredNumber number;
    while (number.size < bytes.size() && number.size < kMostBytes) {
        const auto byte = static_cast<quint8>(bytes[number.size++]);
        // The ninth byte is whole; of the others the highest bit tells whether one follows.
        if (number.size == kMostBytes) {
            number.value = number.value << 8 | byte;
            break;
        }
        number.value = number.value << 7 | (byte & 0x7F);
        if ((byte & 0x80) == 0)
            break;
    }
    return number;
}

StoredRecord::StoredRecord(qint64 rowId, QByteArrayView bytes, size_t skipped)
    : m_rowId(rowId)
{
    const StoredNumber headerSize = ReadStoredNumber(bytes);
    if (headerSize.value > static_cast<quint64>(bytes.size())
        || headerSize.value < static_cast<quint64>(headerSize.size))
        return;
    const auto contentBegin = static_cast<qsizetype>(headerSize.value);
    QByteArrayView kinds = bytes.first(contentBegin).sliced(headerSize.size);
    QByteArrayView content = bytes.sliced(contentBegin);
    for (size_t i = 0; !kinds.isEmpty(); ++i) {
        const StoredNumber kind = ReadStoredNumber(kinds);
        const qsizetype size = SizeOf(kind.value);
        if (size < 0 || size > content.size())
            return;
        if (i >= skipped)
            m_columns.push_back({ kind.value, content.first(size) });
        kinds = kinds.sliced(kind.size);
        content = content.sliced(size);
    }
}

bool StoredRecord::IsMissing(size_t place) const
{
    return place >= m_columns.size() || m_columns[place].kind == kNull;
}

qint64 StoredRecord::Integer(size_t place) const
{
    if (place >= m_columns.size())
        return 0;
    const Column& column = m_columns[place];
    if (column.kind == kZero || column.kind == kOne)
        return column.kind == kOne ? 1 : 0;
    return column.kind < kDouble ? SignedNumber(column.bytes) : 0;
}

double StoredRecord::Number(size_t place) const
{
    if (place < m_columns.size() && m_columns[place].kind == kDouble)
        return std::bit_cast<double>(SignedNumber(m_columns[place].bytes));
    return static_cast<double>(Integer(place));
}

QByteArrayView StoredRecord::Bytes(size_t place) const
{
    if (place >= m_columns.size() || m_columns[place].kind < kFirstBlob)
        return {};
    return m_columns[place].bytes;
}

QString StoredRecord::Text(size_t place) const
{
    PropertyValue text { MakePropertyId(0, CEVT_LPWSTR), 0, {} };
    Read(place, text);
    return text.IsMissing() ? QString() : std::get<QString>(text.value);
}

} // namespace Quillory
