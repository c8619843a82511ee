// SPDX-License-Identifier: MIT
#pragma once

#include "res/command_table.h"

#include <QWidget>

#include <functional>

class QLabel;
class QMenu;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace Quillory {

class PageStack;
class UndoBar;

/// How a page ended.
enum class PageResult
{
    Ok = 1,
    Cancel = 2,
    /// The Cancel soft key of pages that tell it from other ends.
    CancelKey = 59281,
};

/// A full-screen page: a header with the title, OK and help, the page's own body, and the soft-key
/// bar. It writes nothing to the store; its opener does, in the continuation on its result.
class Page : public QWidget
{
    Q_OBJECT

public:
    /// A page without a title has no header.
    explicit Page(const QString& title, QWidget* parent = nullptr);

    [[nodiscard]] QString Title() const;
    void SetTitle(const QString& title);
    /// Whether the header has an OK button; it does unless told otherwise.
    void ShowOkButton(bool isShown);
    /// Gives the header a "?" that opens help at this anchor, as F1 does.
    void SetHelpAnchor(const QString& anchor);

    /// Fills the bar at the bottom, in place of what was there; a right key of Command::Menu opens
    /// `menu`. Without soft keys there is no bar.
    void SetSoftKeys(const SoftKeys& keys, std::span<const MenuEntry> menu = {});
    void SetCommandEnabled(Command command, bool isEnabled);
    void SetCommandChecked(Command command, bool isChecked);
    void SetShortcut(Command command, const QKeySequence& shortcut);
    /// Runs a command as its soft key or menu entry would; nothing if it is disabled.
    void Trigger(Command command);
    /// The action behind a command; made at the first call. Context menus and soft keys share it.
    [[nodiscard]] QAction* ActionOf(Command command);
    /// Opens a menu of these entries at a place on the screen; the actions are those of the page.
    void OpenContextMenu(std::span<const MenuEntry> entries, const QPoint& globalPosition);

    /// Says at the bottom what was deleted and offers to undo it, for some seconds.
    void OfferUndo(const QString& text, std::function<void()> undo);
    void WithdrawUndo();

    /// Ends the page with a result: the stack takes it away and calls the opener back.
    void End(PageResult result);

    /// What a result asked for from outside does: closing the window and Escape come as Cancel. The
    /// page may end, ask first, or commit what is being edited.
    virtual void RequestEnd(PageResult result);
    /// Whether something was typed or chosen that a cancelled end would lose: then closing the
    /// window asks first.
    [[nodiscard]] virtual bool HasUnsavedInput() const { return false; }

Q_SIGNALS:
    void Ended(Quillory::PageResult result);
    /// A command was chosen that the page must carry out. Cancel is not among them: it asks the
    /// page to end.
    void CommandChosen(Quillory::Command command);
    /// A menu is about to open: the last chance to set what is enabled.
    void MenuAboutToOpen();
    /// The anchor is empty for a page that has none of its own.
    void HelpRequested(const QString& anchor);

protected:
    /// The page's own content goes here, between header and soft keys.
    [[nodiscard]] QVBoxLayout* Body() const { return m_body; }
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QVBoxLayout* m_body = nullptr;
    QWidget* m_header = nullptr;
    QLabel* m_title = nullptr;
    QPushButton* m_ok = nullptr;
    QToolButton* m_help = nullptr;
    UndoBar* m_undoBar = nullptr;
    QWidget* m_softKeys = nullptr;
    QString m_helpAnchor;

    void BuildHeader(const QString& title);
    [[nodiscard]] QWidget* MakeSoftKey(const MenuEntry& entry, std::span<const MenuEntry> menu);
    void FillMenu(QMenu* menu, std::span<const MenuEntry> entries);
};

} // namespace Quillory
