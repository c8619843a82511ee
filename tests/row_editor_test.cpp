// SPDX-License-Identifier: MIT
#include "rows/row_editor.h"
#include "tests/list_fixture.h"
#include "tests/person.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
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
        m_row = m_file->Add({ u"rice"_s, u"2"_s, u"top"_s, u"Checked"_s, u"1234.5"_s, u"7"_s,
            u"3/1/2026"_s, u""_s });
        m_result.reset();
    }

    void aNewRowStartsWithItsDefaults()
    {
        Open(kNoObject);
        QCOMPARE(m_page->Title(), u"Pantry"_s);
        QCOMPARE(m_page->Texts(),
            (std::vector {
                u""_s, u"0"_s, u""_s, u"Unchecked"_s, u"0.00"_s, u"0"_s, u""_s, u""_s }));
        Act(u"on Name"_s);
        QCOMPARE(Focus()->objectName(), u"valueEdit"_s);
        QCOMPARE(Focus()->accessibleName(), u"Name"_s);
        QVERIFY(!m_page->HasUnsavedInput());
        QTest::keyClicks(Focus(), u"x"_s);
        QVERIFY(m_page->HasUnsavedInput());
    }

    void keysGoFromFieldToField()
    {
        Open(m_row);
        Act(u"press Up; on Name"_s);
        QStringList controls;
        for (const QString& key : u"Down Tab Down Tab Down Tab Down Down"_s.split(u' ')) {
            Act(u"press "_s + key);
            controls << QString::number(View()->currentIndex().row()) + Focus()->objectName();
            int shown = 0;
            for (const QString& name : { u"valueEdit"_s, u"valueBox"_s, u"datePicker"_s })
                shown += m_page->findChild<QWidget*>(name)->isVisible() ? 1 : 0;
            QCOMPARE(shown, 1);
            const auto hints = qobject_cast<QComboBox*>(Focus()) == nullptr
                ? Focus()->inputMethodQuery(Qt::ImHints).toInt()
                : 0;
            controls.back() += QString::number(hints, 16);
        }
        QCOMPARE(controls.join(u' '),
            u"1valueEdit20000 2valueEdit0 3valueBox0 4valueEdit20000 5valueEdit20000 6dateEdit80 "
            "7dateEdit80 7dateEdit80"_s);
        Act(u"press Up; on Bought; press Up; on Size; press Up; on Price; press Up; on Bio; "
            "press Up; on Shelf; press Up Up; on Name"_s);
        QVERIFY(!m_page->HasUnsavedInput());
    }

    void onlyALatchedShiftTurnsTabRound()
    {
        Open(kNoObject);
        const auto tapShift = [this] { QTest::keyClick(Focus(), Qt::Key_Shift); };
        Act(u"press Down Shift+Backtab; on Shelf"_s);
        tapShift();
        Act(u"press Tab; on Quantity"_s);
        // Latched and let go again, or used up by a letter.
        tapShift();
        tapShift();
        Act(u"press Tab; on Shelf"_s);
        QTest::keyPress(Focus(), Qt::Key_Shift);
        QTest::keyClick(Focus(), 'A', Qt::ShiftModifier);
        QTest::keyRelease(Focus(), Qt::Key_Shift);
        Act(u"press Tab; on Bio"_s);
        QCOMPARE(Shown(Shelf), u"A"_s);
    }

    void anOpenDropDownKeepsItsKeys()
    {
        Open(m_row);
        Act(u"tap Bio; see valueBox: Checked; press Alt+Down; press Up Return; on Bio; "
            "see valueBox: Unchecked; press Down; on Price"_s);
        QCOMPARE(Shown(Bio), u"Unchecked"_s);
    }

    void okWritesTheFields()
    {
        Open(m_row);
        // Every comma is read as a point, also one that parts thousands.
        QCOMPARE(Shown(Price), u"1,234.50"_s);
        Act(u"fill valueEdit: brown rice; tap Bio; press U; tap OK"_s);
        QCOMPARE(m_result, PageResult::Ok);
        const Record row = m_file->rows->ReadRow(m_row);
        QCOMPARE(m_file->Cells({ m_row }), u"brown rice"_s);
        QCOMPARE(m_file->Cells({ m_row }, Price), u"1.23"_s);
        QCOMPARE(m_file->Cells({ m_row }, Bought), u"3/1/2026"_s);
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
        add("a week from today over nothing", Expiry, u"+7"_s, u"6/22/2026"_s);
        add("30 February over nothing", Expiry, u"2/30/2026"_s, u"2/30/2026"_s);
        add("blanks over nothing", Expiry, u"  "_s, u""_s);
    }

    void typedDatesAreReadOrStayAndKeepThePage()
    {
        const auto [field, typed, shown] = Table<int, QString, QString>::Row();
        const QString name = m_file->list.columns[static_cast<size_t>(field)].name;
        const bool isDate = shown != typed;
        const QString before = m_file->Cells({ m_row }, field);
        Open(m_row);
        Act(u"tap "_s + name);
        const auto* edit = m_page->findChild<QLineEdit*>(u"dateEdit"_s);
        QCOMPARE(edit->placeholderText(), before.isEmpty() ? u"no date"_s : before);
        Act(u"fill dateEdit: "_s + typed);
        m_page->findChild<QWidget*>(u"ok"_s)->setFocus();
        // What was emptied stays as it was, and is seen to.
        QCOMPARE(edit->text(), typed.trimmed().isEmpty() ? before : typed);
        QCOMPARE(edit->accessibleDescription(), isDate ? QString() : u"not a date"_s);
        Act(u"tap Name"_s);
        QCOMPARE(Shown(field), shown);
        Act(u"tap OK"_s);
        QCOMPARE(m_result.has_value(), isDate);
        if (isDate) {
            QCOMPARE(m_file->Cells({ m_row }, field), shown);
            return;
        }
        Act(u"see \"%1\" is not a date. Type it as in 6/15/2026, or pick it from the calendar.; press Return; on %2; see dateEdit: %1"_s
                .arg(typed, name));
        QTRY_COMPARE(Focus(), edit);
        QVERIFY(m_page->HasUnsavedInput());
        Act(u"type 4/2/2027; tap OK"_s);
        QCOMPARE(m_file->Cells({ m_row }, field), u"4/2/2027"_s);
    }

    void screenReadersHearWhichFieldIsNext()
    {
        Open(m_row);
        Act(u"hear Name; press Down; hear Quantity; press Down; hear Shelf"_s);
    }

    void aPickedDateIsCommitted()
    {
        Open(kNoObject);
        // Low on the screen the calendar opens above its field.
        m_stack->move(0, m_stack->screen()->availableGeometry().bottom() - 400);
        Act(u"tap Bought; press F4"_s);
        const auto* popup = QApplication::activePopupWidget();
        QVERIFY(
            popup != nullptr && popup->screen()->availableGeometry().contains(popup->geometry()));
        const auto* field = m_page->findChild<QWidget*>(u"dateEdit"_s);
        QVERIFY(!popup->geometry().contains(field->mapToGlobal(field->rect().center())));
        // Picking nothing commits nothing. Today is where it starts.
        Act(u"press Esc; see dateEdit: "_s);
        QTRY_COMPARE(m_page->findChild<QCalendarWidget*>(), nullptr);
        QCOMPARE(m_page->Texts()[Bought], QString());
        Act(u"press Alt+Down; press Right Return; see dateEdit: 6/16/2026"_s);
        QCOMPARE(m_page->Texts()[Bought], u"6/16/2026"_s);
        Act(u"press Alt+Down; press Right Return; see dateEdit: 6/17/2026; "
            "tap openCalendar; tap 20; see dateEdit: 6/20/2026; tap openCalendar; tap ›; "
            "hear July 2026; tap 15; see dateEdit: 7/15/2026"_s);
        // A row that is not stored yet takes it back.
        Act(u"tap Name; tap Bought; fill dateEdit: ; tap Name"_s);
        QCOMPARE(Shown(Bought), QString());
        QVERIFY(!m_page->HasUnsavedInput());
    }

    void losingTheKeyboardCommits()
    {
        Open(m_row);
        Act(u"fill valueEdit: salt"_s);
        QFocusEvent deactivated(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(Focus(), &deactivated);
        QCOMPARE(Shown(Name), u"rice"_s);
        m_page->findChild<QWidget*>(u"ok"_s)->setFocus();
        QCOMPARE(Shown(Name), u"salt"_s);
        QVERIFY(m_page->findChild<QWidget*>(u"valueEdit"_s)->isVisible());
    }

    void tapsChooseTheField()
    {
        Open(m_row);
        Act(u"fill valueEdit: salt; tap Size; on Size; fill valueEdit: 8"_s);
        QCOMPARE(Shown(Name), u"salt"_s);
        const QPoint belowLines(20, View()->viewport()->height() - 4);
        QVERIFY(!View()->indexAt(belowLines).isValid());
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, belowLines);
        Act(u"on Name; see valueEdit: salt"_s);
        QCOMPARE(Shown(Size), u"8"_s);
    }

    void theControlStaysInViewWhenThePageShrinks()
    {
        Open(m_row);
        Act(u"tap Expiry Date"_s);
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
    ObjectId m_row = kNoObject;

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
    [[nodiscard]] QString Shown(int field) const
    {
        return View()->model()->index(field, 1).data().toString();
    }
};

QUILLORY_TEST(QApplication, RowEditorTest)
#include "row_editor_test.moc"
