// SPDX-License-Identifier: MIT
#include "rows/column_layout.h"

#include "platform/leading_number.h"
#include "rows/rows_table.h"
#include "store/inventory_list.h"
#include "values/column_type.h"
#include "widgets/measures.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// What a column of a type has room for until somebody sets its width.
QString SampleText(ColumnType type)
{
    switch (type) {
    case ColumnType::String:
        return u"an ordinary name"_s;
    case ColumnType::Checkbox:
        return u"xxxx"_s;
    case ColumnType::Price:
        return u"1,000.00"_s;
    case ColumnType::Integer:
        return u"10000"_s;
    case ColumnType::Date:
        return u"00/00/0000"_s;
    }
    return {};
}

bool IsPermutation(const std::vector<quint32>& order, size_t count)
{
    std::vector<quint32> sorted = order;
    std::sort(sorted.begin(), sorted.end());
    for (size_t i = 0; i < sorted.size(); ++i) {
        if (sorted[i] != i)
            return false;
    }
    return sorted.size() == count;
}

} // namespace

ColumnLayout::ColumnLayout(RowsTable& view, InventoryList& list)
    : QObject(&view)
    , m_view(view)
    , m_header(*view.horizontalHeader())
    , m_list(list)
    , m_isSet(static_cast<size_t>(m_header.count()))
    , m_needs(m_isSet.size())
{
    TakeOverStored();
    Measure();
    Fit();
    connect(&m_header, &QHeaderView::sectionResized, this, [this](int column) {
        if (!m_isFitting)
            m_isSet[static_cast<size_t>(column)] = true;
    });
    m_header.installEventFilter(this);
    view.viewport()->installEventFilter(this);
}

void ColumnLayout::TakeOverStored()
{
    const QStringList widths = m_list.TableColSizes.split(u',', Qt::SkipEmptyParts);
    for (int column = 0; column < std::min<int>(static_cast<int>(widths.size()), m_header.count());
         ++column) {
        const int width = LeadingInteger(widths[column]);
        m_isSet[static_cast<size_t>(column)] = width > 0 && width <= kMaxColumnWidth;
        if (m_isSet[static_cast<size_t>(column)])
            m_header.resizeSection(column, width);
    }
    if (!IsPermutation(m_list.columnOrder, m_list.columns.size()))
        return;
    for (int place = 0; place < m_header.count(); ++place) {
        const auto column = static_cast<int>(m_list.columnOrder[static_cast<size_t>(place)]);
        m_header.moveSection(m_header.visualIndex(column), place);
    }
}

void ColumnLayout::Measure()
{
    const QFontMetrics metrics(m_header.font());
    for (int column = 0; column < m_header.count(); ++column) {
        const ColumnDefinition& definition = m_list.columns[static_cast<size_t>(column)];
        const int title = metrics.horizontalAdvance(definition.name);
        const int sample = metrics.horizontalAdvance(SampleText(ColumnTypeOf(definition.id)));
        const int held = m_view.NeedOf(column);
        // Texts differ too much for a sample to say more than what is there.
        const bool isSampled = held == 0 || !IsText(column);
        const int need = std::max(title, isSampled ? sample : 0) + 2 * kGrid + kGrid / 2;
        m_needs[static_cast<size_t>(column)] = std::max(need, held);
    }
}

void ColumnLayout::Fit()
{
    const QScopedValueRollback<bool> fitting(m_isFitting, true);
    // One long text leaves room for others beside it.
    const int mostOfView = std::max(m_view.viewport()->width() * 3 / 5, kNarrowPage / 2);
    int rest = m_view.viewport()->width();
    std::vector<int> texts;
    std::vector<int> others;
    for (int column = 0; column < m_header.count(); ++column) {
        if (!m_isSet[static_cast<size_t>(column)]) {
            const int need = m_needs[static_cast<size_t>(column)];
            m_header.resizeSection(column, std::min(need, mostOfView));
            (IsText(column) ? texts : others).push_back(column);
        }
        rest -= m_header.sectionSize(column);
    }
    const auto widen = [&](int column, int by) {
        m_header.resizeSection(column, m_header.sectionSize(column) + by);
        rest -= by;
    };
    // Where there is room, titles that fill their column get some for the mark of the order.
    const int mark = m_header.style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, &m_header);
    if (rest >= static_cast<int>(others.size()) * mark) {
        for (const int column : others)
            widen(column, mark);
    }
    for (size_t i = 0; i < texts.size() && rest > 0; ++i)
        widen(texts[i], rest / static_cast<int>(texts.size() - i));
}

bool ColumnLayout::IsText(int column) const
{
    return ColumnTypeOf(m_list.columns[static_cast<size_t>(column)].id) == ColumnType::String;
}

bool ColumnLayout::eventFilter(QObject* watched, QEvent* event)
{
    // The header hears of a new font after the lines do; the viewport is what is left for columns.
    const bool isNewFont = watched == &m_header && event->type() == QEvent::FontChange;
    const bool isNewRoom = watched != &m_header && event->type() == QEvent::Resize;
    if (isNewFont)
        Measure();
    if (isNewFont || isNewRoom)
        Fit();
    return QObject::eventFilter(watched, event);
}

void ColumnLayout::Store() const
{
    m_list.columnOrder.clear();
    QString widths;
    for (int i = 0; i < m_header.count(); ++i) {
        const int width = m_isSet[static_cast<size_t>(i)] ? m_header.sectionSize(i) : 0;
        widths += QString::number(width) + u',';
        m_list.columnOrder.push_back(static_cast<quint32>(m_header.logicalIndex(i)));
    }
    // A list that was only looked at stays as it is.
    const bool isAnySet = std::ranges::find(m_isSet, true) != m_isSet.end();
    if (isAnySet || !m_list.TableColSizes.isEmpty())
        m_list.TableColSizes = widths;
}

} // namespace Quillory
