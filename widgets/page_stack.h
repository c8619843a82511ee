// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/page.h"

#include <functional>
#include <vector>

class QFrame;
class QLabel;

namespace Quillory {

/// The pages of the one window, the topmost in use. There are no nested event loops: whoever opens
/// a page is called back when it ends.
///
/// In a wide window the first page stands beside the topmost, on the left; while there is another
/// it only shows what it has and lets choose from it (Page::SetBeside). Whatever is open stays as
/// it is when the window becomes wide or narrow.
class PageStack : public QWidget
{
    Q_OBJECT

public:
    /// From this width on there is room for two pages.
    static constexpr int kWideWindow = 900;

    explicit PageStack(QWidget* parent = nullptr);

    /// The stack that a widget stands in, however deep; one must be there.
    [[nodiscard]] static PageStack& Of(const QWidget* widget);

    /// What a wide window says in place of a second page.
    void SetHint(const QString& hint);

    /// Shows `page` on top and takes it over; menus and pop-ups close. `then` is called with its
    /// result once it is gone from the screen, before it is deleted; it may read from the page.
    void Push(Page* page, std::function<void(PageResult)> then = {});
    /// Null before the first page.
    [[nodiscard]] Page* Top() const { return m_pages.empty() ? nullptr : m_pages.back(); }
    [[nodiscard]] int Depth() const { return static_cast<int>(m_pages.size()); }
    /// Whether a page, the topmost or one below, would lose what is entered on it.
    [[nodiscard]] bool HasUnsavedInput() const;
    /// Gives the topmost page the keyboard, where it was on it last.
    void FocusTop() const;

    /// Ends the pages above the first from the top, each with Closing, asking first where input
    /// would be lost. `then` is called once the first is left alone; not if an answer keeps a page.
    void CloseAll(const std::function<void()>& then);

    /// Room for any one of the pages.
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another page is the topmost now.
    void TopChanged();
    /// A page asks for help at this anchor; empty for help on the whole program.
    void HelpRequested(const QString& anchor);

protected:
    /// Escape on the page beside the topmost goes back to that.
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::vector<Page*> m_pages;
    QFrame* m_edge;
    QLabel* m_hint;

    void Arrange();
    void Remove(Page* page);
    /// Has a screen reader say which page is on top.
    void AnnounceTop() const;
    void FitAboveKeyboard();
};

} // namespace Quillory
