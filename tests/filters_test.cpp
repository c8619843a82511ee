// SPDX-License-Identifier: MIT
#include "tests/list_fixture.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "values/file_date.h"

namespace {

FileTime Day(int year, int month, int day)
{
    return DateToFileTime(QDate(year, month, day)).value();
}

FileTime Now()
{
    return LocalTimeToFileTime(TestContext().clock()).value();
}

} // namespace

class FiltersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conditionsMatchByType_data()
    {
        const Table<int, PropertyVariant, QString, QString> add;
        const QString tea = u"Green tea"_s;
        add("the same text", Shelf, tea, tea, u"0 1 2"_s);
        add("a part of the text", Shelf, tea, u"en te"_s, u"0"_s);
        add("a part in other case", Shelf, tea, u"green"_s, QString());
        add("every text contains no text", Shelf, tea, QString(), u"0"_s);
        add("no text", Shelf, {}, QString(), QString());

        add("the same number", Count, 5, u" 5x"_s, u"1 2 4 6"_s);
        add("a smaller number", Count, 5, u"-7"_s, u"3 4"_s);
        add("a larger number", Count, 5, u"6"_s, u"5 6"_s);
        add("zero", Count, 0, u"0"_s, u"1 2 4 6"_s);
        add("no number", Count, {}, u"0"_s, QString());

        add("the same price", Price, 0.1, u"0.1"_s, u"1 2 4 6"_s);
        add("a comma ends a price", Price, 0.1, u"0,10"_s, u"3 4"_s);

        add("a checked box and T", Bio, true, u"T"_s, u"1"_s);
        add("a checked box and F", Bio, true, u"F"_s, u"2"_s);
        add("a checked box and another text", Bio, true, u"Checked"_s, QString());
        add("an unchecked box and F", Bio, false, u"F"_s, u"1"_s);
        add("an unchecked box and T", Bio, false, u"T"_s, u"2"_s);
        add("no box", Bio, {}, u"F"_s, QString());

        const FileTime day = Day(2024, 1, 5);
        add("the same day", Expiry, day, u"1/5/2024"_s, u"1 4 6"_s);
        add("an earlier day", Expiry, day, u"1/4/2024"_s, u"2 3 4"_s);
        add("a later day", Expiry, day, u"1/6/2024"_s, u"2 5 6"_s);
        add("an hour of the day", Expiry, FileTime { day.ticks + 1 }, u"1/5/2024"_s, u"2 3 4"_s);
        add("no date is the present moment", Expiry, Now(), u"soon"_s, u"1 4 6"_s);
        add("a day before 1601 is the present moment", Expiry, day, u"1/5/1600"_s, u"2 5 6"_s);
        add("no day", Expiry, {}, u"1/5/2024"_s, QString());
    }

    /// `codes` are those from -1 to 6 whose conditions match.
    void conditionsMatchByType()
    {
        const auto [column, value, text, codes]
            = Table<int, PropertyVariant, QString, QString>::Row();
        ListFixture file;
        file.MakeFullList(u"l"_s);
        std::vector<PropertyValue> values { { PropName, 0, u"Tea"_s } };
        if (!std::holds_alternative<std::monostate>(value))
            values.push_back({ file.Column(column), 0, value });
        QVERIFY(file.data->Write(ListCatalogue::kRowsType, kNoObject, values) != kNoObject);
        QStringList matching;
        for (int code = -1; code <= 6; ++code) {
            FilterSet filters;
            AddFilter(filters, file.Column(column), static_cast<FilterCondition>(code), text);
            if (!file.rows->FillFilteredRows(filters).rows.empty())
                matching << QString::number(code);
        }
        QCOMPARE(matching.join(u' '), codes);
    }

    void entriesAreAddedCutAndRemoved()
    {
        FilterSet filters;
        AddFilter(filters, PropName, FilterCondition::Contains, QString(128, u'x'));
        AddFilter(filters, PropCount, FilterCondition::Equals, u"1"_s);
        QCOMPARE(filters.entries.front().value, QString(127, u'x'));
        RemoveFilter(filters, 2);
        RemoveFilter(filters, -1);
        QCOMPARE(filters.entries.size(), std::size_t(2));
        RemoveFilter(filters, 0);
        QCOMPARE(filters.entries.size(), std::size_t(1));
        QCOMPARE(filters.entries.front().column, PropCount);
    }

    void conditionsAreOfferedByType()
    {
        QCOMPARE(ConditionsFor(PropName).front(), FilterCondition::Contains);
        QCOMPARE(ConditionsFor(PropName).size(), std::size_t(3));
        QCOMPARE(ConditionsFor(MakePropertyId(2, CEVT_BOOL)).size(), std::size_t(2));
        for (const PropertyId column : { PropCount, MakePropertyId(3, CEVT_R8), PropExpiryDate }) {
            QCOMPARE(ConditionsFor(column).size(), std::size_t(6));
            QCOMPARE(ConditionsFor(column).front(), FilterCondition::Equals);
        }
    }
};

QUILLORY_TEST(QCoreApplication, FiltersTest)
#include "filters_test.moc"
