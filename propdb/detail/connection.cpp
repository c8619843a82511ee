// SPDX-License-Identifier: MIT
#include "propdb/detail/connection.h"

#include "propdb/detail/confined_vfs.h"
#include "propdb/detail/record_visit.h"
#include "propdb/detail/schema.h"
#include "propdb/detail/sqlite_error.h"
#include "propdb/detail/volume_file.h"

#include <QString>

#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// A reader waits so long for a change to be on the medium.
constexpr int kReaderPatienceMs = 5000;
/// A change waits so long for readers before it is refused: they give way within a few milliseconds
/// unless they were stopped, and the window stands still meanwhile.
constexpr int kWriterPatienceMs = 100;
/// No value, and no record, may be larger: ten times what an import or the window can make.
constexpr int kMaxRecordBytes = 20 << 20;
/// More than a hostile file may make SQLite ask for; far more than an honest one needs. Changing
/// the key of a record of that size among its likes takes seven times the size, and some pages;
/// showing them in order four times, and a hundred megabytes of pages.
constexpr sqlite3_int64 kHeapLimitBytes = 192 << 20;

struct Limit
{
    int id;
    int value;
};

constexpr std::array kLimits {
    Limit { SQLITE_LIMIT_LENGTH, kMaxRecordBytes },
    Limit { SQLITE_LIMIT_SQL_LENGTH, 64 << 10 },
    Limit { SQLITE_LIMIT_COLUMN, kOwnColumns + int { kMaxDatabaseProperties } },
    Limit { SQLITE_LIMIT_EXPR_DEPTH, 64 },
    Limit { SQLITE_LIMIT_COMPOUND_SELECT, 4 },
    Limit { SQLITE_LIMIT_FUNCTION_ARG, kOwnColumns + int { RecordVisit::kMaxProperties } },
    Limit { SQLITE_LIMIT_ATTACHED, 0 },
    Limit { SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 64 },
    Limit { SQLITE_LIMIT_VARIABLE_NUMBER, kOwnColumns + int { kMaxDatabaseProperties } },
    Limit { SQLITE_LIMIT_TRIGGER_DEPTH, 1 },
    Limit { SQLITE_LIMIT_WORKER_THREADS, 0 },
};

struct Switch
{
    int option;
    int value;
};

constexpr std::array kSwitches {
    Switch { SQLITE_DBCONFIG_DEFENSIVE, 1 },
    Switch { SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0 },
    Switch { SQLITE_DBCONFIG_ENABLE_TRIGGER, 0 },
    Switch { SQLITE_DBCONFIG_ENABLE_VIEW, 0 },
    Switch { SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0 },
    Switch { SQLITE_DBCONFIG_WRITABLE_SCHEMA, 0 },
    Switch { SQLITE_DBCONFIG_DQS_DML, 0 },
    Switch { SQLITE_DBCONFIG_DQS_DDL, 0 },
};

struct Pragma
{
    const char* name;
    const char* value;
    /// What SQLite answers when it obeyed; it tells a refusal only by another answer.
    const char* answer;
};

constexpr std::array kPragmas {
    Pragma { "cell_size_check", "ON", "1" },
    Pragma { "temp_store", "MEMORY", "2" },
    Pragma { "locking_mode", "NORMAL", "normal" },
    Pragma { "journal_mode", "DELETE", "delete" },
    Pragma { "synchronous", "EXTRA", "3" },
};

/// Lets through what this program's own statements do and nothing else.
int Authorize(void* /*context*/, int action, const char* /*first*/, const char* /*second*/,
    const char* /*database*/, const char* /*trigger*/)
{
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
    case SQLITE_TRANSACTION:
    case SQLITE_PRAGMA:
    case SQLITE_FUNCTION:
    case SQLITE_CREATE_TABLE:
    case SQLITE_CREATE_INDEX:
    case SQLITE_DROP_TABLE:
    case SQLITE_DROP_INDEX:
    case SQLITE_ALTER_TABLE:
    case SQLITE_REINDEX:
        return SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}

