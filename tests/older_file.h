// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/detail/confined_vfs.h"

#include <QFile>
#include <QStringList>

#include <sqlite3.h>

namespace Quillory {

/// Makes a data file that nobody has open what version 1 of its layout would have made it.
inline void MakeOlder(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    const ConfinedVfs::Permit permit(name);
    sqlite3* connection = nullptr;
    QByteArray sql = "DROP TABLE history; PRAGMA user_version = 1;";
    const auto addTable = [](void* text, int, char** values, char**) {
        *static_cast<QByteArray*>(text)
            += "ALTER TABLE \"" + QByteArray(values[0]) + "\" DROP COLUMN \"$origin\";";
        return 0;
    };
    const bool isDone
        = sqlite3_open_v2(name.constData(), &connection, SQLITE_OPEN_READWRITE, ConfinedVfs::Name())
            == SQLITE_OK
        && sqlite3_exec(
               connection, "SELECT table_name FROM property_database", addTable, &sql, nullptr)
            == SQLITE_OK
        && sqlite3_exec(connection, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    if (!isDone)
        qFatal("the file cannot be made older: %s", sqlite3_errmsg(connection));
    sqlite3_close(connection);
}

} // namespace Quillory
