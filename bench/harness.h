// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Quillory {

/// What one run of a case took. Only the operation is timed, not its preparation.
struct Timing
{
    double oursMs = 0;
    double floorMs = 0;
};

/// A benchmark: what this program does against the least that anyone could do, in one run.
struct BenchCase
{
    QString name;
    /// The ratio that must not be exceeded.
    double limit = 0;
    /// How much longer ten times the rows may take.
    double growthLimit = 11;
    std::function<Timing(int rows)> run;
    /// Milliseconds that must not be exceeded up to a million rows, whatever the floor takes; 0 for
    /// no such limit.
    double limitMs = 0;
};

struct BenchOptions
{
    std::vector<int> sizes;
    int repeat = 5;
    QString nameFilter;
};

/// Milliseconds that `work` takes.
[[nodiscard]] double MeasureMs(const std::function<void()>& work);

/// Ends the program with a message: a benchmark that did not do its work has no figure.
[[noreturn]] void Abandon(const QString& reason);
inline void Require(bool isTrue, const char* what)
{
    if (!isTrue)
        Abandon(QString::fromLatin1(what));
}

void PrintHeading();

/// Prints a figure without a floor, and what it is promised to be at most; 0 for no promise.
void TellFigure(const QString& name, int rows, double figure, const char* unit, double limit);
/// The same, and the floor that the figure is promised to be at most so many times.
void TellRatio(
    const QString& name, int rows, const char* unit, double figure, double floor, double limit);

/// How many of the promises printed so far are broken.
[[nodiscard]] int BrokenPromises();

/// Runs the cases whose names hold the filter and prints a line per case and size: the least time
/// of both sides, their ratio, the growth of both between sizes ten times apart, and the limits
/// that are promised.
void RunCases(const std::vector<BenchCase>& cases, const BenchOptions& options);

} // namespace Quillory
