// SPDX-License-Identifier: MIT
#include "report/charts.h"

#include "report/html_table.h"

#include <QCoreApplication>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kBar = "#3b78c2";
constexpr const char* kAlarm = "#c8432f";
constexpr const char* kRule = "#888888";

/// Builds a drawing from its parts.
class Drawing
{
public:
    explicit Drawing(const QByteArray& ink)
        : m_ink(ink)
    { }
    void AddBar(double x, double y, double width, double height, const char* colour)
    {
        m_parts += u"<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" rx=\"2\" fill=\"%5\"/>\n"_s
                       .arg(x)
                       .arg(y)
                       .arg(width)
                       .arg(height)
                       .arg(QLatin1StringView(colour))
                       .toUtf8();
    }
    void AddLine(double x1, double y1, double x2, double y2)
    {
        m_parts += u"<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%4\" stroke=\"%5\"/>\n"_s.arg(x1)
                       .arg(y1)
                       .arg(x2)
                       .arg(y2)
                       .arg(QLatin1StringView(kRule))
                       .toUtf8();
    }
    /// `anchor` is start, middle or end.
    void AddText(double x, double y, const char* anchor, const QString& text)
    {
        m_parts += u"<text x=\"%1\" y=\"%2\" text-anchor=\"%3\" fill=\"%4\">"_s.arg(x)
                       .arg(y)
                       .arg(QLatin1StringView(anchor), QLatin1StringView(m_ink))
                       .toUtf8()
            + HtmlText(text) + "</text>\n";
    }
    [[nodiscard]] Chart Finish(const QString& title, int height) const
    {
        const QString begin
            = u"<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %2\" width=\"%1\" "
              "height=\"%2\" font-family=\"sans-serif\" font-size=\"13\" role=\"img\">\n<title>"_s
                  .arg(kChartWidth)
                  .arg(height);
        return { title, begin.toUtf8() + HtmlText(title) + "</title>\n" + m_parts + "</svg>\n",
            height };
    }

private:
    QByteArray m_ink;
    QByteArray m_parts;
};

/// As much of a name as there is room for, in whole letters.
QString Shortened(const QString& name)
{
    constexpr qsizetype kMostOfName = 28;
    if (name.size() <= kMostOfName)
        return name;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, name);
    letters.setPosition(kMostOfName);
    return name.left(letters.toPreviousBoundary()) + u'…';
}

QString Translated(const char* text)
{
    return QCoreApplication::translate("Report", text);
}

Chart DrawMonths(const ReportSource& source, const ReportFacts& facts, const QByteArray& ink)
{
    constexpr int kHeight = 190;
    constexpr double kTop = 20;
    constexpr double kGround = 150;
    constexpr int kLineOfText = 16;
    constexpr double kGap = 8;
    constexpr auto kBars = static_cast<int>(ReportFacts::kMonths) + 1;
    constexpr double kStep = double { kChartWidth } / kBars;
    const qint64 most
        = std::max({ qint64 { 1 }, facts.expired, *std::ranges::max_element(facts.expiring) });
    Drawing drawing(ink);
    const auto add = [&](int place, qint64 rows, const QString& label, const char* colour) {
        const double middle = (place + 0.5) * kStep;
        const double height
            = (kGround - kTop) * static_cast<double>(rows) / static_cast<double>(most);
        if (rows > 0) {
            drawing.AddBar(
                middle - kStep / 2 + kGap / 2, kGround - height, kStep - kGap, height, colour);
            drawing.AddText(middle, kGround - height - 4, "middle", QString::number(rows));
        }
        drawing.AddText(middle, kGround + kLineOfText, "middle", label);
    };
    //: The first bar of a drawing of months: what is expired already.
    add(0, facts.expired, Translated(QT_TRANSLATE_NOOP("Report", "past")), kAlarm);
    const QDate first(source.Today().year(), source.Today().month(), 1);
    for (int i = 1; i < kBars; ++i) {
        const QDate month = first.addMonths(i - 1);
        add(i, facts.expiring.at(static_cast<size_t>(i - 1)),
            source.Context().userLocale.shortMonthNames.at(static_cast<size_t>(month.month() - 1)),
            kBar);
        if (i == 1 || month.month() == 1)
            drawing.AddText((i + 0.5) * kStep, kGround + 2 * kLineOfText, "middle",
                QString::number(month.year()));
    }
    drawing.AddLine(0, kGround, kChartWidth, kGround);
    return drawing.Finish(
        Translated(QT_TRANSLATE_NOOP("Report", "What expires in the next twelve months")), kHeight);
}

Chart DrawCounts(const ReportSource& source, const ReportFacts& facts, const QByteArray& ink)
{
    constexpr double kStep = 24;
    constexpr double kThickness = 14;
    constexpr double kBegin = 220;
    constexpr double kEnd = 590;
    constexpr double kTop = 24;
    const qint32 threshold = source.List().TableWarnStart;
    const qint32 most = std::max({ 1, threshold, facts.fewest.back().count });
    const auto placeOf = [most](qint32 count) {
        return kBegin + (kEnd - kBegin) * std::clamp(count, 0, most) / most;
    };
    Drawing drawing(ink);
    double y = kTop;
    for (const auto& [name, count] : facts.fewest) {
        const bool isLow = count <= threshold;
        const double end = placeOf(count);
        drawing.AddText(kBegin - 8, y + kThickness - 2, "end", Shortened(name));
        if (end > kBegin)
            drawing.AddBar(kBegin, y, end - kBegin, kThickness, isLow ? kAlarm : kBar);
        const QString mark = isLow ? u' ' + WarningText({ true, false }) : QString();
        drawing.AddText(end + 6, y + kThickness - 2, "start", QString::number(count) + mark);
        y += kStep;
    }
    const double line = placeOf(threshold);
    drawing.AddLine(line, kTop - 6, line, y - kStep + kThickness + 6);
    drawing.AddText(line, kTop - 10, "middle", QString::number(threshold));
    return drawing.Finish(
        Translated(QT_TRANSLATE_NOOP("Report", "Of what fewest are left, beside the threshold")),
        static_cast<int>(y));
}

} // namespace

std::vector<Chart> DrawCharts(
    const ReportSource& source, const ReportFacts& facts, const QByteArray& ink)
{
    std::vector<Chart> charts;
    const bool expires = facts.expired > 0
        || std::ranges::any_of(facts.expiring, [](qint64 rows) { return rows > 0; });
    if (facts.hasExpiryDates && expires)
        charts.push_back(DrawMonths(source, facts, ink));
    if (!facts.fewest.empty())
        charts.push_back(DrawCounts(source, facts, ink));
    return charts;
}

} // namespace Quillory
