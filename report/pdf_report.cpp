// SPDX-License-Identifier: MIT
#include "report/pdf_report.h"

#include "report/charts.h"
#include "res/list_icon.h"
#include "values/column_type.h"

#include <QAbstractTextDocumentLayout>
#include <QDataStream>
#include <QFile>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <QTextTable>

#include <algorithm>
#include <numeric>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// All sizes but those of letters are in these: documents scale what they are told by it.
constexpr int kPixelsPerInch = 96;
constexpr double kPointsPerPixel = 72.0 / kPixelsPerInch;
constexpr double kMargin = 56;
constexpr double kFooter = 32;
constexpr double kIcon = 36;
constexpr double kCellPadding = 6;
constexpr double kGap = 24;
/// Sizes of letters.
constexpr double kBodyPoints = 9;
constexpr double kTitlePoints = 18;
/// Laid out at once: their time grows faster than their number.
constexpr size_t kRowsAtOnce = 500;
constexpr int kDrawingObject = QTextFormat::UserObject + 1;
constexpr int kDrawingBytes = QTextFormat::UserProperty + 1;
constexpr int kDrawingSize = QTextFormat::UserProperty + 2;
const QColor kInk(0x22, 0x22, 0x22);
const QColor kQuiet(0x66, 0x66, 0x66);
const QColor kRuleInk(0xcc, 0xcc, 0xcc);
const QColor kLow(0x8a, 0x53, 0x00);
const QColor kExpired(0xb3, 0x26, 0x1e);

QFont BodyFont()
{
    QFont font(u"sans-serif"_s);
    font.setPointSizeF(kBodyPoints);
    return font;
}

/// A row as it is laid out.
struct Line
{
    QStringList texts;
    RowWarnings warnings;

    friend QDataStream& operator<<(QDataStream& stream, const Line& line)
    {
        return stream << line.texts << line.warnings.isLow << line.warnings.isExpired;
    }
    friend QDataStream& operator>>(QDataStream& stream, Line& line)
    {
        return stream >> line.texts >> line.warnings.isLow >> line.warnings.isExpired;
    }
};

/// What is printed of a list, read as a whole before any of it is printed.
struct ListToPrint
{
    QString name;
    QString subtitle;
    int icon = 0;
    std::vector<ColumnDefinition> columns;
    std::vector<Chart> charts;
    ListTotals totals;
    /// The rows as lines in a stream, a fraction of what they take as objects.
    QByteArray lines;
};

/// Draws vectors within text.
class DrawingObject : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    using QObject::QObject;

    QSizeF intrinsicSize(
        QTextDocument* /*document*/, int /*place*/, const QTextFormat& format) override
    {
        return format.property(kDrawingSize).toSizeF();
    }
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* /*document*/,
        int /*place*/, const QTextFormat& format) override
    {
        QSvgRenderer(format.property(kDrawingBytes).toByteArray()).render(painter, rect);
    }
};

/// What a document of some pages is built with.
class DocumentBuilder
{
public:
    DocumentBuilder(QPdfWriter& writer, QSizeF page)
        : m_drawings(&m_document)
        , m_cursor(&m_document)
    {
        m_document.documentLayout()->setPaintDevice(&writer);
        m_document.documentLayout()->registerHandler(kDrawingObject, &m_drawings);
        m_document.setDocumentMargin(0);
        m_document.setDefaultFont(BodyFont());
        QTextOption wrapped;
        wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        m_document.setDefaultTextOption(wrapped);
        m_document.setPageSize(page);
        // Laid out once, at the end, not after each cell.
        m_cursor.beginEditBlock();
    }
    /// The document, once all is in it.
    [[nodiscard]] const QTextDocument& Finish()
    {
        m_cursor.endEditBlock();
        return m_document;
    }

