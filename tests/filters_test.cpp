#include "values/column_type.h"
#include "values/file_date.h"
#include "values/filters.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace Quillory {

namespace {

constexpr PropertyId kCheckbox = MakePropertyId(2, CEVT_BOOL);
constexpr PropertyId kPrice = MakePropertyId(3, CEVT_R8);

const LocalTime kNow { QDate(2026, 6, 15), QTime(12, 30, 15, 250) };

ValueContext Context()
{
    const LocaleProfile locale = LocaleProfile::For(u"en_US"_s);
    return { locale, locale, [] { return kNow; }, u"Checked"_s, u"Unchecked"_s };
}

PropertyValue Value(PropertyId id, PropertyVariant value)
{
    return { id, 0, std::move(value) };
}

FileTime Day(int year, int month, int day)
{
    return DateToFileTime(QDate(year, month, day)).value();
}

/// The codes from -1 to 6 that match, as in "1 4 6".
QString MatchingCodes(const PropertyValue& row, const QString& text)
{
    QStringList codes;
    for (int code = -1; code <= 6; ++code) {
        const FilterEntry entry { row.id, static_cast<FilterCondition>(code), text };
        if (FilterTest(entry, Context()).Matches(&row)) {
            codes.append(QString::number(code));
        }
    }
    return codes.join(u' ');
}

} // namespace

class FiltersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conditionsMatchByType_data();
    void conditionsMatchByType();
    void aRowWithoutTheColumnFails();
    void allConditionsMustHold();
    void aFreshConditionPassesNoRow();
    void entriesAreAddedCutAndRemoved();
    void conditionsAreOfferedByType();
};

void FiltersTest::conditionsMatchByType_data()
{
    QTest::addColumn<PropertyValue>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("codes");
    const auto add = [](const char* name, const PropertyValue& row, const QString& text,
                         const QString& codes) { QTest::newRow(name) << row << text << codes; };
    const PropertyValue name = Value(PropName, u"Green tea"_s);
    add("the same text", name, u"Green tea"_s, u"0 1 2"_s);
    add("a part of the text", name, u"en te"_s, u"0"_s);
    add("a part in other case", name, u"green"_s, QString());
    add("every text contains no text", name, QString(), u"0"_s);

    const PropertyValue count = Value(PropCount, qint32(5));
    add("the same number", count, u" 5x"_s, u"1 2 4 6"_s);
    add("a smaller number", count, u"-7"_s, u"3 4"_s);
    add("a larger number", count, u"6"_s, u"5 6"_s);

    const PropertyValue price = Value(kPrice, 0.1);
    add("the same price", price, u"0.1"_s, u"1 2 4 6"_s);
    add("a comma ends a price", price, u"0,10"_s, u"3 4"_s);

    const PropertyValue box = Value(kCheckbox, true);
    add("a checked box and T", box, u"T"_s, u"1"_s);
    add("a checked box and F", box, u"F"_s, u"2"_s);
    add("a checked box and another text", box, u"Checked"_s, QString());
    add("an unchecked box and F", Value(kCheckbox, false), u"F"_s, u"1"_s);
    add("an unchecked box and T", Value(kCheckbox, false), u"T"_s, u"2"_s);

    const PropertyValue date = Value(PropExpiryDate, Day(2024, 1, 5));
    add("the same day", date, u"1/5/2024"_s, u"1 4 6"_s);
    add("an earlier day", date, u"1/4/2024"_s, u"2 3 4"_s);
    add("a later day", date, u"1/6/2024"_s, u"2 5 6"_s);
    add("an hour of the day", Value(PropExpiryDate, FileTime { Day(2024, 1, 5).ticks + 1 }),
        u"1/5/2024"_s, u"2 3 4"_s);
    add("no date is the present moment", Value(PropExpiryDate, LocalTimeToFileTime(kNow).value()),
        u"soon"_s, u"1 4 6"_s);
    add("a day before 1601 is the present moment", date, u"1/5/1600"_s, u"2 5 6"_s);
}

void FiltersTest::conditionsMatchByType()
{
    QFETCH(const PropertyValue, row);
    QFETCH(const QString, text);
    QFETCH(const QString, codes);
    QCOMPARE(MatchingCodes(row, text), codes);
}

void FiltersTest::aRowWithoutTheColumnFails()
{
    FilterSet filters;
    const std::vector row { Value(PropName, u"Tea"_s),
        PropertyValue { PropExpiryDate, CEDB_PROPNOTFOUND, {} } };
    QVERIFY(RowPassesFilters(filters, row, Context()));
    AddFilter(filters, PropExpiryDate, FilterCondition::NotEquals, u"1/5/2024"_s);
    QVERIFY(!RowPassesFilters(filters, row, Context()));
    ClearFilters(filters);
    QVERIFY(RowPassesFilters(filters, row, Context()));
}

void FiltersTest::allConditionsMustHold()
{
    FilterSet filters;
    AddFilter(filters, PropCount, FilterCondition::Greater, u"2"_s);
    AddFilter(filters, PropCount, FilterCondition::Less, u"5"_s);
    QString passed;
    for (qint32 count = 0; count < 10; ++count) {
        if (RowPassesFilters(filters, std::vector { Value(PropCount, count) }, Context())) {
            passed += QString::number(count);
        }
    }
    QCOMPARE(passed, u"34"_s);
}

void FiltersTest::aFreshConditionPassesNoRow()
{
    FilterSet filters;
    AddFilter(filters, {}, FilterCondition::Contains, QString());
    QVERIFY(!RowPassesFilters(filters, std::vector { Value(PropName, u"Tea"_s) }, Context()));
}

void FiltersTest::entriesAreAddedCutAndRemoved()
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

void FiltersTest::conditionsAreOfferedByType()
{
    QCOMPARE(ConditionsFor(PropName).front(), FilterCondition::Contains);
    QCOMPARE(ConditionsFor(PropName).size(), std::size_t(3));
    QCOMPARE(ConditionsFor(kCheckbox).size(), std::size_t(2));
    for (const PropertyId column : { PropCount, kPrice, PropExpiryDate }) {
        QCOMPARE(ConditionsFor(column).size(), std::size_t(6));
        QCOMPARE(ConditionsFor(column).front(), FilterCondition::Equals);
    }
}

} // namespace Quillory

QTEST_APPLESS_MAIN(Quillory::FiltersTest)
#include "filters_test.moc"
