// SPDX-License-Identifier: MIT
#include "tests/fuzz/require.h"
#include "tests/list_fixture.h"
#include "tests/trickle.h"
#include "transfer/import_rows.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"

#include <QBuffer>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <span>
#include <string>
#include <vector>

using namespace Quillory;
using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

using Fields = std::vector<QString>;

/// One way to import: whose locale, which columns, and how the file comes in.
struct Way
{
    const ValueContext& context;
    std::vector<PropertyId> columns;
    qint64 step = 0;
    size_t maxLine = 0;
};

/// Locales whose dates, numbers and code pages differ, one of them chosen by a number; each is made
/// once. It is always the same day.
const ValueContext& FuzzedContext(size_t number)
{
    static const std::array contexts { TestContext(u"en_US"_s), TestContext(u"de_DE"_s),
        TestContext(u"ja_JP"_s), TestContext(u"th_TH"_s) };
    return contexts[number % contexts.size()];
}

/// A list with a column of every type, opened once for all inputs, in memory where there is some.
ListFixture& TheList()
{
    static ListFixture file = [] {
        if (QFile::exists(u"/dev/shm"_s))
            qputenv("TMPDIR", "/dev/shm");
        return ListFixture(u"L"_s);
    }();
    return file;
}

/// Its columns, or the first ones.
std::vector<PropertyId> Columns(size_t count = Expiry + 1)
{
    const auto columns = std::span(TheList().list.columns).first(count);
    std::vector<PropertyId> ids(columns.size());
    std::transform(columns.begin(), columns.end(), ids.begin(),
        [](const ColumnDefinition& column) { return column.id; });
    return ids;
}

/// Unlike QString::fromStdU16String it takes no first character for a byte-order mark.
QString TextOf(const std::u16string& units)
{
    return QStringView(units).toString();
}

/// The fields of a whole file by the simplest means, to compare with.
class PlainReader
{
public:
    PlainReader(QByteArray bytes, const Way& way)
        : m_maxFields(way.columns.size())
        , m_maxLine(way.maxLine)
        , m_page(*CodePage::For(way.context.userLocale.codePage))
    {
        m_isWide = bytes.startsWith("\xFF\xFE");
        if (m_isWide && bytes.size() % 2 != 0)
            bytes.append('\0');
        for (qsizetype i = m_isWide ? 2 : 0; i < bytes.size(); i += m_isWide ? 2 : 1) {
            const auto low = static_cast<quint8>(bytes[i]);
            const auto high = static_cast<quint8>(m_isWide ? bytes[i + 1] : '\0');
            m_text.push_back(static_cast<char16_t>(high << 8 | low));
        }
    }

    /// Lines without fields are left out.
    std::vector<Fields> ReadAll()
    {
        std::vector<Fields> lines;
        for (size_t begin = 0; begin < m_text.size();) {
            const size_t end = m_text.find(u'\r', begin);
            const std::u16string line = m_text.substr(begin, end - begin);
            if (end == m_text.npos || line.find(u'\0') != line.npos)
                break;
            begin = end + 2;
            if (Fields fields = FieldsOf(line); !fields.empty())
                lines.push_back(std::move(fields));
        }
        return lines;
    }

private:
    size_t m_maxFields;
    size_t m_maxLine;
    bool m_wasCut = false;
    const CodePage& m_page;
    bool m_isWide = false;
    std::u16string m_text;
    std::u16string m_buffer = std::u16string(1024, u'\0');

    /// In 8-bit text a line of more than half the buffer is followed by what an earlier one left.
    /// Of a line that is too long the beginning has to do, and it leaves nothing.
    Fields FieldsOf(std::u16string line)
    {
        const bool isCut = line.size() > m_maxLine;
        line.resize(std::min(line.size(), m_maxLine));
        if (m_isWide || m_wasCut || line.size() >= m_buffer.size())
            m_buffer.assign(std::max(line.size() + 1, m_buffer.size()), u'\0');
        m_wasCut = isCut;
        std::fill_n(m_buffer.begin(), m_buffer.size() / 2, u'\0');
        if (m_isWide)
            std::copy(line.begin(), line.end(), m_buffer.begin());
        else
            m_page.Decode(TextOf(line).toLatin1(), m_buffer.data());
        Fields fields = CutBuffer();
        if (isCut && fields.size() <= m_maxFields)
            return {};
        fields.resize(std::min(fields.size(), m_maxFields));
        return fields;
    }
    /// One field more than are wanted, if there is one. The TAB behind each becomes a NUL.
    Fields CutBuffer()
    {
        Fields fields;
        size_t place = 0;
        while (fields.size() <= m_maxFields) {
            place = m_buffer.find_first_not_of(u'\t', place);
            const size_t end = m_buffer.find_first_of(u"\t\0"sv, place);
            if (end == place)
                break;
            fields.push_back(TextOf(m_buffer.substr(place, end - place)));
            place = end + (m_buffer[end] == u'\t' ? 1 : 0);
            m_buffer[end] = u'\0';
        }
        return fields;
    }
};

/// The two bytes choose among everything there is.
Way WayOf(quint8 first, quint8 second)
{
    constexpr size_t kShortLine = 20;
    constexpr std::array<qint64, 8> kSteps { 1, 2, 3, 5, 16, 100, 1021, 1 << 20 };
    Way way { FuzzedContext(first), Columns(), kSteps.at(second % kSteps.size()),
        second < 128 ? kMaxLine : kShortLine };
    const auto shift = static_cast<std::ptrdiff_t>(first / 4 % way.columns.size());
    std::rotate(way.columns.begin(), way.columns.begin() + shift, way.columns.end());
    way.columns.resize(1 + second / kSteps.size() % way.columns.size());
    return way;
}

