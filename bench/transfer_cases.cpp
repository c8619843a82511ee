// SPDX-License-Identifier: MIT
#include "bench/transfer_cases.h"

#include "bench/bench_data.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <malloc.h>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// As many rows as the import puts into one transaction.
constexpr int kFloorBatch = 200000;
constexpr double kMaxMegabytes = 64;

/// The rows of the benchmark's list as a text file, in no order; made once.
QString TextFile(int rows)
{
    const BenchList& list = BenchList::OfSize(rows);
    QString path = list.Path() + u".txt"_s;
    if (QFile::exists(path))
        return path;
    QFile file(path);
    Require(file.open(QIODevice::WriteOnly), "cannot make the text file");
    file.write("\xff\xfe");
    for (int i = 0; i < rows; ++i) {
        QStringList fields;
        for (const PropertyValue& value : BenchRow(list.Definition(), i))
            fields += FormatExportText(value, BenchContext());
        const QString line = fields.join(u'\t') + u"\r\n"_s;
        file.write(reinterpret_cast<const char*>(line.utf16()), line.size() * 2);
    }
    return path;
}

Timing ExportList(int rows)
{
    BenchList& list = BenchList::OfSize(rows);
    const QString path = list.Path() + u".out"_s;
    Timing timing;
    qint64 size = 0;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        QFile file(path);
        Require(file.open(QIODevice::WriteOnly), "cannot make the text file");
        timing.oursMs = MeasureMs([&] {
            Require(ExportRows(*data.OpenDatabase(ListCatalogue::kRowsType), definition,
                        BenchContext(), file)
                        .rows
                    == rows,
                "the export missed rows");
            file.close();
        });
        size = QFile(path).size();
    });
    list.WithSqlite([&](sqlite3* connection) {
        const QString sql = u"SELECT %1, %2, %3, %4, %5, %6 FROM %7 ORDER BY %1"_s.arg(
            list.Column(0), list.Column(1), list.Column(2), list.Column(3), list.Column(4),
            list.Column(5), list.Table());
        QFile file(path);
        Require(file.open(QIODevice::WriteOnly), "cannot make the floor's file");
        // A cache as large as the export's.
        RunSql(connection, u"PRAGMA cache_size = -98304"_s);
        double sum = 0;
        timing.floorMs = MeasureMs([&] {
            ForEachRow(connection, sql, [&](sqlite3_stmt* row) {
                for (const int text : { 0, 2 }) {
                    if (sqlite3_column_text16(row, text) != nullptr)
                        sum += sqlite3_column_bytes16(row, text);
                }
                for (const int number : { 1, 3, 4, 5 })
                    sum += sqlite3_column_double(row, number);
            });
            // As many bytes as the export has, in pieces of the same size.
            const QByteArray piece(1 << 16, 'x');
            for (qint64 left = size; left > 0; left -= piece.size())
                file.write(piece.constData(), std::min<qint64>(left, piece.size()));
            file.close();
        });
        Require(sum > 0, "the floor read nothing");
    });
    return timing;
}

/// What the floors keep rows in.
const QString kFloorTable
    = u"CREATE TABLE copy(oid INTEGER PRIMARY KEY, name TEXT, count INTEGER, text TEXT, "
      "ticked INTEGER, price ANY, day INTEGER) STRICT; CREATE INDEX by_name ON copy(name)"_s;
constexpr char kFloorInsert[] = "INSERT INTO copy VALUES(NULL, ?1, ?2, ?3, ?4, ?5, ?6)";

/// A row as its bytes go into the database, made before the clock starts.
struct BoundRow
{
    QByteArray name;
    qint64 count;
    QByteArray text;
    qint64 isTicked;
    double price;
    qint64 day;
};

