// SPDX-License-Identifier: MIT
#include "tests/test_program.h"
#include "widgets/page_stack.h"

#include <QSignalSpy>

using namespace Quillory;
using namespace Qt::StringLiterals;

class PageStackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOpenerHearsTheResultOnce_data();
    void theOpenerHearsTheResultOnce();
    void closingEndsPagesFromTheTop();
    void commandsOfSoftKeysMenusAndShortcutsAreOne();
};

void PageStackTest::theOpenerHearsTheResultOnce_data()
{
    QTest::addColumn<int>("how");
    QTest::addColumn<int>("result");
    QTest::newRow("the OK button") << 0 << 1;
    QTest::newRow("Escape") << 1 << 2;
    QTest::newRow("Return on a page without fields") << 3 << 1;
}

void PageStackTest::theOpenerHearsTheResultOnce()
{
    QFETCH(int, how);
    QFETCH(int, result);
    PageStack stack;
    auto* first = new Page(QString());
    stack.Push(first);
    auto* page = new Page(u"A page"_s);
    QList<int> heard;
    stack.Push(page, [&](PageResult ended) { heard << static_cast<int>(ended); });
    stack.show();
    QCOMPARE(stack.Top(), page);
    if (how == 0)
        QTest::mouseClick(page->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
    else if (how == 1)
        QTest::keyClick(page, Qt::Key_Escape);
    else
        QTest::keyClick(stack.focusWidget(), Qt::Key_Return);
    QCOMPARE(heard, QList<int> { result });
    QCOMPARE(stack.Top(), first);
}

void PageStackTest::closingEndsPagesFromTheTop()
{
    PageStack stack;
    stack.Push(new Page(QString()));
    QString ended;
    stack.Push(new Page(u"lower"_s), [&](PageResult) { ended += u"lower "_s; });
    stack.Push(new Page(u"upper"_s), [&](PageResult) { ended += u"upper "_s; });
    stack.CloseAll([&] { ended += u"all"_s; });
    QCOMPARE(ended, u"upper lower all"_s);
    QCOMPARE(stack.Depth(), 1);
}

void PageStackTest::commandsOfSoftKeysMenusAndShortcutsAreOne()
{
    Page page(u"A page"_s);
    page.SetSoftKeys(SoftKeysOf(MenuBar::Columns), MenuEntries(MenuId::Columns));
    QList<int> chosen;
    connect(&page, &Page::CommandChosen, this,
        [&](Command command) { chosen << static_cast<int>(command); });
    page.show();
    auto* left = page.findChild<QWidget*>(u"leftKey"_s);
    QTest::mouseClick(left, Qt::LeftButton);
    page.Trigger(Command::Rename);
    page.SetCommandEnabled(Command::Insert, false);
    QVERIFY(!left->isEnabled());
    page.Trigger(Command::Insert);
    QCOMPARE(chosen, (QList<int> { 32780, 32777 }));
}

QUILLORY_TEST(QApplication, PageStackTest)
#include "page_stack_test.moc"
