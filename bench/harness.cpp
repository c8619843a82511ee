// SPDX-License-Identifier: MIT
#include "bench/harness.h"

#include <QElapsedTimer>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <malloc.h>

namespace Quillory {

namespace {

/// The runs of a case with one number of rows.
using Runs = std::vector<Timing>;

/// The least of what each side took: what else the machine did only adds to it.
Timing Best(const Runs& runs)
{
    Timing best = runs.front();
    for (const Timing& run : runs)
        best = { std::min(best.oursMs, run.oursMs), std::min(best.floorMs, run.floorMs) };
    return best;
}

/// How much longer a case took with ten times the rows.
struct Growth
{
    double ours = 0;
    double floor = 0;
};

/// The median of what a run took in times of the one with fewer rows beside it. The best of both
/// would not do: a short run finds a moment without disturbance more easily than a long one.
double MedianGrowth(const Runs& fewer, const Runs& more, double Timing::*side)
{
    std::vector<double> growths;
    for (size_t i = 0; i < more.size(); ++i)
        growths.push_back(more[i].*side / fewer[i].*side);
    const auto middle = growths.begin() + std::ssize(growths) / 2;
    std::nth_element(growths.begin(), middle, growths.end());
    return *middle;
}

/// Sizes take turns, so that a slow spell of the machine falls on all of them. A case that is soon
/// over is run more often: the shorter it is the more anything else shows in it.
std::vector<Runs> RunAll(const BenchCase& bench, const BenchOptions& options)
{
    constexpr qint64 kShortMs = 3000;
    constexpr int kMostTimes = 4;
    std::vector<Runs> runs(options.sizes.size());
    QElapsedTimer timer;
    timer.start();
    for (int i = 0;
         i < options.repeat || (i < kMostTimes * options.repeat && timer.elapsed() < kShortMs);
         ++i) {
        for (size_t size = 0; size < runs.size(); ++size)
            runs[size].push_back(bench.run(options.sizes[size]));
    }
    return runs;
}

void PrintLine(
    const BenchCase& bench, int rows, const Timing& timing, const std::optional<Growth>& growth)
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
    // What an earlier run left to be written to the disk would be written during this one, and only
    // one of two sides would find memory at hand that the other had given back.
    sync();
    malloc_trim(0);
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
        const auto runs = RunAll(bench, options);
        for (size_t i = 0; i < runs.size(); ++i) {
            std::optional<Growth> growth;
            if (i > 0 && options.sizes[i] == 10 * options.sizes[i - 1])
                growth = Growth { MedianGrowth(runs[i - 1], runs[i], &Timing::oursMs),
                    MedianGrowth(runs[i - 1], runs[i], &Timing::floorMs) };
            PrintLine(bench, options.sizes[i], Best(runs[i]), growth);
        }
    }
}

} // namespace Quillory
