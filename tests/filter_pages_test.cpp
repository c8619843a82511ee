// SPDX-License-Identifier: MIT
#include "rows/filter_page.h"
#include "rows/filters_page.h"
#include "tests/list_fixture.h"
#include "tests/person.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/page_stack.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>

#include <functional>
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
        Act(u"at Find; see fieldBox: First; see conditionBox: "_s + condition);
        QCOMPARE(ShownValue(), value);
        Act(u"tap OK"_s);
        QCOMPARE(m_result, PageResult::Ok);
        QCOMPARE(m_state.entry.column, first);
        QCOMPARE(static_cast<int>(m_state.entry.condition), code);
        QCOMPARE(m_state.entry.value, text);
    }

    void whatIsLookedForCanBeTypedAtOnce()
    {
        ShowFilter({ .mode = FilterMode::Find, .entry = {} });
        Act(u"type tea; see valueEdit: tea"_s);
    }

    void anotherFieldChangesConditionsAndValue()
    {
        ShowFilter();
        Act(u"at Filter; choose fieldBox: Date"_s);
        QCOMPARE(Conditions(), u"on, not on, after, on or after, before, on or before"_s);
        QCOMPARE(ShownValue(), u"datePicker"_s);
        Act(u"choose fieldBox: Bio; see conditionBox: equals to"_s);
        QCOMPARE(Conditions(), u"equals to, not equals to"_s);
        QCOMPARE(ShownValue(), u"checkboxValueBox"_s);
        // What an on-screen keyboard is to show.
        const auto hints = [this] {
            return m_stack->Top()->findChild<QLineEdit*>(u"valueEdit"_s)->inputMethodHints();
        };
        Act(u"choose fieldBox: Price"_s);
        QCOMPARE(hints(), Qt::ImhFormattedNumbersOnly);
        Act(u"choose fieldBox: Text"_s);
        QCOMPARE(hints(), Qt::ImhNone);
        QCOMPARE(Conditions(), u"contains, equals to, not equals to"_s);
        QCOMPARE(ShownValue(), u"valueEdit"_s);
    }

    void aStoredEntryIsShown()
    {
        // The code is taken for a position.
        ShowFilter({ .entry = { m_list.columns[4].id, FilterCondition::Equals, u"2/29/2024"_s } });
        Act(u"see fieldBox: Date; see conditionBox: not on; see dateEdit: 2/29/2024; tap OK"_s);
        ShowFilter({ .entry = { m_list.columns[2].id, FilterCondition::Contains, u"T"_s } });
        Act(u"see conditionBox: ; see checkboxValueBox: Checked"_s);
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
        Act(u"fill dateEdit: %1; tap OK"_s.arg(typed));
        QCOMPARE(m_state.entry.value, value);
        if (m_result.has_value())
            return;
        Act(u"press Return; see dateEdit: "_s + typed);
        QTRY_COMPARE(QApplication::focusWidget()->objectName(), u"dateEdit"_s);
        QVERIFY(m_stack->Top()->HasUnsavedInput());
    }

    void figuresAreAskedForWhereNumbersAreTyped()
    {
        ShowFilter();
        const auto* edit = m_stack->Top()->findChild<QLineEdit*>(u"valueEdit"_s);
        for (const auto& [field, hints] : { std::pair(u"Price"_s, Qt::ImhFormattedNumbersOnly),
                 std::pair(u"Text"_s, Qt::ImhNone) }) {
            Act(u"choose fieldBox: "_s + field);
            QCOMPARE(edit->inputMethodHints(), hints);
        }
    }

    void cancelGivesTheStateBack()
    {
        ShowFilter();
        Act(u"choose conditionBox: equals to"_s);
        QVERIFY(m_stack->Top()->HasUnsavedInput());
        Act(u"choose conditionBox: contains"_s);
        QVERIFY(!m_stack->Top()->HasUnsavedInput());
        Act(u"choose fieldBox: Bio"_s);
        QVERIFY(m_stack->Top()->HasUnsavedInput());
        Act(u"tap Cancel"_s);
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
        Act(u"see First|not equals to|salt, Bio|equals to|Unchecked, Bio||Checked, "
            "Date|on or before|1/2/2027"_s);
        const auto* view = m_stack->Top()->findChild<QTableView*>();
        QCOMPARE(view->columnWidth(0), view->viewport()->width() / 3);
    }

    void filtersAreAddedRemovedAndCleared_data()
    {
        const Table<QString, QString> add;
        add("removing takes the selected one",
            u"tap b; press Del; see First|contains|a, First|contains|c"_s, u"a c"_s);
        add("also the last", u"tap c; tap Menu; tap Remove"_s, u"a b"_s);
        add("both ask for a selection",
            u"press Del; tap Menu; see (Remove), (Clear All); press Esc"_s, u"a b c"_s);
        add("all are cleared",
            u"tap b; tap Menu; tap Clear All; see nothing; tap Menu; see (Remove), (Clear All); "
            "press Esc"_s,
            {});
        add("a cancelled one is added fresh",
            u"tap a; tap Menu; tap Clear All; press Ctrl+N; at Filter; press Esc; tap Add; "
            "fill valueEdit: xyz; tap OK; see |contains|, First|contains|xyz"_s,
            u" xyz"_s);
    }

    void filtersAreAddedRemovedAndCleared()
    {
        const auto [steps, left] = Table<QString, QString>::Row();
        FilterSet filters;
        for (const QString& value : { u"a"_s, u"b"_s, u"c"_s })
            AddFilter(filters, PropName, FilterCondition::Contains, value);
        const FiltersPage* page = ShowFilters(filters);
        Act(steps);
        QStringList values;
        for (const FilterEntry& entry : page->Filters().entries)
            values << entry.value;
        QCOMPARE(values.join(u' '), left);
        QVERIFY(!m_result.has_value());
        Act(u"press Esc"_s);
        QVERIFY(m_result.has_value());
    }

    void aValueIsNoLongerThanItsFilterKeeps()
    {
        ShowFilter();
        Act(u"fill valueEdit: %1; tap OK"_s.arg(QString(200, u'x')));
        QCOMPARE(m_state.entry.value, QString(127, u'x'));
    }

