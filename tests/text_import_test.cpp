// SPDX-License-Identifier: MIT
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "tests/trickle.h"
#include "tests/vectors.h"
#include "transfer/import_rows.h"
#include "transfer/text_import.h"

#include <QBuffer>

namespace {

constexpr PropertyId kText = PropName;
constexpr PropertyId kCount = PropCount;
constexpr PropertyId kTick = MakePropertyId(1, CEVT_BOOL);
constexpr PropertyId kPrice = MakePropertyId(2, CEVT_R8);
constexpr PropertyId kDate = PropExpiryDate;

QByteArray Wide(QStringView text)
{
    QByteArray bytes("\xFF\xFE");
    return bytes.append(reinterpret_cast<const char*>(text.utf16()), text.size() * qsizetype { 2 });
}

/// Rows by line feeds, values by blanks, as "column=text"; "failed" at the end of a failed file.
QString RowsOf(QIODevice& source, const std::vector<PropertyId>& columns, size_t maxLine = kMaxLine)
{
    const ValueContext context = TestContext();
    ImportFieldReader reader(source, columns.size(), context.userLocale.codePage, maxLine);
    std::vector<PropertyValue> row;
    QStringList rows;
    while (reader.Next()) {
        ReadFields(reader.Fields(), columns, context, row);
        if (row.empty())
            continue;
        QStringList values;
        for (const PropertyValue& value : row) {
            const auto place = std::find(columns.begin(), columns.end(), value.id);
            values << QString::number(place - columns.begin()) + u'='
                    + FormatExportText(value, context);
        }
        rows << values.join(u' ');
    }
    if (reader.HasFailed())
        rows << u"failed"_s;
    return rows.join(u'\n');
}

/// The same for bytes that come in pieces of any size; "not the same" where that makes a
/// difference.
QString RowsOf(const QByteArray& bytes, const std::vector<PropertyId>& columns = { kText, kCount },
    size_t maxLine = kMaxLine)
{
    Trickle whole(bytes, 1'000'000);
    QString rows = RowsOf(whole, columns, maxLine);
    for (const int step : { 1, 2, 3, 7, 4096 }) {
        Trickle source(bytes, step);
        if (RowsOf(source, columns, maxLine) != rows)
            return u"not the same"_s;
    }
    return rows;
}

ImportOutcome Import(ListFixture& file, const QByteArray& bytes, const ImportMonitor& monitor = {},
    const ImportBatchLimits& limits = {})
{
    QBuffer source;
    source.setData(bytes);
    source.open(QIODevice::ReadOnly);
    std::vector<PropertyId> columns;
    for (const ColumnDefinition& column : file.list.columns)
        columns.push_back(column.id);
    return ImportRows(*file.data, columns, file.context, source, monitor, limits);
}

} // namespace

class TextImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textBecomesRows()
    {
        CheckVectors(u"import_lines"_s, [](const Vector& row) {
            const QString text = row["text"];
            return RowsOf(row["form"] == u"wide" ? Wide(text) : text.toLatin1());
        });
    }

    void fieldsAreReadByTheirColumn()
    {
        const std::vector<PropertyId> columns { kDate, kPrice, kTick, kCount, kText };
        QCOMPARE(RowsOf("2/30/2026\t1,50\tn\t12abc\tx y\r\n"
                        "1/2/2026\tx\tN\t-7\tN\r\n"
                        "no date\r\n",
                     columns),
            u"1=1.00 2=Y 3=12 4=x y\n0=1/2/2026 1=0.00 2=N 3=-7 4=N"_s);
    }

    void aLongNarrowLineIsFollowedByWhatAnEarlierOneLeft()
    {
        // 1024 characters hold a line; 512 of them are cleared between two.
        const QByteArray longest = QByteArray(700, 'a') + "\tkept\t" + QByteArray(200, 'b');
        const QByteArray half(512, 'c');
        const QByteArray less(511, 'd');
        QCOMPARE(RowsOf(longest + "\r\n" + half + "\r\n" + less + "\r\n", { kText }),
            u"0=%1\n0=%2\n0=%3"_s.arg(
                QString(700, u'a'), QString(512, u'c') + QString(188, u'a'), QString(511, u'd')));
        // A longer line takes a new buffer, clean again.
        QCOMPARE(RowsOf(longest + "\r\n" + QByteArray(1024, 'e') + "\r\n" + QByteArray(600, 'f')
                         + "\r\n",
                     { kText }),
            u"0=%1\n0=%2\n0=%3"_s.arg(
                QString(700, u'a'), QString(1024, u'e'), QString(600, u'f') + QString(424, u'e')));
        // What was cut leaves nothing.
        QCOMPARE(RowsOf(QByteArray(3000, 'g') + "\r\n" + QByteArray(1100, 'h') + "\r\n", { kText },
                     2000),
            QString(1100, u'h').prepend(u"0="_s) + u"\nfailed"_s);
        // Wide text is always clean.
        QCOMPARE(RowsOf(Wide(QString(900, u'a') + u"\r\n"_s + QString(600, u'b') + u"\r\n"_s)),
            u"0=%1\n0=%2"_s.arg(QString(900, u'a'), QString(600, u'b')));
    }

    void aLineTooLongIsPassedOverAndTold()
    {
        const std::pair<QString, QString> cases[] { { u"ab\t1234567"_s, u"0=ab 1=1234567"_s },
            // A field behind the wanted ones is cut.
            { u"ab\t12345\tmore"_s, u"0=ab 1=12345"_s },
            // The last wanted one ends at the cut, goes on behind it, or is missing.
            { u"ab\t1234567\tmore"_s, {} }, { u"ab\t12345678"_s, {} }, { u"abcdefghijk"_s, {} },
            { QString(20, u'\t'), {} } };
        for (const auto& [line, row] : cases) {
            const QString text = u"a\t1\r\n%1\r\nb\t2\r\n"_s.arg(line);
            const QString rows = row.isEmpty() ? u"0=a 1=1\n0=b 1=2\nfailed"_s
                                               : u"0=a 1=1\n%1\n0=b 1=2"_s.arg(row);
            for (const QByteArray& bytes : { text.toLatin1(), Wide(text) })
                QCOMPARE(RowsOf(bytes, { kText, kCount }, 10), rows);
        }
    }

    void aBatchIsStoredInTheOrderOfItsNames()
    {
        // Names that differ from the start, and some that do only far behind it.
        ListFixture file(u"L"_s);
        QStringList names;
        QString text;
        for (int i = 0; i < 60; ++i) {
            names << QString(i % 3 * 1000 + i % 7, u'n') + QString::number(i * 37 % 60);
            text += names.back() + u"\r\n"_s;
        }
        QVERIFY(Import(file, Wide(text)).result == ImportResult::Done);
        names.sort();
        const auto rows = file.rows->FillRows().rows;
        QCOMPARE(file.Cells(rows), names.join(u' '));
        QVERIFY(std::is_sorted(rows.begin(), rows.end()));
    }

    void rowsAreAddedInBatches()
    {
        ListFixture file(u"L"_s);
        file.Add({ u"there before"_s });
        QByteArray bytes;
        for (int i = 7000; i > 0; --i)
            bytes += QByteArray::number(i % 100) + '\t' + QByteArray::number(7000 - i) + "\r\n";
        const ImportOutcome outcome = Import(file, bytes, {}, { 1000, 100'000 });
        QVERIFY(outcome.result == ImportResult::Done);
        QCOMPARE(outcome.rows, 7000);
        file.Restart();
        const auto rows = file.rows->FillRows().rows;
        QCOMPARE(rows.size(), size_t { 7001 });
        // Rows of one name stand in the order of the file, across batches too.
        const std::vector<ObjectId> zeros(rows.begin(), rows.begin() + 70);
        QCOMPARE(file.Cells(zeros), QStringList(70, u"0"_s).join(u' '));
        QStringList counts;
        for (int count = 0; count < 7000; count += 100)
            counts << QString::number(count);
        QCOMPARE(file.Cells(zeros, 1), counts.join(u' '));
    }

    void cancellingKeepsTheBatchesSoFar()
    {
        const QByteArray bytes = QByteArray("a\t1\r\n").repeated(5000);
        // Cancelled while a batch is read, and while it is stored.
        for (const size_t lines : { size_t { 600 }, size_t { 700 } }) {
            ListFixture file(u"L"_s);
            ImportProgress last;
            const ImportOutcome outcome = Import(file, bytes,
                [&last](const ImportProgress& progress) {
                    last = progress;
                    return progress.rows < 2000;
                },
                { lines, 100'000 });
            QVERIFY(outcome.result == ImportResult::Cancelled);
            QCOMPARE(last.bytesTotal, bytes.size());
            QCOMPARE(outcome.rows, last.rows);
            QCOMPARE(file.data->RecordCount(ListCatalogue::kRowsType), outcome.rows);
            QVERIFY(outcome.rows >= 2000 && outcome.rows < 5000);
            // They come in as the text is read.
            QVERIFY(last.lines < 5000);
        }
    }

    void anUnreadableFileKeepsTheRowsBefore()
    {
        class BrokenDevice : public Trickle
        {
        public:
            using Trickle::Trickle;

        protected:
            qint64 readData(char* target, qint64 size) override
            {
                const qint64 count = Trickle::readData(target, size);
                return count == 0 ? -1 : count;
            }
        };
        ListFixture file(u"L"_s);
        BrokenDevice source("a\r\nb\r\n", 4);
        const ImportOutcome outcome
            = ImportRows(*file.data, std::vector { PropName }, file.context, source);
        QVERIFY(outcome.result == ImportResult::Failed);
        QCOMPARE(outcome.rows, 2);
        QCOMPARE(file.Cells(file.rows->FillRows().rows), u"a b"_s);
    }

    void aRowTheStoreRefusesIsPassedOver()
    {
        ListFixture file(u"L"_s);
        Trickle source("a\tx\r\nb\r\n", 100);
        const ImportOutcome outcome
            = ImportRows(*file.data, std::vector { PropName, PropName }, file.context, source);
        QVERIFY(outcome.result == ImportResult::Done);
        QCOMPARE(outcome.rows, 1);
        QCOMPARE(file.Cells(file.rows->FillRows().rows), u"b"_s);
    }

    void readOnlyDataEndsTheImport()
    {
        ListFixture file;
        const ObjectId oid = file.MakeFullList(u"L"_s);
        file.data->Unmount();
        QCOMPARE(file.data->Mount(file.Path(), Disposition::OpenExisting, VolumeAccess::ReadOnly),
            ErrorNumber::None);
        QCOMPARE(file.catalogue->OpenCatalogue(), ListCatalogue::OpenOutcome::Opened);
        file.OpenList(oid);
        const ImportOutcome outcome = Import(file, "a\r\n");
        QCOMPARE(outcome.writeError, ErrorNumber::AccessDenied);
        QCOMPARE(outcome.rows, 0);
    }
};

QUILLORY_TEST(QCoreApplication, TextImportTest)
#include "text_import_test.moc"
