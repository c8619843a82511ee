#include "store/list_catalogue.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"
#include "values/column_type.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>

#include <cmath>
#include <cstdlib>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

void Require(bool isTrue, const char* what)
{
    if (!isTrue)
        qFatal("broken: %s", what);
}

/// A data file in memory with one list of every column type, opened once for all inputs.
class Target
{
public:
    Target()
        : m_folder(QFile::exists(u"/dev/shm"_s) ? u"/dev/shm/fuzz_import-XXXXXX"_s : QString())
        , m_catalogue(m_volume)
    {
        const QString path = QDir(m_folder.path()).filePath(u"data.idb"_s);
        Require(m_volume.Mount(path, Disposition::OpenAlways) == ErrorNumber::None
                && m_catalogue.OpenCatalogue() == ListCatalogue::OpenOutcome::Opened,
            "a data file");
        InventoryList list = NewInventoryList();
        list.Name = u"L"_s;
        quint16 number = 1;
        for (const ValueType type : { CEVT_LPWSTR, CEVT_BOOL, CEVT_R8, CEVT_I4, CEVT_FILETIME })
            list.columns.push_back({ u"C"_s, 0, MakePropertyId(number++, type) });
        m_oid = m_catalogue.CreateList(list).oid;
        Require(m_oid != kNoObject, "a list");
    }

    void Empty()
    {
        Require(m_catalogue.DeleteAllRows(m_oid) == ListCatalogue::EmptyOutcome::Done
                && m_catalogue.OpenList(m_oid, m_list),
            "an empty list");
    }
    qint64 Import(const QByteArray& bytes)
    {
        std::vector<PropertyId> columns;
        for (const ColumnDefinition& column : m_list.columns)
            columns.push_back(column.id);
        QBuffer source;
        source.setData(bytes);
        source.open(QIODevice::ReadOnly);
        const ImportOutcome outcome = ImportRows(m_volume, columns, m_context, source);
        Require(outcome.writeError == ErrorNumber::None, "storing");
        return outcome.rows;
    }
    QByteArray Export()
    {
        QBuffer target;
        target.open(QIODevice::WriteOnly);
        const ExportOutcome outcome = ExportRows(Rows(), m_list, m_context, target);
        Require(outcome.writeFailure.isEmpty() && outcome.readError == ErrorNumber::None, "export");
        return target.data();
    }
    /// For each row, in the order of an export, whether its line reads back as the same row: every
    /// value is there, and the price is one that its text holds.
    std::vector<bool> PlainRows()
    {
        constexpr double kManyDigits = 1e15;
        std::vector<PropertyId> ids;
        for (const ColumnDefinition& column : m_list.columns)
            ids.push_back(column.id);
        std::vector<bool> plain;
        const auto scanned = Rows().Scan(
            ids, ScanOrder::Sorted, [&plain](ObjectId, std::span<const PropertyValue> values) {
                bool isPlain = true;
                for (const PropertyValue& value : values) {
                    const auto* price = std::get_if<double>(&value.value);
                    isPlain = isPlain && !value.IsMissing()
                        && (price == nullptr || std::abs(*price) < kManyDigits);
                }
                plain.push_back(isPlain);
                return true;
            });
        Require(scanned.IsOk(), "a scan");
        return plain;
    }

    void SetLocale(const QString& name)
    {
        m_context.userLocale = LocaleProfile::For(name);
        m_context.systemLocale = m_context.userLocale;
    }

private:
    QTemporaryDir m_folder;
    DataVolume m_volume;
    ListCatalogue m_catalogue;
    ObjectId m_oid = kNoObject;
    InventoryList m_list;
    ValueContext m_context { LocaleProfile::For(u"en_US"_s), LocaleProfile::For(u"en_US"_s),
        [] {
            return LocalTime { QDate(2026, 6, 15), QTime(12, 30) };
        },
        u"Checked"_s, u"Unchecked"_s };

    Database& Rows() { return *m_volume.OpenDatabase(ListCatalogue::kRowsType); }
};

/// The lines of an exported file; its texts hold no CR.
QStringList Lines(const QByteArray& bytes)
{
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / 2);
    return text.mid(1).split(u"\r\n"_s);
}

} // namespace

/// The first byte chooses the locale, the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Target target;
    static const QStringList locales { u"en_US"_s, u"de_DE"_s, u"ja_JP"_s, u"th_TH"_s };
    if (size == 0)
        return 0;
    target.SetLocale(locales[data[0] % locales.size()]);

    target.Empty();
    const qint64 rows
        = target.Import({ reinterpret_cast<const char*>(data + 1), qsizetype(size) - 1 });
    const QByteArray first = target.Export();
    const std::vector<bool> plain = target.PlainRows();
    Require(std::ssize(plain) == rows, "every row counted is in the list");
    if (rows == 0)
        return 0;

    target.Empty();
    Require(target.Import(first) == rows, "every exported row comes back");
    const QStringList before = Lines(first);
    const QStringList after = Lines(target.Export());
    Require(before.size() == after.size(), "as many lines");
    for (size_t i = 0; i < plain.size(); ++i) {
        const auto line = static_cast<qsizetype>(i);
        Require(!plain[i] || before[line] == after[line], "a plain row comes back as it was");
    }
    return 0;
}
