// SPDX-License-Identifier: MIT
#include "bench/store_cases.h"

#include "bench/bench_data.h"
#include "merge/file_merge.h"
#include "store/row_store.h"
#include "store/totals.h"

#include <sqlite3.h>

#include <algorithm>
#include <string>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

enum Column
{
    Name,
    Count,
    Text,
    Tick,
    Price,
    Day,
};
/// Changes made one after the other in the durable case.
constexpr int kChanges = 100;

double IndexScanMs(const BenchList& list)
{
    double elapsed = 0;
    list.WithSqlite([&](sqlite3* connection) {
        std::vector<qint64> oids;
        elapsed = MeasureMs([&] {
            ForEachRow(connection,
                u"SELECT oid FROM %1 ORDER BY %2"_s.arg(list.Table(), list.Column(Name)),
                [&](sqlite3_stmt* row) { oids.push_back(sqlite3_column_int64(row, 0)); });
        });
        Require(std::cmp_equal(oids.size(), list.Rows()), "the floor missed rows");
    });
    return elapsed;
}

Timing ListInOrder(int rows)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowStore store(data, definition, BenchContext());
        size_t found = 0;
        timing.oursMs = MeasureMs([&] { found = store.FillRows().rows.size(); });
        Require(std::cmp_equal(found, rows), "rows are missing");
    });
    timing.floorMs = IndexScanMs(list);
    return timing;
}

double ColumnScanMs(const BenchList& list, Column column)
{
    double elapsed = 0;
    list.WithSqlite([&](sqlite3* connection) {
        double sum = 0;
        qint64 bytes = 0;
        const QString sql = u"SELECT %1 FROM %2"_s.arg(list.Column(column), list.Table());
        elapsed = MeasureMs([&] {
            ForEachRow(connection, sql, [&](sqlite3_stmt* row) {
                if (column == Text) {
                    const void* text = sqlite3_column_text16(row, 0);
                    bytes += text == nullptr ? 0 : sqlite3_column_bytes16(row, 0);
                } else {
                    sum += sqlite3_column_double(row, 0);
                }
            });
        });
        Require(sum > 0 || bytes > 0, "the floor read nothing");
    });
    return elapsed;
}

Timing ReadColumn(int rows, Column column)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        const std::vector ids { definition.columns[column].id };
        int found = 0;
        timing.oursMs = MeasureMs([&] {
            const auto done = data.OpenDatabase(ListCatalogue::kRowsType)
                                  ->Scan(ids, ScanOrder::Any,
                                      [&](ObjectId, std::span<const PropertyValue> values) {
                                          found += values.front().IsMissing() ? 0 : 1;
                                          return true;
                                      });
            Require(done.IsOk(), "the scan failed");
        });
        Require(found == rows, "values are missing");
    });
    timing.floorMs = ColumnScanMs(list, column);
    return timing;
}

/// A condition that some rows meet, or most of them, on a list that is shown.
Timing FilterColumn(int rows, FilterCondition condition)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowStore store(data, definition, BenchContext());
        FilterSet filters;
        AddFilter(filters, definition.columns[Price].id, condition, u"10"_s);
        Require(std::cmp_equal(store.FillRows().rows.size(), rows), "rows are missing");
        timing.oursMs = MeasureMs(
            [&] { Require(!store.FillFilteredRows(filters).rows.empty(), "nothing passed"); });
    });
    timing.floorMs = ColumnScanMs(list, Price);
    return timing;
}

/// Reads a column and sorts what it holds: doubles, or texts for the column of texts.
double SortedScanMs(const BenchList& list, Column column)
{
    double elapsed = 0;
    list.WithSqlite([&](sqlite3* connection) {
        std::vector<double> numbers;
        std::vector<std::u16string> texts;
        const QString sql = u"SELECT %1 FROM %2"_s.arg(list.Column(column), list.Table());
        elapsed = MeasureMs([&] {
            ForEachRow(connection, sql, [&](sqlite3_stmt* row) {
                if (column == Text)
                    texts.emplace_back(static_cast<const char16_t*>(sqlite3_column_text16(row, 0)));
                else
                    numbers.push_back(sqlite3_column_double(row, 0));
            });
            std::sort(numbers.begin(), numbers.end());
            std::sort(texts.begin(), texts.end());
        });
        Require(std::cmp_equal(numbers.size() + texts.size(), list.Rows()), "rows are missing");
    });
    return elapsed;
}

Timing SortByColumnOf(int rows, Column column)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowStore store(data, definition, BenchContext());
        auto listed = store.FillRows().rows;
        timing.oursMs = MeasureMs([&] {
            listed = store.SortRows(std::move(listed), definition.columns[column].id).rows;
        });
        Require(std::cmp_equal(listed.size(), rows), "rows are missing");
    });
    timing.floorMs = SortedScanMs(list, column);
    return timing;
}

/// The totals of a list that is shown.
Timing Summarise(int rows)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        Require(std::cmp_equal(
                    data.OpenDatabase(ListCatalogue::kRowsType)->ListRecords()->size(), rows),
            "rows are missing");
        timing.oursMs = MeasureMs([&] {
            Require(ComputeTotals(data, definition, nullptr, BenchContext()).lines.size() == 2,
                "no totals");
        });
    });
    list.WithSqlite([&](sqlite3* connection) {
        timing.floorMs = MeasureMs([&] {
            ForEachRow(connection,
                u"SELECT sum(%1), sum(%2) FROM %3"_s.arg(
                    list.Column(Count), list.Column(Price), list.Table()),
                [](sqlite3_stmt*) {});
        });
    });
    return timing;
}

