// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/result.h"

#include <QtGlobal>

struct sqlite3;

namespace Quillory {

/// A record takes no less in its table, nor in an index: two bytes for its place on the page, one
/// for its size, three for the classes of its values, one for its identifier.
constexpr qint64 kLeastRecordBytes = 7;

/// More records than the volume has room for, with what the transaction that runs has added.
[[nodiscard]] Result<qint64> ReadRecordLimit(sqlite3* connection);

/// How much one reading of records may yet read. Each byte of a file belongs to one record, so what
/// reads more than the whole file goes round in circles: the file was made to be slow, and SQLite,
/// which judges each page by itself, would follow it for ever.
class ReadingLimit
{
public:
    /// Adds a record with values of `bytes`; false if that is more than the file has.
    [[nodiscard]] bool Add(sqlite3* connection, qint64 bytes)
    {
        m_bytesRead += kLeastRecordBytes + bytes;
        return !IsPassed() || IsWithinSizeNow(connection);
    }
    [[nodiscard]] bool IsPassed() const { return m_bytesRead > m_knownSize; }

private:
    qint64 m_bytesRead = 0;
    /// The file is asked for its size again where this is passed.
    qint64 m_knownSize = 0;

    [[nodiscard]] bool IsWithinSizeNow(sqlite3* connection);
};

} // namespace Quillory
