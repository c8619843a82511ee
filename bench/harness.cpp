#include "bench/harness.h"

#include <QElapsedTimer>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace Quillory {

namespace {

/// The least of what each side took: what else the machine did only adds to it.
struct BestTiming
{
    double oursMs = std::numeric_limits<double>::infinity();
    double floorMs = std::numeric_limits<double>::infinity();

    void Take(const Timing& timing)
    {
        oursMs = std::min(oursMs, timing.oursMs);
        floorMs = std::min(floorMs, timing.floorMs);
    }
};

/// How much longer a case took with ten times the rows.
struct Growth
{
    double ours = 0;
    double floor = 0;
};

/// Sizes take turns, so that a slow spell of the machine falls on all of them. A case that is soon
/// over is run more often: the shorter it is the more anything else shows in it.
std::vector<BestTiming> BestRuns(const BenchCase& bench, const BenchOptions& options)
{
    constexpr qint64 kShortMs = 3000;
    constexpr int kMostTimes = 4;
    std::vector<BestTiming> best(options.sizes.size());
    QElapsedTimer timer;
    timer.start();
    for (int i = 0;
         i < options.repeat || (i < kMostTimes * options.repeat && timer.elapsed() < kShortMs);
         ++i) {
        for (size_t size = 0; size < best.size(); ++size)
            best[size].Take(bench.run(options.sizes[size]));
    }
    return best;
}

void PrintLine(
    const BenchCase& bench, int rows, const BestTiming& timing, const std::optional<Growth>& growth)
{
    const double ratio = timing.oursMs / timing.floorMs;
    const bool isSlow = bench.limitMs > 0 && timing.oursMs > bench.limitMs;
    std::printf("%-34s %9d %11.2f %11.2f %7.2f %6.2f", qPrintable(bench.name), rows, timing.oursMs,
        timing.floorMs, ratio, bench.limit);
    if (growth)
        std::printf(" %8.1f %8.1f %6.0f", growth->ours, growth->floor, bench.growthLimit);
    // Where the floor grows as much, the growth is that of the machine, whose caches hold the small
    // file and not the large one.
    const bool grows = growth && growth->ours > bench.growthLimit && growth->ours > growth->floor;
    std::printf("%s%s\n", ratio <= bench.limit && !isSlow ? "" : "  OVER", grows ? "  GROWS" : "");
    std::fflush(stdout);
}

} // namespace

void PrintHeading()
{
    std::printf("%-34s %9s %11s %11s %7s %6s %8s %8s %6s\n", "case", "rows", "ours ms", "floor ms",
        "ratio", "limit", "growth", "floor's", "limit");
}

double MeasureMs(const std::function<void()>& work)
{
    // What an earlier run left to be written to the disk would be written during this one.
    sync();
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
        const auto best = BestRuns(bench, options);
        for (size_t i = 0; i < best.size(); ++i) {
            std::optional<Growth> growth;
            if (i > 0 && options.sizes[i] == 10 * options.sizes[i - 1])
                growth = { best[i].oursMs / best[i - 1].oursMs,
                    best[i].floorMs / best[i - 1].floorMs };
            PrintLine(bench, options.sizes[i], best[i], growth);
        }
    }
}

} // namespace Quillory
