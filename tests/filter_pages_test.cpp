// SPDX-License-Identifier: MIT
#include "rows/date_field.h"
#include "rows/filter_page.h"
#include "rows/filters_page.h"
#include "tests/list_fixture.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>

#include <memory>
#include <optional>
#include <utility>

namespace {

/// A list of one column of each type, the first of them the one that is asked for.
InventoryList ListBeginningWith(PropertyId first)
{
    InventoryList list;
    list.columns = { { u"First"_s, 0, first }, { u"Text"_s, 0, MakePropertyId(1, CEVT_LPWSTR) },
        { u"Bio"_s, 0, MakePropertyId(2, CEVT_BOOL) },
        { u"Price"_s, 0, MakePropertyId(3, CEVT_R8) },
        { u"Date"_s, 0, MakePropertyId(4, CEVT_FILETIME) } };
    return list;
}

} // namespace

class FilterPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_stack = std::make_unique<PageStack>();
        m_stack->Push(new Page(QString()));
        m_list = ListBeginningWith(PropName);
        m_result.reset();
        m_state = {};
    }

    void aFreshPageOpensByTheTypeOfTheFirstField_data()
    {
        const Table<PropertyId, QString, QString, int, QString> add;
        add("text", PropName, u"contains"_s, u"valueEdit"_s, 0, QString());
        add("count", PropCount, QString(), u"valueEdit"_s, -1, QString());
        add("price", MakePropertyId(9, CEVT_R8), QString(), u"valueEdit"_s, -1, QString());
        add("checkbox", MakePropertyId(9, CEVT_BOOL), QString(), u"checkboxValueBox"_s, -1, u"F"_s);
        add("date", PropExpiryDate, u"on"_s, u"datePicker"_s, 1, u"6/15/2026"_s);
    }

    void aFreshPageOpensByTheTypeOfTheFirstField()
    {
        const auto [first, condition, value, code, text]
            = Table<PropertyId, QString, QString, int, QString>::Row();
        m_list = ListBeginningWith(first);
        ShowFilter({ .mode = FilterMode::Find, .entry = {} });
        QCOMPARE(m_stack->Top()->Title(), u"Find"_s);
        QCOMPARE(Find<QComboBox>("fieldBox")->currentText(), u"First"_s);
        QCOMPARE(Find<QComboBox>("conditionBox")->currentText(), condition);
        QCOMPARE(ShownValue(), value);
        Press("ok");
        QCOMPARE(m_result, PageResult::Ok);
        QCOMPARE(m_state.entry.column, first);
        QCOMPARE(static_cast<int>(m_state.entry.condition), code);
        QCOMPARE(m_state.entry.value, text);
    }

    void whatIsLookedForCanBeTypedAtOnce()
    {
        m_list = ListBeginningWith(PropName);
        Show(new FilterPage({ .mode = FilterMode::Find, .entry = {} }, m_list, m_context));
        for (const Qt::Key key : { Qt::Key_T, Qt::Key_E, Qt::Key_A })
            QTest::keyClick(m_stack->windowHandle(), key);
        QCOMPARE(Find<QLineEdit>("valueEdit")->text(), u"tea"_s);
    }

    void anotherFieldChangesConditionsAndValue()
    {
        ShowFilter();
        QCOMPARE(m_stack->Top()->Title(), u"Filter"_s);
        auto* field = Find<QComboBox>("fieldBox");
        field->setCurrentText(u"Date"_s);
        QCOMPARE(Conditions(), u"on, not on, after, on or after, before, on or before"_s);
        QCOMPARE(ShownValue(), u"datePicker"_s);
        field->setCurrentText(u"Bio"_s);
        QCOMPARE(Conditions(), u"equals to, not equals to"_s);
        QCOMPARE(Find<QComboBox>("conditionBox")->currentIndex(), 0);
        QCOMPARE(ShownValue(), u"checkboxValueBox"_s);
        field->setCurrentText(u"Text"_s);
        QCOMPARE(Conditions(), u"contains, equals to, not equals to"_s);
        QCOMPARE(ShownValue(), u"valueEdit"_s);
    }

    void aStoredEntryIsShown()
    {
        ShowFilter({ .entry = { m_list.columns[4].id, FilterCondition::Equals, u"2/29/2024"_s } });
        QCOMPARE(Find<QComboBox>("fieldBox")->currentText(), u"Date"_s);
        // The code is taken for a position.
        QCOMPARE(Find<QComboBox>("conditionBox")->currentText(), u"not on"_s);
        QCOMPARE(Find<QLineEdit>("dateEdit")->text(), u"2/29/2024"_s);
        ShowFilter({ .entry = { m_list.columns[2].id, FilterCondition::Contains, u"T"_s } });
        QCOMPARE(Find<QComboBox>("conditionBox")->currentIndex(), -1);
        QCOMPARE(Find<QComboBox>("checkboxValueBox")->currentText(), u"Checked"_s);
    }

    void typedDatesAreReadOrKeepThePage_data()
    {
        const Table<QString, QString> add;
        add("another form", u"3 January 2027"_s, u"1/3/2027"_s);
        add("no such day", u"2/30/2026"_s, QString());
        add("emptied", QString(), u"6/15/2026"_s);
    }

    void typedDatesAreReadOrKeepThePage()
    {
        const auto [typed, value] = Table<QString, QString>::Row();
        m_list = ListBeginningWith(PropExpiryDate);
        ShowFilter();
        QVERIFY(QTest::qWaitForWindowActive(m_stack.get()));
        auto* edit = Find<QLineEdit>("dateEdit");
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, typed);
        Press("ok");
        QCOMPARE(m_state.entry.value, value);
        if (m_result.has_value())
            return;
        auto* message = m_stack->findChild<QMessageBox*>();
        QVERIFY(message != nullptr);
        QTest::keyClick(message, Qt::Key_Return);
        QTRY_COMPARE(QApplication::focusWidget(), edit);
        QCOMPARE(edit->text(), typed);
        QVERIFY(m_stack->Top()->HasUnsavedInput());
    }

    void cancelGivesTheStateBack()
    {
        ShowFilter();
        QVERIFY(!m_stack->Top()->HasUnsavedInput());
        Find<QComboBox>("fieldBox")->setCurrentText(u"Bio"_s);
        QVERIFY(m_stack->Top()->HasUnsavedInput());
        Press("leftKey");
        QCOMPARE(m_result, PageResult::Cancel);
        QCOMPARE(m_state.entry.column, PropertyId {});
        QCOMPARE(m_state.entry.condition, FilterCondition::Contains);
        QCOMPARE(m_state.entry.value, QString());
    }

    void linesShowTheFiltersInTheirOrder()
    {
        FilterSet filters;
        AddFilter(filters, PropName, FilterCondition::NotEquals, u"salt"_s);
        AddFilter(filters, m_list.columns[2].id, FilterCondition::Equals, u"F"_s);
        AddFilter(filters, m_list.columns[2].id, FilterCondition::None, u"x"_s);
        AddFilter(filters, m_list.columns[4].id, FilterCondition::LessOrEqual, u"1/2/2027"_s);
        ShowFilters(filters);
        QCOMPARE(Lines(),
            u"First|not equals to|salt\nBio|equals to|Unchecked\nBio||Checked\n"
            "Date|on or before|1/2/2027"_s);
        const auto* view = Find<QTableView>("filterList");
        QCOMPARE(view->columnWidth(0), view->viewport()->width() / 3);
    }

    void removingTakesTheSelectedFilter()
    {
        FilterSet filters;
        for (const QString& value : { u"a"_s, u"b"_s, u"c"_s })
            AddFilter(filters, PropName, FilterCondition::Contains, value);
        const FiltersPage* page = ShowFilters(filters);
        Find<QTableView>("filterList")->selectRow(1);
        QTest::keyClick(Find<QTableView>("filterList"), Qt::Key_Delete);
        QCOMPARE(Lines(), u"First|contains|a\nFirst|contains|c"_s);
        QCOMPARE(page->Filters().entries.size(), 2U);
        QCOMPARE(page->Filters().entries[1].value, u"c"_s);
        Find<QTableView>("filterList")->selectRow(1);
        QTest::keyClick(Find<QTableView>("filterList"), Qt::Key_Delete);
        QCOMPARE(page->Filters().entries.back().value, u"a"_s);
    }

    void clearingAsksForASelection()
    {
        FilterSet filters;
        AddFilter(filters, PropName, FilterCondition::Contains, u"a"_s);
        FiltersPage* page = ShowFilters(filters);
        for (const Command command : { Command::Delete, Command::ClearAllFilters }) {
            page->Trigger(command);
            QVERIFY(!page->ActionOf(command)->isEnabled());
        }
        QCOMPARE(page->Filters().entries.size(), 1U);
        Find<QTableView>("filterList")->selectRow(0);
        page->Trigger(Command::ClearAllFilters);
        QCOMPARE(Lines(), QString());
        QVERIFY(page->Filters().entries.empty());
        QVERIFY(!page->ActionOf(Command::ClearAllFilters)->isEnabled());
    }

    void addThenCancelAddsTheFreshEntry()
    {
        const FiltersPage* page = ShowFilters({});
        Press("leftKey");
        QCOMPARE(m_stack->Top()->objectName(), u"filter"_s);
        QTest::keyClick(m_stack->Top(), Qt::Key_Escape);
        Press("leftKey");
        QTest::keyClicks(Find<QWidget>("valueEdit"), QString(200, u'x'));
        Press("ok");
        QCOMPARE(m_stack->Top(), page);
        QCOMPARE(Lines(), u"|contains|\nFirst|contains|"_s + QString(127, u'x'));
        QCOMPARE(page->Filters().entries[0].column, PropertyId {});
        QVERIFY(!m_result.has_value());
        QTest::keyClick(m_stack->Top(), Qt::Key_Escape);
        QVERIFY(m_result.has_value());
    }

