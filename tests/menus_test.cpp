// SPDX-License-Identifier: MIT
#include "app/home_list.h"
#include "listdef/list_sheet.h"
#include "rows/filters_page.h"
#include "rows/rows_view.h"
#include "tests/list_fixture.h"
#include "tests/person.h"
#include "tests/test_program.h"
#include "widgets/app_style.h"
#include "widgets/measures.h"
#include "widgets/page_stack.h"
#include "widgets/window_style.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

namespace {

struct MenuCase
{
    Page* (*make)(const ListFixture& file, InventoryList& list);
    MenuId menu;
    /// Steps to its opening.
    QString open;
};

Page* NewHome(const ListFixture& file, InventoryList& /*list*/)
{
    auto* home = new HomeList;
    home->Fill(file.catalogue->FillHomeList().lists);
    home->ActionOf(Command::OpenReadOnly)->setCheckable(true);
    return home;
}

Page* NewRows(const ListFixture& file, InventoryList& list)
{
    return new RowsView(*file.rows, list, file.context, {});
}

Page* NewSheet(const ListFixture& /*file*/, InventoryList& list)
{
    return new ListSheet(SheetMode::NewList, list, list);
}

Page* NewFilters(const ListFixture& file, InventoryList& list)
{
    return new FiltersPage({}, list, file.context);
}

const std::array kMenus {
    MenuCase { NewHome, MenuId::Main, u"tap Menu"_s },
    MenuCase { NewHome, MenuId::ListContext, u"hold Pantry"_s },
    MenuCase { NewRows, MenuId::Rows, u"tap Menu"_s },
    MenuCase { NewRows, MenuId::RowContext, u"hold Tea"_s },
    MenuCase { NewSheet, MenuId::Columns, u"tap Columns; tap Menu"_s },
    MenuCase { NewSheet, MenuId::Columns, u"tap Columns; hold Name"_s },
    MenuCase { NewFilters, MenuId::Filters, u"tap Menu"_s },
};

/// The open menu's entries as assistive technology finds them.
QStringList HeardEntries()
{
    QStringList heard;
    QAccessibleInterface* menu
        = QAccessible::queryAccessibleInterface(QApplication::activePopupWidget());
    for (int i = 0; menu != nullptr && i < menu->childCount(); ++i) {
        const QAccessibleInterface* entry = menu->child(i);
        if (entry == nullptr || !entry->isValid())
            heard << u"missing"_s;
        else if (entry->role() != QAccessible::Separator)
            heard << entry->text(QAccessible::Name);
    }
    return heard;
}

/// Opens the menu of the line that has the keyboard, as assistive technology does.
void AskForMenu(Page* page)
{
    QAccessible::queryAccessibleInterface(page)->actionInterface()->doAction(
        QAccessibleActionInterface::showMenuAction());
}

/// How far from the edge at which its reading begins a menu has the first ink of an entry.
int IndentOf(QMenu& menu, QAction* entry)
{
    QImage picture = menu.grab(menu.actionGeometry(entry)).toImage();
    if (menu.isRightToLeft())
        picture = picture.mirrored(true, false);
    constexpr int kBorder = 2;
    for (int x = kBorder; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (qGray(picture.pixel(x, y)) + 60 < qGray(picture.pixel(kBorder, y)))
                return x;
        }
    }
    return -1;
}

/// Whether letters lead from entry to entry and round to the first one again.
bool LettersLeadToEntries(QMenu* menu)
{
    QList<QAction*> entries;
    for (QAction* entry : menu->actions()) {
        if (entry->isEnabled() && !entry->isSeparator())
            entries << entry;
    }
    entries += entries.first(std::min<qsizetype>(entries.size(), 1));
    return std::ranges::all_of(entries, [menu](QAction* entry) {
        for (int tries = 0; menu->activeAction() != entry && tries < 3; ++tries)
            QTest::keyClicks(menu, entry->text().left(1).toLower());
        return menu->activeAction() == entry;
    });
}

} // namespace

class MenusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyMenuIsWholeEachTimeItOpens()
    {
        for (const MenuCase& subject : kMenus) {
            ListFixture file(u"Pantry"_s);
            file.Add({ u"Tea"_s, u"3"_s });
            PageStack stack;
            stack.resize(360, 640);
            stack.Push(subject.make(file, file.list));
            stack.show();
            QStringList wanted;
            for (const MenuEntry& entry : MenuEntries(subject.menu)) {
                if (entry.command != Command::Separator)
                    wanted << entry.Text();
            }
            const bool isHeld = subject.open.contains(u"hold"_s);
            for (int opening = 0; opening < 3; ++opening) {
                if (isHeld && opening == 2)
                    AskForMenu(stack.Top());
                else
                    Act(subject.open);
                QCOMPARE(HeardEntries(), wanted);
                auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                const QRect room(stack.mapToGlobal(QPoint(8, 8)), stack.size() - QSize(16, 16));
                QVERIFY2(room.contains(menu->geometry()), qPrintable(subject.open));
                // What a held finger opened stays when it is lifted.
                if (isHeld)
                    QTest::mouseRelease(menu, Qt::LeftButton, {}, { 20, 20 });
                QVERIFY(menu->isVisible());
                QVERIFY2(LettersLeadToEntries(menu), qPrintable(subject.open));
                Act(u"press Esc"_s);
                QVERIFY(QApplication::activePopupWidget() == nullptr);
            }
        }
    }

    void entriesBeginAtTheMarginOfPages()
    {
        QApplication::setStyle(new AppStyle);
        const auto restore = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
        for (const auto direction : { Qt::LeftToRight, Qt::RightToLeft }) {
            QApplication::setLayoutDirection(direction);
            for (const MenuCase& subject : kMenus) {
                ListFixture file(u"Pantry"_s);
                file.Add({ u"Tea"_s, u"3"_s });
                PageStack stack;
                ApplyWindowStyle(&stack);
                stack.resize(360, 640);
                stack.Push(subject.make(file, file.list));
                stack.show();
                Act(subject.open);
                auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                const int indent = IndentOf(*menu, menu->actions().front());
                const int most = direction == Qt::LeftToRight ? kPageMargin + 3 : 2 * kPageMargin;
                QVERIFY2(indent >= kPageMargin - 3 && indent <= most,
                    qPrintable(u"%1 %2"_s.arg(subject.open).arg(indent)));
                Act(u"press Esc"_s);
            }
        }
    }

    void nothingHasNoMenu()
    {
        ListFixture file(u"Pantry"_s);
        PageStack stack;
        stack.resize(360, 640);
        stack.Push(NewSheet(file, file.list));
        stack.show();
        Act(u"tap Columns"_s);
        auto* lines = stack.Top()->findChild<QWidget*>(u"columns"_s);
        auto* place = qobject_cast<QAbstractItemView*>(lines)->viewport();
        // What the window system makes of a click of the right button.
        const QPoint below = place->rect().bottomLeft() + QPoint(9, -9);
        QContextMenuEvent ask(QContextMenuEvent::Mouse, below, place->mapToGlobal(below));
        QApplication::sendEvent(place, &ask);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }

    // A Wayland compositor shows nothing over the window for a key that was let go already.
    void whatAKeyOpensIsThereOnItsPress()
    {
        struct KeyCase
        {
            Page* (*make)(const ListFixture& file, InventoryList& list);
            QString focused;
            QKeyCombination key;
        };
        for (const KeyCase& subject : { KeyCase { NewHome, u"rightKey"_s, Qt::Key_Space },
                 { NewHome, u"rightKey"_s, Qt::Key_Return }, { NewRows, {}, Qt::Key_F10 },
                 { NewRows, {}, Qt::ALT | Qt::Key_M },
                 { NewSheet, u"countColour"_s, Qt::Key_Space } }) {
            ListFixture file(u"Pantry"_s);
            file.list.TableOption = kWarnOnCount;
            PageStack stack;
            stack.Push(subject.make(file, file.list));
            stack.show();
            QVERIFY(QTest::qWaitForWindowActive(&stack));
            if (subject.focused == u"countColour"_s)
                Act(u"tap Options"_s);
            if (auto* focused = stack.Top()->findChild<QWidget*>(subject.focused))
                focused->setFocus();
            QTest::keyPress(
                QApplication::focusWidget(), subject.key.key(), subject.key.keyboardModifiers());
            QPointer<QWidget> opened = QApplication::activePopupWidget();
            QVERIFY2(opened != nullptr, qPrintable(subject.focused));
            QTest::keyRelease(opened, subject.key.key());
            QTest::qWait(200);
            QVERIFY(opened != nullptr && opened->isVisible());
            Act(u"press Esc"_s);
        }
    }
};

QUILLORY_TEST(QApplication, MenusTest)
#include "menus_test.moc"
