// SPDX-License-Identifier: MIT
#include "tests/test_program.h"
#include "widgets/page_stack.h"

using namespace Quillory;
using namespace Qt::StringLiterals;

class PageStackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOpenerHearsTheResultOnce()
    {
        for (const auto how : { Qt::Key_unknown, Qt::Key_Escape, Qt::Key_Return }) {
            PageStack stack;
            auto* first = new Page(QString());
            stack.Push(first);
            auto* page = new Page(u"A page"_s);
            QList<PageResult> heard;
            stack.Push(page, [&](PageResult ended) { heard << ended; });
            stack.show();
            QCOMPARE(stack.Top(), page);
            if (how == Qt::Key_unknown)
                QTest::mouseClick(page->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
            else
                QTest::keyClick(how == Qt::Key_Escape ? page : stack.focusWidget(), how);
            QCOMPARE(heard, QList { how == Qt::Key_Escape ? PageResult::Cancel : PageResult::Ok });
            QCOMPARE(stack.Top(), first);
        }
    }

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
