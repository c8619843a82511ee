#include "transfer/text_import.h"

#include "store/list_catalogue.h"
#include "transfer/import_rows.h"

#include <optional>

namespace Quillory {

namespace {

/// A batch ends at so many rows or so many bytes of the file, whichever comes first.
constexpr qint64 kBatchRows = 32'768;
constexpr qint64 kBatchBytes = 8 * 1024 * 1024;
constexpr qint64 kRowsPerCall = 1024;

/// Whether a failed write says something about the row alone, not about the data file.
bool IsRowsOwnFault(ErrorNumber error)
{
    return error == ErrorNumber::InvalidParameter || error == ErrorNumber::InvalidData
        || error == ErrorNumber::AlreadyExists || error == ErrorNumber::BadLength;
}

/// Stores rows in transactions of limited size.
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

    /// False once storing has failed for good. `bytesRead` is how far the file has been read.
    bool Add(std::span<const PropertyValue> values, qint64 bytesRead)
    {
        if (m_error != ErrorNumber::None || !Begin(bytesRead))
            return false;
        const auto written = m_database->Write(kNoObject, values);
        if (written)
            ++m_batchRows;
        else if (!IsRowsOwnFault(written.Error()))
            return Fail(written.Error());
        const bool isFull = m_batchRows >= kBatchRows || bytesRead - m_batchStart >= kBatchBytes;
        return !isFull || End();
    }
    /// Makes the rows so far durable.
    bool End()
    {
        if (!m_transaction)
            return m_error == ErrorNumber::None;
        const bool isCommitted = m_transaction->Commit();
        m_transaction.reset();
        if (!isCommitted)
            return Fail(m_volume.LastError());
        m_rows += m_batchRows;
        m_batchRows = 0;
        return true;
    }

    /// Durable rows and those of the batch under way.
    [[nodiscard]] qint64 Rows() const { return m_rows + m_batchRows; }
    [[nodiscard]] ErrorNumber Error() const { return m_error; }

private:
    DataVolume& m_volume;
    Database* m_database;
    std::optional<Transaction> m_transaction;
    qint64 m_rows = 0;
    qint64 m_batchRows = 0;
    qint64 m_batchStart = 0;
    ErrorNumber m_error = ErrorNumber::None;

    bool Begin(qint64 bytesRead)
    {
        if (m_transaction)
            return true;
        m_transaction.emplace(m_volume);
        m_batchStart = bytesRead;
        return *m_transaction ? true : Fail(m_volume.LastError());
    }
    /// The rows of the batch are gone with its transaction.
    bool Fail(ErrorNumber error)
    {
        m_transaction.reset();
        m_batchRows = 0;
        m_error = error;
        return false;
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
    batches.End();
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
