// SPDX-License-Identifier: MIT
#include "app/home_list.h"
#include "listdef/import_order_page.h"
#include "tests/finger.h"
#include "tests/rows_view_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/app_style.h"
#include "widgets/colour_button.h"
#include "widgets/form.h"
#include "widgets/icon_grid_page.h"
#include "widgets/measures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QScrollBar>
#include <QStyleHints>
#include <QToolButton>
#include <QVBoxLayout>

#include <vector>

class TouchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() const
    {
        QApplication::setStyle(new AppStyle);
        for (int i = 0; i < kLines; ++i)
            m_errand.file.Add({ u"row"_s, u"1"_s, u"top"_s, u"Unchecked"_s, u"1"_s });
    }

    void aFingerActsOnTheReleaseOfATap_data()
    {
        const Table<List, Gesture, QString> add;
        const auto inEach = [](const char* name, Gesture gesture, const QString& home,
                                const QString& rows, const QString& order) {
            QTest::addRow("home list: %s", name) << List::Home << gesture << home;
            QTest::addRow("rows: %s", name) << List::Rows << gesture << rows;
            QTest::addRow("import order: %s", name) << List::ImportOrder << gesture << order;
        };
        inEach("tap", Gesture::Tap, u"4 rows"_s, u"4"_s, u"4"_s);
        // The second tap falls on the list that the first one opened.
        inEach("double tap", Gesture::DoubleTap, u"4 rows"_s, u"4 ticked"_s, u"4"_s);
        inEach("hold", Gesture::Hold, u"4 menu"_s, u"4 menu"_s, u"4"_s);
        inEach("flick", Gesture::Flick, u"0 scrolled gliding"_s, u"0 scrolled gliding"_s,
            u"0 scrolled gliding"_s);
        inEach("slow swipe", Gesture::SlowSwipe, u"0 scrolled"_s, u"0 scrolled"_s, u"0 scrolled"_s);
        inEach("tap on a gliding list", Gesture::TapOnGliding, u"0 scrolled"_s, u"0 scrolled"_s,
            u"0 scrolled"_s);
        add("icon grid: tap", List::IconGrid, Gesture::Tap, u"closed"_s);
        add("icon grid: slow swipe", List::IconGrid, Gesture::SlowSwipe, u"0 scrolled"_s);
        add("rows: hold taken away", List::Rows, Gesture::HoldTakenAway, u"0"_s);
        add("rows: two fingers", List::Rows, Gesture::TwoFingers, u"0"_s);
        add("rows: two taps", List::Rows, Gesture::TwoTaps, u"4"_s);
        add("rows: tap in a square", List::Rows, Gesture::TapInSquare, u"4 ticked"_s);
        add("rows: tap beside a square", List::Rows, Gesture::TapBesideSquare, u"4"_s);
        add("rows: double tap in a square", List::Rows, Gesture::DoubleTapInSquare, u"4"_s);
    }

    void aFingerActsOnTheReleaseOfATap()
    {
        const auto [list, gesture, seen] = Table<List, Gesture, QString>::Row();
        Open(list);
        m_page->findChild<QWidget*>(u"ok"_s)->setFocus();
        Do(gesture);
        QVERIFY(gesture != Gesture::Tap || m_errand.stack->Top() != m_page || m_view->hasFocus());
        QCOMPARE(Seen(), seen);
    }

    void aMouseSelectsOnItsPress()
    {
        Open(List::Home);
        const QPoint line = m_view->visualRect(m_view->model()->index(kLine, 0)).center();
        QTest::mousePress(m_view->viewport(), Qt::LeftButton, {}, line);
        QCOMPARE(Seen(), u"4"_s);
        QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, {}, line);
        QCOMPARE(Seen(), u"4 rows"_s);
        // So does the second click of a double click fall on the list that the first one opened.
        QWidget* below = QApplication::widgetAt(m_view->viewport()->mapToGlobal(line));
        auto* rows = m_errand.View();
        QTest::mouseDClick(below, Qt::LeftButton, {}, line);
        QTest::mouseRelease(below, Qt::LeftButton, {}, line);
        QCOMPARE(rows->currentIndex().row(), 0);
    }

    void aDividerIsMovedWhereATapSorts()
    {
        Open(List::Rows);
        const auto* rows = qobject_cast<QTableView*>(m_view);
        const QHeaderView* header = rows->horizontalHeader();
        const int end = header->sectionViewportPosition(Name) + header->sectionSize(Name);
        const int width = header->sectionSize(Name);
        const Finger finger(*header->viewport());
        const QPoint near(end - kMinTouchTarget / 2 + 1, 10);
        finger.Swipe(near, near - QPoint(40, 0), 100);
        QCOMPARE(header->sectionSize(Name), width - 40);
        finger.Tap(QPoint(end - 40 + kMinTouchTarget / 2 - 2, 10));
        QCOMPARE(header->sortIndicatorSection(), int(Count));
        QCOMPARE(header->sectionSize(Name), width - 40);
    }

    void controlsOfAFormActOnATapAlone()
    {
        // A check box, a drop-down list, a colour and a button.
        for (int control = 0; control < 4; ++control) {
            SetIntervals(0, 10000);
            QWidget window;
            auto* content = new QWidget(&window);
            auto* lines = new QVBoxLayout(content);
            QCheckBox box;
            QComboBox dropDown;
            dropDown.addItems({ u"one"_s, u"two"_s });
            ColourButton colour;
            QToolButton button;
            int clicks = 0;
            connect(&button, &QToolButton::clicked, this, [&clicks] { ++clicks; });
            const QList<QWidget*> controls { &box, &dropDown, &colour, &button };
            for (QWidget* line : controls) {
                line->setFixedSize(kMinTouchTarget, kMinTouchTarget);
                lines->addWidget(line);
            }
            lines->insertSpacing(0, 80);
            lines->addSpacing(800);
            auto* area = MakeScrollable(content);
            area->resize(200, 300);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            // A finger does not move along with what it scrolls.
            const Finger finger(window);
            const auto place = [&] { return controls.at(control)->mapTo(&window, QPoint(10, 22)); };
            const auto hasActed = [&] {
                QWidget* popup = QApplication::activePopupWidget();
                if (popup != nullptr)
                    popup->close();
                return popup != nullptr || box.isChecked() || clicks > 0;
            };
            // Slowly, so that it does not glide on.
            finger.Swipe(place(), place() - QPoint(0, 60), 400);
            QVERIFY(!hasActed());
            QVERIFY(content->y() < 0);
            finger.Tap(place());
            QVERIFY(hasActed());
            // A held one repeats.
            button.setAutoRepeat(true);
            button.setAutoRepeatDelay(1);
            SetIntervals(0, 20);
            finger.Press(button.mapTo(&window, QPoint(10, 22)));
            QTRY_VERIFY(clicks > 2);
            finger.Release(button.mapTo(&window, QPoint(10, 22)));
            QVERIFY(!button.isDown());
        }
    }

