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

int brokenPromises = 0;

/// Ends a line by what of it is over its limit.
void EndLine(bool isRatioOver, bool isTimeOver, bool growsOver)
{
    const bool isBroken = isRatioOver || isTimeOver || growsOver;
    brokenPromises += isBroken ? 1 : 0;
    std::printf("%s%s%s%s\n", isBroken ? "  BROKEN:" : "", isRatioOver ? " ratio" : "",
        isTimeOver ? " figure" : "", growsOver ? " growth" : "");
    std::fflush(stdout);
}

/// A figure and its limit, or nothing in its place.
void PrintLimited(double figure, double limit)
{
    if (limit > 0)
        std::printf(" %9.2f %5.0f", figure, limit);
    else
        std::printf(" %9.2f %5s", figure, "-");
}

void PrintLine(
    const BenchCase& bench, int rows, const Timing& timing, const std::optional<Growth>& growth)
{
    const double ratio = timing.oursMs / timing.floorMs;
    std::printf("%-36s %9d", qPrintable(bench.name), rows);
    PrintLimited(timing.oursMs, bench.limitMs);
    std::printf(" %-4s %9.2f %6.2f %5.2f", "ms", timing.floorMs, ratio, bench.limit);
    if (growth)
        std::printf(" %7.1f %7.1f %5.0f", growth->ours, growth->floor, bench.growthLimit);
    // Where the floor grows as much, the growth is that of the machine, whose caches hold the small
    // file and not the large one.
    const bool grows = growth && growth->ours > bench.growthLimit && growth->ours > growth->floor;
    EndLine(ratio > bench.limit, bench.limitMs > 0 && timing.oursMs > bench.limitMs, grows);
}

} // namespace

void PrintHeading()
{
    std::printf("%-36s %9s %9s %5s %-4s %9s %6s %5s %7s %7s %5s\n", "case", "rows", "ours", "limit",
        "", "floor", "ratio", "limit", "growth", "floor's", "limit");
}

void TellFigure(const QString& name, int rows, double figure, const char* unit, double limit)
{
    std::printf("%-36s %9d", qPrintable(name), rows);
    PrintLimited(figure, limit);
    std::printf(" %-4s", unit);
    EndLine(false, limit > 0 && figure > limit, false);
}

void TellRatio(
    const QString& name, int rows, const char* unit, double figure, double floor, double limit)
{
    std::printf("%-36s %9d", qPrintable(name), rows);
    PrintLimited(figure, 0);
    std::printf(" %-4s %9.2f %6.2f", unit, floor, figure / floor);
    if (limit > 0)
        std::printf(" %5.2f", limit);
    EndLine(limit > 0 && figure / floor > limit, false, false);
}

int BrokenPromises()
{
    return brokenPromises;
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
