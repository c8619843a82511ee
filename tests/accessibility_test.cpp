// SPDX-License-Identifier: MIT
#include "rows/date_field.h"
#include "tests/every_page.h"
#include "tests/rows_view_errand.h"
#include "tests/test_program.h"
#include "widgets/app_style.h"
#include "widgets/colour_button.h"

#include <QAccessible>
#include <QComboBox>
#include <QListWidget>
#include <QToolButton>

namespace {

/// Name, role and state of what assistive technology meets, its text or its range.
QString Met(QObject* object)
{
    QAccessibleInterface* met = QAccessible::queryAccessibleInterface(object);
    QStringList words { QVariant::fromValue(met->role()).toString(), met->text(QAccessible::Name) };
    if (met->state().hasPopup)
        words << u"opens"_s;
    if (!met->text(QAccessible::Value).isEmpty())
        words << met->text(QAccessible::Value);
    if (auto* text = met->textInterface())
        words << text->text(0, text->characterCount());
    if (auto* value = met->valueInterface()) {
        words << value->minimumValue().toString() << value->currentValue().toString();
        value->setCurrentValue(value->maximumValue());
        words << value->currentValue().toString();
    }
    return words.join(u'|');
}

using Actions = QAccessibleActionInterface;

QAccessibleInterface& MetAt(QObject* object)
{
    return *QAccessible::queryAccessibleInterface(object);
}

} // namespace

class AccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingSaysWhatItIs()
    {
        QApplication::setStyle(new AppStyle);
        Subject sheet;
        Show(sheet, kPages.front());
        RowsErrand rows;
        rows.Open();
        rows.file.context.clock = [] { return LocalTime { QDate(2026, 6, 15), QTime() }; };
        DateField date(rows.file.context);
        date.OpenCalendar();
        auto* days = date.findChild<QTableView*>();
        const auto find = [](const QWidget& page, const char* type) {
            const auto all = page.findChildren<QWidget*>();
            return *std::find_if(
                all.begin(), all.end(), [type](QWidget* w) { return w->inherits(type); });
        };
        QComboBox choice;
        choice.setAccessibleName(u"Type"_s);
        choice.addItem(u"Price"_s);
        const QString met[][2] {
            { Met(sheet.page), u"Pane|New Inventory List"_s },
            { Met(find(*sheet.page, "Quillory::IconPicker")), u"Button|Icon|List|0|0|42"_s },
            { Met(find(*sheet.page, "Quillory::ThresholdEdit")),
                u"SpinBox|Enable row colour when count is less than or equal to|-32767|0|32767"_s },
            { Met(&choice), u"ComboBox|Type|opens|Price|Price"_s },
            { Met(rows.page->findChild<QToolButton*>(u"rightKey"_s)), u"Button|Menu|opens"_s },
            { Met(find(*rows.page, "Quillory::UndoBar")), u"Notification|"_s },
            { Met(date.findChild<QWidget*>(u"qt_calendar_prevmonth"_s)),
                u"Button|Previous month"_s },
            { Met(date.findChild<QWidget*>(u"qt_calendar_nextmonth"_s)), u"Button|Next month"_s },
            { Met(date.findChild<QWidget*>(u"qt_calendar_yearedit"_s)),
                u"SpinBox|Year|2026|2026|1601|2026|9999"_s },
        };
        for (const auto& [is, expected] : met)
            QCOMPARE(is, expected);
        const auto* table = QAccessible::queryAccessibleInterface(days);
        QDate last;
        for (int i = 0; i < table->childCount(); ++i) {
            const QAccessibleInterface* place = table->child(i);
            const QDate named = place == nullptr
                ? QDate()
                : QLocale().toDate(place->text(QAccessible::Name), QLocale::LongFormat);
            QVERIFY(place == nullptr || !place->text(QAccessible::Name).isEmpty());
            if (!named.isValid())
                continue;
            QVERIFY(last.isNull() || named == last.addDays(1));
            QCOMPARE(place->state().selected, named == QDate(2026, 6, 15));
            last = named;
        }
        QVERIFY(last > QDate(2026, 6, 30));
        QAccessibleInterface* day = QAccessible::queryAccessibleInterface(days)->focusChild();
        QCOMPARE(day->text(QAccessible::Name),
            QLocale().toString(QDate(2026, 6, 15), QLocale::LongFormat));
    }

    void columnsWithoutNamesHaveNoNumbersEither()
    {
        for (const PageCase& page : kPages) {
            Subject subject;
            Show(subject, page);
            for (const auto* view : subject.page->findChildren<QTableView*>()) {
                const QString name = view->model()->headerData(0, Qt::Horizontal).toString();
                QVERIFY2(name != u"1", page.name);
            }
        }
    }

    void whatOpensIsOpenedByItsActions()
    {
        QApplication::setStyle(new AppStyle);
        for (const QString& name : { u"listIcon"_s, u"columnType"_s, u"rightKey"_s }) {
            Subject subject;
            const size_t place = name == u"listIcon" ? 0 : name == u"columnType" ? 2 : 10;
            Show(subject, kPages.at(place));
            auto* met
                = QAccessible::queryAccessibleInterface(subject.page->findChild<QWidget*>(name));
            for (const QString& action : met->actionInterface()->actionNames()) {
                if (action != QAccessibleActionInterface::pressAction()
                    && action != QAccessibleActionInterface::showMenuAction())
                    continue;
                met->actionInterface()->doAction(action);
                QVERIFY(QApplication::activePopupWidget() != nullptr
                    || subject.stack.Top() != subject.page);
                Act(u"press Esc"_s);
            }
        }
    }

    void aPageBehindAQuestionTakesNoActions()
    {
        RowsErrand rows;
        rows.file.Add({ u"rice"_s, u"0"_s });
        rows.Open();
        Act(u"press Del; see Do you want to delete the selected row?"_s);
        auto* page = QAccessible::queryAccessibleInterface(rows.page)->actionInterface();
        for (const QString& action : page->actionNames())
            page->doAction(action);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
        Act(u"tap No; at Pantry; see rice"_s);
    }

    void aListTellsOnWhichLineItHasTheKeyboard()
    {
        RowsErrand rows;
        rows.file.Add({ u"rice"_s, u"0"_s });
        rows.Open();
        rows.page->findChild<QWidget*>(u"ok"_s)->setFocus();
        rows.View()->setFocus();
        Act(u"hear rice"_s);
    }

    void linesAreOpenedByTheActionsOfTheirPage()
    {
        RowsErrand rows;
        for (const QString& name : { u"rice"_s, u"tea"_s })
            rows.file.Add({ name, u"3"_s });
        rows.Open();
        QVERIFY(MetAt(rows.View()).tableInterface()->selectRow(1));
        MetAt(rows.page).actionInterface()->doAction(Actions::showMenuAction());
        Act(u"tap Add 1"_s);
        QCOMPARE(rows.Stored(Count), u"3 4"_s);
        MetAt(rows.page).actionInterface()->doAction(Actions::pressAction());
        // A field is gone to by its line.
        for (const int field : { int { Shelf }, int { Name } }) {
            QVERIFY(MetAt(rows.View()).tableInterface()->selectRow(field));
            QCOMPARE(QApplication::focusWidget()->accessibleName(),
                rows.file.list.columns[static_cast<size_t>(field)].name);
        }
        MetAt(QApplication::focusWidget()).setText(QAccessible::Value, u"bran"_s);
        Act(u"tap OK"_s);
        QCOMPARE(rows.Stored(), u"bran rice"_s);
    }

    void choicesAreMadeByActions()
    {
        QApplication::setStyle(new AppStyle);
        QComboBox choice;
        choice.addItems({ u"Text"_s, u"Price"_s });
        for (const auto& [action, chosen] : { std::pair(Actions::increaseAction(), 1),
                 std::pair(Actions::increaseAction(), 1), std::pair(Actions::decreaseAction(), 0),
                 std::pair(Actions::decreaseAction(), 0) }) {
            MetAt(&choice).actionInterface()->doAction(action);
            QCOMPARE(choice.currentIndex(), chosen);
        }
        ColourButton colour;
        colour.show();
        colour.click();
        auto* swatch = QApplication::activePopupWidget()->findChild<QWidget*>(u"colour11"_s);
        MetAt(swatch).actionInterface()->doAction(Actions::toggleAction());
        QCOMPARE(colour.Colour(), 11U);
        colour.hide();
        Subject order;
        Show(order, kPages.at(4));
        auto* columns = order.page->findChild<QListWidget*>();
        QVERIFY(MetAt(columns).tableInterface()->selectRow(1));
        const QString second = columns->item(1)->text();
        Act(u"tap Move Up"_s);
        QCOMPARE(columns->item(0)->text(), second);
    }

    void aChangedCellIsSpokenWithItsColumn()
    {
        RowsErrand rows;
        rows.file.list.TableOption = kWarnOnCount;
        rows.file.Add({ u"rice"_s, u"0"_s, u"top"_s, u"Checked"_s });
        rows.Open();
        const auto* model = qobject_cast<RowsModel*>(rows.View()->model());
        auto* cells = QAccessible::queryAccessibleInterface(rows.View())->tableInterface();
        QCOMPARE(cells->cellAt(0, Bio)->text(QAccessible::Name), u"Checked"_s);
        QCOMPARE(cells->cellAt(0, Name)->text(QAccessible::Description), u"low"_s);
        QCOMPARE(model->Spoken(0, PropCount), u"Quantity 0, low"_s);
        QCOMPARE(model->Spoken(0, rows.file.list.columns[Bio].id), u"Bio Checked, low"_s);
    }
};

QUILLORY_TEST(QApplication, AccessibilityTest)
#include "accessibility_test.moc"
