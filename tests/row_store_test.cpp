// SPDX-License-Identifier: MIT
#include "store/totals.h"
#include "tests/list_fixture.h"
#include "tests/page_damage.h"
#include "tests/test_program.h"
#include "values/file_date.h"

#include <QRandomGenerator>

#include <algorithm>
#include <limits>
#include <map>

namespace {

FilterSet Where(PropertyId column, FilterCondition condition, const QString& value)
{
    FilterSet filters;
    AddFilter(filters, column, condition, value);
    return filters;
}

QString Totals(ListFixture& file, const FilterSet* filters = nullptr)
{
    QStringList texts;
    for (const ColumnTotal& total : file.rows->Totals(filters).lines)
        texts << total.name + u'=' + total.text;
    return texts.join(u' ');
}

/// What a value counts as in sorting, by the simplest means: what sorting by digits and keys must
/// come to. A missing one, for which null stands, is 0 or the empty text.
std::pair<double, QString> SortKey(const PropertyValue* property)
{
    const auto keyOf = [](const auto& value) -> std::pair<double, QString> {
        using Type = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Type, QString>)
            return { 0.0, value };
        else if constexpr (std::is_same_v<Type, FileTime>)
            return { FileTimeToDateNumber(value).value_or(0.0), {} };
        else if constexpr (std::is_arithmetic_v<Type>)
            return { static_cast<double>(value), {} };
        else
            return {};
    };
    return property == nullptr ? std::pair<double, QString>() : std::visit(keyOf, property->value);
}

} // namespace

class RowStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDateThatCannotBeReadKeepsTheStoredOne()
    {
        ListFixture file(u"l"_s);
        const ObjectId row = file.Add({ u"a"_s, u"1"_s, QString(), QString(), QString(), QString(),
            u"3/4/2026"_s, u"2/30/2026"_s });
        QCOMPARE(file.Cells({ row }, Bought), u"3/4/2026"_s);
        QCOMPARE(file.Cells({ row }, Expiry), QString());
        const std::vector<QString> texts { u"b"_s, u"2"_s, QString(), QString(), QString(),
            QString(), u"soon"_s };
        QVERIFY(file.rows->ModifyRow(row, texts));
        QCOMPARE(file.Cells({ row }, Name), u"b"_s);
        QCOMPARE(file.Cells({ row }, Bought), u"3/4/2026"_s);
        QVERIFY(!file.rows->ModifyRow(static_cast<ObjectId>(9999), texts));
    }

    void deletedRowsShowErr()
    {
        ListFixture file(u"l"_s);
        const ObjectId row = file.Add({ u"a"_s, u"1"_s, u"shelf"_s });
        const ObjectId copy = file.rows->CopyRow(row);
        QVERIFY(file.rows->DeleteRow(row));
        QVERIFY(!file.rows->DeleteRow(row));
        QCOMPARE(file.Cells({ row }), u"<Err>"_s);
        QVERIFY(!file.rows->AdjustCount(row, 1).has_value());
        QVERIFY(!file.rows->SetCheckboxValue(row, file.Column(Bio), true));
        QCOMPARE(file.rows->CopyRow(row), kNoObject);
        QCOMPARE(file.Cells({ copy }, Shelf), u"shelf"_s);
    }

    void countsGoBelowZeroAndWrapAround()
    {
        // From none, which is zero.
        ListFixture file(u"l"_s);
        const ObjectId row = file.Add({ u"only a name"_s });
        for (const auto& [step, count] : { std::pair { -1, -1 }, { 1, 0 },
                 { std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::max() },
                 { 1, std::numeric_limits<qint32>::min() } })
            QCOMPARE(file.rows->AdjustCount(row, step), count);
        file.Restart();
        QCOMPARE(file.Cells({ row }, Count), u"-2147483648"_s);
        file.list.columns.erase(file.list.columns.begin() + Count);
        QVERIFY(!file.rows->AdjustCount(row, 1).has_value());
        // The failure left no transaction behind.
        QVERIFY(file.data->BeginTransaction() && file.data->EndTransaction(true));
    }

    void aDamagedPageEndsTheListing()
    {
        for (const char page : { kIndexLeaf, kTableLeaf }) {
            constexpr int kRows = 1000;
            ListFixture file;
            const ObjectId list = file.MakeFullList(u"l"_s);
            const auto name = [](int row) { return u"row %1"_s.arg(row, 4, 10, QChar(u'0')); };
            QVERIFY(file.data->BeginTransaction());
            for (int i = 0; i < kRows; ++i)
                file.Add({ name(i), QString::number(i % 2) });
            QVERIFY(file.data->EndTransaction(true));
            file.data->Unmount();
            DamagePage(file.Path(), page, name(600));

            file.Restart();
            file.OpenList(list);
            const auto [rows, error] = file.rows->FillRows();
            QCOMPARE(error, page == kIndexLeaf ? ErrorNumber::FileCorrupt : ErrorNumber::None);
            QVERIFY2(rows.size() > 300, qPrintable(QString::number(rows.size())));
            // No row is missing before the last one.
            QCOMPARE(file.Cells({ rows.front(), rows[300] }), name(0) + u' ' + name(300));
            const auto [odd, oddError] = file.rows->FillFilteredRows(
                Where(file.Column(Count), FilterCondition::Equals, u"1"_s));
            QCOMPARE(oddError, ErrorNumber::FileCorrupt);
            QVERIFY(odd.size() > 150 && odd.size() < 300);
            QCOMPARE(file.Cells({ odd[0], odd[150] }), name(1) + u' ' + name(301));
            // The column of a damaged row cannot be sorted by, nor totalled: the index is not
            // asked.
            const bool isRowDamaged = page == kTableLeaf;
            const auto [sorted, sortError] = file.rows->SortRows(rows, file.Column(Count));
            QCOMPARE(sortError, isRowDamaged ? ErrorNumber::FileCorrupt : ErrorNumber::None);
            QCOMPARE(sorted == rows, isRowDamaged);
            QCOMPARE(file.rows->Totals(nullptr).error, sortError);
        }
    }

    void sortingManyRowsAgreesWithComparingThem()
    {
        ListFixture file(u"l"_s);
        constexpr int kRows = 6000;
        QRandomGenerator random(7);
        QVERIFY(file.data->BeginTransaction());
        for (int i = 0; i < kRows; ++i) {
            // Texts that begin alike, end each other, are empty, or hold units above surrogates.
            QString shelf = QString(qsizetype { random.bounded(4) } * 90, u'x')
                + QString(random.bounded(6), u'\uFF5A') + QString::number(random.bounded(50));
            shelf.chop(qsizetype { random.bounded(2) } * 2);
            const FileTime day { quint64(random.bounded(400'000)) * 864'000'000'000 / 3 };
            std::vector<PropertyValue> values { { file.Column(Name), 0, QString::number(i) },
                { file.Column(Shelf), 0, shelf }, { file.Column(Bio), 0, random.bounded(2) == 1 },
                { file.Column(Price), 0, (random.bounded(2000) - 1000) * 0.25e-3 },
                { file.Column(Size), 0, qint32(random.generate()) >> random.bounded(32) },
                { file.Column(Bought), 0, day } };
            if (i % 11 == 0)
                values[3].value = i % 2 == 0 ? -0.0 : 0.0;
            values.erase(
                values.begin() + 1 + i % 5, values.begin() + 1 + i % 5 + (i % 7 == 0 ? 1 : 0));
            QVERIFY(file.data->Write(ListCatalogue::kRowsType, kNoObject, values) != kNoObject);
        }
        QVERIFY(file.data->EndTransaction(true));

        std::vector<ObjectId> rows = file.rows->FillRows().rows;
        std::reverse(rows.begin(), rows.end());
        for (const int column : { Shelf, Bio, Price, Size, Bought }) {
            const PropertyId id = file.Column(column);
            std::map<ObjectId, std::pair<double, QString>> keys;
            for (const ObjectId row : rows)
                keys[row] = SortKey(FindProperty(file.rows->ReadRow(row).values, id));
            std::vector<ObjectId> expected = rows;
            std::stable_sort(expected.begin(), expected.end(),
                [&keys](ObjectId a, ObjectId b) { return keys[a] < keys[b]; });
            QVERIFY2(file.rows->SortRows(rows, id).rows == expected,
                qPrintable(file.list.columns[static_cast<size_t>(column)].name));
        }
    }

    void totalsCoverWhatIsListed()
    {
        ListFixture file(u"l"_s);
        QCOMPARE(Totals(file), u"Quantity=0 Price=0.00 Size=0"_s);
        file.Add({ u"a"_s, u"2147483647"_s, {}, {}, u"0.1"_s, u"-3"_s });
        file.Add({ u"b"_s, u"2147483647"_s, {}, {}, u"0.2"_s });
        file.Add({ u"c"_s, u"-1"_s, {}, {}, u"0.3"_s, u"1"_s });
        QCOMPARE(Totals(file), u"Quantity=4294967293 Price=0.60 Size=-2"_s);
        const FilterSet filters = Where(file.Column(Count), FilterCondition::Less, u"0"_s);
        QCOMPARE(Totals(file, &filters), u"Quantity=-1 Price=0.30 Size=1"_s);
    }

    void totalsAreAddedInTheOrderOfNamesWhereItShows()
    {
        ListFixture file(u"l"_s);
        // 1e17 swallows a 1 that is added to it: b's in the order of names, none as they were
        // added, both from the last name to the first.
        file.Add({ u"c"_s, {}, {}, {}, u"-1e17"_s });
        file.Add({ u"a"_s, {}, {}, {}, u"1e17"_s });
        file.Add({ u"b"_s, {}, {}, {}, u"1"_s });
        file.Add({ u"d"_s, {}, {}, {}, u"1"_s });
        QCOMPARE(Totals(file), u"Quantity=0 Price=1.00 Size=0"_s);
        file.Add({ u"e"_s, {}, {}, {}, u"1e999"_s });
        QVERIFY(Totals(file).contains(u"1.#"_s));
    }
};

QUILLORY_TEST(QCoreApplication, RowStoreTest)
#include "row_store_test.moc"
