// SPDX-License-Identifier: MIT
#include "bench/rows_cases.h"

#include "bench/bench_data.h"
#include "rows/rows_view.h"
#include "widgets/line_view.h"
#include "widgets/page_stack.h"
#include "widgets/window_style.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QFile>
#include <QScrollBar>
#include <QTableView>

#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <malloc.h>
#include <memory>
#include <span>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kWindow(480, 800);
constexpr int kColumns = 8;
constexpr int kNameColumn = 0;
/// A frame that takes longer is seen.
constexpr double kMaxFrameMs = 8;
constexpr double kMaxOpenMs = 300;
constexpr double kMaxBytesPerRow = 12;
/// More lines than the window has.
constexpr size_t kScreenful = 64;
constexpr int kScrolledPages = 10000;

/// Lays out and paints what waits for it, and no more.
void PaintPending(QWidget& window)
{
    QCoreApplication::processEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
}

/// As many lines as there are rows, and the same text in all of them.
class ConstantModel : public QAbstractTableModel
{
public:
    explicit ConstantModel(int rows)
        : m_rows(rows)
    { }
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : m_rows;
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : kColumns;
    }
    [[nodiscard]] QVariant data(const QModelIndex& /*index*/, int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(u"1,234.50"_s) : QVariant();
    }

private:
    int m_rows;
};

/// A window of the program's style and size that has nothing but a view, dressed as the program's
/// lists are.
class BareWindow
{
public:
    explicit BareWindow(int rows)
        : m_model(rows)
    {
        ApplyWindowStyle(&m_window);
        m_window.resize(kWindow);
        m_window.show();
        PaintPending(m_window);
    }
    /// Makes the view, as the program does for a list; returns once it is painted.
    void Open()
    {
        m_view = new QTableView(&m_window);
        DressLineView(m_view);
        m_view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        m_view->setModel(&m_model);
        m_view->resize(m_window.size());
        m_view->show();
        PaintPending(m_window);
    }
    [[nodiscard]] QTableView& View() { return *m_view; }

private:
    ConstantModel m_model;
    QWidget m_window;
    QTableView* m_view = nullptr;
};

/// The benchmark's list with two of its columns shown twice: eight.
InventoryList WithEightColumns(InventoryList list)
{
    for (const size_t column : { size_t { 1 }, size_t { 4 } })
        list.columns.push_back(list.columns[column]);
    Require(list.columns.size() == kColumns, "the list has other columns");
    return list;
}

/// The program's window with a list's rows view on top.
class RowsWindow
{
public:
    RowsWindow()
    {
        ApplyWindowStyle(&m_stack);
        m_stack.Push(new Page(QString()));
        m_stack.resize(kWindow);
        m_stack.show();
        PaintPending(m_stack);
    }
    /// Returns once the rows are painted.
    void Open(DataVolume& data, const InventoryList& definition)
    {
        m_list = WithEightColumns(definition);
        m_rows = std::make_unique<RowStore>(data, m_list, m_context);
        m_stack.Push(
            new RowsView(*m_rows, m_list, m_context, { .hasAlternateLines = true }, &m_stack));
        PaintPending(m_stack);
    }
    [[nodiscard]] QTableView& View() const { return *m_stack.Top()->findChild<QTableView*>(); }

private:
    ValueContext m_context = ValueContext::FromEnvironment();
    InventoryList m_list;
    std::unique_ptr<RowStore> m_rows;
    PageStack m_stack;
};

Timing OpenToFirstFrame(int rows)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowsWindow window;
        timing.oursMs = MeasureMs([&] { window.Open(data, definition); });
        Require(window.View().model()->rowCount() == rows, "rows are missing");
    });
    BareWindow bare(rows);
    list.WithSqlite([&](sqlite3* connection) {
        std::vector<quint32> oids;
        const QString sql
            = u"SELECT oid FROM %1 ORDER BY %2"_s.arg(list.Table(), list.Column(kNameColumn));
        timing.floorMs = MeasureMs([&] {
            ForEachRow(connection, sql, [&](sqlite3_stmt* row) {
                oids.push_back(static_cast<quint32>(sqlite3_column_int64(row, 0)));
            });
            bare.Open();
        });
        Require(std::cmp_equal(oids.size(), rows), "the floor missed rows");
    });
    return timing;
}

