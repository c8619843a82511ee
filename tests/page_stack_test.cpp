// SPDX-License-Identifier: MIT
#include "tests/test_program.h"
#include "widgets/page_stack.h"

class PageStackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closingEndsPagesFromTheTop()
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

    void commandsOfSoftKeysMenusAndShortcutsAreOne()
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
};

QUILLORY_TEST(QApplication, PageStackTest)
#include "page_stack_test.moc"