    void AddTitle(const ListToPrint& list)
    {
        QFile icon(ListIconFile(list.icon));
        if (icon.open(QIODevice::ReadOnly))
            AddDrawing(icon.readAll().replace("#000", kInk.name().toLatin1()), { kIcon, kIcon });
        QTextCharFormat title = Ink(kInk, kTitlePoints, true);
        title.setVerticalAlignment(QTextCharFormat::AlignMiddle);
        m_cursor.insertText(u"  "_s + list.name, title);
        AddBlock();
        m_cursor.insertText(list.subtitle, Ink(kQuiet, kBodyPoints, false));
    }
    void AddChart(const Chart& chart)
    {
        const double width = std::min(kChartWidth * 0.8, m_document.pageSize().width());
        AddBlock(kGap);
        m_cursor.insertText(chart.title, Ink(kInk, kBodyPoints, true));
        AddBlock(kCellPadding);
        AddDrawing(chart.drawing, QSizeF(width, chart.height * width / kChartWidth));
    }
    QTextTable* AddTable(const std::vector<ColumnDefinition>& columns,
        const QList<QTextLength>& widths, std::span<const Line> lines)
    {
        AddBlock(kGap / 2);
        QTextTableFormat format = Bare();
        format.setHeaderRowCount(1);
        format.setColumnWidthConstraints(widths);
        auto* table = m_cursor.insertTable(
            static_cast<int>(lines.size()) + 1, static_cast<int>(columns.size()), format);
        for (int column = 0; column < table->columns(); ++column) {
            const ColumnDefinition& definition = columns[static_cast<size_t>(column)];
            const bool isNumber = IsNumberColumn(definition.id);
            Fill(*table, 0, column, isNumber, Ink(kInk, kBodyPoints, true), definition.name);
            for (int row = 1; row < table->rows(); ++row) {
                const Line& line = lines[static_cast<size_t>(row) - 1];
                QTextCursor cell = Fill(
                    *table, row, column, isNumber, Ink(InkOf(line.warnings)), line.texts[column]);
                if (definition.id == PropName && line.warnings != RowWarnings {})
                    cell.insertText(u"  "_s + WarningText(line.warnings),
                        Ink(InkOf(line.warnings), kBodyPoints * 0.8, true));
            }
        }
        m_cursor.movePosition(QTextCursor::End);
        return table;
    }
    void AddTotals(const ListTotals& totals)
    {
        AddBlock(kGap);
        m_cursor.insertText(ReportTotalsTitle(), Ink(kInk, kBodyPoints, true));
        auto* table = m_cursor.insertTable(static_cast<int>(totals.lines.size()), 2, Bare());
        for (int row = 0; row < table->rows(); ++row) {
            const ColumnTotal& total = totals.lines[static_cast<size_t>(row)];
            Fill(*table, row, 0, false, Ink(kInk), total.name);
            Fill(*table, row, 1, true, Ink(kInk), total.text);
        }
        m_cursor.movePosition(QTextCursor::End);
    }

private:
    QTextDocument m_document;
    DrawingObject m_drawings;
    QTextCursor m_cursor;

    static QTextCharFormat Ink(const QColor& ink, double points = kBodyPoints, bool isBold = false)
    {
        QTextCharFormat format;
        format.setFont(BodyFont());
        format.setFontPointSize(points);
        format.setForeground(ink);
        format.setFontWeight(isBold ? QFont::Bold : QFont::Normal);
        return format;
    }
    static QColor InkOf(const RowWarnings& warnings)
    {
        return warnings.isExpired ? kExpired : warnings.isLow ? kLow : kInk;
    }
    static QTextTableFormat Bare()
    {
        QTextTableFormat format;
        format.setBorder(0);
        format.setCellSpacing(0);
        return format;
    }
    void AddBlock(double marginAbove = 0)
    {
        QTextBlockFormat format;
        format.setTopMargin(marginAbove);
        m_cursor.insertBlock(format);
    }
    void AddDrawing(const QByteArray& bytes, QSizeF size)
    {
        QTextCharFormat format;
        format.setObjectType(kDrawingObject);
        format.setProperty(kDrawingBytes, bytes);
        format.setProperty(kDrawingSize, size);
        format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
        m_cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
    }
    static QTextCursor Fill(QTextTable& table, int row, int column, bool isNumber,
        const QTextCharFormat& ink, const QString& text)
    {
        QTextTableCell cell = table.cellAt(row, column);
        QTextTableCellFormat format;
        format.setPadding(kCellPadding);
        format.setTopPadding(kCellPadding / 2);
        format.setBottomPadding(kCellPadding / 2);
        format.setBottomBorder(0.5);
        format.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBottomBorderBrush(kRuleInk);
        cell.setFormat(format);
        QTextCursor cursor = cell.firstCursorPosition();
        QTextBlockFormat block;
        block.setAlignment(isNumber ? Qt::AlignRight : Qt::AlignLeading);
        cursor.setBlockFormat(block);
        cursor.insertText(text, ink);
        return cursor;
    }
};

