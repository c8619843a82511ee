// SPDX-License-Identifier: MIT
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "values/file_date.h"

#include <tuple>

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
    void conditionsMatchByType()
    {
        const QString tea = u"Green tea"_s;
        const FileTime day = Day(2024, 1, 5);
        // The codes are those from -1 to 6 whose conditions match.
        const std::tuple<FullListColumn, PropertyVariant, QString, QString> cases[] {
            // A part in other case is none; every text contains no text; no text matches nothing.
            { Shelf, tea, tea, u"0 1 2"_s }, { Shelf, tea, u"en te"_s, u"0"_s },
            { Shelf, tea, u"green"_s, {} }, { Shelf, tea, {}, u"0"_s }, { Shelf, {}, {}, {} },
            // No number is not 0.
            { Count, 5, u" 5x"_s, u"1 2 4 6"_s }, { Count, 5, u"-7"_s, u"3 4"_s },
            { Count, 5, u"6"_s, u"5 6"_s }, { Count, 0, u"0"_s, u"1 2 4 6"_s },
            { Count, {}, u"0"_s, {} },
            // A comma ends a price.
            { Price, 0.1, u"0.1"_s, u"1 2 4 6"_s }, { Price, 0.1, u"0,10"_s, u"3 4"_s },
            // A box knows T and F alone; no box is not unchecked.
            { Bio, true, u"T"_s, u"1"_s }, { Bio, true, u"F"_s, u"2"_s },
            { Bio, true, u"Checked"_s, {} }, { Bio, false, u"F"_s, u"1"_s },
            { Bio, false, u"T"_s, u"2"_s }, { Bio, {}, u"F"_s, {} },
            // An hour of a day is later than the day.
            { Expiry, day, u"1/5/2024"_s, u"1 4 6"_s }, { Expiry, day, u"1/4/2024"_s, u"2 3 4"_s },
            { Expiry, day, u"1/6/2024"_s, u"2 5 6"_s },
            { Expiry, FileTime { day.ticks + 1 }, u"1/5/2024"_s, u"2 3 4"_s },
            // No date, or a day before 1601, is the present moment.
            { Expiry, Now(), u"soon"_s, u"1 4 6"_s }, { Expiry, day, u"1/5/1600"_s, u"2 5 6"_s },
            { Expiry, {}, u"1/5/2024"_s, {} }
        };
        for (const auto& [column, value, text, codes] : cases) {
            ListFixture file(u"l"_s);
            std::vector<PropertyValue> values { { PropName, 0, u"Tea"_s } };
            if (!std::holds_alternative<std::monostate>(value))
                values.push_back({ file.Column(column), 0, value });
            QVERIFY(file.data->Write(ListCatalogue::kRowsType, kNoObject, values) != kNoObject);
            QStringList matching;
            for (int code = -1; code <= 6; ++code) {
                FilterSet filters;
                // One column is read once, however many conditions test it.
                for (int times = 0; times < 100; ++times)
                    AddFilter(
                        filters, file.Column(column), static_cast<FilterCondition>(code), text);
                if (!file.rows->FillFilteredRows(filters).rows.empty())
                    matching << QString::number(code);
            }
            QVERIFY2(matching.join(u' ') == codes,
                qPrintable(u"column %1, %2: %3"_s.arg(column).arg(text, matching.join(u' '))));
        }
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
