// SPDX-License-Identifier: MIT
#include "rows/filter_bar.h"

#include "widgets/measures.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace Quillory {

using namespace Qt::StringLiterals;

FilterBar::FilterBar(QWidget* parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_clear(new QPushButton(tr("Clear"), this))
{
    setObjectName(u"filterBar"_s);
    setAttribute(Qt::WA_StyledBackground);
    m_text->setObjectName(u"filterText"_s);
    m_text->setWordWrap(true);
    m_text->setMinimumWidth(kMinTouchTarget);
    m_text->setMinimumHeight(CurrentMeasures().lineHeight);
    m_clear->setObjectName(u"clearFilters"_s);
    m_clear->setAutoDefault(false);
    m_clear->setFocusPolicy(Qt::TabFocus);
    m_clear->setMinimumHeight(CurrentMeasures().lineHeight);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(
        LineMargins(kPageMargin, kGrid, layoutDirection()) + QMargins(0, kGrid / 2, 0, kGrid / 2));
    line->setSpacing(kGrid / 2);
    line->addWidget(m_text, 1);
    line->addWidget(m_clear);
    connect(m_clear, &QPushButton::clicked, this, &FilterBar::ClearChosen);
    hide();
}

void FilterBar::Tell(qint64 shown, qint64 all, bool mayClear)
{
    m_text->setText(tr("%1 of %2 rows").arg(shown).arg(all));
    setAccessibleName(m_text->text());
    m_clear->setVisible(mayClear);
    show();
}

} // namespace Quillory
