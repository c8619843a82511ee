// SPDX-License-Identifier: MIT
#include "widgets/line_view.h"

#include "widgets/measures.h"

#include <QHeaderView>
#include <QTableView>

namespace Quillory {

void DressLineView(QTableView* view)
{
    view->setFrameShape(QFrame::NoFrame);
    view->setShowGrid(false);
    view->setWordWrap(false);
    view->setCornerButtonEnabled(false);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setTabKeyNavigation(false);
    QHeaderView* lines = view->verticalHeader();
    lines->hide();
    // One height for all: a list of a million lines is never measured line by line.
    lines->setSectionResizeMode(QHeaderView::Fixed);
    lines->setDefaultSectionSize(CurrentMeasures().lineHeight);
    QHeaderView* header = view->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setMinimumSectionSize(kMinTouchTarget / 2);
}

} // namespace Quillory
