// SPDX-License-Identifier: MIT
#include "widgets/letter_menu.h"

#include <QApplication>
#include <QKeyEvent>

namespace Quillory {

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

} // namespace Quillory
