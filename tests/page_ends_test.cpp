// SPDX-License-Identifier: MIT
#include "app/plain_pages.h"
#include "listdef/column_definition_page.h"
#include "listdef/display_options_page.h"
#include "listdef/import_order_page.h"
#include "listdef/list_sheet.h"
#include "rows/filter_page.h"
#include "rows/filters_page.h"
#include "rows/row_editor.h"
#include "rows/rows_view.h"
#include "rows/summary_page.h"
#include "tests/list_fixture.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/help_page.h"
#include "widgets/icon_grid_page.h"
#include "widgets/page_stack.h"
#include "widgets/questions.h"

#include <QMessageBox>
#include <QPushButton>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// A list, what pages on it are made from, and what they gave.
struct Subject
{
    ListFixture file { u"Pantry"_s };
    InventoryList list = NewInventoryList();
    PageStack stack;
    Page* page = nullptr;
    QList<PageResult> results;

    QPushButton* Answer(QMessageBox::StandardButton button) const
    {
        auto* box = qobject_cast<QMessageBox*>(Questions::Of(&stack).Shown());
        return box == nullptr ? nullptr : qobject_cast<QPushButton*>(box->button(button));
    }
};

using MakePage = Page* (*)(Subject& subject);
struct PageCase
{
    const char* name;
    MakePage make;
    /// What there is besides Escape and closing: "ok" and "leftKey" for the buttons, "enter" for
    /// Return where it is OK.
    QStringList ways;
    /// Whether a letter typed first, or Space, is input that could be lost.
    bool takesInput;
};

const QStringList kOk { u"ok"_s, u"enter"_s };
const QStringList kOkAndCancel { u"ok"_s, u"leftKey"_s, u"enter"_s };

const std::array kPages {
    PageCase { "new list",
        [](Subject& subject) -> Page* {
            return new ListSheet(SheetMode::NewList, subject.list, subject.list);
        },
        kOkAndCancel, true },
    PageCase { "list properties",
        [](Subject& subject) -> Page* {
            return new ListSheet(SheetMode::ExistingList, subject.list, subject.list);
        },
        kOkAndCancel, true },
    PageCase { "column definition", [](Subject&) -> Page* { return new ColumnDefinitionPage(); },
        kOkAndCancel, true },
    PageCase { "options", [](Subject&) -> Page* { return new DisplayOptionsPage({}); },
        kOkAndCancel, true },
    PageCase { "import order",
        [](Subject& subject) -> Page* { return new ImportOrderPage(subject.list.columns); },
        kOkAndCancel, false },
    // Return takes the selected icon.
    PageCase { "icon grid", [](Subject&) -> Page* { return new IconGridPage(0); },
        { u"leftKey"_s, u"enter"_s }, false },
    PageCase { "find",
        [](Subject& subject) -> Page* {
            return new FilterPage({ FilterMode::Find, {} }, subject.list, subject.file.context);
        },
        kOkAndCancel, true },
    PageCase { "filter",
        [](Subject& subject) -> Page* {
            return new FilterPage({}, subject.list, subject.file.context);
        },
        kOkAndCancel, false },
    PageCase { "filters",
        [](Subject& subject) -> Page* {
            return new FiltersPage({}, subject.list, subject.file.context);
        },
        kOk, false },
    // Return goes on to the next field.
    PageCase { "row editor",
        [](Subject& subject) -> Page* {
            return new RowEditor(subject.list, nullptr, subject.file.context);
        },
        { u"ok"_s, u"leftKey"_s }, true },
    // Return edits the selected row.
    PageCase { "rows",
        [](Subject& subject) -> Page* {
            return new RowsView(*subject.file.rows, subject.file.list, subject.file.context, {});
        },
        { u"ok"_s }, false },
    PageCase { "summary", [](Subject&) -> Page* { return new SummaryPage({}); }, kOk, false },
    PageCase { "help", [](Subject&) -> Page* { return new HelpPage(u"newlist"_s); }, kOk, false },
    PageCase { "about", [](Subject&) -> Page* { return new AboutPage; }, kOk, false },
    PageCase { "welcome", [](Subject&) -> Page* { return new WelcomePage; }, kOk, false },
};

