#include "bench/harness.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace Quillory {

namespace {

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Timing MedianRun(const BenchCase& bench, int rows, int repeat)
{
    std::vector<double> ours;
    std::vector<double> floors;
    for (int i = 0; i < repeat; ++i) {
        const Timing timing = bench.run(rows);
        ours.push_back(timing.oursMs);
        floors.push_back(timing.floorMs);
    }
    return { Median(ours), Median(floors) };
}

void PrintLine(const BenchCase& bench, int rows, const Timing& timing, double growth)
{
    const double ratio = timing.oursMs / timing.floorMs;
    const bool isSlow = bench.limitMs > 0 && timing.oursMs > bench.limitMs;
    const char* verdict = ratio <= bench.limit && !isSlow ? "" : "  OVER";
    std::printf("%-34s %9d %11.2f %11.2f %7.2f %6.2f", qPrintable(bench.name), rows, timing.oursMs,
        timing.floorMs, ratio, bench.limit);
    if (growth > 0)
        std::printf(" %8.1f %6.0f", growth, bench.growthLimit);
    std::printf("%s%s\n", verdict, growth > bench.growthLimit ? "  GROWS" : "");
    std::fflush(stdout);
}

} // namespace

void PrintHeading()
{
    std::printf("%-34s %9s %11s %11s %7s %6s %8s %6s\n", "case", "rows", "ours ms", "floor ms",
        "ratio", "limit", "growth", "limit");
}

double MeasureMs(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void Abandon(const QString& reason)
{
    std::fprintf(stderr, "quillory_bench: %s\n", qPrintable(reason));
    std::exit(1);
}

void RunCases(const std::vector<BenchCase>& cases, const BenchOptions& options)
{
    for (const BenchCase& bench : cases) {
        if (!bench.name.contains(options.nameFilter))
            continue;
        double previousMs = 0;
        int previousRows = 0;
        for (const int rows : options.sizes) {
            const Timing timing = MedianRun(bench, rows, options.repeat);
            const bool isTenfold = previousRows != 0 && rows == 10 * previousRows;
            PrintLine(bench, rows, timing, isTenfold ? timing.oursMs / previousMs : 0);
            previousMs = timing.oursMs;
            previousRows = rows;
        }
    }
}

} // namespace Quillory
