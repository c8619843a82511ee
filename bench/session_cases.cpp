// SPDX-License-Identifier: MIT
#include "bench/session_cases.h"

#include "app/main_frame.h"
#include "bench/bench_data.h"
#include "tests/person.h"

#include <QAbstractEventDispatcher>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// From this many rows on a command may take as long as a large list allows.
constexpr int kLargeList = 1000000;
/// What a step brings about later, such as the painting of a page, is waited for.
constexpr int kSettleMs = 100;

struct SessionStep
{
    const char* name;
    QString steps;
    /// The promise for lists up to 100,000 rows, and for larger ones; none if 0.
    double limitMs;
    double largeLimitMs;
};

std::array<SessionStep, 10> Steps(const InventoryList& list)
{
    constexpr double kUsual = 50;
    constexpr double kSortByText = 100;
    constexpr double kLarge = 300;
    const QString pages = u" PgDown"_s.repeated(50);
    return { {
        { "open a list", u"tap Bench; at Bench"_s, kUsual, kLarge },
        { "scroll", u"press%1 End PgUp Home"_s.arg(pages), kUsual, kLarge },
        { "sort by a number", u"tap %1"_s.arg(list.columns[1].name), kUsual, 0 },
        { "sort by text", u"tap %1"_s.arg(list.columns[2].name), kSortByText, 0 },
        { "filter",
            u"tap Menu; tap Set Filters...; tap Add; choose fieldBox: %1; choose conditionBox: "
            u"greater than; "
            "fill valueEdit: 500; "
            "tap OK; tap OK; at Bench"_s.arg(list.columns[1].name),
            kUsual, kLarge },
        { "find", u"press Ctrl+F; type ba; tap OK; at Bench; press Esc; at Bench"_s, kUsual,
            kLarge },
        { "clear filters", u"tap Menu; tap Clear Filters; at Bench"_s, kUsual, kLarge },
        { "add 1", u"press +"_s, kUsual, kLarge },
        { "delete a row and undo", u"press Del; tap Yes; at Bench; tap Undo"_s, kUsual, kLarge },
        { "leave the list", u"press Esc; on Bench"_s, kUsual, kLarge },
    } };
}

void PrintSession(WatchedApplication& application, int rows)
{
    const BenchList& list = BenchList::OfSize(rows);
    const QTemporaryDir folder;
    Settings settings;
    settings.DbPath = folder.filePath(u"session.idb"_s);
    Require(QFile::copy(list.Path(), settings.DbPath), "cannot copy the file");
    MainFrame frame(settings, { folder.filePath(u"conf"_s), folder.filePath(u"copies"_s) });
    frame.show();
    frame.OpenDataFile({});
    Act(u"on Bench"_s);
    double longestMs = 0;
    double longestSortMs = 0;
    for (const SessionStep& step : Steps(list.Definition())) {
        QTest::qWait(kSettleMs);
        static_cast<void>(application.TakeLongestMs());
        Act(step.steps);
        QTest::qWait(kSettleMs);
        Require(!QTest::currentTestFailed(), step.name);
        const double ms = application.TakeLongestMs();
        const double limit = rows < kLargeList ? step.limitMs : step.largeLimitMs;
        TellFigure(u"stands still: "_s + QLatin1StringView(step.name), rows, ms, "ms", limit);
        const bool isSort = QByteArrayView(step.name).startsWith("sort");
        double& longest = isSort ? longestSortMs : longestMs;
        longest = std::max(longest, ms);
    }
    TellFigure(u"stands still: longest, sorts apart"_s, rows, longestMs, "ms", 0);
    TellFigure(u"stands still: longest of a sort"_s, rows, longestSortMs, "ms", 0);
}

} // namespace

WatchedApplication::WatchedApplication(int& argumentCount, char** argumentValues)
    : QApplication(argumentCount, argumentValues)
{
    const QAbstractEventDispatcher* loop = QAbstractEventDispatcher::instance();
    connect(loop, &QAbstractEventDispatcher::awake, this, &WatchedApplication::EndTurn);
    connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, &WatchedApplication::EndTurn);
}

bool WatchedApplication::notify(QObject* receiver, QEvent* event)
{
    if (m_depth > 0)
        return QApplication::notify(receiver, event);
    ++m_depth;
    QElapsedTimer timer;
    timer.start();
    const bool isTaken = QApplication::notify(receiver, event);
    m_turnMs += static_cast<double>(timer.nsecsElapsed()) / 1e6;
    --m_depth;
    return isTaken;
}

double WatchedApplication::TakeLongestMs()
{
    EndTurn();
    return std::exchange(m_longestMs, 0);
}

void WatchedApplication::EndTurn()
{
    m_longestMs = std::max(m_longestMs, std::exchange(m_turnMs, 0));
}

void PrintStandstills(WatchedApplication& application, const BenchOptions& options)
{
    if (!u"stands still"_s.contains(options.nameFilter))
        return;
    for (const int rows : options.sizes)
        PrintSession(application, rows);
}

} // namespace Quillory
