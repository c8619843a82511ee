// SPDX-License-Identifier: MIT
#pragma once

#include "store/list_catalogue.h"
#include "values/value_text.h"

#include <QString>
#include <QTemporaryDir>

#include <functional>

struct sqlite3;
struct sqlite3_stmt;

namespace Quillory {

/// A list of six columns of all types in a data file of its own: name, count, text, checkbox, price
/// and date. The same rows for the same number of them, stored in the order in which those of a
/// long list come to be: by name, as an import stores them, but for the last tenth.
class BenchList
{
public:
    explicit BenchList(int rows);
    /// The shared one of this size; made once.
    static BenchList& OfSize(int rows);

    [[nodiscard]] const QString& Path() const { return m_path; }
    [[nodiscard]] int Rows() const { return m_rows; }
    [[nodiscard]] const InventoryList& Definition() const { return m_list; }
    /// The SQL names of the list's table and of a column, in double quotes.
    [[nodiscard]] const QString& Table() const { return m_table; }
    [[nodiscard]] QString Column(int index) const;

    /// Calls `work` with the list opened by this program, alone in a fresh mount.
    void WithList(const std::function<void(DataVolume& data, const InventoryList& list)>& work);
    /// Calls `work` with a plain SQLite connection to an equal file, under the same pragmas.
    void WithSqlite(const std::function<void(sqlite3* connection)>& work) const;

private:
    QTemporaryDir m_folder;
    QString m_path;
    /// The floors' own copy: what plain SQLite writes has no checksums.
    QString m_plainPath;
    QString m_table;
    int m_rows = 0;
    ObjectId m_oid = kNoObject;
    InventoryList m_list;

    void Fill();
};

/// What texts depend on in all cases: the environment's locales; made once.
[[nodiscard]] const ValueContext& BenchContext();

/// The values of row `index` of a benchmark's list.
[[nodiscard]] std::vector<PropertyValue> BenchRow(const InventoryList& list, int index);

/// Runs SQL that gives no rows.
void RunSql(sqlite3* connection, const QString& sql);
/// Steps through a query and returns the number of rows; `visit` is called on each.
int ForEachRow(
    sqlite3* connection, const QString& sql, const std::function<void(sqlite3_stmt* row)>& visit);

} // namespace Quillory
