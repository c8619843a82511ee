// SPDX-License-Identifier: MIT
#include "widgets/page_stack.h"

#include "widgets/accessibility.h"
#include "widgets/measures.h"
#include "widgets/questions.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QInputMethod>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinBesideWidth = 240;
constexpr int kMaxBesideWidth = 320;
/// Of the window's width.
constexpr int kBesideShare = 4;

} // namespace

PageStack::PageStack(QWidget* parent)
    : QWidget(parent)
    , m_edge(new QFrame(this))
    , m_hint(new QLabel(this))
{
    setObjectName(u"pageStack"_s);
    m_edge->setObjectName(u"paneEdge"_s);
    m_edge->setFixedWidth(1);
    m_hint->setObjectName(u"noPage"_s);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    m_hint->setMargin(kPageMargin);
    // All pages lie in one line, of which one or two are seen.
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    // Two pages need not fit before the window has become so narrow that one is hidden.
    line->setSizeConstraint(QLayout::SetNoConstraint);
    line->addWidget(m_edge);
    line->addWidget(m_hint, 1);
    Arrange();
    const QInputMethod* keyboard = QApplication::inputMethod();
    connect(keyboard, &QInputMethod::keyboardRectangleChanged, this, &PageStack::FitAboveKeyboard);
    connect(keyboard, &QInputMethod::visibleChanged, this, &PageStack::FitAboveKeyboard);
}

PageStack& PageStack::Of(const QWidget* widget)
{
    QWidget* parent = widget->parentWidget();
    while (qobject_cast<PageStack*>(parent) == nullptr)
        parent = parent->parentWidget();
    return *qobject_cast<PageStack*>(parent);
}

void PageStack::SetHint(const QString& hint)
{
    m_hint->setText(hint);
}

void PageStack::FitAboveKeyboard()
{
    const QInputMethod* keyboard = QApplication::inputMethod();
    const QRectF covered = keyboard->isVisible() ? keyboard->keyboardRectangle() : QRectF();
    const QRect own(mapTo(window(), QPoint()), size());
    const QRect overlap = own & covered.toAlignedRect();
    setContentsMargins(0, 0, 0, overlap.height());
}

void PageStack::Arrange()
{
    const bool isWide = width() >= kWideWindow;
    setUpdatesEnabled(false);
    m_edge->setVisible(isWide);
    m_hint->setVisible(isWide && Depth() <= 1);
    if (Page* top = Top()) {
        Page* first = m_pages.front();
        first->setMinimumWidth(
            isWide ? std::clamp(width() / kBesideShare, kMinBesideWidth, kMaxBesideWidth) : 0);
        first->setMaximumWidth(isWide ? first->minimumWidth() : QWIDGETSIZE_MAX);
        first->SetBeside(isWide && top != first);
        top->show();
        for (Page* page : m_pages)
            page->setVisible(page == top || (isWide && page == first));
    }
    setUpdatesEnabled(true);
}

void PageStack::resizeEvent(QResizeEvent* event)
{
    // With the page that is about to be hidden the keyboard would be gone.
    const bool isHiding = Depth() > 1 && width() < kWideWindow;
    if (isHiding && m_pages.front()->isAncestorOf(QApplication::focusWidget()))
        FocusTop();
    Arrange();
    QWidget::resizeEvent(event);
}

QSize PageStack::minimumSizeHint() const
{
    QSize needed(0, 0);
    for (const Page* page : m_pages)
        needed = needed.expandedTo(page->minimumSizeHint());
    return needed;
}

void PageStack::Push(Page* page, std::function<void(PageResult)> then)
{
    ClosePopups();
    if (Top() != nullptr)
        Top()->CommitInPlace();
    QWidget* const below = Top() == nullptr ? nullptr : Top()->focusWidget();
    connect(page, &Page::HelpRequested, this, &PageStack::HelpRequested);
    connect(page, &Page::Ended, this,
        [this, page, below = QPointer<QWidget>(below), then = std::move(then)](PageResult result) {
            Remove(page);
            if (below != nullptr)
                below->setFocus();
            if (then)
                then(result);
            page->deleteLater();
        });
    auto* line = qobject_cast<QHBoxLayout*>(layout());
    if (m_pages.empty())
        line->insertWidget(0, page, 1);
    else
        line->addWidget(page, 1);
    m_pages.push_back(page);
    Arrange();
    AnnounceTop();
    page->setFocus();
    Q_EMIT TopChanged();
}

void PageStack::AnnounceTop() const
{
    if (isVisible() && Top() != nullptr)
        Announce(Top()->accessibleName());
}

void PageStack::Remove(Page* page)
{
    std::erase(m_pages, page);
    layout()->removeWidget(page);
    Arrange();
    page->hide();
    AnnounceTop();
    Q_EMIT TopChanged();
}

bool PageStack::HasUnsavedInput() const
{
    return std::ranges::any_of(m_pages, [](const Page* page) { return page->HasUnsavedInput(); });
}

void PageStack::FocusTop() const
{
    QWidget* last = Top()->focusWidget();
    (last == nullptr ? Top() : last)->setFocus();
}

void PageStack::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && Top() != nullptr)
        FocusTop();
    else
        QWidget::keyPressEvent(event);
}

void PageStack::CloseAll(const std::function<void()>& then)
{
    ClosePopups();
    Page* top = Top();
    top->CommitInPlace();
    if (Depth() <= 1)
        return then();
    const auto goOn = [this, top, then] {
        top->RequestEnd(PageResult::Closing);
        CloseAll(then);
    };
    if (top->HasUnsavedInput())
        top->AskToDiscard(goOn);
    else
        goOn();
}

} // namespace Quillory
