// SPDX-License-Identifier: MIT
#include "propdb/reading_limit.h"

#include "propdb/confined_vfs.h"
#include "propdb/statement.h"

#include <QString>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

Result<qint64> ReadVolumeSize(sqlite3* connection)
{
    auto pages = Statement::Prepare(connection, u"PRAGMA page_count"_s);
    if (!pages)
        return pages.Error();
    if (const auto step = pages->Step(); !step)
        return step.Error();
    return pages->Int64(0) * kPageSize;
}

} // namespace

Result<qint64> ReadRecordLimit(sqlite3* connection)
{
    const auto size = ReadVolumeSize(connection);
    if (!size)
        return size.Error();
    return *size / kLeastRecordBytes;
}

bool ReadingLimit::Add(sqlite3* connection, qint64 bytes)
{
    m_bytesRead += kLeastRecordBytes + bytes;
    if (IsPassed()) {
        const auto size = ReadVolumeSize(connection);
        m_knownSize = size ? *size : 0;
    }
    return !IsPassed();
}

} // namespace Quillory
