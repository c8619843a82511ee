// SPDX-License-Identifier: MIT
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "transfer/list_file.h"
#include "transfer/text_export.h"
#include "values/file_date.h"

#include <QBuffer>

#include <algorithm>

namespace {

/// Takes `room` bytes, then fails; bytes offered later are counted all the same.
class FullDevice : public QIODevice
{
public:
    explicit FullDevice(qint64 room)
        : m_room(room)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    QByteArray taken;
    qint64 refusals = 0;

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 size) override
    {
        const qint64 count = std::min(size, m_room - taken.size());
        if (count == 0) {
            ++refusals;
            setErrorString(u"full"_s);
            return -1;
        }
        taken.append(bytes, count);
        return count;
    }

private:
    qint64 m_room;
};

ExportOutcome Export(ListFixture& file, QIODevice& target)
{
    return ExportRows(
        *file.data->OpenDatabase(ListCatalogue::kRowsType), file.list, file.context, target);
}

/// The bytes of the export as text, behind the byte-order mark.
QString ExportedText(ListFixture& file)
{
    QBuffer target;
    target.open(QIODevice::WriteOnly);
    const ExportOutcome outcome = Export(file, target);
    if (!target.data().startsWith("\xFF\xFE") || outcome.readError != ErrorNumber::None)
        return u"no text"_s;
    const QByteArray text = target.data().mid(2);
    return QString(reinterpret_cast<const QChar*>(text.constData()), text.size() / 2);
}

using Cells = QList<std::pair<int, PropertyVariant>>;

/// Writes a row of the given values in the list's columns.
void AddPartial(ListFixture& file, const Cells& cells)
{
    std::vector<PropertyValue> values;
    for (const auto& [column, value] : cells)
        values.push_back({ file.Column(column), 0, value });
    QVERIFY(file.data->Write(ListCatalogue::kRowsType, kNoObject, values) != kNoObject);
}

} // namespace

class TextExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsBecomeText_data()
    {
        const Table<QList<quint32>, QList<Cells>, QString> add;
        using Order = QList<quint32>;
        const Order natural { 0, 1, 2, 3, 4, 5, 6, 7 };
        const FileTime day = DateToFileTime(QDate(2026, 6, 1)).value();
        add("nothing but the mark", natural, {}, {});
        add("every type", natural,
            { { { 0, u"Tea"_s }, { 1, -3 }, { 2, u"A"_s }, { 3, false }, { 4, 1234.5 }, { 5, 7 },
                  { 6, day }, { 7, day } },
                { { 0, u"Wax"_s }, { 1, 0 }, { 2, u""_s }, { 3, true }, { 4, -0.5 }, { 5, 0 },
                    { 6, day }, { 7, day } } },
            u"Tea\t-3\tA\tN\t1234.50\t7\t6/1/2026\t6/1/2026\r\n"
            "Wax\t0\t\tY\t-0.50\t0\t6/1/2026\t6/1/2026\r\n"_s);
        add("the order of names", { 0 },
            { { { 0, u"b"_s } }, { { 0, u"a"_s } }, { { 0, u"C"_s } }, { { 1, 5 } } },
            u"C\r\na\r\nb\r\n\r\n"_s);
        add("a missing value repeats the field before", natural,
            { { { 0, u"Tea"_s }, { 5, 7 } }, { { 1, 4 }, { 3, true } } },
            u"Tea\tTea\tTea\tTea\tTea\t7\t7\t7\r\n\t4\t4\tY\tY\tY\tY\tY\r\n"_s);
        const QString shelf = u"a\tb\r\nc"_s + QChar(0xD800) + u"\"ü"_s;
        add("texts as they stand", { 2, 0 }, { { { 0, u"N"_s }, { 2, shelf } } },
            shelf + u"\tN\r\n"_s);

        const QList<Cells> partial { { { 0, u"Tea"_s }, { 1, 4 }, { 2, u"A"_s }, { 5, 9 } },
            { { 0, u"Wax"_s }, { 5, 8 } } };
        add("no order leaves empty lines", {}, partial, u"\r\n\r\n"_s);
        add("another order, once more", { 5, 0, 1, 5, 0, 0, 0, 0 }, partial,
            u"9\tTea\t4\t9\tTea\tTea\tTea\tTea\r\n8\tWax\tWax\t8\tWax\tWax\tWax\tWax\r\n"_s);
        add("unknown columns are passed over", { 99, 1, 8, 0, 0xFFFFFFFF }, partial,
            u"4\tTea\r\n\tWax\r\n"_s);
        add("the search ends with the length of the order", { 0, 5, 2 }, partial,
            u"Tea\tTea\tA\r\nWax\t8\t8\r\n"_s);
        add("a single column knows only the first value", { 5 }, partial, u"\r\n\r\n"_s);
    }

    void rowsBecomeText()
    {
        const auto [order, rows, text] = Table<QList<quint32>, QList<Cells>, QString>::Row();
        ListFixture file(u"L"_s);
        file.list.columnOrder.assign(order.begin(), order.end());
        for (const Cells& cells : rows)
            AddPartial(file, cells);
        QCOMPARE(ExportedText(file), text);
    }

    void aFailedWriteIsToldAndTheRestStillOffered()
    {
        ListFixture file(u"L"_s);
        file.list.columnOrder = { 0 };
        QVERIFY(file.data->BeginTransaction());
        for (int i = 0; i < 20; ++i)
            AddPartial(file, { { 0, QString(5000, u'x') } });
        QVERIFY(file.data->EndTransaction(true));
        FullDevice target(2 + 10);
        const ExportOutcome outcome = Export(file, target);
        QCOMPARE(outcome.writeFailure, u"full"_s);
        QCOMPARE(outcome.rows, 0);
        QCOMPARE(target.taken.size(), 12);
        QVERIFY(target.refusals > 1);
    }

    void theDataFileIsNeverATarget()
    {
        ListFixture file;
        const QString alias = file.Path() + u".txt"_s;
        QVERIFY(QFile::link(file.Path(), alias));
        const qint64 size = QFile(file.Path()).size();
        for (const QString& name : { alias, file.Path() + u"-journal"_s })
            QVERIFY(CreateListFile(name, file.Path()).file == nullptr);
        QVERIFY(OpenListFile(file.Path(), alias).file == nullptr);
        QCOMPARE(QFile(file.Path()).size(), size);

        QVERIFY(!CreateListFile(u"/no/such/folder/x"_s, file.Path()).failure.isEmpty());
    }

    void aFileIsReplacedOnceAllIsWritten()
    {
        ListFixture file(u"L"_s);
        file.list.columnOrder = { 0 };
        QVERIFY(file.data->BeginTransaction());
        for (int i = 0; i < 1100; ++i)
            AddPartial(file, { { 0, u"Tea"_s } });
        QVERIFY(file.data->EndTransaction(true));
        const QString target = file.Path() + u".txt"_s;
        WriteFileBytes(target, "before");
        QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner));
        const auto permissions = QFile::permissions(target);
        for (const bool goesOn : { false, true }) {
            const ListFile made = CreateListFile(target, file.Path());
            QVERIFY(made.file != nullptr);
            const ExportOutcome outcome
                = ExportToFile(*file.data->OpenDatabase(ListCatalogue::kRowsType), file.list,
                    file.context, made, [goesOn](qint64) { return goesOn; });
            QVERIFY(outcome.isCancelled == !goesOn && outcome.writeFailure.isEmpty());
            // A mark and 1100 times "Tea" and the end of a line.
            QCOMPARE(FileBytes(target).size(), goesOn ? 2 + 1100 * 10 : 6);
        }
        QCOMPARE(QFile::permissions(target), permissions);
        QCOMPARE(QDir(QFileInfo(target).path()).entryList(QDir::Files).size(), 2);
    }
};

QUILLORY_TEST(QCoreApplication, TextExportTest)
#include "text_export_test.moc"