QByteArray BigEndian(const QString& text)
{
    QByteArray bytes(text.size() * 2, Qt::Uninitialized);
    qToBigEndian<quint16>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

std::vector<BoundRow> BoundRows(const BenchList& list)
{
    std::vector<BoundRow> rows;
    rows.reserve(static_cast<size_t>(list.Rows()));
    for (int i = 0; i < list.Rows(); ++i) {
        const auto values = BenchRow(list.Definition(), i);
        rows.push_back({ BigEndian(std::get<QString>(values[0].value)),
            std::get<qint32>(values[1].value), BigEndian(std::get<QString>(values[2].value)),
            std::get<bool>(values[3].value), std::get<double>(values[4].value),
            static_cast<qint64>(std::get<FileTime>(values[5].value).ticks) });
    }
    return rows;
}

void InsertRows(sqlite3* connection, const std::vector<BoundRow>& rows)
{
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v3(connection, kFloorInsert, -1, SQLITE_PREPARE_PERSISTENT, &insert, nullptr);
    RunSql(connection, u"BEGIN IMMEDIATE"_s);
    int inBatch = 0;
    for (const BoundRow& row : rows) {
        sqlite3_bind_text64(insert, 1, row.name.constData(),
            static_cast<sqlite3_uint64>(row.name.size()), SQLITE_STATIC, SQLITE_UTF16BE);
        sqlite3_bind_int64(insert, 2, row.count);
        sqlite3_bind_text64(insert, 3, row.text.constData(),
            static_cast<sqlite3_uint64>(row.text.size()), SQLITE_STATIC, SQLITE_UTF16BE);
        sqlite3_bind_int64(insert, 4, row.isTicked);
        sqlite3_bind_double(insert, 5, row.price);
        sqlite3_bind_int64(insert, 6, row.day);
        Require(sqlite3_step(insert) == SQLITE_DONE, "the floor cannot insert");
        sqlite3_reset(insert);
        if (++inBatch == kFloorBatch) {
            RunSql(connection, u"COMMIT; BEGIN IMMEDIATE"_s);
            inBatch = 0;
        }
    }
    RunSql(connection, u"COMMIT"_s);
    sqlite3_finalize(insert);
}

Timing ImportList(int rows)
{
    BenchList& list = BenchList::OfSize(rows);
    BenchList empty(0);
    Timing timing;
    QFile file(TextFile(rows));
    Require(file.open(QIODevice::ReadOnly), "cannot read the text file");
    empty.WithList([&](DataVolume& data, const InventoryList& definition) {
        std::vector<PropertyId> columns;
        for (const ColumnDefinition& column : definition.columns)
            columns.push_back(column.id);
        timing.oursMs = MeasureMs([&] {
            Require(ImportRows(data, columns, BenchContext(), file).rows == rows,
                "the import missed rows");
        });
    });
    const auto bound = BoundRows(list);
    BenchList floor(0);
    floor.WithSqlite([&](sqlite3* connection) {
        RunSql(connection, kFloorTable);
        timing.floorMs = MeasureMs([&] { InsertRows(connection, bound); });
    });
    return timing;
}

double Megabytes(const QString& path)
{
    constexpr double kBytesPerMegabyte = 1024.0 * 1024.0;
    return static_cast<double>(QFileInfo(path).size()) / kBytesPerMegabyte;
}

/// The most memory a finished process held, in megabytes; negative if it did not end well.
double PeakMegabytes(const QStringList& command)
{
    std::vector<QByteArray> words;
    for (const QString& word : command)
        words.push_back(word.toLocal8Bit());
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (QByteArray& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    std::fflush(nullptr);
    // What this process holds and does not use would count as the child's.
    malloc_trim(0);
    const pid_t process = fork();
    if (process == 0) {
        if (freopen("/dev/null", "w", stdout))
            execv(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    rusage usage {};
    wait4(process, &status, 0, &usage);
    constexpr double kKilobytesPerMegabyte = 1024;
    return status == 0 ? static_cast<double>(usage.ru_maxrss) / kKilobytesPerMegabyte : -1;
}

/// The megabytes of a plain file with the rows of a list in UTF-8 and the same index.
double PlainMegabytes(const BenchList& list)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"plain.db"_s);
    list.WithSqlite([&](sqlite3* source) {
        sqlite3* plain = nullptr;
        Require(sqlite3_open(path.toUtf8().constData(), &plain) == SQLITE_OK, "no plain file");
        RunSql(plain, kFloorTable + u"; BEGIN"_s);
        sqlite3_stmt* insert = nullptr;
        sqlite3_prepare_v2(plain, kFloorInsert, -1, &insert, nullptr);
        const QString sql = u"SELECT %1, %2, %3, %4, %5, %6 FROM %7 ORDER BY oid"_s.arg(
            list.Column(0), list.Column(1), list.Column(2), list.Column(3), list.Column(4),
            list.Column(5), list.Table());
        ForEachRow(source, sql, [&](sqlite3_stmt* row) {
            for (int column = 0; column < sqlite3_column_count(row); ++column)
                sqlite3_bind_value(insert, column + 1, sqlite3_column_value(row, column));
            Require(sqlite3_step(insert) == SQLITE_DONE, "the plain file takes no row");
            sqlite3_reset(insert);
        });
        sqlite3_finalize(insert);
        RunSql(plain, u"COMMIT"_s);
        sqlite3_close(plain);
    });
    return Megabytes(path);
}

} // namespace

std::vector<BenchCase> TransferCases()
{
    return {
        { u"import"_s, 1.6, 11, ImportList },
        { u"export"_s, 1.6, 11, ExportList },
    };
}

void PrintImportMemory(const std::vector<int>& sizes)
{
    const QString program = QCoreApplication::applicationDirPath() + u"/../quillory"_s;
    for (const int rows : sizes) {
        const BenchList empty(0);
        // The program keeps a copy of what it changed; not among the user's own.
        qputenv("XDG_STATE_HOME", QFile::encodeName(empty.Path() + u".state"_s));
        const double peak = PeakMegabytes(
            { program, u"--data"_s, empty.Path(), u"import"_s, u"Bench"_s, TextFile(rows) });
        Require(peak > 0, "the import in a process of its own failed");
        TellFigure(u"memory of an import"_s, rows, peak, "MB", kMaxMegabytes);
    }
}

void PrintFileSize(const std::vector<int>& sizes)
{
    for (const int rows : sizes) {
        const BenchList& list = BenchList::OfSize(rows);
        TellRatio(u"data file, to a plain one in UTF-8"_s, rows, "MB", Megabytes(list.Path()),
            PlainMegabytes(list), 0);
    }
}

} // namespace Quillory
