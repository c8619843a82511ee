// SPDX-License-Identifier: MIT
#include "propdb/detail/reading_limit.h"

#include "propdb/detail/confined_vfs.h"
#include "propdb/detail/statement.h"

#include <QString>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

Result<qint64> ReadVolumeSize(sqlite3* connection)
{
    QUILLORY_TRY_VALUE(auto pages, Statement::Prepare(connection, u"PRAGMA page_count"_s));
    QUILLORY_TRY(pages.Step());
    return pages.Int64(0) * kPageSize;
}

} // namespace

Result<qint64> ReadRecordLimit(sqlite3* connection)
{
    QUILLORY_TRY_VALUE(const qint64 size, ReadVolumeSize(connection));
    return size / kLeastRecordBytes;
}

bool ReadingLimit::IsWithinSizeNow(sqlite3* connection)
{
    const auto size = ReadVolumeSize(connection);
    m_knownSize = size ? *size : 0;
    return !IsPassed();
}

} // namespace Quillory