void Show(Subject& subject, const PageCase& page)
{
    subject.stack.resize(360, 640);
    subject.stack.Push(new Page(QString()));
    subject.page = page.make(subject);
    subject.stack.Push(subject.page, [&subject](PageResult result) { subject.results << result; });
    subject.stack.show();
    QVERIFY(QTest::qWaitForWindowActive(&subject.stack));
}

void Leave(Subject& subject, const QString& way)
{
    QWindow* window = subject.stack.windowHandle();
    if (way == u"escape")
        QTest::keyClick(window, Qt::Key_Escape);
    else if (way == u"enter")
        QTest::keyClick(window, Qt::Key_Return);
    else if (way == u"closing")
        subject.stack.CloseAll([] {});
    else
        QTest::mouseClick(subject.page->findChild<QWidget*>(way), Qt::LeftButton);
}

PageResult ResultOf(const QString& way)
{
    if (way == u"closing")
        return PageResult::Closing;
    return way == u"escape" || way == u"leftKey" ? PageResult::Cancel : PageResult::Ok;
}

} // namespace

class PageEndsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageEndsAsItsUserSays_data()
    {
        const Table<int, QString> columns;
        for (int i = 0; const PageCase& page : kPages) {
            for (const QString& way : page.ways + QStringList { u"escape"_s, u"closing"_s })
                QTest::addRow("%s, %s", page.name, qPrintable(way)) << i << way;
            ++i;
        }
    }

    void everyPageEndsAsItsUserSays()
    {
        const auto [page, way] = Table<int, QString>::Row();
        Subject subject;
        Show(subject, kPages.at(static_cast<size_t>(page)));
        Leave(subject, way);
        QCOMPARE(subject.results, QList<PageResult> { ResultOf(way) });
        QCOMPARE(subject.stack.Depth(), 1);
        QVERIFY(Questions::Of(&subject.stack).IsIdle());
    }

    void inputIsLostOnlyAfterAYes_data()
    {
        const Table<int, QString> columns;
        for (int i = 0; const PageCase& page : kPages) {
            for (const QString& way : { u"escape"_s, u"closing"_s }) {
                if (page.takesInput)
                    QTest::addRow("%s, %s", page.name, qPrintable(way)) << i << way;
            }
            ++i;
        }
    }

    void inputIsLostOnlyAfterAYes()
    {
        const auto [page, way] = Table<int, QString>::Row();
        Subject subject;
        Show(subject, kPages.at(static_cast<size_t>(page)));
        // Types into a text, ticks a checkbox.
        QTest::keyClick(subject.stack.windowHandle(), Qt::Key_X);
        QTest::keyClick(subject.stack.windowHandle(), Qt::Key_Space);
        Leave(subject, way);
        QVERIFY(subject.Answer(QMessageBox::No) != nullptr);
        QTest::mouseClick(subject.Answer(QMessageBox::No), Qt::LeftButton);
        QCOMPARE(subject.stack.Top(), subject.page);
        QVERIFY(subject.page->HasUnsavedInput());
        Leave(subject, way);
        QTest::mouseClick(subject.Answer(QMessageBox::Yes), Qt::LeftButton);
        QCOMPARE(subject.results, QList<PageResult> { ResultOf(way) });
    }

    void returnPressesTheButtonThatHasTheKeyboard_data()
    {
        const Table<int, QString> columns;
        for (int i = 0; const PageCase& page : kPages) {
            for (const QString& way : page.ways) {
                if (way != u"enter")
                    QTest::addRow("%s, %s", page.name, qPrintable(way)) << i << way;
            }
            ++i;
        }
    }

    void returnPressesTheButtonThatHasTheKeyboard()
    {
        const auto [page, button] = Table<int, QString>::Row();
        Subject subject;
        Show(subject, kPages.at(static_cast<size_t>(page)));
        auto* focused = subject.page->findChild<QWidget*>(button);
        focused->setFocus(Qt::TabFocusReason);
        QTest::keyClick(subject.stack.windowHandle(), Qt::Key_Return);
        QCOMPARE(subject.results, QList<PageResult> { ResultOf(button) });
    }
};

QUILLORY_TEST(QApplication, PageEndsTest)
#include "page_ends_test.moc"
