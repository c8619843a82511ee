// SPDX-License-Identifier: MIT
#include "bench/bench_data.h"

#include "bench/harness.h"
#include "values/column_type.h"

#include <QFile>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// A fixed mixing of bits: the same row everywhere, no two neighbours alike.
quint64 Mix(quint64 value)
{
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ULL;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBULL;
    return value ^ (value >> 31);
}

QString Word(quint64 seed)
{
    constexpr std::array kSyllables { "ba", "ri", "to", "mel", "san", "ku", "lo", "ven", "da",
        "pir", "ost", "en", "gra", "hul", "ti", "mo" };
    QString word;
    for (int i = 0; i < 4; ++i) {
        word += QLatin1StringView(kSyllables.at(seed & 15));
        seed >>= 4;
    }
    return word;
}

/// In which order the rows of a long list come to be: most by an import, which stores them by name,
/// the last tenth by hand.
std::vector<int> OrderOfComing(const InventoryList& list, int rows)
{
    constexpr int kByHand = 10;
    std::vector<std::pair<QString, int>> imported;
    imported.reserve(static_cast<size_t>(rows));
    for (int i = 0; i < rows - rows / kByHand; ++i)
        imported.emplace_back(std::get<QString>(BenchRow(list, i).front().value), i);
    std::sort(imported.begin(), imported.end());
    std::vector<int> order;
    order.reserve(static_cast<size_t>(rows));
    for (const auto& [name, index] : imported)
        order.push_back(index);
    for (int i = static_cast<int>(imported.size()); i < rows; ++i)
        order.push_back(i);
    return order;
}

} // namespace

const ValueContext& BenchContext()
{
    static const ValueContext context = ValueContext::FromEnvironment();
    return context;
}

std::vector<PropertyValue> BenchRow(const InventoryList& list, int index)
{
    const quint64 seed = Mix(static_cast<quint64>(index) + 1);
    constexpr quint64 kDay = 864000000000ULL;
    constexpr quint64 kFirstDay = 153000;
    return {
        { list.columns[0].id, 0, Word(seed) + u' ' + QString::number(seed % 100000) },
        { list.columns[1].id, 0, static_cast<qint32>(seed >> 40 & 1023) },
        { list.columns[2].id, 0, Word(Mix(seed)) },
        { list.columns[3].id, 0, (seed & 1) != 0 },
        { list.columns[4].id, 0, static_cast<double>(seed >> 20 & 0xFFFF) / 100 },
        { list.columns[5].id, 0, FileTime { (kFirstDay + (seed >> 50)) * kDay } },
    };
}

BenchList::BenchList(int rows)
    : m_path(m_folder.filePath(u"bench.idb"_s))
    , m_plainPath(m_folder.filePath(u"plain.idb"_s))
    , m_rows(rows)
{
    Fill();
    Require(QFile::copy(m_path, m_plainPath), "cannot copy the file");
}

BenchList& BenchList::OfSize(int rows)
{
    static std::map<int, std::unique_ptr<BenchList>> lists;
    auto& list = lists[rows];
    if (list == nullptr)
        list = std::make_unique<BenchList>(rows);
    return *list;
}

void BenchList::Fill()
{
    DataVolume data;
    ListCatalogue catalogue(data);
    Require(data.Mount(m_path, Disposition::OpenAlways) == ErrorNumber::None, "cannot mount");
    Require(catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened, "no catalogue");
    InventoryList made = NewInventoryList();
    made.Name = u"Bench"_s;
    made.columns[0].name = u"Article"_s;
    made.columns[1].name = u"Stock"_s;
    quint16 number = 10003;
    for (const ValueType type : { CEVT_LPWSTR, CEVT_BOOL, CEVT_R8, CEVT_FILETIME })
        made.columns.push_back({ u"Column %1"_s.arg(type), 0, MakePropertyId(number++, type) });
    m_oid = catalogue.CreateList(made).oid;
    Require(catalogue.OpenList(m_oid, m_list), "cannot open the list");
    Require(data.BeginTransaction(), "no transaction");
    for (const int index : OrderOfComing(m_list, m_rows))
        Require(
            data.Write(ListCatalogue::kRowsType, kNoObject, BenchRow(m_list, index)) != kNoObject,
            "cannot write a row");
    Require(data.EndTransaction(true), "cannot commit");
    const auto oid = static_cast<quint32>(data.DatabaseOid(ListCatalogue::kRowsType));
    m_table = u"\"%1 (%2)\""_s.arg(m_list.MapName).arg(oid);
}

QString BenchList::Column(int index) const
{
    return u'"' + m_list.columns[static_cast<size_t>(index)].name + u'"';
}

void BenchList::WithList(
    const std::function<void(DataVolume& data, const InventoryList& list)>& work)
{
    DataVolume data;
    ListCatalogue catalogue(data);
    Require(data.Mount(m_path, Disposition::OpenExisting) == ErrorNumber::None, "cannot mount");
    Require(catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened, "no catalogue");
    Require(catalogue.OpenList(m_oid, m_list), "cannot open the list");
    work(data, m_list);
}

void BenchList::WithSqlite(const std::function<void(sqlite3* connection)>& work) const
{
    sqlite3* connection = nullptr;
    Require(sqlite3_open_v2(m_plainPath.toUtf8().constData(), &connection,
                SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr)
            == SQLITE_OK,
        "SQLite cannot open the file");
    RunSql(connection,
        u"PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA; PRAGMA cache_size = -16384; "
        "PRAGMA temp_store = MEMORY"_s);
    ForEachRow(connection, u"SELECT count(*) FROM sqlite_schema"_s, [](sqlite3_stmt*) {});
    work(connection);
    sqlite3_close(connection);
}

void RunSql(sqlite3* connection, const QString& sql)
{
    const int code = sqlite3_exec(connection, sql.toUtf8().constData(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        Abandon(QString::fromUtf8(sqlite3_errmsg(connection)) + u": "_s + sql);
}

int ForEachRow(
    sqlite3* connection, const QString& sql, const std::function<void(sqlite3_stmt* row)>& visit)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(connection, sql.toUtf8().constData(), -1, &statement, nullptr)
        != SQLITE_OK)
        Abandon(QString::fromUtf8(sqlite3_errmsg(connection)) + u": "_s + sql);
    int rows = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        ++rows;
        visit(statement);
    }
    sqlite3_finalize(statement);
    return rows;
}

} // namespace Quillory
