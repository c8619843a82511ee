#include "transfer/text_import.h"

#include "store/list_catalogue.h"
#include "transfer/import_rows.h"
#include "values/column_type.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace Quillory {

namespace {

/// A batch ends at so many rows or so many bytes of the file, whichever comes first.
constexpr qint64 kBatchRows = 32'768;
constexpr qint64 kBatchBytes = 8'388'608;
constexpr qint64 kRowsPerCall = 1024;

/// Whether a failed write says something about the row alone, not about the data file.
bool IsRowsOwnFault(ErrorNumber error)
{
    return error == ErrorNumber::InvalidParameter || error == ErrorNumber::InvalidData
        || error == ErrorNumber::AlreadyExists || error == ErrorNumber::BadLength;
}

/// Gathers rows and stores them in transactions of limited size.
///
/// A batch goes to the store in the order of names, rows of one name as they came: the index then
/// takes each batch in one sweep instead of a random walk, and the list reads the same.
class BatchWriter
{
public:
    explicit BatchWriter(DataVolume& volume)
        : m_volume(volume)
        , m_database(volume.OpenDatabase(ListCatalogue::kRowsType))
    {
        if (m_database == nullptr)
            m_error = volume.LastError();
    }

    /// Takes the values of a row. False once storing has failed for good. `bytesRead` is how far
    /// the file has been read.
    bool Add(std::span<PropertyValue> values, qint64 bytesRead)
    {
        if (m_error != ErrorNumber::None)
            return false;
        const auto* name = FindProperty(values, PropName);
        const auto* text = name == nullptr ? nullptr : std::get_if<QString>(&name->value);
        m_batch.push_back({ text == nullptr ? QStringView() : QStringView(*text), text != nullptr,
            m_values.size(), values.size() });
        std::move(values.begin(), values.end(), std::back_inserter(m_values));
        const bool isFull
            = std::ssize(m_batch) >= kBatchRows || bytesRead - m_batchStart >= kBatchBytes;
        if (!isFull)
            return true;
        m_batchStart = bytesRead;
        return Store();
    }
    /// Makes the rows so far durable; false if they cannot be.
    bool Store()
    {
        if (m_batch.empty() || m_error != ErrorNumber::None)
            return m_error == ErrorNumber::None;
        SortBatch();
        const auto stored = StoreBatch();
        if (stored)
            m_rows += *stored;
        m_error = stored.Error();
        m_batch.clear();
        m_values.clear();
        return stored.IsOk();
    }

    /// Durable rows and those gathered.
    [[nodiscard]] qint64 Rows() const { return m_rows + std::ssize(m_batch); }
    [[nodiscard]] ErrorNumber Error() const { return m_error; }

private:
    /// A gathered row: a stretch of m_values.
    struct Row
    {
        /// Views the memory of the name among the values, which moving does not change.
        QStringView name;
        bool hasName;
        size_t first;
        size_t count;
    };

    DataVolume& m_volume;
    Database* m_database;
    std::vector<PropertyValue> m_values;
    std::vector<Row> m_batch;
    qint64 m_rows = 0;
    qint64 m_batchStart = 0;
    ErrorNumber m_error = ErrorNumber::None;

    /// As the store orders them: rows without a name last.
    void SortBatch()
    {
        std::sort(m_batch.begin(), m_batch.end(), [](const Row& a, const Row& b) {
            if (a.hasName != b.hasName)
                return a.hasName;
            const int order = a.name.compare(b.name);
            return order != 0 ? order < 0 : a.first < b.first;
        });
    }
    /// How many of the gathered rows the store took; all or none are durable.
    Result<qint64> StoreBatch()
    {
        Transaction transaction(m_volume);
        if (!transaction)
            return m_volume.LastError();
        qint64 count = 0;
        for (const Row& row : m_batch) {
            const auto written
                = m_database->Write(kNoObject, std::span(m_values).subspan(row.first, row.count));
            if (!written && !IsRowsOwnFault(written.Error()))
                return written.Error();
            count += written ? 1 : 0;
        }
        if (!transaction.Commit())
            return m_volume.LastError();
        return count;
    }
};

} // namespace

ImportOutcome ImportRows(DataVolume& volume, std::span<const PropertyId> columns,
    const ValueContext& context, QIODevice& source, const ImportMonitor& monitor)
{
    const qint64 total = source.isSequential() ? 0 : source.size();
    ImportRowReader reader(source, columns, context);
    BatchWriter batches(volume);
    ImportOutcome outcome;
    qint64 count = 0;
    while (outcome.result == ImportResult::Done && reader.Next()
        && batches.Add(reader.Values(), reader.BytesRead())) {
        ++count;
        if (count % kRowsPerCall == 0 && monitor
            && !monitor({ reader.BytesRead(), total, batches.Rows() }))
            outcome.result = ImportResult::Cancelled;
    }
    batches.Store();
    if (reader.HasFailed())
        outcome.result = ImportResult::Failed;
    outcome.rows = batches.Rows();
    outcome.writeError = batches.Error();
    return outcome;
}

ImportOutcome CountImportRows(
    std::span<const PropertyId> columns, const ValueContext& context, QIODevice& source)
{
    ImportRowReader reader(source, columns, context);
    ImportOutcome outcome;
    while (reader.Next())
        ++outcome.rows;
    if (reader.HasFailed())
        outcome.result = ImportResult::Failed;
    return outcome;
}

} // namespace Quillory
