// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace Quillory {

/// A menu in which a letter leads to the next entry that begins with it.
class LetterMenu : public QMenu
{
    Q_OBJECT

public:
    using QMenu::QMenu;

    /// Chooses the first entry of the menu that a key has just opened, so that the next keys go on
    /// from there, and a screen reader tells it; nothing where none is open.
    static void EnterOpened();

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// Opens a menu upward from a soft key, within the key's window, wherever that stands. In a window
/// that is too low for it the entries lie closer together.
void OpenAbove(QMenu& menu, const QWidget& key);
/// Opens a menu of `opener` at a place on the screen, within the opener's window.
void OpenAt(QMenu& menu, const QWidget& opener, const QPoint& place);

} // namespace Quillory
