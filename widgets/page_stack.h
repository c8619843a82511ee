// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/page.h"

#include <QStackedWidget>

#include <functional>

namespace Quillory {

/// The pages of the one window, the topmost shown. There are no nested event loops: whoever opens a
/// page is called back when it ends.
class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget* parent = nullptr);

    /// The stack that a widget stands in, however deep; one must be there.
    [[nodiscard]] static PageStack& Of(const QWidget* widget);

    /// Shows `page` on top and takes it over; menus and pop-ups close. `then` is called with its
    /// result once it is gone from the screen, before it is deleted; it may read from the page.
    void Push(Page* page, std::function<void(PageResult)> then = {});
    [[nodiscard]] Page* Top() const;
    [[nodiscard]] int Depth() const { return count(); }
    /// Whether a page, the topmost or one below, would lose what is entered on it.
    [[nodiscard]] bool HasUnsavedInput() const;

    /// Ends the pages above the first from the top, each with Closing, asking first where input
    /// would be lost. `then` is called once the first is left alone; not if an answer keeps a page.
    void CloseAll(const std::function<void()>& then);

Q_SIGNALS:
    /// A page asks for help at this anchor; empty for help on the whole program.
    void HelpRequested(const QString& anchor);

private:
    void FitAboveKeyboard();
};

} // namespace Quillory
