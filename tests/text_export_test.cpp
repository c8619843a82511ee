// SPDX-License-Identifier: MIT
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "transfer/list_file.h"
#include "transfer/text_export.h"

#include <QBuffer>

#include <algorithm>
#include <utility>

using namespace Quillory;
using namespace Qt::StringLiterals;

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

/// Writes a row of the given values in the list's columns; null texts are left out.
void AddPartial(ListFixture& file, const QList<std::pair<int, PropertyVariant>>& cells)
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
    void anEmptyListIsAByteOrderMark();
    void everyTypeHasItsText();
    void rowsComeInTheOrderOfNames();
    void aMissingValueRepeatsTheFieldBefore();
    void theColumnOrderRules_data();
    void theColumnOrderRules();
    void textsGoOutAsTheyStand();
    void aFailedWriteIsToldAndTheRestStillOffered();
    void theDataFileIsNeverATarget();
    void aFileIsReplacedOnceAllIsWritten();
};

void TextExportTest::anEmptyListIsAByteOrderMark()
{
    ListFixture file(u"L"_s);
    QBuffer target;
    target.open(QIODevice::WriteOnly);
    QCOMPARE(Export(file, target).rows, 0);
    QCOMPARE(target.data(), "\xFF\xFE"_ba);
}

void TextExportTest::everyTypeHasItsText()
{
    ListFixture file(u"L"_s);
    file.Add({ u"Tea"_s, u"-3"_s, u"A"_s, u"Unchecked"_s, u"1234.5"_s, u"7"_s, u"6/1/2026"_s,
        u"1/31/2027"_s });
    file.Add({ u"Wax"_s, u"0"_s, u""_s, u"Checked"_s, u"-0.5"_s, u"0"_s, u"6/1/2026"_s,
        u"1/31/2027"_s });
    QCOMPARE(ExportedText(file),
        u"Tea\t-3\tA\tN\t1234.50\t7\t6/1/2026\t1/31/2027\r\n"
        "Wax\t0\t\tY\t-0.50\t0\t6/1/2026\t1/31/2027\r\n"_s);
}

void TextExportTest::rowsComeInTheOrderOfNames()
{
    ListFixture file(u"L"_s);
    file.list.columnOrder = { 0 };
    for (const QString& name : { u"b"_s, u"a"_s, u"C"_s })
        file.Add({ name });
    AddPartial(file, { { 1, 5 } });
    QCOMPARE(ExportedText(file), u"C\r\na\r\nb\r\n\r\n"_s);
}

void TextExportTest::aMissingValueRepeatsTheFieldBefore()
{
    ListFixture file(u"L"_s);
    AddPartial(file, { { 0, u"Tea"_s }, { 5, 7 } });
    AddPartial(file, { { 1, 4 }, { 3, true } });
    QCOMPARE(ExportedText(file),
        u"Tea\tTea\tTea\tTea\tTea\t7\t7\t7\r\n"
        "\t4\t4\tY\tY\tY\tY\tY\r\n"_s);
}

void TextExportTest::theColumnOrderRules_data()
{
    QTest::addColumn<QList<quint32>>("order");
    QTest::addColumn<QString>("text");
    using Order = QList<quint32>;
    QTest::newRow("none leaves empty lines") << Order {} << u"\r\n\r\n"_s;
    QTest::newRow("another order, once more") << Order { 5, 0, 1, 5, 0, 0, 0, 0 }
                                              << u"9\tTea\t4\t9\tTea\tTea\tTea\tTea\r\n"
                                                 "8\tWax\tWax\t8\tWax\tWax\tWax\tWax\r\n"_s;
    QTest::newRow("unknown columns are passed over")
        << Order { 99, 1, 8, 0, 0xFFFFFFFF } << u"4\tTea\r\n\tWax\r\n"_s;
    // Tea holds Name, Count, Shelf, Size; Wax holds Name, Size.
    QTest::newRow("the search ends with the length of the order")
        << Order { 0, 5, 2 } << u"Tea\tTea\tA\r\nWax\t8\t8\r\n"_s;
    QTest::newRow("a single column knows only the first value") << Order { 5 } << u"\r\n\r\n"_s;
}

void TextExportTest::theColumnOrderRules()
{
    QFETCH(QList<quint32>, order);
    ListFixture file(u"L"_s);
    file.list.columnOrder.assign(order.begin(), order.end());
    AddPartial(file, { { 0, u"Tea"_s }, { 1, 4 }, { 2, u"A"_s }, { 5, 9 } });
    AddPartial(file, { { 0, u"Wax"_s }, { 5, 8 } });
    QTEST(ExportedText(file), "text");
}

void TextExportTest::textsGoOutAsTheyStand()
{
    ListFixture file(u"L"_s);
    file.list.columnOrder = { 2, 0 };
    const QString shelf = u"a\tb\r\nc"_s + QChar(0xD800) + u"\"ü"_s;
    AddPartial(file, { { 0, u"N"_s }, { 2, shelf } });
    QCOMPARE(ExportedText(file), shelf + u"\tN\r\n"_s);
}

void TextExportTest::aFailedWriteIsToldAndTheRestStillOffered()
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

void TextExportTest::theDataFileIsNeverATarget()
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

void TextExportTest::aFileIsReplacedOnceAllIsWritten()
{
    const ListFixture file;
    const QString target = file.Path() + u".txt"_s;
    WriteFileBytes(target, "longer than before");
    QVERIFY(QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner));
    const auto permissions = QFile::permissions(target);
    for (const bool isCommitted : { false, true }) {
        const ListFile made = CreateListFile(target, file.Path());
        QVERIFY(made.file != nullptr && made.file->write("new") == 3);
        if (isCommitted)
            QCOMPARE(made.Commit(), QString());
        QCOMPARE(FileBytes(target), isCommitted ? "new"_ba : "longer than before"_ba);
    }
    QCOMPARE(QFile::permissions(target), permissions);
    QCOMPARE(QDir(QFileInfo(target).path()).entryList(QDir::Files).size(), 2);
}

QUILLORY_TEST(QCoreApplication, TextExportTest)
#include "text_export_test.moc"
