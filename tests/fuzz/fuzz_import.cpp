// SPDX-License-Identifier: MIT
#include "tests/fuzz/fuzz_context.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"

#include <QBuffer>

#include <vector>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

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
        for (const PropertyId id : kFuzzedColumns) {
            if (!IsBuiltInColumn(id))
                list.columns.push_back({ u"C"_s, 0, id });
        }
        Require(m_catalogue.OpenList(m_catalogue.CreateList(list).oid, m_list), "a list");
    }

    /// In one transaction: much faster than as the program does it.
    void Empty()
    {
        const auto rows = Rows().ListRecords();
        Require(rows.IsOk(), "a listing");
        Transaction transaction(m_volume);
        for (const ObjectId row : *rows)
            Require(m_volume.DeleteRecord(ListCatalogue::kRowsType, row), "deleting");
        Require(transaction.Commit(), "an empty list");
    }
    qint64 Import(const QByteArray& bytes)
    {
        constexpr size_t kBatchText = 4000;
        QBuffer source;
        source.setData(bytes);
        source.open(QIODevice::ReadOnly);
        const ImportOutcome outcome = ImportRows(
            m_volume, kFuzzedColumns, *m_context, source, {}, { m_batchLines, kBatchText });
        Require(outcome.writeError == ErrorNumber::None, "storing");
        return outcome.rows;
    }
    QByteArray Export()
    {
        QBuffer target;
        target.open(QIODevice::WriteOnly);
        const ExportOutcome outcome = ExportRows(Rows(), m_list, *m_context, target);
        Require(outcome.writeFailure.isEmpty() && outcome.readError == ErrorNumber::None, "export");
        return target.data();
    }
    /// For each row, in the order of an export, whether its line reads back as the same row.
    std::vector<bool> PlainRows()
    {
        std::vector<bool> plain;
        const auto scanned = Rows().Scan(kFuzzedColumns, ScanOrder::Sorted,
            [&plain](ObjectId, std::span<const PropertyValue> values) {
                plain.push_back(IsPlain(values));
                return true;
            });
        Require(scanned.IsOk(), "a scan");
        return plain;
    }

    /// The locale by its number, and whether the lines of a small file come in several batches.
    void SetWay(size_t locale, bool isBatchSmall)
    {
        constexpr size_t kFewLines = 3;
        constexpr size_t kManyLines = 100'000;
        m_context = &FuzzedContext(locale);
        m_batchLines = isBatchSmall ? kFewLines : kManyLines;
    }

private:
    QTemporaryDir m_folder;
    DataVolume m_volume;
    ListCatalogue m_catalogue;
    InventoryList m_list;
    const ValueContext* m_context = nullptr;
    size_t m_batchLines = 0;

    Database& Rows() { return *m_volume.OpenDatabase(ListCatalogue::kRowsType); }
};

/// The lines of an exported file; its texts hold no CR.
QStringList Lines(const QByteArray& bytes)
{
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / 2);
    return text.mid(1).split(u"\r\n"_s);
}

} // namespace

/// The first two bytes choose the way, the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static Target target;
    constexpr size_t kHeader = 2;
    if (size < kHeader)
        return 0;
    target.SetWay(data[0], data[1] % 8 == 0);

    target.Empty();
    const qint64 rows = target.Import(
        { reinterpret_cast<const char*>(data + kHeader), qsizetype(size - kHeader) });
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
