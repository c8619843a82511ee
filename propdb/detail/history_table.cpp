// SPDX-License-Identifier: MIT
#include "propdb/detail/history_table.h"

#include "propdb/detail/statement.h"
#include "propdb/detail/volume_file.h"

#include <limits>

namespace Quillory {

using namespace Qt::StringLiterals;

Result<History> ReadHistoryTable(sqlite3* connection)
{
    QUILLORY_TRY_VALUE(auto select,
        Statement::Prepare(
            connection, u"SELECT state, revision FROM history ORDER BY position DESC LIMIT 64"_s));
    std::vector<FileVersion> versions;
    while (select.Next()) {
        const qint64 revision = select.Int64(1);
        if (revision < 0 || revision > std::numeric_limits<quint32>::max())
            return ErrorNumber::FileCorrupt;
        versions.insert(versions.begin(),
            { static_cast<StateId>(select.Int64(0)), static_cast<quint32>(revision) });
    }
    if (select.Error() != ErrorNumber::None)
        return select.Error();
    return History(std::move(versions));
}

Result<void> WriteHistoryTable(sqlite3* connection, const History& history)
{
    QUILLORY_TRY(Execute(connection, "DELETE FROM history"));
    QUILLORY_TRY_VALUE(auto insert,
        Statement::Prepare(connection, u"INSERT INTO history(state, revision) VALUES(?1, ?2)"_s));
    for (const FileVersion& version : history.Versions()) {
        insert.Bind(1, static_cast<qint64>(version.state));
        insert.Bind(2, qint64 { version.revision });
        QUILLORY_TRY(insert.Run());
    }
    return {};
}

Result<void> AddState(sqlite3* connection, StateId state)
{
    QUILLORY_TRY_VALUE(auto insert,
        Statement::Prepare(connection, u"INSERT INTO history(state, revision) VALUES(?1, 1)"_s));
    insert.Bind(1, static_cast<qint64>(state));
    QUILLORY_TRY(insert.Run());
    return Execute(connection,
        "DELETE FROM history WHERE position NOT IN "
        "(SELECT position FROM history ORDER BY position DESC LIMIT 64)");
}

Result<void> AddRevision(sqlite3* connection)
{
    return Execute(connection,
        "UPDATE history SET revision = revision + 1 "
        "WHERE position = (SELECT max(position) FROM history)");
}

Result<History> DerivedHistory(const VolumeFile& file)
{
    QUILLORY_TRY_VALUE(const quint64 hash, file.HashPages());
    return History({ { static_cast<StateId>(hash), 0 } });
}

} // namespace Quillory
