// SPDX-License-Identifier: MIT
#include "widgets/page_stack.h"

#include "widgets/questions.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QPointer>

#include <utility>

namespace Quillory {

PageStack::PageStack(QWidget* parent)
    : QStackedWidget(parent)
{
    setObjectName(QStringLiteral("pageStack"));
    const QInputMethod* keyboard = QGuiApplication::inputMethod();
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

void PageStack::FitAboveKeyboard()
{
    const QInputMethod* keyboard = QGuiApplication::inputMethod();
    const QRectF covered = keyboard->isVisible() ? keyboard->keyboardRectangle() : QRectF();
    const QRect own(mapTo(window(), QPoint()), size());
    const QRect overlap = own & covered.toAlignedRect();
    setContentsMargins(0, 0, 0, overlap.height());
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
            removeWidget(page);
            if (below != nullptr)
                below->setFocus();
            if (then)
                then(result);
            page->deleteLater();
        });
    addWidget(page);
    setCurrentWidget(page);
    page->setFocus();
}

Page* PageStack::Top() const
{
    return qobject_cast<Page*>(currentWidget());
}

bool PageStack::HasUnsavedInput() const
{
    for (int depth = 0; depth < Depth(); ++depth) {
        if (qobject_cast<const Page*>(widget(depth))->HasUnsavedInput())
            return true;
    }
    return false;
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
