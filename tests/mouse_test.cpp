// SPDX-License-Identifier: MIT
#include "rows/date_field.h"
#include "tests/every_page.h"
#include "tests/rows_view_errand.h"
#include "tests/test_program.h"
#include "widgets/app_style.h"
#include "widgets/window_style.h"

#include <QCursor>
#include <QLabel>
#include <QTabBar>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

namespace {

/// Tips come at once.
class HastyStyle : public AppStyle
{
    Q_OBJECT

public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* returnData) const override
    {
        return hint == SH_ToolTip_WakeUpDelay
            ? 0
            : AppStyle::styleHint(hint, option, widget, returnData);
    }
};

/// Moves the mouse away and over a place, and gives the tip that it finds there, as it is read; "…"
/// for none.
QString TipAt(const QWidget& widget, const QPoint& place)
{
    QToolTip::hideText();
    static_cast<void>(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QCursor::setPos(widget.mapToGlobal(place) + QPoint(1, 0));
    QCursor::setPos(widget.mapToGlobal(place));
    const bool isTold = QTest::qWaitFor([] { return QToolTip::isVisible(); }, 300);
    const QString text = isTold ? QToolTip::text() : u"…"_s;
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// The places of a window that look otherwise while the mouse is over a place.
int ChangedUnderMouse(QWidget& window, const QWidget& widget, const QPoint& place)
{
    QCursor::setPos(window.mapToGlobal(QPoint(window.width() + 50, 5)));
    QTest::qWait(20);
    const QImage before = window.grab().toImage();
    QCursor::setPos(widget.mapToGlobal(place));
    QTest::qWait(20);
    const QImage now = window.grab().toImage();
    int changed = 0;
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x)
            changed += before.pixel(x, y) == now.pixel(x, y) ? 0 : 1;
    }
    return changed;
}

} // namespace

class MouseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() const { QApplication::setStyle(new HastyStyle); }

    void itFindsTips()
    {
        Subject sheet;
        Show(sheet, kPages.front());
        const auto middleTip
            = [](const QWidget* widget) { return TipAt(*widget, widget->rect().center()); };
        const auto named = [&](QLatin1StringView name) {
            return middleTip(sheet.page->findChild<QWidget*>(name));
        };
        QCOMPARE(named("help"_L1), u"Help"_s);
        QCOMPARE(named("nextIcon"_L1), u"Next icon"_s);
        QCOMPARE(named("previousIcon"_L1), u"Previous icon"_s);
        QCOMPARE(named("allIcons"_L1), u"All icons"_s);
        QCOMPARE(named("title"_L1), u"…"_s);
        sheet.page->findChild<QTabBar*>()->setCurrentIndex(2);
        const auto* threshold = sheet.page->findChild<QWidget*>(u"threshold"_s)->parentWidget();
        QStringList steps;
        for (const auto* button : threshold->findChildren<QToolButton*>())
            steps << middleTip(button);
        QCOMPARE(steps, (QStringList { u"Less"_s, u"More"_s }));
        sheet.page->SetTitle(u"<b>"_s + QString(80, u'x'));
        QCOMPARE(named("title"_L1), u"<b>"_s + QString(80, u'x'));
        sheet.stack.hide();
        DateField date(sheet.file.context);
        date.show();
        QVERIFY(QTest::qWaitForWindowExposed(&date));
        QCOMPARE(middleTip(date.findChild<QWidget*>(u"openCalendar"_s)), u"Calendar"_s);
    }

    void whatIsCutIsItsTip()
    {
        RowsErrand rows;
        const QString name = u"<b>"_s + QString(60, u'w');
        rows.file.list.columns[Shelf].name = u"Where in the cellar it stands"_s;
        rows.file.Add({ name, u"3"_s, u"top"_s });
        rows.Open();
        auto* view = rows.View();
        for (const auto& [column, width] : { std::pair(Name, 100), { Shelf, 60 }, { Count, 60 } })
            view->horizontalHeader()->resizeSection(column, width);
        QCOMPARE(TipAt(*view->viewport(), rows.Cell(0, Name).center()), name);
        QCOMPARE(TipAt(*view->viewport(), rows.Cell(0, Shelf).center()), u"…"_s);
        const auto* titles = view->horizontalHeader()->viewport();
        QCOMPARE(TipAt(*titles, QPoint(rows.Cell(0, Shelf).center().x(), 5)),
            rows.file.list.columns[Shelf].name);
        QCOMPARE(TipAt(*titles, QPoint(rows.Cell(0, Name).center().x(), 5)), u"…"_s);
        Act(u"tap "_s + name + u"; press Return"_s);
        auto* fields = rows.stack->Top()->findChild<QTableView*>();
        const QModelIndex shelf = fields->model()->index(Shelf, 0);
        QCOMPARE(TipAt(*fields->viewport(), fields->visualRect(shelf).center()), u"…"_s);
        rows.stack->resize(240, 320);
        QTest::qWait(20);
        QCOMPARE(TipAt(*fields->viewport(), fields->visualRect(shelf).center()),
            rows.file.list.columns[Shelf].name);
    }

    void whatItIsOverShowsSo()
    {
        RowsErrand rows;
        for (int i = 0; i < 3; ++i)
            rows.file.Add({ u"Tea"_s, u"3"_s, u"top"_s });
        rows.Open();
        ApplyWindowStyle(rows.stack.get());
        // Nearly the whole width of a line, not the one cell.
        const int line = rows.View()->width() * rows.Cell(1, Name).height();
        const auto changed = [&rows](const QWidget* widget, const QPoint& place) {
            return ChangedUnderMouse(*rows.stack, *widget, place);
        };
        const int seen = changed(rows.View()->viewport(), rows.Cell(1, Name).center());
        QVERIFY2(seen > line * 8 / 10 && seen <= line, qPrintable(QString::number(seen)));
        for (const QLatin1StringView name : { "leftKey"_L1, "rightKey"_L1, "help"_L1, "ok"_L1 }) {
            const auto* key = rows.page->findChild<QWidget*>(name);
            QVERIFY2(changed(key, key->rect().center()) > 500, name.data());
        }
        QVERIFY(changed(rows.View()->horizontalHeader()->viewport(), { 30, 10 }) > 500);
        rows.stack->hide();
        Subject sheet;
        ApplyWindowStyle(&sheet.stack);
        Show(sheet, kPages.front());
        const auto* tabs = sheet.page->findChild<QTabBar*>();
        QVERIFY(ChangedUnderMouse(sheet.stack, *tabs, tabs->tabRect(1).center()) > 500);
        sheet.stack.hide();
        Subject home;
        ApplyWindowStyle(&home.stack);
        Show(home, kPages.at(14));
        auto* lists = home.page->findChild<QTreeView*>();
        home.page->findChild<QWidget*>(u"leftKey"_s)->setFocus();
        lists->setCurrentIndex({});
        const QRect first = lists->visualRect(lists->model()->index(0, 0));
        QVERIFY(ChangedUnderMouse(home.stack, *lists->viewport(), first.center())
            > lists->width() * first.height() / 2);
        // What a finger touched last would look so until the next touch.
        QTest::createTouchDevice();
        home.stack.hide();
        rows.Open();
        ApplyWindowStyle(rows.stack.get());
        QCOMPARE(changed(rows.View()->viewport(), rows.Cell(1, Name).center()), 0);
        const auto* key = rows.page->findChild<QWidget*>(u"leftKey"_s);
        QCOMPARE(changed(key, key->rect().center()), 0);
    }
};

QUILLORY_TEST(QApplication, MouseTest)
#include "mouse_test.moc"
