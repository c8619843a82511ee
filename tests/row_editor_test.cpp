// SPDX-License-Identifier: MIT
#include "rows/row_editor.h"
#include "tests/list_fixture.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>

#include <memory>
#include <optional>

class RowEditorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_file = std::make_unique<ListFixture>(u"Pantry"_s);
        m_file->Add({ u"rice"_s, u"2"_s, u"top"_s, u"Checked"_s, u"1234.5"_s, u"7"_s, u"3/1/2026"_s,
            u""_s });
        m_result.reset();
    }

    void aNewRowStartsWithItsDefaults()
    {
        Open(kNoObject);
        QCOMPARE(m_page->Title(), u"Pantry"_s);
        QCOMPARE(m_page->Texts(),
            (std::vector {
                u""_s, u"0"_s, u""_s, u"Unchecked"_s, u"0.00"_s, u"0"_s, u""_s, u""_s }));
        QCOMPARE(Current(), int { Name });
        QCOMPARE(Focus()->objectName(), u"valueEdit"_s);
        QCOMPARE(Focus()->accessibleName(), u"Name"_s);
        QVERIFY(!m_page->HasUnsavedInput());
        QTest::keyClicks(Focus(), u"x"_s);
        QVERIFY(m_page->HasUnsavedInput());
    }

    void keysGoFromFieldToField()
    {
        Open(m_file->rows->FillRows().rows.front());
        QTest::keyClick(Focus(), Qt::Key_Up);
        QCOMPARE(Current(), int { Name });
        QStringList controls;
        for (const auto key : { Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Tab, Qt::Key_Down,
                 Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down }) {
            QTest::keyClick(Focus(), key);
            controls << QString::number(Current()) + Focus()->objectName();
        }
        QCOMPARE(controls.join(u' '),
            u"1valueEdit 2valueEdit 3valueBox 4valueEdit 5valueEdit 6dateEdit 7dateEdit 7dateEdit"_s);
        for (int field = Bought; field >= Name; --field) {
            QTest::keyClick(Focus(), Qt::Key_Up);
            QCOMPARE(Current(), field);
        }
        QVERIFY(!m_page->HasUnsavedInput());
    }

    void onlyALatchedShiftTurnsTabRound()
    {
        Open(kNoObject);
        QTest::keyClick(Focus(), Qt::Key_Down);
        QTest::keyClick(Focus(), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(Current(), int { Shelf });
        QTest::keyClick(Focus(), Qt::Key_Shift);
        QTest::keyClick(Focus(), Qt::Key_Tab);
        QCOMPARE(Current(), int { Count });
        // Latched and let go again, or used up by a letter.
        QTest::keyClick(Focus(), Qt::Key_Shift);
        QTest::keyClick(Focus(), Qt::Key_Shift);
        QTest::keyClick(Focus(), Qt::Key_Tab);
        QCOMPARE(Current(), int { Shelf });
        QTest::keyPress(Focus(), Qt::Key_Shift);
        QTest::keyClick(Focus(), 'A', Qt::ShiftModifier);
        QTest::keyRelease(Focus(), Qt::Key_Shift);
        QTest::keyClick(Focus(), Qt::Key_Tab);
        QCOMPARE(Current(), int { Bio });
        QCOMPARE(Shown(Shelf), u"A"_s);
    }

    void anOpenDropDownKeepsItsKeys()
    {
        Open(m_file->rows->FillRows().rows.front());
        GoTo(Bio);
        auto* box = qobject_cast<QComboBox*>(Focus());
        QVERIFY(box != nullptr);
        QCOMPARE(box->currentText(), u"Checked"_s);
        box->showPopup();
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(Current(), int { Bio });
        box->hidePopup();
        box->setCurrentIndex(0);
        QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(Current(), int { Price });
        QCOMPARE(Shown(Bio), u"Unchecked"_s);
    }

    void okWritesTheFields()
    {
        const auto rows = m_file->rows->FillRows().rows;
        Open(rows.front());
        // Every comma is read as a point, also one that parts thousands.
        QCOMPARE(Shown(Price), u"1,234.50"_s);
        Type(u"brown rice"_s);
        GoTo(Bio);
        QTest::keyClick(Focus(), Qt::Key_U);
        PressOk();
        QCOMPARE(m_result, PageResult::Ok);
        const Record row = m_file->rows->ReadRow(rows.front());
        QCOMPARE(m_file->Cells(rows), u"brown rice"_s);
        QCOMPARE(m_file->Cells(rows, Price), u"1.23"_s);
        QCOMPARE(m_file->Cells(rows, Bought), u"3/1/2026"_s);
        QCOMPARE(FindProperty(row.values, m_file->Column(Bio))->value, PropertyVariant(false));
        QCOMPARE(FindProperty(row.values, m_file->Column(Expiry)), nullptr);
    }

    void typedDatesAreReadOrStayAndKeepThePage_data()
    {
        const Table<int, QString, QString> add;
        add("a day over a day", Bought, u"2 April 2027"_s, u"4/2/2027"_s);
        add("day zero over a day", Bought, u"30 December 1899"_s, u"12/30/1899"_s);
        add("30 February over a day", Bought, u"2/30/2026"_s, u"2/30/2026"_s);
        add("a time over a day", Bought, u"12:30"_s, u"12:30"_s);
        add("nothing over a day", Bought, u""_s, u"3/1/2026"_s);
        add("a day over nothing", Expiry, u"2 April 2027"_s, u"4/2/2027"_s);
        add("30 February over nothing", Expiry, u"2/30/2026"_s, u"2/30/2026"_s);
        add("blanks over nothing", Expiry, u"  "_s, u""_s);
    }

    void typedDatesAreReadOrStayAndKeepThePage()
    {
        const auto [field, typed, shown] = Table<int, QString, QString>::Row();
        const bool isDate = shown != typed;
        const auto rows = m_file->rows->FillRows().rows;
        const QString before = m_file->Cells(rows, field);
        Open(rows.front());
        GoTo(field);
        const auto* edit = m_page->findChild<QLineEdit*>(u"dateEdit"_s);
        QCOMPARE(edit->placeholderText(), before.isEmpty() ? u"no date"_s : before);
        Type(typed);
        m_page->findChild<QWidget*>(u"ok"_s)->setFocus();
        QCOMPARE(edit->accessibleDescription(), isDate ? QString() : u"not a date"_s);
        GoTo(Name);
        QCOMPARE(Shown(field), shown);
        PressOk();
        QCOMPARE(m_result.has_value(), isDate);
        if (isDate) {
            QCOMPARE(m_file->Cells(rows, field), shown);
            return;
        }
        auto* message = m_stack->findChild<QMessageBox*>();
        QVERIFY(message != nullptr && message->text().contains(typed));
        QTest::keyClick(message, Qt::Key_Return);
        QTRY_COMPARE(Focus(), edit);
        QCOMPARE(Current(), field);
        QCOMPARE(edit->text(), typed);
        QVERIFY(m_page->HasUnsavedInput());
        QTest::keyClicks(Focus(), u"4/2/2027"_s);
        PressOk();
        QCOMPARE(m_file->Cells(rows, field), u"4/2/2027"_s);
    }

    void aPickedDateIsCommitted()
    {
        Open(kNoObject);
        GoTo(Bought);
        QTest::keyClick(Focus(), Qt::Key_F4);
        auto* days = m_page->findChild<QCalendarWidget*>()->findChild<QTableView*>();
        // Today is where it starts, and picking nothing commits nothing.
        QTest::keyClick(days, Qt::Key_Escape);
        QTRY_COMPARE(m_page->findChild<QCalendarWidget*>(), nullptr);
        QCOMPARE(m_page->Texts()[Bought], QString());
        m_stack->activateWindow();
        QTRY_COMPARE(Focus(), m_page->findChild<QWidget*>(u"dateEdit"_s));
        QTest::keyClick(Focus(), Qt::Key_Down, Qt::AltModifier);
        days = m_page->findChild<QCalendarWidget*>()->findChild<QTableView*>();
        QTest::keyClick(days, Qt::Key_Right);
        QTest::keyClick(days, Qt::Key_Return);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(m_page->Texts()[Bought], u"6/16/2026"_s);
        // A row that is not stored yet takes it back.
        GoTo(Name);
        GoTo(Bought);
        Type(u""_s);
        GoTo(Name);
        QCOMPARE(Shown(Bought), QString());
        QVERIFY(!m_page->HasUnsavedInput());
    }

    void losingTheKeyboardCommits()
    {
        Open(m_file->rows->FillRows().rows.front());
        Type(u"salt"_s);
        QFocusEvent deactivated(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(Focus(), &deactivated);
        QCOMPARE(Shown(Name), u"rice"_s);
        m_page->findChild<QWidget*>(u"ok"_s)->setFocus();
        QCOMPARE(Shown(Name), u"salt"_s);
        QVERIFY(m_page->findChild<QWidget*>(u"valueEdit"_s)->isVisible());
    }

    void tapsChooseTheField()
    {
        Open(m_file->rows->FillRows().rows.front());
        Type(u"salt"_s);
        GoTo(Size);
        QCOMPARE(Current(), int { Size });
        QCOMPARE(Shown(Name), u"salt"_s);
        Type(u"8"_s);
        const QPoint belowLines(20, View()->viewport()->height() - 4);
        QVERIFY(!View()->indexAt(belowLines).isValid());
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, belowLines);
        QCOMPARE(Current(), int { Name });
        QVERIFY(View()->selectionModel()->isRowSelected(Name));
        QCOMPARE(Shown(Size), u"8"_s);
    }

    void theControlStaysInViewWhenThePageShrinks()
    {
        Open(m_file->rows->FillRows().rows.front());
        GoTo(Expiry);
        m_stack->resize(360, 240);
        const auto place = [this] {
            const QWidget* control = m_page->findChild<QWidget*>(u"datePicker"_s);
            return QRect(control->mapTo(View()->viewport(), QPoint()), control->size());
        };
        QTRY_VERIFY(View()->viewport()->rect().contains(place()));
        QVERIFY(View()->visualRect(View()->model()->index(Expiry, 1)).contains(place()));
    }

private:
    std::unique_ptr<ListFixture> m_file;
    std::unique_ptr<PageStack> m_stack;
    RowEditor* m_page = nullptr;
    std::optional<PageResult> m_result;

    /// Opens the editor on a row; on a new one for kNoObject. Ok writes it.
    void Open(ObjectId row)
    {
        m_stack = std::make_unique<PageStack>();
        m_stack->Push(new Page(QString()));
        const Record record = row == kNoObject ? Record {} : m_file->rows->ReadRow(row);
        m_page = new RowEditor(m_file->list, row == kNoObject ? nullptr : &record, m_file->context);
        m_stack->Push(m_page, [this, row](PageResult result) {
            m_result = result;
            if (result == PageResult::Ok && row == kNoObject)
                m_file->rows->WriteNewRow(m_page->Texts());
            else if (result == PageResult::Ok)
                m_file->rows->ModifyRow(row, m_page->Texts());
        });
        m_stack->resize(360, 640);
        m_stack->show();
        QVERIFY(QTest::qWaitForWindowActive(m_stack.get()));
    }
    [[nodiscard]] QTableView* View() const { return m_page->findChild<QTableView*>(); }
    [[nodiscard]] QWidget* Focus() const { return QApplication::focusWidget(); }
    [[nodiscard]] int Current() const { return View()->currentIndex().row(); }
    [[nodiscard]] QString Shown(int field) const
    {
        return View()->model()->index(field, 1).data().toString();
    }
    void GoTo(int field) const
    {
        const QRect line = View()->visualRect(View()->model()->index(field, 0));
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, line.center());
    }
    /// Types over what the current field holds.
    void Type(const QString& text) const
    {
        auto* edit = qobject_cast<QLineEdit*>(Focus());
        QVERIFY(edit != nullptr);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    void PressOk() const
    {
        QTest::mouseClick(m_page->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
    }
};

QUILLORY_TEST(QApplication, RowEditorTest)
#include "row_editor_test.moc"