private:
    ValueContext m_context = TestContext();
    InventoryList m_list;
    std::unique_ptr<PageStack> m_stack;
    std::optional<PageResult> m_result;
    FilterDialogState m_state;

    template <typename T> [[nodiscard]] T* Find(const char* name) const
    {
        return m_stack->Top()->findChild<T*>(QLatin1StringView(name));
    }
    void Show(Page* page)
    {
        m_stack->Push(page, [this](PageResult result) { m_result = result; });
        m_stack->resize(360, 640);
        m_stack->show();
        QVERIFY(QTest::qWaitForWindowActive(m_stack.get()));
    }
    void ShowFilter(FilterDialogState state = {})
    {
        auto* page = new FilterPage(std::move(state), m_list, m_context);
        m_stack->Push(page, [this, page](PageResult result) {
            m_result = result;
            m_state = page->State();
        });
        m_stack->show();
    }
    FiltersPage* ShowFilters(const FilterSet& filters)
    {
        auto* page = new FiltersPage(filters, m_list, m_context);
        Show(page);
        return page;
    }
    void Press(const char* name) const { QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton); }
    [[nodiscard]] QString Conditions() const
    {
        QStringList texts;
        for (int i = 0; i < Find<QComboBox>("conditionBox")->count(); ++i)
            texts << Find<QComboBox>("conditionBox")->itemText(i);
        return texts.join(u", ");
    }
    /// The value controls that can be used; there must be one.
    [[nodiscard]] QString ShownValue() const
    {
        QStringList names;
        for (const char* name : { "valueEdit", "checkboxValueBox", "datePicker" }) {
            const auto* control = Find<QWidget>(name);
            if (control->isVisible() && control->isEnabled())
                names << QLatin1StringView(name);
        }
        return names.join(u' ');
    }
    [[nodiscard]] QString Lines() const
    {
        const auto* model = Find<QTableView>("filterList")->model();
        QStringList lines;
        for (int line = 0; line < model->rowCount(); ++line) {
            QStringList cells;
            for (int column = 0; column < 3; ++column)
                cells << model->index(line, column).data().toString();
            lines << cells.join(u'|');
        }
        return lines.join(u'\n');
    }
};

QUILLORY_TEST(QApplication, FilterPagesTest)
#include "filter_pages_test.moc"