private:
    enum class List
    {
        Home,
        Rows,
        ImportOrder,
        IconGrid,
    };
    enum class Gesture
    {
        Tap,
        DoubleTap,
        TwoTaps,
        Hold,
        HoldTakenAway,
        TwoFingers,
        Flick,
        SlowSwipe,
        TapOnGliding,
        TapInSquare,
        DoubleTapInSquare,
        TapBesideSquare,
    };
    static constexpr int kLines = 200;
    /// The line that the fingers touch.
    static constexpr int kLine = 4;

    RowsErrand m_errand;
    Page* m_page = nullptr;
    QPointer<QAbstractItemView> m_view;

    static void SetIntervals(int doubleTapMs, int holdMs)
    {
        QGuiApplication::styleHints()->setMouseDoubleClickInterval(doubleTapMs);
        QGuiApplication::styleHints()->setMousePressAndHoldInterval(holdMs);
    }
    void Open(List list)
    {
        // However slow the machine is, two taps are a double one only where that is meant.
        SetIntervals(0, 10000);
        m_errand.stack.reset();
        m_errand.Open();
        PageStack* stack = m_errand.stack.get();
        RowStore& rows = *m_errand.file.rows;
        rows.SetCheckboxValue(rows.FillRows().rows.at(kLine), m_errand.file.Column(Bio), false);
        m_page = m_errand.page;
        if (list == List::Home) {
            auto* home = new HomeList;
            std::vector<ListCatalogue::HomeListEntry> lists(kLines);
            for (quint32 i = 0; i < kLines; ++i)
                lists[i] = { ObjectId(i + 1), u"list %1"_s.arg(1000 + i), 0 };
            home->Fill(lists);
            connect(home, &HomeList::ListChosen, this, [this] {
                m_errand.stack->Push(new RowsView(
                    *m_errand.file.rows, m_errand.file.list, m_errand.file.context, {}));
            });
            m_page = home;
        }
        if (list == List::ImportOrder)
            m_page = new ImportOrderPage(
                std::vector<ColumnDefinition>(kLines, { u"Column"_s, 0, PropName }));
        if (list == List::IconGrid) {
            m_page = new IconGridPage(0);
            stack->resize(240, 320);
        }
        if (m_page != m_errand.page)
            stack->Push(m_page);
        m_view = m_page->findChild<QAbstractItemView*>();
        m_view->setCurrentIndex(m_view->model()->index(0, 0));
        QCoreApplication::processEvents();
    }

    void Do(Gesture gesture) const
    {
        const Finger finger(*m_view->viewport());
        const QPoint middle = m_view->viewport()->rect().center();
        const QPoint line = m_view->visualRect(m_view->model()->index(kLine, 0)).center();
        const auto flick
            = [&] { finger.Swipe(middle + QPoint(0, 90), middle - QPoint(0, 90), 100); };
        switch (gesture) {
        case Gesture::Tap:
            return finger.Tap(line);
        case Gesture::DoubleTap:
            finger.Tap(line);
            SetIntervals(10000, 10000);
            return Finger(*QApplication::widgetAt(m_view->viewport()->mapToGlobal(line))).Tap(line);
        case Gesture::TwoTaps:
            finger.Tap(line);
            return finger.Tap(line);
        case Gesture::Hold:
            SetIntervals(0, 50);
            finger.Press(line);
            QTest::qWait(200);
            return finger.Release(line);
        case Gesture::HoldTakenAway: {
            SetIntervals(0, 50);
            finger.Press(line);
            QTouchEvent cancel(QEvent::TouchCancel);
            QApplication::sendEvent(m_view->viewport(), &cancel);
            return QTest::qWait(200);
        }
        case Gesture::TwoFingers:
            finger.Press(line);
            return finger.Release(line, line + QPoint(0, 90));
        case Gesture::Flick:
            return flick();
        case Gesture::SlowSwipe:
            return finger.Swipe(line, line - QPoint(0, 100), 400);
        case Gesture::TapOnGliding:
            flick();
            QTest::qWait(50);
            return finger.Tap(middle);
        case Gesture::TapBesideSquare:
            return finger.Tap(m_errand.Cell(kLine, Bio).center() + QPoint(30, 0));
        case Gesture::TapInSquare:
            return finger.Tap(m_errand.Cell(kLine, Bio).center());
        case Gesture::DoubleTapInSquare:
            finger.Tap(m_errand.Cell(kLine, Bio).center());
            SetIntervals(10000, 10000);
            return finger.Tap(m_errand.Cell(kLine, Bio).center());
        }
    }

    /// The selected line and what else there is to tell.
    [[nodiscard]] QString Seen() const
    {
        if (m_view == nullptr)
            return u"closed"_s;
        const int before = m_view->verticalScrollBar()->value();
        QStringList seen { QString::number(m_view->currentIndex().row()) };
        if (m_errand.stack->Top() != m_page)
            seen << m_errand.stack->Top()->objectName();
        if (QWidget* menu = QApplication::activePopupWidget()) {
            seen << u"menu"_s;
            menu->close();
        }
        RowsModel rows(*m_errand.file.rows, m_errand.file.list, m_errand.file.context);
        rows.SetRows(m_errand.file.rows->FillRows().rows);
        if (rows.IsChecked(kLine, Bio))
            seen << u"ticked"_s;
        if (before != 0)
            seen << u"scrolled"_s;
        QTest::qWait(50);
        if (m_view->verticalScrollBar()->value() != before)
            seen << u"gliding"_s;
        return seen.join(u' ');
    }
};

QUILLORY_TEST(QApplication, TouchTest)
#include "touch_test.moc"
