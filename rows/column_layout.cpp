// SPDX-License-Identifier: MIT
#include "rows/column_layout.h"

#include "platform/leading_number.h"
#include "store/inventory_list.h"
#include "values/column_type.h"
#include "widgets/measures.h"

#include <QHeaderView>

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

void ApplyColumnLayout(QHeaderView& header, const InventoryList& list)
{
    const QFontMetrics metrics(header.font());
    for (int column = 0; column < header.count(); ++column) {
        const ColumnDefinition& definition = list.columns[static_cast<size_t>(column)];
        const int text = metrics.horizontalAdvance(SampleText(ColumnTypeOf(definition.id)));
        const int title = metrics.horizontalAdvance(definition.name);
        header.resizeSection(column, std::max(text, title) + 2 * kGrid + kGrid / 2);
    }
    const QStringList widths = list.TableColSizes.split(u',', Qt::SkipEmptyParts);
    for (int column = 0; column < std::min<int>(static_cast<int>(widths.size()), header.count());
         ++column) {
        const int width = LeadingInteger(widths[column]);
        if (width > 0 && width <= kMaxColumnWidth)
            header.resizeSection(column, width);
    }
    if (!IsPermutation(list.columnOrder, list.columns.size()))
        return;
    for (int place = 0; place < header.count(); ++place) {
        const auto column = static_cast<int>(list.columnOrder[static_cast<size_t>(place)]);
        header.moveSection(header.visualIndex(column), place);
    }
}

void StoreColumnLayout(const QHeaderView& header, InventoryList& list)
{
    list.TableColSizes.clear();
    list.columnOrder.clear();
    for (int i = 0; i < header.count(); ++i) {
        list.TableColSizes += QString::number(header.sectionSize(i)) + u',';
        list.columnOrder.push_back(static_cast<quint32>(header.logicalIndex(i)));
    }
}

} // namespace Quillory