private:
    ValueContext m_context = TestContext();
    InventoryList m_list;
    std::unique_ptr<PageStack> m_stack;
    std::optional<PageResult> m_result;
    FilterDialogState m_state;

    void Show(Page* page, const std::function<void(PageResult)>& then)
    {
        m_stack->Push(page, then);
        m_stack->resize(360, 640);
        m_stack->show();
    }
    void ShowFilter(FilterDialogState state = {})
    {
        auto* page = new FilterPage(std::move(state), m_list, m_context);
        Show(page, [this, page](PageResult result) {
            m_result = result;
            m_state = page->State();
        });
    }
    FiltersPage* ShowFilters(const FilterSet& filters)
    {
        auto* page = new FiltersPage(filters, m_list, m_context);
        Show(page, [this](PageResult result) { m_result = result; });
        return page;
    }
    [[nodiscard]] QString Conditions() const
    {
        QStringList texts;
        const auto* box = m_stack->Top()->findChild<QComboBox*>(u"conditionBox"_s);
        for (int i = 0; i < box->count(); ++i)
            texts << box->itemText(i);
        return texts.join(u", ");
    }
    /// The value controls that can be used; there must be one.
    [[nodiscard]] QString ShownValue() const
    {
        QStringList names;
        for (const QString& name : { u"valueEdit"_s, u"checkboxValueBox"_s, u"datePicker"_s }) {
            const auto* control = m_stack->Top()->findChild<QWidget*>(name);
            if (control->isVisible() && control->isEnabled())
                names << name;
        }
        return names.join(u' ');
    }
};

QUILLORY_TEST(QApplication, FilterPagesTest)
#include "filter_pages_test.moc"
