// SPDX-License-Identifier: MIT
#include "widgets/line_view.h"

#include "widgets/focus_ring.h"
#include "widgets/measures.h"
#include "widgets/text_line.h"

#include <QCursor>
#include <QEvent>
#include <QFontDatabase>
#include <QHeaderView>
#include <QHelpEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTableView>
#include <QToolTip>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// One height for all lines: a list of a million is never measured line by line.
class LineHeightKeeper : public QObject
{
public:
    explicit LineHeightKeeper(QTableView* view)
        : QObject(view)
        , m_view(view)
    {
        view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
        view->installEventFilter(this);
        Fit();
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_view && event->type() == QEvent::FontChange)
            Fit();
        return QObject::eventFilter(watched, event);
    }

private:
    QTableView* m_view;

    void Fit()
    {
        const int height = LineHeightFor(m_view->fontMetrics());
        // Either of them goes through all lines.
        if (height == m_view->verticalHeader()->defaultSectionSize())
            return;
        m_view->verticalHeader()->setMinimumSectionSize(height);
        m_view->verticalHeader()->setDefaultSectionSize(height);
    }
};

class SightKeeper : public QObject
{
public:
    explicit SightKeeper(QAbstractItemView* view)
        : QObject(view)
        , m_view(view)
    {
        view->viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize) {
            const QSize before = static_cast<QResizeEvent*>(event)->oldSize();
            const QRect line = m_view->visualRect(m_view->currentIndex());
            // What was scrolled away stays away.
            if (line.bottom() < before.height() && line.bottom() >= m_view->viewport()->height())
                QMetaObject::invokeMethod(this, &SightKeeper::Show, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QAbstractItemView* m_view;

    void Show()
    {
        const int column = m_view->horizontalScrollBar()->value();
        m_view->scrollTo(m_view->currentIndex());
        m_view->horizontalScrollBar()->setValue(column);
    }
};

/// Says what is cut in a view, or in its header, which is a view as well.
class CutTextTeller : public QObject
{
public:
    explicit CutTextTeller(QAbstractItemView* view)
        : QObject(view)
        , m_view(view)
    {
        view->viewport()->setAttribute(Qt::WA_Hover);
        view->viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip)
            return QObject::eventFilter(watched, event);
        const auto* help = static_cast<QHelpEvent*>(event);
        const QString text = CutText(help->pos());
        if (text.isEmpty())
            return QObject::eventFilter(watched, event);
        QToolTip::showText(help->globalPos(), TipOf(text), m_view);
        return true;
    }

private:
    QAbstractItemView* m_view;

    /// What is written in a place and is not seen whole.
    [[nodiscard]] QString CutText(const QPoint& place) const
    {
        if (const auto* header = qobject_cast<const QHeaderView*>(m_view)) {
            const int column = header->logicalIndexAt(place);
            const bool isCut
                = column >= 0 && header->sectionSizeHint(column) > header->sectionSize(column);
            return isCut ? header->model()->headerData(column, Qt::Horizontal).toString()
                         : QString();
        }
        const QModelIndex index = m_view->indexAt(place);
        const int seen = (m_view->visualRect(index) & m_view->viewport()->rect()).width();
        return m_view->sizeHintForIndex(index).width() > seen ? index.data().toString() : QString();
    }
};

} // namespace

void MeetMouse(QAbstractItemView* view)
{
    new CutTextTeller(view);
}

int LineUnderMouse(const QAbstractItemView& view)
{
    if (!view.viewport()->underMouse() || HasTouchScreen())
        return -1;
    return view.indexAt(view.viewport()->mapFromGlobal(QCursor::pos())).row();
}

void KeepCurrentInSight(QAbstractItemView* view)
{
    new SightKeeper(view);
}

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
    view->verticalHeader()->hide();
    new LineHeightKeeper(view);
    KeepCurrentInSight(view);
    MeetMouse(view);
    ShowFocusRing(view);
    QHeaderView* header = view->horizontalHeader();
    MeetMouse(header);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setMinimumSectionSize(kMinTouchTarget / 2);
}

void ShareWidthWithoutNames(QTableView& view)
{
    for (int column = 0; column < view.model()->columnCount(); ++column)
        view.model()->setHeaderData(column, Qt::Horizontal, QString());
    view.horizontalHeader()->hide();
    view.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
}

QFont ListFont()
{
    QFont font;
    // Not by hasFamily(), which first asks what might stand in for the family.
    if (QFontDatabase::families().contains(u"Tahoma"_s))
        font.setFamily(u"Tahoma"_s);
    return font;
}

} // namespace Quillory
