// SPDX-License-Identifier: MIT
#include "desktop/desktop_look.h"
#include "tests/cut_controls.h"
#include "tests/every_page.h"
#include "tests/person.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/app_style.h"
#include "widgets/measures.h"
#include "widgets/questions.h"
#include "widgets/window_style.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTableView>

namespace {

/// A row of a test's table for each page and each of the ways that are meant of it.
void AddRows(QStringList (*waysOf)(const PageCase& page))
{
    const Table<int, QString> add;
    for (int i = 0; const PageCase& page : kPages) {
        for (const QString& way : waysOf(page))
            add(qPrintable(u"%1, %2"_s.arg(QLatin1StringView(page.name), way)), i, way);
        ++i;
    }
}

void Leave(Subject& subject, const QString& way)
{
    if (way == u"closing")
        subject.stack.CloseAll([] {});
    else
        Act(way);
}

PageResult ResultOf(const QString& way)
{
    if (way == u"closing")
        return PageResult::Closing;
    return way == u"press Esc" || way == u"tap leftKey" ? PageResult::Cancel : PageResult::Ok;
}

/// Fonts and places of what is seen of a page.
QStringList LookOf(const Page& page)
{
    QStringList lines;
    for (const QWidget* widget : page.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        const auto* table = qobject_cast<const QTableView*>(widget);
        QDebug(&lines.emplace_back())
            << widget->metaObject()->className() << widget->objectName()
            << widget->font().toString() << widget->geometry()
            << (table == nullptr ? 0 : table->verticalHeader()->defaultSectionSize())
            << (table == nullptr ? 0 : table->horizontalHeader()->length());
    }
    return lines;
}

/// Where the letters of a table's first line begin, in steps of the grid from its own beginning.
int InsetOf(QTableView& view)
{
    const QRect cell = view.visualRect(view.model()->index(0, 0)).adjusted(0, 0, 0, -1);
    const QImage line = view.viewport()->grab(cell).toImage().mirrored(view.isRightToLeft(), false);
    const auto column = [&line](int x) { return line.copy(x, 0, 1, line.height()); };
    int x = 0;
    while (x < line.width() && column(x) == column(0))
        ++x;
    return qRound(x / double { kGrid });
}

} // namespace

class PageEndsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageEndsAsItsUserSays_data()
    {
        AddRows([](const PageCase& page) {
            // The lists stay as long as the window does.
            return page.ways.isEmpty() ? QStringList()
                                       : page.ways + QStringList { u"press Esc"_s, u"closing"_s };
        });
    }

    void everyPageFitsEveryWindow_data()
    {
        const Table<int> add;
        for (int i = 0; const PageCase& page : kPages)
            add(page.name, i++);
    }

    void everyPageFitsEveryWindow()
    {
        const auto [page] = Table<int>::Row();
        const QFont before = QApplication::font();
        const auto restore = qScopeGuard([&before] { QApplication::setFont(before); });
        QApplication::setStyle(new AppStyle);
        QStringList cut;
        for (const int points : { 8, 11, 16, 24 }) {
            QFont font = before;
            font.setPointSize(points);
            QApplication::setFont(font);
            Subject subject;
            ApplyWindowStyle(&subject.stack);
            Show(subject, kPages.at(static_cast<size_t>(page)));
            for (const QSize size : { QSize(240, 320), QSize(320, 240), QSize(360, 640),
                     QSize(640, 360), QSize(480, 800), QSize(1600, 900) }) {
                subject.stack.resize(size);
                QStringList here;
                const auto isWhole = [&] {
                    here = CutControls(*subject.page);
                    return here.isEmpty();
                };
                (void)QTest::qWaitFor(isWhole, 100);
                if (subject.stack.size() != size)
                    here << u"the window"_s;
                for (const QString& control : here)
                    QDebug(&cut.emplace_back()) << points << size << control;
            }
        }
        QVERIFY2(cut.isEmpty(), qPrintable(u'\n' + cut.join(u'\n')));
    }

    void everyPageIsMirrored_data() { everyPageFitsEveryWindow_data(); }

    void everyPageIsMirrored()
    {
        const auto [page] = Table<int>::Row();
        const auto restore
            = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); });
        QApplication::setStyle(new AppStyle);
        QMap<Qt::LayoutDirection, QStringList> places;
        for (const auto direction : { Qt::LeftToRight, Qt::RightToLeft }) {
            QGuiApplication::setLayoutDirection(direction);
            Subject subject;
            ApplyWindowStyle(&subject.stack);
            Show(subject, kPages.at(static_cast<size_t>(page)));
            subject.page->OfferUndo(u"'Tea' was deleted."_s, [] {});
            for (const auto* widget : subject.page->findChildren<QWidget*>()) {
                const QRect place(widget->mapTo(subject.page, QPoint()), widget->size());
                if (widget->isVisible())
                    QDebug(&places[direction].emplace_back())
                        << widget->metaObject()->className() << widget->objectName()
                        << QStyle::visualRect(direction, subject.page->rect(), place);
            }
            for (auto* table : subject.page->findChildren<QTableView*>())
                places[direction] << QString::number(InsetOf(*table));
        }
        QCOMPARE(places[Qt::RightToLeft], places[Qt::LeftToRight]);
    }

    void anOpenPageFollowsTheFont_data()
    {
        const Table<int> add;
        for (int i = 0; const PageCase& page : kPages)
            add(page.name, i++);
    }

    void anOpenPageFollowsTheFont()
    {
        const auto [page] = Table<int>::Row();
        const QFont before = QApplication::font();
        const auto restore = qScopeGuard([&before] { QApplication::setFont(before); });
        QFont larger = before;
        larger.setPointSizeF(before.pointSizeF() * 1.5);
        QApplication::setStyle(new AppStyle);
        Subject open;
        ApplyWindowStyle(&open.stack);
        Show(open, kPages.at(static_cast<size_t>(page)));
        // Also while something covers it.
        open.stack.Push(new Page(QString()));
        QApplication::setFont(larger);
        open.stack.Top()->RequestEnd(PageResult::Ok);
        Subject fresh;
        ApplyWindowStyle(&fresh.stack);
        Show(fresh, kPages.at(static_cast<size_t>(page)));
        QTRY_COMPARE_WITH_TIMEOUT(LookOf(*open.page), LookOf(*fresh.page), 500);
    }

    void anOpenPageFollowsTheColours_data() { anOpenPageFollowsTheFont_data(); }
    void anOpenPageFollowsTheColours()
    {
        const auto [page] = Table<int>::Row();
        const auto restore
            = qScopeGuard([before = QApplication::palette()] { QApplication::setPalette(before); });
        QApplication::setStyle(new AppStyle);
        Subject open;
        ApplyWindowStyle(&open.stack);
        Show(open, kPages.at(static_cast<size_t>(page)));
        const auto seen = [](Subject& subject) {
            subject.stack.activateWindow();
            return QTest::qWaitForWindowActive(&subject.stack) ? subject.stack.grab().toImage()
                                                               : QImage();
        };
        const QImage light = seen(open);
        QApplication::setPalette(PaletteOf(ColourScheme::Dark));
        Subject fresh;
        ApplyWindowStyle(&fresh.stack);
        Show(fresh, kPages.at(static_cast<size_t>(page)));
        QVERIFY(seen(open) != light);
        QTRY_VERIFY(seen(open) == seen(fresh));
    }

    /// Tab goes through all controls, whose names are told, and each shows that it has the
    /// keyboard.
    void tabGoesWhereItIsSeen_data() { anOpenPageFollowsTheFont_data(); }
    void tabGoesWhereItIsSeen()
    {
        const auto [page] = Table<int>::Row();
        const PageCase& asked = kPages.at(static_cast<size_t>(page));
        const auto restore = qScopeGuard([before = QApplication::cursorFlashTime()] {
            QApplication::setCursorFlashTime(before);
        });
        QApplication::setCursorFlashTime(0);
        QApplication::setStyle(new AppStyle);
        Subject subject;
        ApplyWindowStyle(&subject.stack);
        Show(subject, asked);
        const QWidget* opened = QApplication::focusWidget();
        QVERIFY(opened != subject.page && subject.page->isAncestorOf(opened));
        QTest::keyClick(subject.stack.focusWidget(), Qt::Key_Tab);
        QStringList stops;
        for (const QWidget* first = subject.stack.focusWidget(); stops.size() < 20;) {
            QWidget* stop = subject.stack.focusWidget();
            const QImage before = stop->grab().toImage();
            QTest::keyClick(stop, Qt::Key_Tab);
            // In lists the selected line tells it.
            if (subject.stack.focusWidget() != stop && stop->grab().toImage() == before
                && !stop->inherits("QAbstractItemView"))
                stops << u"unseen:"_s;
            stops << QAccessible::queryAccessibleInterface(stop)->text(QAccessible::Name);
            if (subject.stack.focusWidget() == first)
                break;
        }
        QCOMPARE(stops.join(u", "_s), asked.stops);
    }

    void fingersHitEveryControl_data() { anOpenPageFollowsTheFont_data(); }
    void fingersHitEveryControl()
    {
        const auto [page] = Table<int>::Row();
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        Subject subject;
        ApplyWindowStyle(&subject.stack);
        Show(subject, kPages.at(static_cast<size_t>(page)));
        for (const QSize size : { QSize(360, 640), QSize(640, 360) }) {
            subject.stack.resize(size);
            const Measures& frame = size.height() < kLowWindow ? kMouseMeasures : kTouchMeasures;
            QTRY_COMPARE(
                subject.page->findChild<QWidget*>(u"header"_s)->height(), frame.headerHeight + 1);
            QCOMPARE(
                subject.page->findChild<QWidget*>(u"softKeys"_s)->height(), frame.softKeyHeight);
            for (const auto* view : subject.page->findChildren<QAbstractItemView*>())
                QVERIFY(view->model()->rowCount() == 0 || !view->isVisible()
                    || view->inherits("QHeaderView")
                    || view->visualRect(view->model()->index(0, 0)).height() >= kMinTouchTarget);
            for (const QWidget* control : subject.page->findChildren<QWidget*>()) {
                const bool isInBody = control->inherits("QAbstractButton")
                    || control->inherits("QLineEdit") || control->inherits("QComboBox");
                if (control->isVisible() && isInBody)
                    QVERIFY2(control->height() >= 40, qPrintable(control->objectName()));
            }
        }
    }

    void everyStateIsSeen_data() { anOpenPageFollowsTheFont_data(); }
    void everyStateIsSeen()
    {
        const auto [place] = Table<int>::Row();
        QApplication::setStyle(new AppStyle);
        Subject subject;
        ApplyWindowStyle(&subject.stack);
        Show(subject, kPages.at(static_cast<size_t>(place)));
        const Page& page = *subject.page;
        QVERIFY(page.findChild<QWidget*>(u"title"_s)->font().bold());
        for (auto* view : page.findChildren<QAbstractItemView*>()) {
            if (!view->isVisible() || view->model()->rowCount() == 0
                || view->inherits("QHeaderView") || view->inherits("QTextBrowser"))
                continue;
            view->setCurrentIndex(view->model()->index(0, 0));
            const QImage marked = view->grab().toImage();
            view->setCurrentIndex({});
            QVERIFY(view->grab().toImage() != marked);
        }
        for (auto* control : page.findChildren<QAbstractButton*>()) {
            if (!control->isVisible() || !control->isEnabled()
                || control->parentWidget()->objectName() == u"header"
                || control->objectName() == u"help")
                continue;
            control->setChecked(true);
            const QImage enabled = control->grab().toImage();
            control->setEnabled(false);
            const QImage greyed = control->grab().toImage();
            QVERIFY2(greyed != enabled, qPrintable(control->objectName()));
        }
    }

    void everyPageKnowsItsHelp_data() { anOpenPageFollowsTheFont_data(); }

    void everyPageKnowsItsHelp()
    {
        const auto [page] = Table<int>::Row();
        Subject subject;
        const QSignalSpy asked(&subject.stack, &PageStack::HelpRequested);
        Show(subject, kPages.at(static_cast<size_t>(page)));
        Act(u"press F1"_s);
        QCOMPARE(asked.value(0).value(0).toString(), kPages.at(static_cast<size_t>(page)).help);
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
        AddRows([](const PageCase& page) {
            return page.takesInput ? QStringList { u"press Esc"_s, u"closing"_s } : QStringList();
        });
    }

    void inputIsLostOnlyAfterAYes()
    {
        const auto [page, way] = Table<int, QString>::Row();
        Subject subject;
        Show(subject, kPages.at(static_cast<size_t>(page)));
        // Types into a text, ticks a checkbox.
        Act(u"press X Space"_s);
        Leave(subject, way);
        Act(u"tap No"_s);
        QCOMPARE(subject.stack.Top(), subject.page);
        QVERIFY(subject.page->HasUnsavedInput());
        Leave(subject, way);
        Act(u"tap Yes"_s);
        QCOMPARE(subject.results, QList<PageResult> { ResultOf(way) });
    }

    void returnPressesTheButtonThatHasTheKeyboard_data()
    {
        AddRows([](const PageCase& page) {
            QStringList buttons = page.ways;
            buttons.removeAll(u"press Return"_s);
            return buttons;
        });
    }

    void returnPressesTheButtonThatHasTheKeyboard()
    {
        const auto [page, button] = Table<int, QString>::Row();
        Subject subject;
        Show(subject, kPages.at(static_cast<size_t>(page)));
        auto* focused = subject.page->findChild<QAbstractButton*>(button.section(u' ', 1));
        focused->setFocus(Qt::TabFocusReason);
        Act(u"press Return"_s);
        QCOMPARE(subject.results, QList<PageResult> { ResultOf(button) });
    }

    void altAndItsLetterPressASoftKey_data()
    {
        AddRows([](const PageCase& page) { return page.ways.filter(u"Key"_s); });
    }

    void altAndItsLetterPressASoftKey()
    {
        const auto [page, way] = Table<int, QString>::Row();
        Subject subject;
        Show(subject, kPages.at(static_cast<size_t>(page)));
        const auto* key = subject.page->findChild<QAbstractButton*>(way.section(u' ', 1));
        Act(u"press Alt+"_s + key->text().front());
        QCOMPARE(subject.results, QList<PageResult> { ResultOf(way) });
    }
};

QUILLORY_TEST(QApplication, PageEndsTest)
#include "page_ends_test.moc"