Timing AddOne(int rows)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowStore store(data, definition, BenchContext());
        const ObjectId row = store.FillRows().rows.front();
        timing.oursMs = MeasureMs([&] {
            for (int i = 0; i < kChanges; ++i)
                Require(store.AdjustCount(row, 1).has_value(), "the count did not change");
        });
    });
    list.WithSqlite([&](sqlite3* connection) {
        const QString sql = u"UPDATE %1 SET %2 = %2 + 1 WHERE oid = "
                            "(SELECT min(oid) FROM %1)"_s.arg(list.Table(), list.Column(Count));
        sqlite3_stmt* update = nullptr;
        sqlite3_prepare_v2(connection, sql.toUtf8().constData(), -1, &update, nullptr);
        timing.floorMs = MeasureMs([&] {
            for (int i = 0; i < kChanges; ++i) {
                Require(sqlite3_step(update) == SQLITE_DONE, "the floor did not change");
                sqlite3_reset(update);
            }
        });
        sqlite3_finalize(update);
    });
    return timing;
}

} // namespace

std::vector<BenchCase> StoreCases()
{
    constexpr double kRead = 1.5;
    constexpr double kGrowth = 11;
    constexpr double kSortGrowth = 13;
    constexpr double kMaxMs = 300;
    constexpr double kMaxTextSortMs = 900;
    const auto read = [](const char* name, Column column) {
        return BenchCase { QString::fromLatin1(name), kRead, kGrowth,
            [column](int rows) { return ReadColumn(rows, column); } };
    };
    const auto filter = [](const char* name, FilterCondition condition) {
        return BenchCase { QString::fromLatin1(name), kRead, kGrowth,
            [condition](int rows) { return FilterColumn(rows, condition); }, kMaxMs };
    };
    const auto sort = [](const char* name, Column column) {
        return BenchCase { QString::fromLatin1(name), kRead, kSortGrowth,
            [column](int rows) { return SortByColumnOf(rows, column); },
            column == Text ? kMaxTextSortMs : kMaxMs };
    };
    return {
        { u"list in sort order"_s, kRead, kGrowth, ListInOrder, kMaxMs },
        read("read a column of prices", Price),
        read("read a column of texts", Text),
        filter("filter that some rows pass", FilterCondition::Less),
        filter("filter that most rows pass", FilterCondition::Greater),
        sort("sort by integer", Count),
        sort("sort by price", Price),
        sort("sort by date", Day),
        sort("sort by checkbox", Tick),
        sort("sort by text", Text),
        { u"summary"_s, kRead, kGrowth, Summarise, kMaxMs },
        { u"add 1, one hundred times"_s, 1.3, kGrowth, AddOne },
    };
}

void PrintMerge(int rows)
{
    const BenchList& list = BenchList::OfSize(rows);
    const QTemporaryDir folder;
    const auto path = [&folder](const QString& name) { return folder.filePath(name + u".idb"_s); };
    for (const QString& name : { u"mine"_s, u"theirs"_s, u"base"_s })
        Require(QFile::copy(list.Path(), path(name)), "cannot copy the file");
    for (const auto& [name, by] : { std::pair(u"mine"_s, 1), std::pair(u"theirs"_s, 2) }) {
        DataVolume data;
        ListCatalogue catalogue(data);
        InventoryList definition;
        Require(data.Mount(path(name), Disposition::OpenExisting) == ErrorNumber::None
                && catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened
                && catalogue.OpenList(catalogue.FillHomeList().lists.front().oid, definition),
            "the list cannot be opened");
        RowStore store(data, definition, BenchContext());
        Require(store.AdjustCount(store.FillRows().rows.front(), by).has_value(), "not counted");
    }
    const auto mount = [&path](const QString& name, VolumeAccess access) {
        auto volume = Volume::Mount(path(name), Disposition::OpenExisting, access);
        Require(volume.IsOk(), "a copy cannot be opened");
        return std::move(*volume);
    };
    const double ms = MeasureMs([&] {
        const auto mine = mount(u"mine"_s, VolumeAccess::Exclusive);
        const auto theirs = mount(u"theirs"_s, VolumeAccess::ReadOnly);
        const auto base = mount(u"base"_s, VolumeAccess::ReadOnly);
        const auto plan = PlanMerge(*mine, *theirs, base.get());
        Require(plan.IsOk() && plan->notes.size() == 1, "another plan");
        Require(ExchangeMerged(*plan, *mine, *theirs, path(u"mine"_s),
                    { folder.filePath(u"copies"_s), 3 }, QDateTime::currentDateTimeUtc())
                    .IsOk(),
            "not brought together");
    });
    constexpr int kPromisedRows = 100'000;
    constexpr double kMostMs = 1000;
    TellFigure(
        u"merge of a change on each side"_s, rows, ms, "ms", rows > kPromisedRows ? 0 : kMostMs);
}

} // namespace Quillory