/// The widths of columns: what they hold if there is room for that, else the wide ones give way.
QList<double> FittedWidths(QList<double> natural, double room)
{
    const auto sumUpTo = [&natural](double limit) {
        return std::accumulate(natural.begin(), natural.end(), 0.0,
            [limit](double sum, double width) { return sum + std::min(width, limit); });
    };
    // The width above which columns are cut down, halved in on.
    double fits = 0;
    double most = *std::max_element(natural.begin(), natural.end());
    if (sumUpTo(most) <= room)
        return natural;
    while (most - fits > 1) {
        const double middle = (fits + most) / 2;
        (sumUpTo(middle) <= room ? fits : most) = middle;
    }
    for (double& width : natural)
        width = std::min(width, fits);
    return natural;
}

} // namespace

/// The pages that are written one after another.
class PdfReport::Pages
{
public:
    Pages(QIODevice& target, const QString& title)
        : m_writer(&target)
    {
        const bool isImperial = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
        m_writer.setTitle(title);
        m_writer.setResolution(kPixelsPerInch);
        m_writer.setPageSize(QPageSize(isImperial ? QPageSize::Letter : QPageSize::A4));
        m_writer.setPageMargins(
            QMarginsF(kMargin, kMargin, kMargin, kMargin) * kPointsPerPixel, QPageLayout::Point);
    }

    Database::VisitOutcome Add(const ReportSource& list)
    {
        const ReportFacts facts = list.Facts();
        ListToPrint& read = m_lists.emplace_back();
        read.name = list.List().Name;
        read.subtitle = ReportSubtitle(list, facts);
        read.icon = list.List().TableIcon;
        read.columns = list.Columns();
        read.charts = DrawCharts(list, facts, kInk.name().toLatin1());
        read.totals = list.Totals();
        QDataStream stream(&read.lines, QIODevice::WriteOnly);
        return list.Visit([&](const ReportRow& row) {
            Line line { {}, row.warnings };
            for (const PropertyValue& value : row.values)
                line.texts << ReportText(value, list.Context());
            stream << line;
            return true;
        });
    }
    void End()
    {
        for (const ListToPrint& list : m_lists)
            PrintList(list);
        // A document has a page, whatever there is to print.
        if (!m_painter.isActive())
            m_painter.begin(&m_writer);
        m_painter.end();
    }

private:
    QPdfWriter m_writer;
    QPainter m_painter;
    std::vector<ListToPrint> m_lists;
    QList<QTextLength> m_widths;
    int m_page = 0;

