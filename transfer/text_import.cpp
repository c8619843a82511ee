#include "transfer/text_import.h"

#include "store/list_catalogue.h"
#include "transfer/import_batch.h"
#include "transfer/import_rows.h"

#include <vector>

namespace Quillory {

namespace {

constexpr qint64 kLinesPerCall = 1000;

/// Whether a failed write says something about the row alone, not about the data file.
bool IsRowsOwnFault(ErrorNumber error)
{
    return error == ErrorNumber::InvalidParameter || error == ErrorNumber::InvalidData
        || error == ErrorNumber::AlreadyExists || error == ErrorNumber::BadLength;
}

/// Stores batches of lines as rows, one transaction each.
class RowWriter
{
public:
    RowWriter(DataVolume& volume, std::span<const PropertyId> columns, const ValueContext& context)
        : m_volume(volume)
        , m_database(volume.OpenDatabase(ListCatalogue::kRowsType))
        , m_columns(columns)
        , m_context(context)
    {
        if (m_database == nullptr)
            m_error = volume.LastError();
    }

    /// Empties the batch. False once storing has failed for good: then its rows are not stored.
    bool Store(ImportBatch& batch)
    {
        if (m_error != ErrorNumber::None || batch.IsEmpty())
            return m_error == ErrorNumber::None;
        Transaction transaction(m_volume);
        if (!transaction)
            return Fail(m_volume.LastError());
        qint64 stored = 0;
        batch.Drain([&](std::span<const QStringView> fields) {
            ReadFields(fields, m_columns, m_context, m_values);
            if (m_values.empty())
                return true;
            const auto written = m_database->Write(kNoObject, m_values);
            stored += written ? 1 : 0;
            return written || IsRowsOwnFault(written.Error()) || Fail(written.Error());
        });
        if (m_error != ErrorNumber::None)
            return false;
        if (!transaction.Commit())
            return Fail(m_volume.LastError());
        m_rows += stored;
        return true;
    }

    /// Rows that are durable.
    [[nodiscard]] qint64 Rows() const { return m_rows; }
    [[nodiscard]] ErrorNumber Error() const { return m_error; }

private:
    DataVolume& m_volume;
    Database* m_database;
    std::span<const PropertyId> m_columns;
    const ValueContext& m_context;
    std::vector<PropertyValue> m_values;
    qint64 m_rows = 0;
    ErrorNumber m_error = ErrorNumber::None;

    bool Fail(ErrorNumber error)
    {
        m_error = error;
        return false;
    }
};

} // namespace

ImportOutcome ImportRows(DataVolume& volume, std::span<const PropertyId> columns,
    const ValueContext& context, QIODevice& source, const ImportMonitor& monitor,
    const ImportBatchLimits& limits)
{
    const qint64 total = source.isSequential() ? 0 : source.size();
    ImportFieldReader reader(source, columns.size(), context.userLocale.codePage);
    ImportBatch batch(columns, limits);
    RowWriter writer(volume, columns, context);
    ImportOutcome outcome;
    qint64 lines = 0;
    while (outcome.result == ImportResult::Done && writer.Error() == ErrorNumber::None
        && reader.Next()) {
        batch.Add(reader.Fields());
        if (batch.IsFull())
            writer.Store(batch);
        if (++lines % kLinesPerCall == 0 && monitor
            && !monitor({ reader.BytesRead(), total, writer.Rows() }))
            outcome.result = ImportResult::Cancelled;
    }
    if (outcome.result != ImportResult::Cancelled)
        writer.Store(batch);
    if (reader.HasFailed())
        outcome.result = ImportResult::Failed;
    outcome.rows = writer.Rows();
    outcome.writeError = writer.Error();
    return outcome;
}

ImportOutcome CountImportRows(
    std::span<const PropertyId> columns, const ValueContext& context, QIODevice& source)
{
    ImportFieldReader reader(source, columns.size(), context.userLocale.codePage);
    std::vector<PropertyValue> values;
    ImportOutcome outcome;
    while (reader.Next()) {
        ReadFields(reader.Fields(), columns, context, values);
        outcome.rows += values.empty() ? 0 : 1;
    }
    if (reader.HasFailed())
        outcome.result = ImportResult::Failed;
    return outcome;
}

} // namespace Quillory
