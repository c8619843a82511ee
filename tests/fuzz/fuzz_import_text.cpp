// SPDX-License-Identifier: MIT
#include "tests/fuzz/fuzz_context.h"
#include "tests/trickle.h"
#include "transfer/export_lines.h"
#include "transfer/import_rows.h"

#include <QtEndian>

#include <string>
#include <vector>

using namespace Quillory;
using namespace std::string_view_literals;

namespace {

using Fields = std::vector<QString>;
using Row = std::vector<PropertyValue>;

/// One way to import: whose locale, which columns, and how the file comes in.
struct Way
{
    const ValueContext& context;
    std::vector<PropertyId> columns;
    qint64 step = 0;
    size_t maxLine = 0;
};

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
    Way way { FuzzedContext(first), { kFuzzedColumns.begin(), kFuzzedColumns.end() },
        kSteps.at(second % kSteps.size()), second < 128 ? kMaxLine : kShortLine };
    const auto shift = static_cast<std::ptrdiff_t>(first / 4 % way.columns.size());
    std::rotate(way.columns.begin(), way.columns.begin() + shift, way.columns.end());
    way.columns.resize(1 + second / kSteps.size() % way.columns.size());
    return way;
}

/// Reads a file as an import does. Each row has an entry for each column.
std::vector<Row> Import(const QByteArray& bytes, const Way& way, std::vector<Fields>& lines)
{
    Trickle source(bytes, way.step);
    ImportFieldReader reader(
        source, way.columns.size(), way.context.userLocale.codePage, way.maxLine);
    std::vector<Row> rows;
    Row values;
    while (reader.Next()) {
        Fields& line = lines.emplace_back();
        for (const QStringView field : reader.Fields())
            line.push_back(field.toString());
        ReadFields(reader.Fields(), way.columns, way.context, values);
        Row& row = rows.emplace_back();
        for (const PropertyId column : way.columns) {
            const PropertyValue* value = FindProperty(values, column);
            row.push_back(
                value != nullptr ? *value : PropertyValue { column, CEDB_PROPNOTFOUND, {} });
        }
    }
    return rows;
}

/// A row as the database hands it out.
class RowRecord final : public ScannedRecord
{
public:
    explicit RowRecord(const Row& row)
        : m_row(row)
    {
        for (const PropertyValue& value : row) {
            const auto* text = std::get_if<QString>(&value.value);
            QByteArray& bytes = m_bytes.emplace_back(2 * (text ? text->size() : 0), '\0');
            qToBigEndian<quint16>(text ? text->utf16() : nullptr, bytes.size() / 2, bytes.data());
        }
    }
    ObjectId Oid() const override { return kNoObject; }
    bool IsMissing(size_t place) const override { return m_row[place].IsMissing(); }
    qint64 Integer(size_t place) const override
    {
        const PropertyVariant& value = m_row[place].value;
        if (const auto* time = std::get_if<FileTime>(&value))
            return static_cast<qint64>(time->ticks);
        const auto* number = std::get_if<qint32>(&value);
        return number ? *number : std::get<bool>(value);
    }
    double Number(size_t place) const override { return std::get<double>(m_row[place].value); }
    QByteArrayView Bytes(size_t place) const override { return m_bytes[place]; }

private:
    const Row& m_row;
    std::vector<QByteArray> m_bytes;
};

/// The export of rows.
QString Export(const std::vector<Row>& rows, const Way& way)
{
    InventoryList list;
    for (const PropertyId column : way.columns)
        list.columns.push_back({ {}, 0, column });
    list.columnOrder = NaturalColumnOrder(list);
    ExportLineBuilder builder(list, way.context);
    std::u16string text(1, QChar::ByteOrderMark);
    for (const Row& row : rows)
        builder.AppendLine(text, RowRecord(row));
    return TextOf(text);
}

} // namespace

/// The first two bytes choose the way, the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    Way way = WayOf(data[0], data[1]);
    const QByteArray file(
        reinterpret_cast<const char*>(data + 2), static_cast<qsizetype>(size) - 2);
    std::vector<Fields> lines;
    std::vector<Row> rows = Import(file, way, lines);
    Require(lines == PlainReader(file, way).ReadAll(), "lines are cut as they should be");

    static_cast<void>(Export(rows, way));
    std::erase_if(rows, [](const Row& row) { return !IsPlain(row); });
    if (rows.empty())
        return 0;
    const QString text = Export(rows, way);
    const QByteArray bytes(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    lines.clear();
    way.maxLine = kMaxLine;
    const std::vector<Row> again = Import(bytes, way, lines);
    Require(again.size() == rows.size(), "as many rows come back");
    Require(Export(again, way) == text, "a plain row comes back as it was");
    return 0;
}
