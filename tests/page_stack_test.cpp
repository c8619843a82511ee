// SPDX-License-Identifier: MIT
#include "tests/person.h"
#include "tests/test_program.h"
#include "widgets/help_page.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"
#include "widgets/questions.h"
#include "widgets/window_style.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextBlock>
#include <QTextBrowser>

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

    void helpStaysAtItsSectionUntilItIsScrolled()
    {
        PageStack stack;
        stack.resize(360, 640);
        stack.show();
        stack.Push(new HelpPage(u"newlist"_s));
        auto* text = stack.Top()->findChild<QTextBrowser*>();
        const auto top = [text] {
            return text->cursorForPosition({ 20, 5 }).block().text().left(13);
        };
        for (const int width : { 360, 240, 640 }) {
            stack.resize(width, 640);
            QTRY_COMPARE(text->window()->width(), width);
            QCOMPARE(top(), u"A list's name"_s);
        }
        QTest::keyClick(text, Qt::Key_Home);
        stack.resize(360, 640);
        QCOMPARE(top(), u"Quillory"_s);
    }

    void everyQuestionHasItsAnswers()
    {
        PageStack stack;
        ApplyWindowStyle(&stack);
        stack.resize(240, 320);
        stack.show();
        using enum MessageAnswer;
        const std::tuple<MessageButtons, QString, QList<MessageAnswer>> cases[] {
            { MessageButtons::Ok, u"tap OK"_s, { Ok, Ok, Ok } },
            { MessageButtons::YesNo, u"tap Yes; tap No"_s, { No, No, Yes, No } },
            { MessageButtons::YesNoCancel, u"tap Yes; tap No; tap Cancel"_s,
                { Yes, Cancel, Yes, No, Cancel } },
            { MessageButtons::RetryCancel, u"tap Retry; tap Cancel"_s,
                { Retry, Cancel, Retry, Cancel } },
        };
        for (const auto& [buttons, taps, answers] : cases) {
            QList<MessageAnswer> given;
            for (const QString& way : (u"press Return; press Esc; "_s + taps).split(u"; "_s)) {
                ShowMessage(&stack, QString(300, u'x').replace(150, 1, u" "_s), MessageIcon::Stop,
                    buttons, [&given](MessageAnswer answer) { given << answer; });
                const auto* box = qobject_cast<QMessageBox*>(Questions::Of(&stack).Shown());
                QVERIFY(box->icon() == QMessageBox::Critical && box->windowTitle() == u"Quillory");
                QVERIFY2(
                    box->width() <= stack.width(), qPrintable(way + QString::number(box->width())));
                Act(way);
            }
            QCOMPARE(given, answers);
        }
    }

    void aLongTitleEndsInDots()
    {
        PageStack stack;
        stack.Push(new Page(QString(100, u'w')));
        stack.resize(300, 300);
        stack.show();
        const QImage cut = stack.Top()->findChild<QLabel*>(u"title"_s)->grab().toImage();
        const QImage end = cut.copy(cut.width() - 2, 0, 2, cut.height());
        QCOMPARE(end, end.copy(0, 0, 1, 1).scaled(end.size()));
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
