// SPDX-License-Identifier: MIT
#include "listdef/import_order_page.h"
#include "listdef/list_sheet.h"
#include "tests/person.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "values/column_type.h"
#include "widgets/app_style.h"
#include "widgets/colour_button.h"
#include "widgets/colour_grid.h"
#include "widgets/colour_palette.h"
#include "widgets/icon_grid.h"
#include "widgets/icon_picker.h"
#include "widgets/icon_set.h"
#include "widgets/ink.h"
#include "widgets/measures.h"
#include "widgets/page_stack.h"
#include "widgets/window_style.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPointingDevice>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

#include <memory>

class PickersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theIconIsBesideItsButtons()
    {
        for (const Qt::LayoutDirection direction : { Qt::LeftToRight, Qt::RightToLeft }) {
            IconPicker picker;
            picker.setLayoutDirection(direction);
            picker.show();
            QRect buttons;
            for (const auto* button : picker.findChildren<QAbstractButton*>())
                buttons |= button->geometry();
            const QImage without = picker.grab().toImage();
            picker.SetIcon(3);
            const QImage with = picker.grab().toImage();
            QRect changed;
            for (int x = 0; x < with.width(); ++x) {
                if (with.copy(x, 0, 1, with.height()) != without.copy(x, 0, 1, with.height()))
                    changed |= QRect(x, 0, 1, 1);
            }
            QVERIFY(changed.width() > kGrid);
            QVERIFY(!changed.intersects(buttons));
        }
    }

    void cellsFillTheGridRowByRow_data()
    {
        const Table<QSize, int, int, bool> add;
        add("ten in a row", QSize(209, 100), 10, 5, false);
        add("too low: room for the bar", QSize(209, 99), 9, 5, true);
        add("all in one row", QSize(2000, 20), 100, 1, false);
        add("narrower than a cell", QSize(5, 100), 1, 43, true);
    }

    void cellsFillTheGridRowByRow()
    {
        const auto [client, cellsPerRow, rows, needsScrollBar]
            = Table<QSize, int, int, bool>::Row();
        const IconGridLayout layout = IconGridLayout::For(43, 20, client, 16);
        QCOMPARE(layout.cellsPerRow, cellsPerRow);
        QCOMPARE(layout.rows, rows);
        QCOMPARE(layout.needsScrollBar, needsScrollBar);
    }

    void aPlaceBelongsToACell_data()
    {
        const Table<QPoint, int> add;
        add("inside the first", QPoint(1, 0), 0);
        add("on an edge: the left one", QPoint(20, 5), 0);
        add("behind an edge", QPoint(21, 5), 1);
        add("second row", QPoint(30, 20), 11);
        add("left edge of the first row", QPoint(0, 5), -1);
        add("left edge of the second row", QPoint(0, 25), 9);
        add("the last one", QPoint(50, 85), 42);
        add("behind the last one", QPoint(70, 85), -1);
    }

    void aPlaceBelongsToACell()
    {
        const auto [place, index] = Table<QPoint, int>::Row();
        QCOMPARE(IconGridLayout::For(43, 20, { 209, 100 }, 16).IndexAt(place), index);
    }

    void arrowKeysWrapAsTheGridDoes_data()
    {
        const Table<int, int, int> add;
        add("left", 5, int { Qt::Key_Left }, 4);
        add("left of the first", 0, int { Qt::Key_Left }, 42);
        add("left of none", -1, int { Qt::Key_Left }, 42);
        add("right of the last", 42, int { Qt::Key_Right }, 0);
        add("right of none", -1, int { Qt::Key_Right }, 0);
        add("up", 14, int { Qt::Key_Up }, 4);
        add("up from the first row", 3, int { Qt::Key_Up }, 42);
        add("down", 14, int { Qt::Key_Down }, 24);
        add("down to the last", 32, int { Qt::Key_Down }, 42);
        add("down past the last", 33, int { Qt::Key_Down }, 0);
    }

    void arrowKeysWrapAsTheGridDoes()
    {
        const auto [from, key, to] = Table<int, int, int>::Row();
        const IconGridLayout layout = IconGridLayout::For(43, 20, { 209, 100 }, 16);
        QCOMPARE(layout.Step(from, static_cast<Qt::Key>(key)), to);
    }

    void whatIsDrawnByHandIsThere()
    {
        QApplication::setStyle(new AppStyle);
        PageStack stack;
        ApplyWindowStyle(&stack);
        auto* page = new ListSheet(SheetMode::NewList, NewInventoryList(), NewInventoryList());
        stack.Push(page);
        auto* grid = new IconGrid(&stack);
        stack.resize(360, 640);
        stack.show();
        Act(u"tap Options; tap warnOnCount"_s);
        // Shares of a control that are of one colour, or of more.
        const auto isDrawn = [](QWidget* control, double left, double right) {
            const int x = static_cast<int>(control->width() * left);
            const QImage part = control
                                    ->grab({ x, 6, static_cast<int>(control->width() * right) - x,
                                        control->height() - 12 })
                                    .toImage();
            return part != part.copy(0, 0, 1, 1).scaled(part.size());
        };
        const std::tuple<QString, double, double> parts[] { { u"title"_s, 0, .5 },
            { u"warnOnCount"_s, .1, .9 }, { u"countColour"_s, .2, .5 },
            { u"countColour"_s, .7, .9 }, { u"listIcon"_s, .1, .5 }, { u"nextIcon"_s, .3, .7 },
            { u"previousIcon"_s, .3, .7 }, { u"allIcons"_s, .3, .7 }, { u"tabs"_s, 0, .3 } };
        for (const auto& [name, left, right] : parts)
            QVERIFY2(isDrawn(page->findChild<QWidget*>(name), left, right), qPrintable(name));
        // A tick has the colour of what is chosen.
        const QImage ticked = page->findChild<QWidget*>(u"warnOnCount"_s)->grab().toImage();
        const QRgb accent = AccentInk(QApplication::palette()).rgb();
        int accents = 0;
        for (int place = 0; place < ticked.width() * ticked.height(); ++place)
            accents += ticked.pixel(place % ticked.width(), place / ticked.width()) == accent;
        QVERIFY(accents > 0);
        grid->show();
        grid->resize(60, 100);
        QVERIFY(isDrawn(grid->verticalScrollBar(), 0, 1));
        grid->resize(600, 600);
        QVERIFY(!isDrawn(grid->verticalScrollBar(), 0, 1));
    }

    void everyIconHasADrawingAndANameOfItsOwn()
    {
        QSet<QByteArray> drawings;
        QSet<QString> names;
        for (int index = 0; index < kListIconCount; ++index) {
            const QImage image = ListIcon(index).pixmap(24, 24).toImage();
            drawings << QByteArray(
                reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
            names << ListIconName(index);
        }
        QCOMPARE(drawings.size(), kListIconCount);
        QCOMPARE(names.size(), kListIconCount);
        QCOMPARE(ListIconName(99), ListIconName(0));
    }

    void theGridOfColoursIsInOrderOfTheirValues()
    {
        const auto& order = ColoursByValue();
        QCOMPARE(order.front(), kAutomaticColour);
        QCOMPARE(order.back(), 22U);
        for (size_t i = 1; i < order.size(); ++i)
            QVERIFY(PaletteColour(order.at(i - 1)).rgb() < PaletteColour(order.at(i)).rgb());
    }

    void coloursAreChosenByKeysAndTaps_data()
    {
        // In the grid from the second one of the second column of six; places in order of value.
        const Table<size_t, QString, size_t, int> add;
        add("no way up from the first", 0U, u"press Up"_s, 0U, 0);
        add("down from the first", 0U, u"press Down"_s, 1U, 0);
        add("no way down from the last", 35U, u"press Down"_s, 35U, 0);
        add("left in the grid", 7U, u"tap colour; press Left Return"_s, 1U, 1);
        add("right in the grid", 7U, u"tap colour; press Right Return"_s, 13U, 1);
        add("up in the grid", 7U, u"tap colour; press Up Return"_s, 6U, 1);
        add("down in the grid", 7U, u"tap colour; press Down Return"_s, 8U, 1);
        add("nor beyond its first", 6U, u"tap colour; press Up Return"_s, 6U, 1);
        add("not beyond its last line", 5U, u"tap colour; press Down Return"_s, 5U, 1);
        add("a tap, and one on what is shown already", 7U,
            u"tap colour; tap colour4; tap colour; tap colour4"_s, 1U, 2);
    }

    void coloursAreChosenByKeysAndTaps()
    {
        const auto [from, steps, to, times] = Table<size_t, QString, size_t, int>::Row();
        QWidget window;
        ColourButton button(&window);
        button.setObjectName(u"colour"_s);
        const QSignalSpy picked(&button, &ColourButton::ColourPicked);
        button.SetColour(ColoursByValue().at(from));
        window.show();
        button.setFocus();
        const auto mark = [&button] {
            return button.grab({ button.width() - 20, 6, 14, button.height() - 12 }).toImage();
        };
        const QImage closed = mark();
        Act(steps);
        QCOMPARE(button.Colour(), ColoursByValue().at(to));
        QCOMPARE(picked.count(), times);
        QTRY_VERIFY(button.findChild<ColourGrid*>() == nullptr);
        QCOMPARE(mark(), closed);
        // A colour that cannot be chosen is grey.
        const QRgb colour = PaletteColour(button.Colour()).rgb();
        const auto middle = [&button] {
            return button.grab().toImage().pixel(button.height() / 2, button.height() / 2);
        };
        QCOMPARE(middle(), colour);
        button.setEnabled(false);
        QVERIFY(middle() != colour);
    }

    void allColoursCanBeReachedInTheSmallestWindow()
    {
        // Where fingers make them largest.
        const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
        ColourButton button;
        auto* grid = new ColourGrid(5, &button);
        const QRect window(0, 0, 240, 320);
        // The platform of the tests gives it a frame.
        constexpr int kFrame = 2;
        for (const QPoint& place : { window.topLeft(), window.bottomRight() }) {
            grid->Open(place, window);
            const QRect seen = grid->geometry().translated(-kFrame, -kFrame);
            QVERIFY2(window.contains(seen), qPrintable(QDebug::toString(seen)));
        }
    }

    void aPointerPicksOnlyByWhatItDoesInTheGrid()
    {
        QWidget window;
        window.setGeometry(100, 100, 360, 640);
        ColourButton button(&window);
        const QSignalSpy picked(&button, &ColourButton::ColourPicked);
        button.SetColour(22);
        button.move(100, 100);
        window.show();
        const QPoint place = button.rect().center();
        QCursor::setPos(button.mapToGlobal(place));
        QTest::mouseClick(&button, Qt::LeftButton, {}, place);
        QTest::qWait(20);
        auto* grid = button.findChild<ColourGrid*>();
        // It opened under the pointer, which takes no part in it by resting there.
        QWidget* below = grid->childAt(grid->mapFromGlobal(button.mapToGlobal(place)));
        QVERIFY(below != nullptr);
        QCOMPARE(grid->focusWidget()->objectName(), u"colour22"_s);
        QTest::mouseDClick(below, Qt::LeftButton);
        QTest::mouseRelease(below, Qt::LeftButton);
        QCOMPARE(picked.count(), 0);
        QTest::mouseMove(below, { 1, 1 });
        QCOMPARE(grid->focusWidget(), below);
    }

    void theWheelLeavesAClosedDropDownAlone()
    {
        QApplication::setStyle(new AppStyle);
        QWidget place;
        auto* box = new QComboBox(&place);
        box->addItems({ u"one"_s, u"two"_s });
        place.show();
        box->setFocus();
        QWheelEvent wheel({ 5, 5 }, box->mapToGlobal(QPoint(5, 5)), {}, { 0, -120 }, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
        QCOMPARE(box->currentIndex(), 0);
        // What it lies upon may scroll.
        QVERIFY(!wheel.isAccepted());
    }

    void importColumnsAreMovedNotLeftOut()
    {
        const PropertyId price = MakePropertyId(77, CEVT_R8);
        ImportOrderPage page({ { u"Name"_s, 20, PropName }, { u"Count"_s, 21, PropCount },
            { u"Price"_s, 2, price } });
        const QSignalSpy ended(&page, &Page::Ended);
        page.show();
        Act(u"see Name, Count, Price; cannot moveUp"_s);
        page.findChild<QWidget*>(u"moveDown"_s)->setFocus();
        // Once too often: what has the keyboard then does nothing.
        Act(u"press Space Space Space; cannot moveDown; see Count, Price, Name"_s);
        QCOMPARE(ended.count(), 0);
        QCOMPARE(page.Order(), (std::vector { PropCount, price, PropName }));
        Act(u"press Ctrl+Up Ctrl+Up Ctrl+Down; see Count, Name, Price"_s);
        QCOMPARE(page.Order(), (std::vector { PropCount, PropName, price }));
    }
};

QUILLORY_TEST(QApplication, PickersTest)
#include "pickers_test.moc"
