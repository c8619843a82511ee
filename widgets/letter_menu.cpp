// SPDX-License-Identifier: MIT
#include "widgets/letter_menu.h"

#include "widgets/measures.h"

#include <QApplication>
#include <QKeyEvent>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Where the window lies on the screen.
QRect WindowOf(const QWidget& widget)
{
    return { widget.window()->mapToGlobal(QPoint()), widget.window()->size() };
}

/// Makes the letters of a menu as small as its longest entry asks for, in a window that is too
/// narrow for it. Entries then tell no keys either.
void FitMenu(QMenu& menu, const QWidget& window)
{
    menu.setFont({});
    const int room = window.width() - 2 * kGrid;
    if (menu.sizeHint().width() <= room)
        return;
    QString longest;
    for (QAction* entry : menu.actions()) {
        entry->setShortcut({});
        if (entry->text().size() > longest.size())
            longest = entry->text();
    }
    const int beside = menu.sizeHint().width() - menu.fontMetrics().horizontalAdvance(longest);
    menu.setFont(FontFitting(menu.font(), longest, room - beside));
}

} // namespace

void LetterMenu::EnterOpened()
{
    auto* menu = qobject_cast<LetterMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr)
        return;
    for (QAction* entry : menu->actions()) {
        if (entry->isEnabled() && !entry->isSeparator())
            return menu->setActiveAction(entry);
    }
}

void LetterMenu::keyPressEvent(QKeyEvent* event)
{
    const QString letter = event->text().trimmed();
    const QList<QAction*> entries = actions();
    const qsizetype current = entries.indexOf(activeAction());
    for (qsizetype i = 1; !letter.isEmpty() && i <= entries.size(); ++i) {
        QAction* entry = entries[(current + i) % entries.size()];
        if (entry->isEnabled() && entry->text().startsWith(letter, Qt::CaseInsensitive))
            return setActiveAction(entry);
    }
    QMenu::keyPressEvent(event);
}

void OpenAbove(QMenu& menu, const QWidget& key)
{
    menu.setStyleSheet(QString());
    FitMenu(menu, *key.window());
    // The menu's own size hint never goes beyond the screen.
    const auto lines = static_cast<int>(menu.actions().size());
    if (lines * CurrentMeasures().lineHeight > key.window()->height())
        menu.setStyleSheet(u"QMenu::item { padding-top: 7px; padding-bottom: 7px; }"_s);
    const QSize size = menu.sizeHint();
    const QPoint place
        = key.mapToGlobal(QPoint(key.width() - size.width(), -size.height() - kGrid));
    menu.popup(PlaceWithin(WindowOf(key), place, size));
}

void OpenAt(QMenu& menu, const QWidget& opener, const QPoint& place)
{
    FitMenu(menu, *opener.window());
    menu.popup(PlaceWithin(WindowOf(opener), place, menu.sizeHint()));
}

} // namespace Quillory