    [[nodiscard]] QSizeF PageRoom() const
    {
        const QSize room = m_writer.pageLayout().paintRectPixels(kPixelsPerInch).size();
        return { static_cast<double>(room.width()), room.height() - kFooter };
    }
    void PrintList(const ListToPrint& list)
    {
        std::vector<Line> lines;
        bool isFirst = true;
        QDataStream stream(list.lines);
        while (!stream.atEnd()) {
            stream >> lines.emplace_back();
            if (lines.size() >= kRowsAtOnce)
                Print(list, lines, std::exchange(isFirst, false), false);
        }
        Print(list, lines, isFirst, true);
    }
    /// Chooses how the pages lie and the widths of the columns by the first rows.
    void Fit(const std::vector<ColumnDefinition>& columns, std::span<const Line> lines)
    {
        QFont bold = BodyFont();
        bold.setBold(true);
        const QFontMetricsF plainMetrics(BodyFont(), &m_writer);
        const QFontMetricsF boldMetrics(bold, &m_writer);
        QList<double> natural;
        for (size_t i = 0; i < columns.size(); ++i) {
            const auto place = static_cast<qsizetype>(i);
            double width = boldMetrics.horizontalAdvance(columns[i].name);
            for (const Line& line : lines) {
                const double mark = columns[i].id == PropName && line.warnings != RowWarnings {}
                    ? boldMetrics.horizontalAdvance(u"  "_s + WarningText(line.warnings))
                    : 0;
                width = std::max(width, plainMetrics.horizontalAdvance(line.texts[place]) + mark);
            }
            natural << width + 3 * kCellPadding;
        }
        m_writer.setPageOrientation(QPageLayout::Portrait);
        if (std::accumulate(natural.begin(), natural.end(), 0.0) > PageRoom().width())
            m_writer.setPageOrientation(QPageLayout::Landscape);
        m_widths.clear();
        for (const double width : FittedWidths(natural, PageRoom().width()))
            m_widths << QTextLength(QTextLength::FixedLength, width);
    }
    /// Lays `lines` out and prints them; unless they are the last ones those of the last page stay,
    /// to be printed with what follows.
    void Print(const ListToPrint& list, std::vector<Line>& lines, bool isFirst, bool isLast)
    {
        if (isFirst)
            Fit(list.columns, lines);
        DocumentBuilder builder(m_writer, PageRoom());
        if (isFirst) {
            builder.AddTitle(list);
            for (const Chart& chart : list.charts)
                builder.AddChart(chart);
        }
        QTextTable* table = builder.AddTable(list.columns, m_widths, lines);
        if (isLast && !list.totals.lines.empty() && list.totals.error == ErrorNumber::None)
            builder.AddTotals(list.totals);
        const QTextDocument& document = builder.Finish();
        int pages = document.pageCount();
        size_t printed = lines.size();
        if (!isLast && pages > 1) {
            const int top = FirstRowOfPage(document, *table, pages - 1);
            if (top > 1) {
                printed = static_cast<size_t>(top) - 1;
                --pages;
            }
        }
        for (int page = 0; page < pages; ++page)
            PrintPage(document, page, list.name);
        lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(printed));
    }
    /// The first row of the table that begins on a page, if none goes over from the one before; 0
    /// if one does.
    static int FirstRowOfPage(const QTextDocument& document, QTextTable& table, int page)
    {
        const double begin = page * document.pageSize().height();
        int row = table.rows() - 1;
        const auto boxOf = [&](int of) {
            QRectF box;
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(of, column);
                for (QTextBlock block = cell.firstCursorPosition().block();
                     block.isValid() && block.position() <= cell.lastPosition();
                     block = block.next())
                    box |= document.documentLayout()->blockBoundingRect(block);
            }
            return box;
        };
        while (row > 1 && boxOf(row - 1).bottom() > begin && boxOf(row).top() > begin)
            --row;
        return boxOf(row).top() >= begin && boxOf(row - 1).bottom() <= begin ? row : 0;
    }
    void PrintPage(const QTextDocument& document, int page, const QString& name)
    {
        if (!m_painter.isActive())
            m_painter.begin(&m_writer);
        else
            m_writer.newPage();
        const QSizeF room = document.pageSize();
        m_painter.save();
        m_painter.translate(0, -page * room.height());
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(QPointF(0, page * room.height()), room);
        m_painter.setClipRect(context.clip);
        document.documentLayout()->draw(&m_painter, context);
        m_painter.restore();
        QFont small = BodyFont();
        small.setPointSizeF(kBodyPoints * 0.9);
        m_painter.setFont(small);
        m_painter.setPen(kQuiet);
        const QRectF footer(0, room.height(), room.width(), kFooter);
        m_painter.drawText(footer, Qt::AlignLeft | Qt::AlignBottom,
            QFontMetricsF(small, &m_writer).elidedText(name, Qt::ElideRight, room.width() * 2 / 3));
        m_painter.drawText(footer, Qt::AlignRight | Qt::AlignBottom, QString::number(++m_page));
    }
};

PdfReport::PdfReport(QIODevice& target, const QString& title)
    : m_pages(std::make_unique<Pages>(target, title))
{ }

PdfReport::~PdfReport() = default;

Database::VisitOutcome PdfReport::Add(const ReportSource& list)
{
    return m_pages->Add(list);
}

void PdfReport::End()
{
    m_pages->End();
}

} // namespace Quillory

#include "pdf_report.moc"
