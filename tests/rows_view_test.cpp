// SPDX-License-Identifier: MIT
#include "rows/row_look.h"
#include "tests/finger.h"
#include "tests/rows_view_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "values/file_date.h"
#include "widgets/colour_palette.h"
#include "widgets/window_style.h"

#include <QLabel>
#include <QScrollBar>

#include <tuple>

namespace {

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    [[nodiscard]] bool Has(const QRect& place) const { return m_painted.contains(place.center()); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted += static_cast<QPaintEvent*>(event)->region();
        return QObject::eventFilter(watched, event);
    }

private:
    QRegion m_painted;
};

} // namespace

class RowsViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_errand = std::make_unique<RowsErrand>();
        File().Add({ u"rice"_s, u"0"_s, u"top"_s, u"Unchecked"_s, u"3"_s });
        File().Add({ u"salt"_s, u"5"_s, u"top"_s, u"Checked"_s, u"1"_s });
    }

    void whatChangesIsPaintedAtOnce_data()
    {
        const Table<QTime, QDate, bool> add;
        add("midnight", QTime(23, 59, 59, 900), QDate(2026, 6, 16), false);
        add("the clock is set", QTime(12, 30), QDate(2026, 6, 2), true);
        add("a count", QTime(12, 30), QDate(2026, 6, 15), false);
    }

    void whatChangesIsPaintedAtOnce()
    {
        const auto [opened, today, isAwoken] = Table<QTime, QDate, bool>::Row();
        LocalTime now { QDate(2026, 6, 15), opened };
        File().context.clock = [&now] { return now; };
        File().list.TableOption = kWarnOnExpiry;
        for (const auto& day : { u"6/10/2026"_s, u"6/16/2026"_s })
            File().Add({ u"tea"_s, u"1"_s, u""_s, u""_s, u"1"_s, u"1"_s, u""_s, day });
        m_errand->Open();
        QTest::qWait(50);
        const QImage before = View()->viewport()->grab().toImage();
        const PaintCounter paints(View()->viewport());
        now.date = today;
        if (isAwoken)
            Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
        else if (today == QDate(2026, 6, 15))
            QTest::keyClick(View(), Qt::Key_Plus);
        // All rows may have other colours on another day, the last one has.
        const int line = today == QDate(2026, 6, 15) ? 0 : 3;
        QTRY_VERIFY_WITH_TIMEOUT(paints.Has(m_errand->Cell(line, Name)), 1000);
        QVERIFY(View()->viewport()->grab().toImage() != before);
    }

    void aNewRowIsEnteredByKeyboard()
    {
        m_errand->Open();
        Act(u"at Pantry; on rice"_s);
        // Return presses the key that has the keyboard; it edits the selected row only elsewhere.
        Page()->findChild<QWidget*>(u"leftKey"_s)->setFocus(Qt::TabFocusReason);
        // At the end, until the list is opened again.
        Act(u"press Return; see valueEdit: ; type barley; press Return; type 7; press Return; "
            "press Enter Enter Enter Enter Enter; type 1/5/2027; press Return; "
            "see rice, salt, barley; see Quantity: 0, 5, 7; see Expiry Date: , , 1/5/2027"_s);
        QCOMPARE(m_errand->Stored(), u"barley rice salt"_s);
    }

    void whatComesBackStandsInItsPlace()
    {
        m_errand->Open();
        for (const auto& [name, count, steps] :
            { std::tuple(u"aaa"_s, u"1"_s, u"see aaa, rice, salt"_s),
                std::tuple(u"zzz"_s, u"9"_s, u"see aaa, rice, salt, zzz; tap Quantity"_s),
                std::tuple(u"mmm"_s, u"-5"_s,
                    u"on mmm; see Quantity: -5, 0, 1, 5, 9; tap Menu; tap Set Filters...; tap OK"_s),
                std::tuple(u"bbb"_s, u"7"_s, u"see aaa, bbb, mmm, rice, salt, zzz"_s) }) {
            Page()->ShowRestored(File().Add({ name, count }));
            Act(steps);
        }
    }

    void whatIsDoneIsSeenAndStored_data()
    {
        const Table<QString, QString> add;
        add("the editor writes on OK alone",
            u"tap New; press Esc; at Pantry; tap Menu; tap Modify...; type brown; press Down; "
            "tap Cancel; see rice, salt; tap Menu; tap Modify...; type brown; press Down; tap OK; "
            "see brown, salt; see Price: 3.00, 1.00; see Shelf: top, top"_s,
            u"brown salt"_s);
        add("a copy stands at the end and is edited",
            u"tap Menu; tap Create Copy; see valueEdit: rice; tap OK; see rice, salt, rice; "
            "tap Menu; tap Modify...; type oats; tap OK; see rice, salt, oats"_s,
            u"oats rice salt"_s);
        add("counts go to -1 and back",
            u"press -; see Quantity: -1, 5; press + +; see Quantity: 1, 5"_s, u"rice salt"_s);
        add("Space ticks the only checkbox",
            u"press Space; see Bio: ticked, ticked; press Space; see Bio: , ticked"_s,
            u"rice salt"_s);
        add("deleting asks, with No as default",
            u"press Del; see Do you want to delete the selected row?; press Return; "
            "see rice, salt; tap Menu; tap Delete; tap Yes; see salt"_s,
            u"salt"_s);
        add("no command needs a row that is not there",
            u"press Del; tap Yes; press Del; tap Yes; see nothing; tap Menu; see (Modify...), "
            "(Create Copy), (Delete), View Summary..., Find..., Set Filters..., (Clear Filters); "
            "press Esc; press + -; tap New; press Esc; see nothing"_s,
            {});
    }

    void whatIsDoneIsSeenAndStored()
    {
        const auto [steps, stored] = Table<QString, QString>::Row();
        m_errand->Open();
        Act(steps);
        QCOMPARE(m_errand->Stored(), stored);
    }

    void twoCheckboxesLeaveTheDoubleTapToTheEditor()
    {
        InventoryList made = NewInventoryList();
        made.Name = u"Tools"_s;
        made.columns.push_back({ u"Left"_s, 0, MakePropertyId(10003, CEVT_BOOL) });
        made.columns.push_back({ u"Right"_s, 0, MakePropertyId(10004, CEVT_BOOL) });
        File().OpenList(File().catalogue->CreateList(made).oid);
        File().Add({ u"saw"_s, u"1"_s, u"Unchecked"_s, u"Unchecked"_s });
        m_errand->Open();
        Act(u"double-tap saw; see valueEdit: saw; tap OK; press Space; see Left: ; see Right: "_s);
        const auto box
            = [this] { return View()->viewport()->grab(m_errand->Cell(0, 3)).toImage(); };
        // A tap beside a box is one on the line alone.
        QTest::mouseClick(
            View()->viewport(), Qt::LeftButton, {}, m_errand->Cell(0, 2).topLeft() + QPoint(3, 3));
        Act(u"see Left: ; see Right: "_s);
        const QImage before = box();
        // Space ticks the box that the arrows went to, and a frame tells which.
        Act(u"press Right Right Right"_s);
        QVERIFY(box() != before);
        Act(u"press Space; see Left: ; see Right: ticked"_s);
    }

    void keysMoveThroughALongList()
    {
        const std::tuple<QString, int, bool> cases[] { { u"Down"_s, 1, true }, { u"Up"_s, 0, true },
            { u"End"_s, 99, false }, { u"End Down"_s, 99, false }, { u"End Home"_s, 0, true },
            { u"PgDown PgDown PgUp PgUp"_s, 0, true } };
        for (int i = 2; i < 100; ++i)
            File().Add({ u"row"_s, u"1"_s, u"top"_s, u"Unchecked"_s, u"1"_s });
        for (const auto& [keys, line, isAtTop] : cases) {
            m_errand->Open();
            Act(u"press "_s + keys);
            const QModelIndex current = View()->currentIndex();
            QCOMPARE(View()->selectionModel()->selectedRows().value(0).row(), current.row());
            QCOMPARE(current.row(), line);
            QCOMPARE(View()->verticalScrollBar()->value() == 0, isAtTop);
            const QRect place = View()->visualRect(current);
            QVERIFY(place.top() >= 0 && place.bottom() < View()->viewport()->height());
            QCOMPARE(View()->indexAt(place.center()), current);
        }
        Act(u"tap New; type oats; tap OK; at Pantry"_s);
        QCOMPARE(View()->verticalScrollBar()->value(), View()->verticalScrollBar()->maximum());
    }

    void whatIsTypedLeadsToAName()
    {
        for (const QString& name : { u"Salami"_s, u"semolina"_s })
            File().Add({ name, u"1"_s, u"top"_s });
        m_errand->Open();
        Act(u"see Salami, rice, salt, semolina; tap Quantity; see rice, Salami, semolina, salt"_s);
        const int pause = QApplication::keyboardInputInterval();
        QApplication::setKeyboardInputInterval(50);
        for (const auto& [typed, found] :
            { std::pair(u"SE"_s, u"semolina"_s), { u"s"_s, u"salt"_s }, { u"s"_s, u"Salami"_s },
                { u"sal"_s, u"salt"_s }, { u"x"_s, u"salt"_s }, { u"r"_s, u"rice"_s } }) {
            Act(u"type "_s + typed + u"; on "_s + found);
            QTest::qWait(100);
        }
        QApplication::setKeyboardInputInterval(pause);
    }

    void anEmptyListSaysWhatToDo()
    {
        for (const ObjectId row : File().rows->FillRows().rows)
            File().rows->DeleteRow(row);
        m_errand->Open();
        const auto* hint = Page()->findChild<QLabel*>(u"hint"_s);
        QVERIFY(hint->isVisible());
        QCOMPARE(View()->accessibleDescription(), u"No rows yet. Tap New to add one."_s);
        Act(u"tap New; see valueEdit: ; type rice; tap OK; see rice"_s);
        QVERIFY(!hint->isVisible());
        QCOMPARE(View()->accessibleDescription(), QString());
        Act(u"tap Menu; tap Set Filters...; tap Add; fill valueEdit: zz; tap OK; tap OK; "
            "see nothing"_s);
        QVERIFY(View()->accessibleDescription().startsWith(u"No row meets"_s));
    }

    void aTapOnTheHeaderSorts()
    {
        for (const ObjectId row : File().rows->FillRows().rows)
            File().rows->DeleteRow(row);
        File().Add({ u"a"_s, u"9"_s, u"b"_s, u"Unchecked"_s, u"10"_s, u""_s, u"1/2/2026"_s });
        File().Add({ u"b"_s, u"-3"_s, u"Z"_s, u"Unchecked"_s, u"9"_s, u""_s, u""_s });
        File().Add({ u"c"_s, u"10"_s, u"c"_s, u"Checked"_s, u"-1"_s, u""_s, u"12/31/2025"_s });
        File().Add({ u"d"_s, u"2"_s, u"A"_s, u"Unchecked"_s, u"8.99"_s, u""_s, u"1/3/2026"_s });
        // The missing date is the first.
        for (const auto& [column, lines] : { std::pair { u"Shelf"_s, u"d, b, a, c"_s },
                 { u"Quantity"_s, u"b, d, a, c"_s }, { u"Bio"_s, u"a, b, d, c"_s },
                 { u"Price"_s, u"c, d, b, a"_s }, { u"Bought"_s, u"b, c, a, d"_s } }) {
            m_errand->Open();
            // The selection stays with its row.
            const QString sort = u"tap %1; see %2; on d; "_s.arg(column, lines);
            Act(u"press End; "_s + sort + sort);
            const QHeaderView* header = View()->horizontalHeader();
            QVERIFY(header->isSortIndicatorShown());
            QCOMPARE(View()->model()->headerData(header->sortIndicatorSection(), Qt::Horizontal),
                column);
        }
        m_errand->Open();
        Act(u"tap c; look Shelf; tap Shelf; tap c; other Shelf; tap Name; tap c; other Shelf"_s);
    }

    void holdsAndKeysOpenTheMenuOfTheRow()
    {
        m_errand->Open();
        const QPoint place = m_errand->Cell(1, Name).center();
        QTest::mouseClick(View()->viewport(), Qt::RightButton, {}, place);
        const QString entries = u"see Add 1, Subtract 1, Modify..., Delete; press "_s;
        // A menu that a key opened begins with its first entry.
        const QString addOne = entries + u"Return; see Quantity: 0, "_s;
        Act(u"hold salt; "_s + entries + u"Down Return; see Quantity: 0, 6; press Shift+F10; "_s
            + addOne + u"7"_s);
        // What the window system makes of the menu key goes to who has the focus.
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint(), {});
        QApplication::sendEvent(View(), &menuKey);
        Act(addOne + u"8"_s);
        QCOMPARE(m_errand->Stored(Count), u"0 8"_s);
    }

    void readOnlyLetsNothingChange()
    {
        m_errand->Open({ .isReadOnly = true });
        Act(u"cannot New; press +; tap Bio of rice; double-tap rice; press Space Return Del; "
            "hold rice; tap Menu; see (Modify...), (Create Copy), (Delete), View Summary..., "
            "Find..., Set Filters..., (Clear Filters); press Esc; at Pantry; "
            "see Quantity: 0, 5; see Bio: , ticked"_s);
    }

    void columnsAreDraggedByTouch()
    {
        m_errand->Open();
        QHeaderView* header = View()->horizontalHeader();
        const int y = header->height() / 2;
        const QPoint from(header->sectionViewportPosition(Price) + 10, y);
        Finger(*header->viewport()).Swipe(from, { 10, y }, 100);
        QCOMPARE(header->visualIndex(Price), 0);
        // The arrows go as the columns lie.
        Act(u"see rice, salt; tap rice; press Right"_s);
        QCOMPARE(View()->currentIndex().column(), int { Count });
    }

    void aDoubleClickOnADividerFitsTheColumn()
    {
        const QString name = u"a name that is far wider than its column"_s;
        File().Add({ name, u"1"_s, u"top"_s, u"Unchecked"_s, u"1234567890"_s });
        m_errand->Open();
        QHeaderView* header = View()->horizontalHeader();
        // The counts are narrower than their title.
        for (const auto& [column, widest] : { std::pair { Name, name },
                 { Price, u"1,234,567,890.00"_s }, { Count, u"Quantity"_s } }) {
            header->resizeSection(column, 150);
            const int end = header->sectionViewportPosition(column) + 150;
            QTest::mouseDClick(
                header->viewport(), Qt::LeftButton, {}, { end - 1, header->height() / 2 });
            const int text = View()->fontMetrics().horizontalAdvance(widest);
            QVERIFY2(header->sectionSize(column) >= text, qPrintable(QString::number(text)));
            QVERIFY(header->sectionSize(column) <= text + 40);
        }
    }

    void columnsAreReachedByKeys()
    {
        m_errand->Open();
        const int width = View()->horizontalHeader()->sectionSize(Count);
        Act(u"see rice, salt; press + + + + + +; press Right Ctrl+Shift+S; see salt, rice; on rice"_s);
        const QImage framed = View()->viewport()->grab(m_errand->Cell(1, Count)).toImage();
        Act(u"press Ctrl+Shift+Right Ctrl+Shift+Up Ctrl+Shift+Up Ctrl+Shift+Down; tap rice"_s);
        QVERIFY(framed != View()->viewport()->grab(m_errand->Cell(1, Count)).toImage());
        Act(u"press Esc"_s);
        QCOMPARE(File().list.columnOrder, (std::vector<quint32> { 0, 2, 1, 3, 4, 5, 6, 7 }));
        QCOMPARE(File().list.TableColSizes, u"0,%1,0,0,0,0,0,0,"_s.arg(width + 8));
    }

    void widthsAndOrderAreKept()
    {
        m_errand->Open();
        QHeaderView* header = View()->horizontalHeader();
        const int usualCount = header->sectionSize(Count);
        const int usualBio = header->sectionSize(Bio);
        header->resizeSection(Price, 123);
        header->moveSection(header->visualIndex(Price), 0);
        Act(u"press Esc"_s);
        QCOMPARE(File().list.columnOrder, (std::vector<quint32> { 4, 0, 1, 2, 3, 5, 6, 7 }));
        QCOMPARE(File().list.TableColSizes, u"0,0,0,0,123,0,0,0,"_s);
        // Widths that are missing or absurd are the usual ones.
        File().list.TableColSizes = u"200,-5,x,99999999999,77"_s;
        m_errand->Open();
        header = View()->horizontalHeader();
        QCOMPARE(header->sectionSize(Name), 200);
        QCOMPARE(header->sectionSize(Count), usualCount);
        QCOMPARE(header->sectionSize(Bio), usualBio);
        QCOMPARE(header->sectionSize(Price), 77);
        QCOMPARE(header->visualIndex(Price), 0);
    }

    void namesStayInSightBesideWhatIsScrolledTo()
    {
        File().Add({ u"a tea"_s, u"9"_s });
        File().list.TableColSizes = u"150,90,90,90,90,90,90,90,"_s;
        for (const auto direction : { Qt::LeftToRight, Qt::RightToLeft }) {
            QGuiApplication::setLayoutDirection(direction);
            m_errand->Open();
            m_errand->stack->resize(400, 300);
            const auto place = [direction](const QWidget* in, int x, int y) {
                return QPoint(direction == Qt::LeftToRight ? x : in->width() - 1 - x, y);
            };
            QWidget* lines = View()->viewport();
            QWidget* titles = View()->horizontalHeader()->viewport();
            const auto names = [&lines, place] {
                const QRect pinned(place(lines, 0, 0), place(lines, 140, 60));
                return lines->grab(pinned.normalized()).toImage();
            };
            Act(u"tap Quantity; see rice, salt, a tea; press Home Down; on salt"_s);
            const QImage before = names();
            const QString on = direction == Qt::LeftToRight ? u"Right"_s : u"Left"_s;
            const QString back = direction == Qt::LeftToRight ? u"Left"_s : u"Right"_s;
            const auto go = [&lines, this](const QString& key, int column) {
                while (View()->currentIndex().column() != column)
                    Act(u"press "_s + key);
                return lines->rect().intersected(m_errand->Cell(1, column));
            };
            // What the keyboard comes to does not stay behind the names.
            QCOMPARE(go(on, View()->model()->columnCount() - 1).width(), 90);
            QCOMPARE(names(), before);
            QVERIFY(!go(back, Count).contains(place(lines, 75, m_errand->Cell(1, 0).center().y())));
            go(on, View()->model()->columnCount() - 1);
            QTest::mouseClick(titles, Qt::LeftButton, {}, place(titles, 75, 10));
            Act(u"see a tea, rice, salt; on salt"_s);
            QTest::mouseClick(
                lines, Qt::LeftButton, {}, place(lines, 75, m_errand->Cell(1, 0).center().y()));
            Act(u"on rice"_s);
        }
        QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    }

    void aWideViewIsFilled()
    {
        File().Add({ QString(60, u'w') });
        m_errand->Open();
        QHeaderView* header = View()->horizontalHeader();
        const int narrow = header->sectionSize(Name);
        for (const int width : { 2400, 1800 }) {
            View()->window()->resize(width, 480);
            QTRY_COMPARE(header->length(), View()->viewport()->width());
        }
        QVERIFY(header->sectionSize(Name) > narrow);
        Act(u"press Esc"_s);
        // It was only looked at.
        QCOMPARE(File().list.TableColSizes, QString());
        // Beside columns of which each was set, a line goes on.
        File().list.TableColSizes = u"60,60,60,60,60,60,60,60,"_s;
        for (const auto direction : { Qt::RightToLeft, Qt::LeftToRight }) {
            QGuiApplication::setLayoutDirection(direction);
            m_errand->Open();
            const int width = View()->viewport()->width();
            const QPoint beside(
                direction == Qt::RightToLeft ? 4 : width - 5, View()->rowViewportPosition(1) + 5);
            const auto ground
                = [this, beside] { return View()->viewport()->grab().toImage().pixel(beside); };
            const QRgb before = ground();
            QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, beside);
            QVERIFY(ground() != before);
            Act(u"on salt"_s);
        }
        QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
    }

    void everyTypeHasItsSide()
    {
        File().Add(
            { u"a"_s, u"1"_s, u"b"_s, u"Checked"_s, u"1"_s, u"2"_s, u"1/2/2026"_s, u"1/2/2026"_s });
        File().list.TableColSizes = u"150,150,150,150,150,150,150,150,"_s;
        m_errand->Open();
        ApplyWindowStyle(View()->window());
        View()->window()->resize(1600, 480);
        QTRY_VERIFY(View()->viewport()->width() > 1200);
        // Left, right or in the middle: where there is more than the ground.
        const auto sideOf = [](QImage image) {
            image = image.copy(3, 3, image.width() - 6, image.height() - 6);
            const auto isEmpty = [&image](int x) {
                return image.copy(x, 0, 1, image.height()) == image.copy(0, 0, 1, image.height());
            };
            int left = 0;
            int right = image.width() - 1;
            while (left < right && isEmpty(left))
                ++left;
            while (left < right && isEmpty(right))
                --right;
            const int beyond = image.width() - 1 - right;
            return std::abs(left - beyond) < 10 ? u'c' : left < beyond ? u'l' : u'r';
        };
        QString cells;
        QString titles;
        auto* header = View()->horizontalHeader();
        for (int column = 0; column < header->count(); ++column) {
            cells += sideOf(View()->viewport()->grab(m_errand->Cell(0, column)).toImage());
            titles += sideOf(
                header->viewport()->grab({ 150 * column, 0, 150, header->height() }).toImage());
        }
        QCOMPARE(cells, u"lrlcrrll"_s);
        // Beside the mark of the order.
        QCOMPARE(titles.mid(1), u"rlcrrll"_s);
    }

    void textsKeepOffTheEdgesOfTheirCells()
    {
        const QString name(90, u'w');
        File().Add({ name, u"1234567890"_s, name, u"Checked"_s, u"1234567890"_s, u"1234567890"_s,
            u"12/31/2026"_s, u"12/31/2026"_s });
        File().list.TableOption = kWarnOnExpiry | kWarnOnCount;
        File().list.TableColSizes = u"50,50,50,50,50,50,50,50,"_s;
        m_errand->Open();
        for (int column = 0; column < View()->model()->columnCount(); ++column) {
            const QRect cell = m_errand->Cell(2, column).adjusted(0, 0, 0, -2);
            for (const int x : { cell.left(), cell.right() - 2 }) {
                const QImage edge
                    = View()->viewport()->grab({ x, cell.y(), 3, cell.height() }).toImage();
                QCOMPARE(edge, edge.copy(0, 0, 1, 1).scaled(edge.size()));
            }
        }
    }

    void columnsHaveRoom()
    {
        File().Add({ u"rice"_s, u"1234567890"_s });
        m_errand->Open();
        QVERIFY(
            View()->columnWidth(Count) > View()->fontMetrics().horizontalAdvance(u"1234567890"_s));
        for (const ObjectId row : File().rows->FillRows().rows)
            File().rows->DeleteRow(row);
        m_errand->Open();
        for (const auto& [column, usual] :
            { std::pair { Name, u"an ordinary name"_s }, { Count, u"10000"_s },
                { Price, u"1,000.00"_s }, { Size, u"10000"_s }, { Bought, u"00/00/0000"_s } })
            QVERIFY(View()->columnWidth(column) > View()->fontMetrics().horizontalAdvance(usual));
    }

    void aVanishedRowShowsErr()
    {
        m_errand->Open();
        const ObjectId row = File().rows->FillRows().rows.front();
        QVERIFY(File().rows->DeleteRow(row));
        QTest::keyClick(View(), Qt::Key_Plus);
        m_errand->Open();
        RowsModel model(*File().rows, File().list, File().context);
        model.SetRows({ row });
        QCOMPARE(model.index(0, Price).data().toString(), u"<Err>"_s);
        QCOMPARE(model.FactsOf(0).count, 0);
    }

    void looksFollowWarnings()
    {
        struct Case
        {
            RowFacts row;
            QColor text;
            QColor ground;
            bool isItalic;
        };
        const QDate today(2026, 6, 15);
        const auto in = [today](int days) { return DateToFileTime(today.addDays(days)); };
        const QColor low(212, 130, 0);
        const Case cases[] {
            // Above the threshold and on it; expired today, or long ago and low as well.
            { { 1, false, 4, in(1) }, Qt::black, Qt::white, false },
            { { 1, false, 3, in(1) }, low, Qt::white, false },
            { { 1, false, 4, in(0) }, Qt::red, Qt::white, false },
            { { 1, false, -1, in(-9) }, Qt::red, Qt::white, true },
            // An even line, and a selected one.
            { { 2, false, 4, in(1) }, Qt::black, QColor(207, 217, 246), false },
            { { 2, true, 0, in(-9) }, Qt::yellow, Qt::blue, true },
        };
        QPalette palette(Qt::white);
        palette.setColor(QPalette::Text, Qt::black);
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Highlight, Qt::blue);
        palette.setColor(QPalette::HighlightedText, Qt::yellow);
        for (const Case& subject : cases) {
            const auto lookOf = [&](quint32 options, bool hasAlternateLines) {
                InventoryList list;
                list.TableOption = options;
                list.TableWarnStart = 3;
                return DecideRowLook(subject.row,
                    WarningsFor(subject.row, list, *DateToFileTime(today)),
                    ColoursFor(list, hasAlternateLines, palette));
            };
            const RowLook look = lookOf(kWarnOnCount | kWarnOnExpiry, true);
            QCOMPARE(look.text, subject.text);
            QCOMPARE(look.ground, subject.ground);
            QCOMPARE(look.isItalic, subject.isItalic);
            const RowLook off = lookOf(0, false);
            QCOMPARE(off.text, subject.row.isSelected ? QColor(Qt::yellow) : QColor(Qt::black));
            QVERIFY(!off.isItalic);
        }
    }

    void aWarningIsAWordBesideTheName()
    {
        // In the colour of every row.
        File().list.TableWarnColour = kAutomaticColour;
        m_errand->Open();
        View()->selectRow(1);
        const auto seen = [this](int column) {
            return View()->viewport()->grab(m_errand->Cell(0, column)).toImage();
        };
        const QImage name = seen(Name);
        const QImage shelf = seen(Shelf);
        File().list.TableOption = kWarnOnCount;
        QVERIFY(seen(Name) != name);
        QCOMPARE(seen(Shelf), shelf);
        // Of two words that have no room one is told whole.
        File().list.TableOption = kWarnOnCount | kWarnOnExpiry;
        File().list.TableExpiryColour = kAutomaticColour;
        for (const QString& count : { u"0"_s, u"9"_s })
            File().Add({ {}, count, {}, {}, {}, {}, {}, u"1/1/2020"_s });
        m_errand->Open();
        View()->selectRow(3);
        const int one = View()->fontMetrics().horizontalAdvance(u"expired"_s) + 40;
        for (const int width : { one, 3 * one }) {
            View()->setColumnWidth(Name, width);
            const QImage both = View()->viewport()->grab(m_errand->Cell(0, Name)).toImage();
            const QImage expired = View()->viewport()->grab(m_errand->Cell(1, Name)).toImage();
            QCOMPARE(both == expired, width == one);
        }
    }

private:
    std::unique_ptr<RowsErrand> m_errand;

    [[nodiscard]] ListFixture& File() const { return m_errand->file; }
    [[nodiscard]] RowsView* Page() const { return m_errand->page; }
    [[nodiscard]] QTableView* View() const { return m_errand->View(); }
};

QUILLORY_TEST(QApplication, RowsViewTest)
#include "rows_view_test.moc"
