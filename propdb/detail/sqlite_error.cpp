// SPDX-License-Identifier: MIT
#include "propdb/detail/sqlite_error.h"

#include <sqlite3.h>

#include <cerrno>

namespace Quillory {

namespace {

ErrorNumber ErrorFromIo(int code, sqlite3* connection)
{
    // The confined VFS reports a page whose checksum does not fit by the first of these. No system
    // call has failed then, and errno is an older one's.
    if (code == SQLITE_IOERR_DATA || code == SQLITE_IOERR_CORRUPTFS)
        return ErrorNumber::FileCorrupt;
    const int systemError = connection == nullptr ? 0 : sqlite3_system_errno(connection);
    if (systemError == ENOSPC || systemError == EDQUOT)
        return ErrorNumber::DiskFull;
    switch (code) {
    case SQLITE_IOERR_READ:
    case SQLITE_IOERR_SHORT_READ:
        return ErrorNumber::ReadFault;
    case SQLITE_IOERR_WRITE:
    case SQLITE_IOERR_FSYNC:
    case SQLITE_IOERR_DIR_FSYNC:
    case SQLITE_IOERR_TRUNCATE:
        return ErrorNumber::WriteFault;
    case SQLITE_IOERR_NOMEM:
        return ErrorNumber::NotEnoughMemory;
    default:
        return ErrorNumber::IoDevice;
    }
}

ErrorNumber ErrorFromConstraint(int code)
{
    switch (code) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        return ErrorNumber::AlreadyExists;
    case SQLITE_CONSTRAINT_NOTNULL:
        return ErrorNumber::AccessDenied;
    default:
        return ErrorNumber::InvalidData;
    }
}

ErrorNumber ErrorFromCantOpen(sqlite3* connection)
{
    const int systemError = connection == nullptr ? 0 : sqlite3_system_errno(connection);
    return systemError == 0 ? ErrorNumber::FileNotFound : ErrorFromErrno(systemError);
}

} // namespace

ErrorNumber ErrorFromSqlite(int code, sqlite3* connection)
{
    switch (code & 0xFF) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
        return ErrorNumber::None;
    case SQLITE_CANTOPEN:
        return ErrorFromCantOpen(connection);
    case SQLITE_IOERR:
        return ErrorFromIo(code, connection);
    case SQLITE_CONSTRAINT:
        return ErrorFromConstraint(code);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return ErrorNumber::SharingViolation;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return ErrorNumber::AccessDenied;
    case SQLITE_NOMEM:
        return ErrorNumber::NotEnoughMemory;
    case SQLITE_FULL:
        return ErrorNumber::DiskFull;
    case SQLITE_CORRUPT:
        return ErrorNumber::FileCorrupt;
    case SQLITE_NOTADB:
        return ErrorNumber::BadFormat;
    case SQLITE_TOOBIG:
        return ErrorNumber::BadLength;
    case SQLITE_MISUSE:
    case SQLITE_RANGE:
        return ErrorNumber::InvalidParameter;
    case SQLITE_MISMATCH:
        return ErrorNumber::InvalidData;
    case SQLITE_INTERRUPT:
        return ErrorNumber::Cancelled;
    case SQLITE_NOTFOUND:
        return ErrorNumber::NotFound;
    default:
        return ErrorNumber::GeneralFailure;
    }
}

} // namespace Quillory
