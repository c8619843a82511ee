// SPDX-License-Identifier: MIT
#include "propdb/detail/volume_check.h"

#include "propdb/detail/sqlite_error.h"
#include "propdb/detail/volume_state.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// As many as SQLite's own check tells of.
constexpr size_t kMaxPagesTold = 100;

/// Reads the pages as they lie in the file: SQLite reads none that is free.
Result<void> ReadPages(const VolumeState& volume, std::vector<QString>& faults)
{
    // The page that SQLite's locks lie on is never written.
    constexpr sqlite3_int64 kLockedPage = 0x40000000 / kPageSize;
    constexpr sqlite3_int64 kPagesBetweenLooks = 256;
    sqlite3_file* file = nullptr;
    sqlite3_int64 size = 0;
    sqlite3_file_control(volume.Connection(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (const int code = file->pMethods->xFileSize(file, &size); code != SQLITE_OK)
        return ErrorFromSqlite(code, volume.Connection());
    std::array<char, kPageSize> page;
    for (sqlite3_int64 i = 0; i * kPageSize < size && faults.size() < kMaxPagesTold; ++i) {
        if (i % kPagesBetweenLooks == 0 && volume.File().IsAwaitedByWriter())
            return ErrorNumber::Cancelled;
        if (i == kLockedPage)
            continue;
        const int code = file->pMethods->xRead(file, page.data(), kPageSize, i * kPageSize);
        const ErrorNumber error = ErrorFromSqlite(code, volume.Connection());
        if (error == ErrorNumber::FileCorrupt)
            faults.push_back(u"page %1 is not as it was written"_s.arg(i + 1));
        else if (error != ErrorNumber::None)
            return error;
    }
    return {};
}

Result<void> CheckStructure(const VolumeState& volume, std::vector<QString>& faults)
{
    QUILLORY_TRY_VALUE(
        auto check, Statement::Prepare(volume.Connection(), u"PRAGMA integrity_check"_s));
    while (check.Next()) {
        const QString line = check.Text(0);
        if (line != "ok"_L1)
            faults.push_back(line);
    }
    return check.Error();
}

/// SQL that is true of a value that no property of this type has.
QString ImpossibleValue(const PropertyColumn& column)
{
    const QString name = QuotedName(column.columnName);
    switch (PropertyType(column.id)) {
    case CEVT_I2:
        return name + u" NOT BETWEEN -32768 AND 32767"_s;
    case CEVT_I4:
        return name + u" NOT BETWEEN -2147483648 AND 2147483647"_s;
    case CEVT_UI4:
        return name + u" NOT BETWEEN 0 AND 4294967295"_s;
    case CEVT_BOOL:
        return name + u" NOT BETWEEN 0 AND 1"_s;
    case CEVT_R8:
        return u"typeof(%1) IN ('text', 'blob')"_s.arg(name);
    default:
        // Of these SQLite's check knows everything.
        return u"0"_s;
    }
}

Result<void> CheckValues(const VolumeState& volume, const DatabaseSchema& schema, qint64 nextOid,
    std::vector<QString>& faults)
{
    QString sql = u"SELECT 1 FROM %1 NOT INDEXED WHERE 1 IN (oid < 1, oid >= ?1"_s.arg(
        QuotedName(schema.tableName));
    for (const PropertyColumn& column : schema.properties)
        sql += u", "_s + ImpossibleValue(column);
    QUILLORY_TRY_VALUE(auto select, Statement::Prepare(volume.Connection(), sql + u") LIMIT 1"_s));
    select.Bind(1, nextOid);
    if (select.Next())
        faults.push_back(
            u"“%1” holds an identifier or a value that no record has"_s.arg(schema.name));
    return select.Error();
}

Result<void> CheckAllValues(const VolumeState& volume, const VolumeSchema& schema, qint64 nextOid,
    std::vector<QString>& faults)
{
    for (const auto& [oid, database] : schema.All()) {
        if (faults.empty())
            QUILLORY_TRY(CheckValues(volume, *database, nextOid, faults));
    }
    return {};
}

} // namespace

Result<std::vector<QString>> CheckPages(const VolumeState& volume)
{
    std::vector<QString> faults;
    // While a row is being read no other program's write comes between.
    QUILLORY_TRY_VALUE(
        auto hold, Statement::Prepare(volume.Connection(), u"SELECT 1 FROM sqlite_schema"_s));
    QUILLORY_TRY(hold.Step());
    QUILLORY_TRY(ReadPages(volume, faults));
    return faults;
}

Result<std::vector<QString>> CheckVolume(VolumeState& volume)
{
    std::vector<QString> faults;
    // While a row is being read no other program's write comes between.
    QUILLORY_TRY_VALUE(auto hold,
        Statement::Prepare(volume.Connection(), u"SELECT next_oid FROM object_counter"_s));
    QUILLORY_TRY(hold.Step());
    // Somebody else may have taken more since the mount, or this program since its last commit.
    const auto nextOid
        = std::max(static_cast<qint64>(volume.Transactions().NextOid()), hold.Int64(0));
    const auto schema = volume.Schema();
    Result<void> checked = schema.Error();
    if (checked)
        checked = CheckStructure(volume, faults);
    if (checked && faults.empty())
        checked = CheckAllValues(volume, **schema, nextOid, faults);
    if (checked.Error() == ErrorNumber::FileCorrupt)
        faults.push_back(u"the file is damaged"_s);
    else if (!checked)
        return checked.Error();
    return faults;
}

} // namespace Quillory
