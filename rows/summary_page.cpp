// SPDX-License-Identifier: MIT
#include "rows/summary_page.h"

#include "res/dialog_table.h"
#include "widgets/line_delegate.h"
#include "widgets/line_view.h"
#include "widgets/touch.h"

#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

SummaryPage::SummaryPage(const std::vector<ColumnTotal>& totals, QWidget* parent)
    : Page(DialogTitle(Dialog::Summary), parent)
{
    setObjectName(u"summary"_s);
    auto* view = new QTableView(this);
    auto* model = new QStandardItemModel(0, 2, view);
    for (const ColumnTotal& total : totals) {
        auto* text = new QStandardItem(total.text);
        text->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        model->appendRow({ new QStandardItem(total.name), text });
    }
    view->setObjectName(u"totals"_s);
    view->setAccessibleName(tr("Totals"));
    view->setModel(model);
    view->setItemDelegate(new LineDelegate(view));
    DressLineView(view);
    ShareWidthWithoutNames(*view);
    new TouchBehaviour(view);
    Body()->addWidget(view, 1);
    setFocusProxy(view);
}

} // namespace Quillory
