// SPDX-License-Identifier: MIT
#include "widgets/icon_grid_page.h"

#include "widgets/icon_grid.h"

#include <QVBoxLayout>

namespace Quillory {

using namespace Qt::StringLiterals;

IconGridPage::IconGridPage(int selected, QWidget* parent)
    : Page(tr("Icon"), parent)
    , m_icon(selected)
{
    setObjectName(u"iconGridPage"_s);
    ShowOkButton(false);
    auto* grid = new IconGrid(this);
    grid->SelectIcon(selected);
    Body()->addWidget(grid, 1);
    SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    connect(grid, &IconGrid::IconTapped, this, [this](int index) {
        m_icon = index;
        RequestEnd(PageResult::Ok);
    });
    setFocusProxy(grid);
}

} // namespace Quillory