/// The time that 95 of 100 frames stay within, while the view scrolls on as under a fast flick.
double FrameMs(QTableView& view)
{
    constexpr int kFrames = 300;
    constexpr int kPixelsPerFrame = 175;
    std::vector<double> frames;
    frames.reserve(kFrames);
    QScrollBar* bar = view.verticalScrollBar();
    bar->setValue(bar->maximum() / 3);
    for (int frame = 0; frame < kFrames; ++frame) {
        frames.push_back(MeasureMs([&] {
            bar->setValue(bar->value() + kPixelsPerFrame);
            PaintPending(*view.window());
        }));
    }
    std::sort(frames.begin(), frames.end());
    return frames[frames.size() * 95 / 100];
}

Timing FlickFrame(int rows)
{
    BenchList& list = BenchList::OfSize(rows);
    Timing timing;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowsWindow window;
        window.Open(data, definition);
        timing.oursMs = FrameMs(window.View());
    });
    BareWindow bare(rows);
    bare.Open();
    timing.floorMs = FrameMs(bare.View());
    return timing;
}

double HeapBytes()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks) + static_cast<double>(heap.hblkhd);
}

/// Memory that is in use: what is reserved beyond that, as containers do that grow, costs nothing.
double ResidentBytes()
{
    malloc_trim(0);
    QFile file(u"/proc/self/statm"_s);
    Require(file.open(QIODevice::ReadOnly), "no memory is told");
    return file.readAll().split(' ').at(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE));
}

double MemoryOfOpenView(BenchList& list)
{
    // Large blocks have pages of their own, also after some were given back.
    constexpr int kLargeBlock = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, kLargeBlock);
    double bytes = 0;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowsWindow window;
        // The pages that the database keeps are not the view's.
        const ValueContext context = ValueContext::FromEnvironment();
        RowStore store(data, definition, context);
        const auto rows = store.FillRows().rows;
        Require(std::cmp_equal(rows.size(), list.Rows()), "rows are missing");
        for (const ObjectId row : std::span(rows).first(std::min(rows.size(), kScreenful)))
            Require(static_cast<bool>(store.ReadRow(row)), "a row cannot be read");
        const double before = ResidentBytes();
        window.Open(data, definition);
        bytes = ResidentBytes() - before;
    });
    return bytes;
}

/// By how much 10,000 pages of scrolling make the heap grow, after the whole list was seen once.
double HeapGrownByScrolling(BenchList& list)
{
    double bytes = 0;
    list.WithList([&](DataVolume& data, const InventoryList& definition) {
        RowsWindow window;
        window.Open(data, definition);
        QScrollBar* bar = window.View().verticalScrollBar();
        const int pagesOfList = bar->maximum() / bar->pageStep() + 2;
        const auto scroll = [&](int pages) {
            for (int page = 0; page < pages; ++page) {
                const int next = bar->value() + bar->pageStep();
                bar->setValue(next > bar->maximum() ? 0 : next);
                PaintPending(*window.View().window());
            }
        };
        scroll(pagesOfList);
        const double before = HeapBytes();
        scroll(kScrolledPages);
        bytes = HeapBytes() - before;
    });
    return bytes;
}

void PrintScrollGrowth(int rows)
{
    constexpr double kKilobyte = 1024;
    // Caches hold texts of other lengths now and then.
    constexpr double kMaxKilobytes = 64;
    const double grown = HeapGrownByScrolling(BenchList::OfSize(rows)) / kKilobyte;
    TellFigure(u"growth over 10,000 scrolled pages"_s, rows, grown, "KB", kMaxKilobytes);
}

} // namespace

std::vector<BenchCase> RowsCases()
{
    constexpr double kFlatGrowth = 2;
    return {
        { u"open a list to its first frame"_s, 1.5, 11, OpenToFirstFrame, kMaxOpenMs },
        { u"a frame while flicking"_s, 2.0, kFlatGrowth, FlickFrame, kMaxFrameMs },
    };
}

void PrintRowMemory(const BenchOptions& options)
{
    const QString name = u"memory of a shown row"_s;
    if (!name.contains(options.nameFilter))
        return;
    // What a screen shows is kept whatever the length of the list.
    BenchList few(static_cast<int>(kScreenful));
    for (const int rows : options.sizes) {
        // The first window with texts makes what later ones share.
        static_cast<void>(MemoryOfOpenView(BenchList::OfSize(rows)));
        const double bytes
            = (MemoryOfOpenView(BenchList::OfSize(rows)) - MemoryOfOpenView(few)) / rows;
        // Memory is counted in pages, so that more digits would be noise.
        TellFigure(name, rows, std::round(bytes * 10) / 10, "B", kMaxBytesPerRow);
    }
    // Not worth its time on the few rows of a trial run.
    if (options.sizes.front() >= kScrolledPages)
        PrintScrollGrowth(options.sizes.front());
}

} // namespace Quillory
