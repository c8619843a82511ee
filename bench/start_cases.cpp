// SPDX-License-Identifier: MIT
#include "bench/start_cases.h"

#include "app/home_list.h"
#include "bench/bench_data.h"
#include "bench/start_report.h"

#include <QCoreApplication>
#include <QProcess>

#include <sqlite3.h>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kHomeLists = 10000;
constexpr int kStartLists = 50;
/// Starts are short, and shorter than what else happens on a machine.
constexpr int kStartsPerRun = 3;
constexpr double kMaxStartRatio = 1.3;
constexpr double kMaxMemoryRatio = 1.5;

/// A data file whose catalogue has so many lists; their rows are of no interest here.
void MakeLists(const QString& path, int count)
{
    DataVolume data;
    ListCatalogue catalogue(data);
    Require(data.Mount(path, Disposition::OpenAlways) == ErrorNumber::None
            && catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened,
        "the data file cannot be made");
    Transaction transaction(data);
    for (int i = 0; i < count; ++i) {
        InventoryList list = NewInventoryList();
        list.Name = u"List %1"_s.arg((i * 7919) % count, 5, 10, QLatin1Char('0'));
        list.MapName = list.Name;
        list.TableIcon = static_cast<qint16>(i % 43);
        Require(catalogue.AddList(list) != kNoObject, "a list cannot be made");
    }
    Require(transaction.Commit(), "the lists cannot be made");
}

double FillHome(ListCatalogue& catalogue)
{
    HomeList home;
    const double spent = MeasureMs([&] { home.Fill(catalogue.FillHomeList().lists); });
    Require(home.SelectedList() != kNoObject, "the home list is empty");
    return spent;
}

double ScanAndSort(const QString& path)
{
    sqlite3* connection = nullptr;
    Require(sqlite3_open_v2(path.toUtf8().constData(), &connection, SQLITE_OPEN_READONLY, nullptr)
            == SQLITE_OK,
        "the floor's file cannot be opened");
    QString table;
    ForEachRow(connection, u"SELECT table_name FROM property_database"_s, [&](sqlite3_stmt* row) {
        table = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, 0)));
    });
    std::vector<QString> names;
    const double spent = MeasureMs([&] {
        const QString sql = u"SELECT oid, \"Name\", \"TableIcon\" FROM \"%1\" ORDER BY \"Name\""_s;
        ForEachRow(connection, sql.arg(table), [&](sqlite3_stmt* row) {
            names.push_back(
                QString::fromUtf16(static_cast<const char16_t*>(sqlite3_column_text16(row, 1))));
        });
        std::sort(names.begin(), names.end());
    });
    sqlite3_close(connection);
    Require(names.size() == kHomeLists, "the floor read other lists");
    return spent;
}

struct StartFigures
{
    double ms = 0;
    double kilobytes = 0;
};

/// Starts one of the benchmark's programs, which lie beside it.
StartFigures StartOnce(const QString& program, const QString& argument)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationDirPath() + u'/' + program,
        { QString::number(NowNs()), argument });
    Require(child.waitForFinished() && child.exitCode() == 0, "a window did not start");
    const QStringList figures = QString::fromLatin1(child.readAll()).split(u' ');
    return { figures.value(0).toDouble(), figures.value(1).toDouble() };
}

double MedianOf(std::vector<double> figures)
{
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

} // namespace

std::vector<BenchCase> HomeCases()
{
    const auto run = [](int) {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"home.idb"_s);
        MakeLists(path, kHomeLists);
        Timing timing;
        timing.floorMs = ScanAndSort(path);
        DataVolume data;
        ListCatalogue catalogue(data);
        Require(data.Mount(path, Disposition::OpenExisting) == ErrorNumber::None
                && catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened,
            "the data file cannot be opened");
        timing.oursMs = FillHome(catalogue);
        return timing;
    };
    return { { u"home list of 10,000 lists"_s, 2.0, 11, run } };
}

void PrintStart(int repeat)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"start.idb"_s);
    MakeLists(path, kStartLists);
    std::vector<double> bareMs;
    std::vector<double> ratios;
    std::vector<double> bareKilobytes;
    std::vector<double> kilobytes;
    for (int i = 0; i < kStartsPerRun * repeat; ++i) {
        const StartFigures bare = StartOnce(u"bare_window"_s, QString::number(kStartLists));
        const StartFigures ours = StartOnce(u"program_window"_s, path);
        bareMs.push_back(bare.ms);
        ratios.push_back(ours.ms / bare.ms);
        bareKilobytes.push_back(bare.kilobytes);
        kilobytes.push_back(ours.kilobytes);
    }
    // One after the other they meet the same spell of the machine: the ratio of each pair counts.
    const double floorMs = MedianOf(bareMs);
    TellRatio(u"start to the first lists"_s, kStartLists, "ms", floorMs * MedianOf(ratios), floorMs,
        kMaxStartRatio);
    TellRatio(u"resident memory with lists"_s, kStartLists, "KB", MedianOf(kilobytes),
        MedianOf(bareKilobytes), kMaxMemoryRatio);
}

} // namespace Quillory
