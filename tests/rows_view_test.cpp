// SPDX-License-Identifier: MIT
#include "rows/row_look.h"
#include "tests/finger.h"
#include "tests/rows_view_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "values/file_date.h"

#include <QScrollBar>

#include <tuple>

namespace {

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
    [[nodiscard]] int Count() const { return m_count; }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    int m_count = 0;
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
        QTRY_VERIFY_WITH_TIMEOUT(paints.Count() > 0, 1000);
        QVERIFY(View()->viewport()->grab().toImage() != before);
    }

    void aNewRowIsEnteredByKeyboard()
    {
        m_errand->Open();
        QCOMPARE(Page()->Title(), u"Pantry"_s);
        QCOMPARE(View()->currentIndex().row(), 0);
        // Return presses the key that has the keyboard; it edits the selected row only elsewhere.
        m_errand->Find<QWidget>(QLatin1StringView("leftKey"))->setFocus(Qt::TabFocusReason);
        QTest::keyClick(Stack().windowHandle(), Qt::Key_Return);
        QCOMPARE(Stack().Top()->objectName(), u"rowEditor"_s);
        m_errand->TypeInEditor(u"barley"_s, Qt::Key_Return);
        m_errand->TypeInEditor(u"7"_s, Qt::Key_Return);
        for (int field = Shelf; field < Expiry; ++field)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
        m_errand->TypeInEditor(u"1/5/2027"_s, Qt::Key_Return);
        QCOMPARE(Stack().Top(), Page());
        // At the end, until the list is opened again.
        QCOMPARE(m_errand->Lines(), u"rice salt barley"_s);
        QCOMPARE(m_errand->Text(2, Count), u"7"_s);
        QCOMPARE(m_errand->Text(2, Expiry), u"1/5/2027"_s);
        QCOMPARE(m_errand->Stored(), u"barley rice salt"_s);
    }

    void whatComesBackStandsInItsPlace()
    {
        m_errand->Open();
        const auto comesBack = [this](const QString& name, const QString& count) {
            Page()->ShowRestored(File().Add({ name, count }));
        };
        const QString before = m_errand->Lines();
        comesBack(u"aaa"_s, u"1"_s);
        comesBack(u"zzz"_s, u"9"_s);
        QCOMPARE(m_errand->Lines(), u"aaa "_s + before + u" zzz"_s);
        m_errand->TapHeader(Count);
        comesBack(u"mmm"_s, u"-5"_s);
        QCOMPARE(m_errand->Text(0, Name), u"mmm"_s);
        QCOMPARE(m_errand->View()->currentIndex().row(), 0);
    }

    void theEditorWritesOnOkAlone()
    {
        m_errand->Open();
        Page()->Trigger(Command::New);
        QTest::keyClick(Stack().Top(), Qt::Key_Escape);
        QCOMPARE(Stack().Top(), Page());
        for (const auto& [button, stored] :
            { std::pair(u"leftKey"_s, u"rice salt"_s), std::pair(u"ok"_s, u"brown salt"_s) }) {
            Page()->Trigger(Command::Modify);
            m_errand->TypeInEditor(u"brown"_s, Qt::Key_Down);
            QTest::mouseClick(Stack().Top()->findChild<QWidget*>(button), Qt::LeftButton);
            QCOMPARE(m_errand->Stored(), stored);
            QCOMPARE(m_errand->Lines(), stored);
        }
        QCOMPARE(m_errand->Text(0, Price), u"3.00"_s);
        QCOMPARE(m_errand->Stored(Shelf), u"top top"_s);
        Page()->Trigger(Command::CreateCopy);
        QCOMPARE(Stack().Top()->objectName(), u"rowEditor"_s);
        m_errand->PressOk();
        QCOMPARE(m_errand->Lines(), u"brown salt brown"_s);
        QCOMPARE(View()->currentIndex().row(), 2);
    }

    void countsGoToMinusOneAndBack()
    {
        m_errand->Open();
        QTest::keyClick(View(), Qt::Key_Minus);
        QCOMPARE(m_errand->Text(0, Count), u"-1"_s);
        QTest::keyClick(View(), Qt::Key_Plus);
        QTest::keyClick(View(), Qt::Key_Plus);
        QCOMPARE(m_errand->Text(0, Count), u"1"_s);
        QCOMPARE(m_errand->Stored(Count), u"1 5"_s);
    }

    void deletingAsksWithNoAsDefault()
    {
        m_errand->Open();
        QTest::keyClick(View(), Qt::Key_Delete);
        QMessageBox* box = m_errand->Message();
        QVERIFY(box != nullptr);
        QCOMPARE(box->text(), u"Do you want to delete the selected row?"_s);
        QCOMPARE(box->defaultButton(), box->button(QMessageBox::No));
        m_errand->Answer(QMessageBox::No);
        QCOMPARE(m_errand->Lines(), u"rice salt"_s);
        Page()->Trigger(Command::Delete);
        m_errand->Answer(QMessageBox::Yes);
        QCOMPARE(m_errand->Lines(), u"salt"_s);
        QCOMPARE(m_errand->Stored(), u"salt"_s);
        // No command needs a row that is not there.
        QTest::keyClick(View(), Qt::Key_Delete);
        m_errand->Answer(QMessageBox::Yes);
        for (const Command command : { Command::Modify, Command::CreateCopy, Command::Delete,
                 Command::AddOne, Command::SubtractOne })
            QVERIFY(!Page()->ActionOf(command)->isEnabled());
        QVERIFY(Page()->ActionOf(Command::New)->isEnabled());
    }

    void spaceTicksTheOnlyCheckbox()
    {
        m_errand->Open();
        for (const bool isTicked : { true, false }) {
            QTest::keyClick(View(), Qt::Key_Space);
            QCOMPARE(m_errand->IsTicked(0), isTicked);
        }
    }

    void twoCheckboxesLeaveTheDoubleTapToTheEditor()
    {
        InventoryList made = NewInventoryList();
        made.Name = u"Tools"_s;
        for (const quint16 number : std::initializer_list<quint16> { 10003, 10004 })
            made.columns.push_back({ u"Box"_s, 0, MakePropertyId(number, CEVT_BOOL) });
        File().OpenList(File().catalogue->CreateList(made).oid);
        File().Add({ u"saw"_s, u"1"_s, u"Unchecked"_s, u"Unchecked"_s });
        m_errand->Open();
        m_errand->DoubleTap(0, Name);
        QCOMPARE(Stack().Top()->objectName(), u"rowEditor"_s);
        m_errand->PressOk();
        // Space ticks the box that the arrows went to.
        QTest::keyClick(View(), Qt::Key_Space);
        QVERIFY(!m_errand->IsTicked(0, 2) && !m_errand->IsTicked(0, 3));
        for (int column = Name; column < 3; ++column)
            QTest::keyClick(View(), Qt::Key_Right);
        QTest::keyClick(View(), Qt::Key_Space);
        QVERIFY(!m_errand->IsTicked(0, 2) && m_errand->IsTicked(0, 3));
    }

    void keysMoveThroughALongList()
    {
        const std::tuple<QList<Qt::Key>, int, bool> cases[] { { { Qt::Key_Down }, 1, true },
            { { Qt::Key_Up }, 0, true }, { { Qt::Key_End }, 99, false },
            { { Qt::Key_End, Qt::Key_Down }, 99, false },
            { { Qt::Key_End, Qt::Key_Home }, 0, true },
            { { Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_PageUp }, 0, true } };
        for (int i = 2; i < 100; ++i)
            File().Add({ u"row"_s, u"1"_s, u"top"_s, u"Unchecked"_s, u"1"_s });
        for (const auto& [keys, line, isAtTop] : cases) {
            m_errand->Open();
            for (const Qt::Key key : keys)
                QTest::keyClick(View(), key);
            const QModelIndex current = View()->currentIndex();
            QCOMPARE(View()->selectionModel()->selectedRows().value(0).row(), current.row());
            QCOMPARE(current.row(), line);
            QCOMPARE(View()->verticalScrollBar()->value() == 0, isAtTop);
            const QRect place = View()->visualRect(current);
            QVERIFY(place.top() >= 0 && place.bottom() < View()->viewport()->height());
            QCOMPARE(View()->indexAt(place.center()), current);
        }
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
        for (const auto& [column, lines] :
            { std::pair { Shelf, u"d b a c"_s }, { Count, u"b d a c"_s }, { Bio, u"a b d c"_s },
                { Price, u"c d b a"_s }, { Bought, u"b c a d"_s } }) {
            m_errand->Open();
            View()->selectRow(3);
            for (int taps = 0; taps < 2; ++taps) {
                m_errand->TapHeader(column);
                QCOMPARE(m_errand->Lines(), lines);
                // The selection stays with its row.
                QCOMPARE(m_errand->Text(View()->currentIndex().row(), Name), u"d"_s);
            }
        }
    }

    void holdsAndKeysOpenTheMenuOfTheRow()
    {
        m_errand->Open();
        const QPoint place = m_errand->Cell(1, Name).center();
        QTest::mouseClick(View()->viewport(), Qt::RightButton, {}, place);
        QContextMenuEvent hold(QContextMenuEvent::Mouse, place, QPoint(), {});
        // What the window system makes of the menu key goes to who has the focus.
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint(), {});
        for (const QString& counts : { u"0 6"_s, u"0 7"_s, u"0 8"_s }) {
            if (counts == u"0 6")
                QApplication::sendEvent(View()->viewport(), &hold);
            else if (counts == u"0 7")
                QApplication::sendEvent(View(), &menuKey);
            else
                QTest::keyClick(View(), Qt::Key_F10, Qt::ShiftModifier);
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            QStringList texts;
            for (const QAction* action : menu->actions())
                texts << action->text() + (action->isEnabled() ? u""_s : u"-"_s);
            QCOMPARE(texts.join(u'|'), u"Add 1|Subtract 1||Modify...|Delete"_s);
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
            QVERIFY(QApplication::activePopupWidget() == nullptr);
            QCOMPARE(m_errand->Stored(Count), counts);
        }
    }

    void readOnlyLetsNothingChange()
    {
        m_errand->Open({ .isReadOnly = true });
        for (const Command command : { Command::New, Command::Modify, Command::CreateCopy,
                 Command::Delete, Command::AddOne, Command::SubtractOne })
            QVERIFY(!Page()->ActionOf(command)->isEnabled());
        QTest::keyClick(View(), Qt::Key_Plus);
        m_errand->Tap(0, Bio);
        m_errand->Tap(0, Name);
        m_errand->DoubleTap(0, Name);
        for (const auto key : { Qt::Key_Space, Qt::Key_Return, Qt::Key_Delete })
            QTest::keyClick(View(), key);
        QContextMenuEvent hold(
            QContextMenuEvent::Mouse, m_errand->Cell(0, Name).center(), QPoint(), {});
        QApplication::sendEvent(View()->viewport(), &hold);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(Stack().Top(), Page());
        QVERIFY(m_errand->Message() == nullptr);
        QCOMPARE(m_errand->Stored(Count), u"0 5"_s);
        QVERIFY(!m_errand->IsTicked(0));
        QVERIFY(Page()->ActionOf(Command::Find)->isEnabled());
    }

    void columnsAreDraggedByTouch()
    {
        m_errand->Open();
        QHeaderView* header = View()->horizontalHeader();
        const int y = header->height() / 2;
        const QPoint from(header->sectionViewportPosition(Price) + 10, y);
        Finger(*header->viewport()).Swipe(from, { 10, y }, 100);
        QCOMPARE(header->visualIndex(Price), 0);
        QCOMPARE(m_errand->Lines(), u"rice salt"_s);
        // The arrows go as the columns lie.
        m_errand->Tap(0, Name);
        QTest::keyClick(View(), Qt::Key_Right);
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

    void widthsAndOrderAreKept()
    {
        m_errand->Open();
        QHeaderView* header = View()->horizontalHeader();
        const int usualCount = header->sectionSize(Count);
        const int usualBio = header->sectionSize(Bio);
        header->resizeSection(Price, 123);
        header->moveSection(header->visualIndex(Price), 0);
        QTest::keyClick(Page(), Qt::Key_Escape);
        QCOMPARE(File().list.columnOrder, (std::vector<quint32> { 4, 0, 1, 2, 3, 5, 6, 7 }));
        QCOMPARE(File().list.TableColSizes.section(u',', Price, Price), u"123"_s);
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

private:
    std::unique_ptr<RowsErrand> m_errand;

    [[nodiscard]] ListFixture& File() const { return m_errand->file; }
    [[nodiscard]] PageStack& Stack() const { return *m_errand->stack; }
    [[nodiscard]] RowsView* Page() const { return m_errand->page; }
    [[nodiscard]] QTableView* View() const { return m_errand->View(); }
};

QUILLORY_TEST(QApplication, RowsViewTest)
#include "rows_view_test.moc"