/// The lines of a file as an import reads them.
std::vector<Fields> LinesOf(const QByteArray& bytes, const Way& way)
{
    Trickle source(bytes, way.step);
    ImportFieldReader reader(
        source, way.columns.size(), way.context.userLocale.codePage, way.maxLine);
    std::vector<Fields> lines;
    while (reader.Next()) {
        Fields& line = lines.emplace_back();
        for (const QStringView field : reader.Fields())
            line.push_back(field.toString());
    }
    return lines;
}

/// Whether the text of a value holds all of it.
bool IsPlain(const PropertyValue& value)
{
    constexpr double kManyDigits = 1e50;
    const auto* price = std::get_if<double>(&value.value);
    return !value.IsMissing() && (price == nullptr || std::abs(*price) < kManyDigits);
}

/// A field becomes a value, and that the text of an export, which must say the same.
void FieldComesBack(const QString& field, PropertyId column, const ValueContext& context)
{
    const auto value = ParseImportText(column, field, context);
    if (!value || !IsPlain(*value))
        return;
    const QString text = FormatExportText(*value, context);
    const auto again = ParseImportText(column, text, context);
    Require(again && FormatExportText(*again, context) == text, "a plain value comes back");
}

/// Those that are imported and exported: as many as there are in the list's order.
std::vector<PropertyId> TheColumns()
{
    return Columns(TheList().list.columnOrder.size());
}

Database& Rows()
{
    return *TheList().data->OpenDatabase(ListCatalogue::kRowsType);
}

/// Imports a file into the list, which is emptied before; returns how many rows came in.
qint64 Import(const QByteArray& bytes, const ValueContext& context, size_t batchLines)
{
    constexpr size_t kBatchText = 4000;
    DataVolume& volume = *TheList().data;
    const auto rows = Rows().ListRecords();
    Require(rows.IsOk(), "a listing");
    // In one transaction: much faster than as the program does it.
    Transaction transaction(volume);
    for (const ObjectId row : *rows)
        Require(volume.DeleteRecord(ListCatalogue::kRowsType, row), "deleting");
    Require(transaction.Commit(), "an empty list");
    Trickle source(bytes, std::ssize(bytes) + 1);
    const ImportOutcome outcome
        = ImportRows(volume, TheColumns(), context, source, {}, { batchLines, kBatchText });
    Require(outcome.writeError == ErrorNumber::None, "storing");
    return outcome.rows;
}

QByteArray Export(const ValueContext& context)
{
    QBuffer target;
    target.open(QIODevice::WriteOnly);
    const ExportOutcome outcome = ExportRows(Rows(), TheList().list, context, target);
    Require(outcome.writeFailure.isEmpty() && outcome.readError == ErrorNumber::None, "export");
    return target.data();
}

/// For each row, in the order of an export, whether its line reads back as the same row.
std::vector<bool> PlainRows()
{
    std::vector<bool> plain;
    const auto scanned = Rows().Scan(
        TheColumns(), ScanOrder::Sorted, [&plain](ObjectId, std::span<const PropertyValue> values) {
            plain.push_back(std::all_of(values.begin(), values.end(), IsPlain));
            return true;
        });
    Require(scanned.IsOk(), "a scan");
    return plain;
}

/// The lines of an exported file; its texts hold no CR.
QStringList ExportedLines(const QByteArray& bytes)
{
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / 2);
    return text.mid(1).split(u"\r\n"_s);
}

/// A file goes into the first columns of the list, out of them, and in and out once more.
void RowsComeBack(
    const QByteArray& bytes, const ValueContext& context, size_t columns, size_t batchLines)
{
    std::vector<quint32>& order = TheList().list.columnOrder;
    order.resize(columns);
    std::iota(order.begin(), order.end(), 0);
    const qint64 rows = Import(bytes, context, batchLines);
    const QByteArray first = Export(context);
    const std::vector<bool> plain = PlainRows();
    Require(std::ssize(plain) == rows, "every row counted is in the list");
    if (rows == 0)
        return;
    Require(Import(first, context, batchLines) == rows, "every exported row comes back");
    const QStringList before = ExportedLines(first);
    const QStringList after = ExportedLines(Export(context));
    Require(before.size() == after.size(), "as many lines");
    for (size_t i = 0; i < plain.size(); ++i) {
        const auto line = static_cast<qsizetype>(i);
        Require(!plain[i] || before[line] == after[line], "a plain row comes back as it was");
    }
}

} // namespace

/// The first two bytes choose the way, the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    const Way way = WayOf(data[0], data[1]);
    const QByteArray file(
        reinterpret_cast<const char*>(data + 2), static_cast<qsizetype>(size) - 2);
    const std::vector<Fields> lines = LinesOf(file, way);
    Require(lines == PlainReader(file, way).ReadAll(), "lines are cut as they should be");
    for (const Fields& line : lines) {
        for (size_t i = 0; i < line.size(); ++i)
            FieldComesBack(line[i], way.columns[i], way.context);
    }
    // A data file takes so much longer that one input in fifty has to do: whichever, not those that
    // the fuzzer comes to prefer.
    constexpr size_t kStoredShare = 50;
    constexpr size_t kFewLines = 3;
    constexpr size_t kManyLines = 100'000;
    const size_t number = qHash(file, data[0]);
    if (number % kStoredShare == 0)
        RowsComeBack(
            file, way.context, way.columns.size(), number % 7 == 0 ? kFewLines : kManyLines);
    return 0;
}
