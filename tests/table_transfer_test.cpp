// SPDX-License-Identifier: MIT
#include "cli/encoding.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "tests/trickle.h"
#include "transfer/table_export.h"
#include "transfer/table_import.h"
#include "values/file_date.h"

#include <QBuffer>
#include <QRandomGenerator>

#include <algorithm>
#include <bit>
#include <cmath>
#include <map>

namespace {

/// The values of rows by their numbers, which they have in the column Size.
using NumberedRows = std::map<qint32, std::vector<PropertyVariant>>;

PropertyVariant RandomValue(QRandomGenerator& random, PropertyId column)
{
    static const QStringList pieces { u"a"_s, u" "_s, u","_s, u";"_s, u"\t"_s, u"\""_s, u"\r"_s,
        u"\n"_s, u"\r\n"_s, u"é"_s, u"😀"_s, u"\uFEFF"_s, u"\u2028"_s, u"\x01"_s, u"-1.5"_s };
    constexpr int kDays = 3'000'000;
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        return static_cast<qint32>(random.generate());
    case ColumnType::Price: {
        const auto price = std::bit_cast<double>(random.generate64());
        return std::isfinite(price) ? price : random.bounded(1000) / 100.0;
    }
    case ColumnType::Checkbox:
        return random.bounded(2) == 0;
    case ColumnType::Date:
        return DateToFileTime(QDate(1601, 1, 1).addDays(random.bounded(kDays))).value();
    case ColumnType::String:
        break;
    }
    QString text;
    for (int length = random.bounded(6); length > 0; --length)
        text += pieces[random.bounded(pieces.size())];
    return text;
}

Database& RowsOf(const ListFixture& file)
{
    return *file.data->OpenDatabase(ListCatalogue::kRowsType);
}

NumberedRows ReadRows(const ListFixture& file)
{
    std::vector<PropertyId> ids { file.Column(Size) };
    for (const ColumnDefinition& column : file.list.columns)
        ids.push_back(column.id);
    NumberedRows rows;
    const auto scanned = RowsOf(file).Scan(
        ids, ScanOrder::Any, [&rows](ObjectId, std::span<const PropertyValue> values) {
            auto& row = rows[std::get<qint32>(values.front().value)];
            for (const PropertyValue& value : values)
                row.push_back(value.value);
            return true;
        });
    return scanned ? rows : NumberedRows();
}

/// Puts `count` rows, of random values or none, in place of those that there are.
void RefillRows(const ListFixture& file, QRandomGenerator& random, int count)
{
    Transaction transaction(*file.data);
    const auto rows = RowsOf(file).ListRecords();
    for (const ObjectId row : *rows)
        QVERIFY(RowsOf(file).DeleteRecord(row));
    for (int number = 0; number < count; ++number) {
        std::vector<PropertyValue> values;
        for (const ColumnDefinition& column : file.list.columns) {
            if (column.id == file.Column(Size))
                values.push_back({ column.id, 0, number });
            else if (random.bounded(4) != 0)
                values.push_back({ column.id, 0, RandomValue(random, column.id) });
        }
        QVERIFY(RowsOf(file).Write(kNoObject, values));
    }
    QVERIFY(transaction.Commit());
}

} // namespace

class TableTransferTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomListsComeBack()
    {
        constexpr int kRounds = 300;
        const int wanted = qEnvironmentVariableIntValue("QUILLORY_RANDOM_LISTS");
        const quint32 seed = wanted == 0 ? 1 : QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        ListFixture file(u"L"_s);
        for (int round = 0; round < std::max(wanted, kRounds); ++round) {
            for (ColumnDefinition& column : file.list.columns)
                column.name = std::get<QString>(RandomValue(random, PropName));
            std::vector<ColumnDefinition> columns = file.list.columns;
            const bool isMatching = round % 3 == 0;
            // Columns of one name are told apart by their order alone, and the one to match has a
            // name of its own.
            file.list.columns[Size].name = columns[Size].name = u"the number"_s;
            std::stable_sort(columns.begin(), columns.end(),
                [](const auto& a, const auto& b) { return a.name.size() < b.name.size(); });
            const QChar separator = u",;\t"[random.bounded(3)];

            const int count = random.bounded(9);
            RefillRows(file, random, count);
            const NumberedRows before = ReadRows(file);
            QBuffer table;
            table.open(QIODevice::ReadWrite);
            const auto written = ExportTable(RowsOf(file), columns, separator, file.context, table);
            QCOMPARE(written.error, ErrorNumber::None);

            const int others = isMatching ? random.bounded(count + 1) : 0;
            RefillRows(file, random, others);
            Trickle trickle(table.data(), 1 + random.bounded(100));
            RecodedText text(trickle, QStringConverter::Utf8);
            TableImportRules rules { round % 2 == 0 ? QChar() : separator, {}, false };
            if (isMatching)
                rules.match = file.Column(Size);
            const auto read = ImportTable(*file.data, file.list, rules, text);
            const bool isSame = read.IsDone() && read.updated == others
                && read.added == count - others && ReadRows(file) == before;
            if (!isSame && !read.faults.empty())
                qWarning() << read.faults.front().line << read.faults.front().what;
            const QString list = u"list %1 of seed %2: "_s.arg(round).arg(seed);
            QVERIFY2(isSame, list.toUtf8() + table.data());
        }
    }
};

QUILLORY_TEST(QCoreApplication, TableTransferTest)
#include "table_transfer_test.moc"
