// SPDX-License-Identifier: MIT
#include "bench/harness.h"
#include "bench/rows_cases.h"
#include "bench/session_cases.h"
#include "bench/start_cases.h"
#include "bench/store_cases.h"
#include "bench/transfer_cases.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// What is promised is promised for such lists; shorter ones are a trial of the benchmark.
constexpr int kPromisedRows = 100000;

BenchOptions ReadOptions(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Times Quillory against bare SQLite, in one run."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"name"_s, u"Only the cases whose names hold this."_s);
    const QCommandLineOption rows(u"rows"_s, u"Number of rows; can be given again."_s, u"number"_s);
    const QCommandLineOption repeat(
        u"repeat"_s, u"Runs of each case, of which the quickest counts."_s, u"number"_s, u"5"_s);
    parser.addOptions({ rows, repeat });
    parser.process(application);

    BenchOptions options;
    for (const QString& size : parser.values(rows))
        options.sizes.push_back(size.toInt());
    if (options.sizes.empty())
        options.sizes = { 100000, 1000000 };
    options.repeat = std::max(1, parser.value(repeat).toInt());
    options.nameFilter = parser.positionalArguments().value(0);
    return options;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the toolkit remarks on such a platform would stand among the figures.
    qputenv("QT_LOGGING_RULES", "default.warning=false");
    BenchOptions options;
    PrintHeading();
    {
        const QCoreApplication application(argc, argv);
        options = ReadOptions(application);
        // First, while this process is small: a child counts its parent's memory as its own.
        if (options.nameFilter.isEmpty())
            PrintImportMemory(options.sizes);
    }
    WatchedApplication application(argc, argv);
    PrintRowMemory(options);
    if (options.nameFilter.isEmpty()) {
        PrintStart(options.repeat);
        PrintFileSize(options.sizes);
        for (const int rows : options.sizes)
            PrintMerge(rows);
    }
    PrintStandstills(application, options);
    RunCases(HomeCases(), { { options.sizes.front() }, options.repeat, options.nameFilter });
    RunCases(StoreCases(), options);
    RunCases(TransferCases(), options);
    RunCases(RowsCases(), options);
    if (options.sizes.front() < kPromisedRows || BrokenPromises() == 0)
        return 0;
    std::printf("%d promises are broken\n", BrokenPromises());
    return 1;
}
