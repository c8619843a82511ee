// SPDX-License-Identifier: MIT
#include "app/home_list.h"
#include "listdef/list_sheet.h"
#include "rows/filters_page.h"
#include "rows/rows_view.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "widgets/page_stack.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QTabBar>

namespace {

using MakeMenuPage = Page* (*)(const ListFixture& file, InventoryList& list);
struct MenuCase
{
    const char* name;
    MakeMenuPage make;
    MenuId menu;
    /// By the right soft key, or by the right button on the first line.
    bool isContext;
};

Page* NewHome(const ListFixture& file, InventoryList& /*list*/)
{
    auto* home = new HomeList;
    home->Fill(file.catalogue->FillHomeList().lists);
    return home;
}

Page* NewRows(const ListFixture& file, InventoryList& list)
{
    return new RowsView(*file.rows, list, file.context, {});
}

Page* NewColumns(const ListFixture& /*file*/, InventoryList& list)
{
    auto* sheet = new ListSheet(SheetMode::NewList, list, list);
    sheet->findChild<QTabBar*>()->setCurrentIndex(1);
    return sheet;
}

constexpr std::array kMenus {
    MenuCase { "home", NewHome, MenuId::Main, false },
    MenuCase { "home, held", NewHome, MenuId::ListContext, true },
    MenuCase { "rows", NewRows, MenuId::Rows, false },
    MenuCase { "rows, held", NewRows, MenuId::RowContext, true },
    MenuCase { "columns", NewColumns, MenuId::Columns, false },
    MenuCase { "columns, held", NewColumns, MenuId::Columns, true },
    MenuCase { "filters",
        [](const ListFixture& file, InventoryList& list) -> Page* {
            return new FiltersPage({}, list, file.context);
        },
        MenuId::Filters, false },
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
            QVERIFY(QTest::qWaitForWindowActive(&stack));
            QStringList wanted;
            for (const MenuEntry& entry : MenuEntries(subject.menu)) {
                if (entry.command != Command::Separator)
                    wanted << entry.Text();
            }
            for (int opening = 0; opening < 2; ++opening) {
                if (subject.isContext) {
                    QAbstractItemView* view = nullptr;
                    for (auto* found : stack.findChildren<QAbstractItemView*>()) {
                        if (found->isVisible() && found->model()->rowCount() > 0 && view == nullptr)
                            view = found;
                    }
                    const QPoint place = view->visualRect(view->model()->index(0, 0)).center();
                    QContextMenuEvent event(
                        QContextMenuEvent::Mouse, place, view->viewport()->mapToGlobal(place));
                    QApplication::sendEvent(view->viewport(), &event);
                } else {
                    QTest::mouseClick(
                        stack.Top()->findChild<QWidget*>(u"rightKey"_s), Qt::LeftButton);
                }
                QVERIFY2(HeardEntries() == wanted, subject.name);
                QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
                QVERIFY(QApplication::activePopupWidget() == nullptr);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
        }
    }
};

QUILLORY_TEST(QApplication, MenusTest)
#include "menus_test.moc"