bool ThrowSwitch(sqlite3* connection, const Switch& entry)
{
    int answer = -1;
    return sqlite3_db_config(connection, entry.option, entry.value, &answer) == SQLITE_OK
        && answer == entry.value;
}

Result<void> SetPragma(sqlite3* connection, const Pragma& pragma)
{
    const QString name = QString::fromLatin1(pragma.name);
    const QString sql = u"PRAGMA %1 = %2"_s.arg(name, QString::fromLatin1(pragma.value));
    QUILLORY_TRY_VALUE(auto change, Statement::Prepare(connection, sql));
    QUILLORY_TRY(change.Run());
    QUILLORY_TRY_VALUE(auto query, Statement::Prepare(connection, u"PRAGMA "_s + name));
    QUILLORY_TRY_VALUE(const bool isAnswered, query.Step());
    const bool isObeyed = isAnswered && query.Utf8(0) == pragma.answer;
    return isObeyed ? ErrorNumber::None : ErrorNumber::NotSupported;
}

Result<void> Harden(sqlite3* connection, VolumeAccess access)
{
    sqlite3_hard_heap_limit64(kHeapLimitBytes);
    sqlite3_extended_result_codes(connection, 1);
    sqlite3_busy_timeout(
        connection, access == VolumeAccess::ReadOnly ? kReaderPatienceMs : kWriterPatienceMs);
    for (const Limit& limit : kLimits)
        sqlite3_limit(connection, limit.id, limit.value);
    for (const Switch& entry : kSwitches) {
        if (!ThrowSwitch(connection, entry))
            return ErrorNumber::NotSupported;
    }
    sqlite3_set_authorizer(connection, Authorize, nullptr);
    for (const Pragma& pragma : kPragmas)
        QUILLORY_TRY(SetPragma(connection, pragma));
    return {};
}

Result<void> PrepareNew(sqlite3* connection)
{
    int reserve = kPageReserve;
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_RESERVE_BYTES, &reserve);
    const QByteArray sql = "PRAGMA page_size = " + QByteArray::number(kPageSize)
        + "; PRAGMA encoding = 'UTF-16be'; PRAGMA application_id = "
        + QByteArray::number(kApplicationId)
        + "; PRAGMA user_version = " + QByteArray::number(kFormatVersion);
    return Execute(connection, sql.constData());
}

} // namespace

void ConnectionCloser::operator()(sqlite3* connection) const
{
    sqlite3_close_v2(connection);
}

Result<ConnectionHandle> OpenConnection(
    const QByteArray& path, VolumeAccess access, bool isWritable, bool isNew)
{
    int flags = SQLITE_OPEN_NOFOLLOW | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_PRIVATECACHE;
    flags |= isWritable ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
    flags |= isNew ? SQLITE_OPEN_CREATE : 0;
    sqlite3* raw = nullptr;
    const int code = sqlite3_open_v2(path.constData(), &raw, flags, ConfinedVfs::Name());
    ConnectionHandle connection(raw);
    if (code != SQLITE_OK)
        return ErrorFromSqlite(sqlite3_extended_errcode(raw), raw);
#ifdef QUILLORY_SANITIZED
    // The sanitizers do not see who uses what within the blocks that SQLite cuts up itself.
    sqlite3_db_config(raw, SQLITE_DBCONFIG_LOOKASIDE, nullptr, 0, 0);
#endif
    if (isNew)
        QUILLORY_TRY(PrepareNew(raw));
    QUILLORY_TRY(Harden(raw, access));
    QUILLORY_TRY(Execute(raw, kUsualCache));
    if (access == VolumeAccess::ReadOnly) {
        if (const auto done = SetPragma(raw, { "query_only", "ON", "1" }); !done)
            return done.Error();
    }
    return connection;
}

} // namespace Quillory
