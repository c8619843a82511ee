// SPDX-License-Identifier: MIT
#include "listdef/column_definition_page.h"
#include "listdef/display_options_page.h"
#include "listdef/import_order_page.h"
#include "listdef/list_sheet.h"
#include "rows/filter_page.h"
#include "rows/row_editor.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "widgets/icon_grid_page.h"
#include "widgets/page_stack.h"

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// A list and what pages on it are made from.
struct Subject
{
    ListFixture file;
    InventoryList list = NewInventoryList();
};

using MakePage = Page* (*)(const Subject& subject);
struct PageCase
{
    const char* name;
    MakePage make;
};

constexpr std::array kPagesWithCancel {
    PageCase { "list sheet",
        [](const Subject& subject) -> Page* {
            return new ListSheet(SheetMode::NewList, subject.list, subject.list);
        } },
    PageCase {
        "column definition", [](const Subject&) -> Page* { return new ColumnDefinitionPage(); } },
    PageCase {
        "display options", [](const Subject&) -> Page* { return new DisplayOptionsPage({}); } },
    PageCase { "import order",
        [](const Subject& subject) -> Page* { return new ImportOrderPage(subject.list.columns); } },
    PageCase { "icon grid", [](const Subject&) -> Page* { return new IconGridPage(0); } },
    PageCase { "filter",
        [](const Subject& subject) -> Page* {
            return new FilterPage({}, subject.list, subject.file.context);
        } },
    PageCase { "row editor",
        [](const Subject& subject) -> Page* {
            return new RowEditor(subject.list, nullptr, subject.file.context);
        } },
};

} // namespace

class PageEndsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageEndsAsItsUserSays_data();
    void everyPageEndsAsItsUserSays();
};

void PageEndsTest::everyPageEndsAsItsUserSays_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isCancelled");
    for (int i = 0; const PageCase& page : kPagesWithCancel) {
        QTest::addRow("%s, Cancel", page.name) << i << u"leftKey"_s << true;
        QTest::addRow("%s, OK", page.name) << i << u"ok"_s << false;
        QTest::addRow("%s, Escape", page.name) << i << QString() << true;
        ++i;
    }
}

void PageEndsTest::everyPageEndsAsItsUserSays()
{
    QFETCH(const int, page);
    QFETCH(const QString, button);
    QFETCH(const bool, isCancelled);
    const Subject subject;
    PageStack stack;
    stack.resize(360, 640);
    stack.Push(new Page(QString()));
    Page* opened = kPagesWithCancel.at(static_cast<size_t>(page)).make(subject);
    QList<bool> cancelled;
    stack.Push(opened, [&](PageResult result) { cancelled << (result != PageResult::Ok); });
    stack.show();
    QVERIFY(QTest::qWaitForWindowActive(&stack));
    if (button.isEmpty())
        QTest::keyClick(stack.windowHandle(), Qt::Key_Escape);
    else
        QTest::mouseClick(opened->findChild<QWidget*>(button), Qt::LeftButton);
    QCOMPARE(cancelled, QList<bool> { isCancelled });
}

QUILLORY_TEST(QApplication, PageEndsTest)
#include "page_ends_test.moc"
