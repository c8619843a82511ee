// SPDX-License-Identifier: MIT
#pragma once

#include "res/command_table.h"

#include <QWidget>

#include <functional>

class QBoxLayout;
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
    /// The window closes, or goes on to something else: nothing was decided. Whoever opened the
    /// page tidies up, and opens nothing.
    Closing,
};

/// A full-screen page: a header with the title, OK and help, the page's own body, and the soft-key
/// bar. It writes nothing to the store; its opener does, in the continuation on its result.
///
/// OK, Done, Ctrl+Return and Return end it with Ok, the Cancel key with Cancel. So do Escape,
/// Ctrl+W and Alt+Left, which ask first where input would be lost. Return presses the button that
/// has the keyboard, where one has it. Nothing of this works while another page covers it.
class Page : public QWidget
{
    Q_OBJECT

public:
    /// A page without a title has no header.
    explicit Page(const QString& title, QWidget* parent = nullptr);

    [[nodiscard]] QString Title() const;
    void SetTitle(const QString& title);
    /// Says something about the page in its header, quietly, beside the title.
    void SetNote(const QString& note);
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
    /// The action behind a command; made at the first call. Soft keys follow it, and menus are made
    /// anew from it each time they open.
    [[nodiscard]] QAction* ActionOf(Command command);
    /// Opens a menu of these entries at a place on the screen.
    void OpenContextMenu(std::span<const MenuEntry> entries, const QPoint& globalPosition);

    /// Says at the bottom what was deleted and offers to undo it, for some seconds.
    void OfferUndo(const QString& text, std::function<void()> undo);
    void WithdrawUndo();
    /// Says in the same place that something happened.
    void Say(const QString& text);

    /// Ends the page with a result, unless it has a reason to stay: the stack takes it away and
    /// calls the opener back.
    void RequestEnd(PageResult result);
    /// Asks whether what was entered may be lost; `then` is called if so.
    void AskToDiscard(const std::function<void()>& then);
    /// Takes over what is typed in the place of a line's text, as a tap elsewhere does.
    void CommitInPlace();
    /// Whether the page stands beside the one that is in use: without soft keys and commands, to
    /// show what it has and to choose from it. Escape is left to what it stands in.
    void SetBeside(bool isBeside);
    /// Whether something was typed or chosen that would be lost without an Ok.
    [[nodiscard]] virtual bool HasUnsavedInput() const { return false; }

Q_SIGNALS:
    void Ended(Quillory::PageResult result);
    /// A command was chosen that the page must carry out. Done and Cancel are not among them.
    void CommandChosen(Quillory::Command command);
    /// A menu is about to open: the last chance to set what is enabled.
    void MenuAboutToOpen();
    /// The anchor is empty for a page that has none of its own.
    void HelpRequested(const QString& anchor);

protected:
    /// The page's own content goes here, between header and soft keys.
    [[nodiscard]] QVBoxLayout* Body() const { return m_body; }
    /// Takes over what is being edited before the page ends. False keeps the page, which has told
    /// why; not if the result is Closing.
    [[nodiscard]] virtual bool PrepareEnd(PageResult /*result*/) { return true; }
    /// A "?" for a page that has no header.
    [[nodiscard]] QToolButton* MakeHelpButton(QWidget* parent);
    [[nodiscard]] bool IsBeside() const { return m_isBeside; }
    /// What Return does where no button has the keyboard: it is OK.
    virtual void TakeReturn() { RequestEnd(PageResult::Ok); }
    /// Whether the page's own content goes from edge to edge. Else it stays in the middle of a wide
    /// window, narrow enough to be read.
    [[nodiscard]] virtual bool IsAsWideAsWindow() const { return false; }
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QVBoxLayout* m_body = nullptr;
    QWidget* m_header = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_note = nullptr;
    /// With the note, which stands below the title of a narrow page.
    QBoxLayout* m_titleLine = nullptr;
    QPushButton* m_ok = nullptr;
    QToolButton* m_help = nullptr;
    UndoBar* m_undoBar = nullptr;
    QWidget* m_softKeys = nullptr;
    QString m_helpAnchor;
    bool m_isBeside = false;

    void BuildHeader(const QString& title);
    void FitToWindow();
    void ShowSoftKeys();
    /// What Escape does.
    void GoBack();
    [[nodiscard]] QWidget* MakeSoftKey(const MenuEntry& entry, std::span<const MenuEntry> menu);
    void FillMenu(QMenu* menu, std::span<const MenuEntry> entries);
    void Carry(Command command);
};

} // namespace Quillory
