// SPDX-License-Identifier: MIT
#include "tests/test_program.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/questions.h"

#include <QLineEdit>

#include <array>

class PageStackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closingEndsPagesFromTheTop()
    {
        PageStack stack;
        auto* first = new Page(QString());
        stack.Push(first);
        QLineEdit upper(first);
        QLineEdit lower(first);
        lower.setFocus();
        QString ended;
        stack.Push(new Page(u"lower"_s), [&](PageResult) { ended += u"lower "_s; });
        stack.Push(new Page(u"upper"_s), [&](PageResult) { ended += u"upper "_s; });
        stack.CloseAll([&] { ended += u"all"_s; });
        QCOMPARE(ended, u"upper lower all"_s);
        QCOMPARE(stack.Depth(), 1);
        // The keyboard is where it was before.
        QCOMPARE(stack.focusWidget(), &lower);
    }

    void aNarrowWindowLeavesTheKeyboardWhereItWasOnThePage()
    {
        PageStack stack;
        stack.resize(1000, 600);
        stack.show();
        QVERIFY(QTest::qWaitForWindowActive(&stack));
        std::array<QLineEdit*, 4> fields {};
        for (size_t i = 0; i < fields.size(); ++i) {
            if (i % 2 == 0)
                stack.Push(new Page(u"page"_s));
            fields[i] = new QLineEdit(stack.Top());
            fields[i]->move(0, i % 2 == 0 ? 100 : 200);
            fields[i]->show();
        }
        for (QLineEdit* field : { fields[3], fields[1] })
            QTest::mouseClick(field, Qt::LeftButton);
        QVERIFY(fields[1]->hasFocus());
        stack.resize(500, 600);
        QVERIFY(!fields[1]->isVisible() && fields[3]->hasFocus());
    }

    void whoWaitsIsHeardOnceNothingIsAsked()
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
};

QUILLORY_TEST(QApplication, PageStackTest)
#include "page_stack_test.moc"
