// SPDX-License-Identifier: MIT
#include "tests/test_program.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/questions.h"

#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>

#include <array>

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
    void whoWaitsIsHeardOnceNothingIsAsked();
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
    std::array<QLineEdit*, 3> fields {};
    for (QLineEdit*& field : fields)
        field = new QLineEdit(first);
    fields[1]->setFocus();
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
    QCOMPARE(stack.focusWidget(), fields[1]);
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

void PageStackTest::whoWaitsIsHeardOnceNothingIsAsked()
{
    PageStack stack;
    Questions& questions = Questions::Of(&stack);
    QString heard;
    ShowMessage(&stack, u"one"_s, MessageIcon::Information);
    questions.WhenIdle([&] {
        heard += u"first "_s;
        ShowMessage(&stack, u"two"_s, MessageIcon::Information);
    });
    questions.WhenIdle([&] { heard += u"second"_s; });
    for (const QString& then : { u"first "_s, u"first second"_s }) {
        QTest::keyClick(questions.Shown(), Qt::Key_Escape);
        QTRY_COMPARE(heard, then);
    }
}

QUILLORY_TEST(QApplication, PageStackTest)
#include "page_stack_test.moc"
