// SPDX-License-Identifier: MIT
#include "transfer/text_import.h"

#include "store/list_catalogue.h"
#include "transfer/ambiguous_dates.h"
#include "transfer/import_batch.h"
#include "transfer/import_rows.h"

#include <optional>
#include <utility>
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

/// Stores lines as rows, in batches of one transaction each.
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

    /// False once storing has failed for good: then the rows of the batch under way are not stored.
    bool Store(std::span<const QStringView> fields)
    {
        ReadFields(fields, m_columns, m_context, m_values);
        if (m_values.empty())
            return true;
        if (!Begin())
            return false;
        const auto written = m_database->Write(kNoObject, m_values);
        if (!written && !IsRowsOwnFault(written.Error()))
            return Fail(written.Error());
        m_batchRows += written ? 1 : 0;
        return true;
    }
    /// Makes the rows of the batch under way durable.
    void EndBatch()
    {
        if (!m_transaction)
            return;
        const bool isStored = m_transaction->Commit();
        m_transaction.reset();
        if (isStored)
            m_rows += std::exchange(m_batchRows, 0);
        else
            Fail(m_volume.LastError());
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
    std::optional<Transaction> m_transaction;
    qint64 m_batchRows = 0;
    qint64 m_rows = 0;
    ErrorNumber m_error = ErrorNumber::None;

    bool Begin()
    {
        if (m_error == ErrorNumber::None && !m_transaction) {
            m_transaction.emplace(m_volume);
            if (!*m_transaction)
                return Fail(m_volume.LastError());
        }
        return m_error == ErrorNumber::None;
    }
    bool Fail(ErrorNumber error)
    {
        m_error = error;
        m_transaction.reset();
        return false;
    }
};

/// One import from its first line to its last row.
class Import
{
public:
    Import(DataVolume& volume, std::span<const PropertyId> columns, const ValueContext& context,
        QIODevice& source, const ImportMonitor& monitor, const ImportBatchLimits& limits)
        : m_monitor(monitor)
        , m_reader(source, columns.size(), context.userLocale.codePage, limits.line)
        , m_batch(columns, limits)
        , m_dates(columns, context)
        , m_writer(volume, columns, context)
    {
        m_progress.bytesTotal = source.isSequential() ? 0 : source.size();
    }

    ImportOutcome Run()
    {
        while (IsGoingOn() && m_reader.Next()) {
            m_batch.Add(m_reader.Fields());
            m_dates.Look(m_reader.Fields());
            ++m_progress.lines;
            if (Report() && m_batch.IsFull())
                StoreBatch();
        }
        if (IsGoingOn())
            StoreBatch();
        if (m_reader.HasFailed())
            m_outcome.result = ImportResult::Failed;
        m_outcome.rows = m_writer.Rows();
        m_outcome.lines = m_reader.LinesRead();
        m_outcome.isLastLineOpen = m_reader.HasOpenLine();
        m_outcome.ambiguousDate = m_dates.First();
        m_outcome.writeError = m_writer.Error();
        return m_outcome;
    }

private:
    const ImportMonitor& m_monitor;
    ImportFieldReader m_reader;
    ImportBatch m_batch;
    AmbiguousDates m_dates;
    RowWriter m_writer;
    ImportProgress m_progress;
    ImportOutcome m_outcome;
    qint64 m_steps = 0;

    [[nodiscard]] bool IsGoingOn() const
    {
        return m_outcome.result == ImportResult::Done && m_writer.Error() == ErrorNumber::None;
    }
    /// A batch in the midst of which the import is cancelled is left out.
    void StoreBatch()
    {
        const bool isWhole = m_batch.Visit([this](std::span<const QStringView> fields) {
            return m_writer.Store(fields) && Report();
        });
        if (isWhole)
            m_writer.EndBatch();
        m_batch.Clear();
    }
    /// False once the import is cancelled.
    bool Report()
    {
        if (++m_steps % kLinesPerCall != 0 || !m_monitor)
            return true;
        m_progress.bytesRead = m_reader.BytesRead();
        m_progress.rows = m_writer.Rows();
        if (!m_monitor(m_progress))
            m_outcome.result = ImportResult::Cancelled;
        return m_outcome.result != ImportResult::Cancelled;
    }
};

} // namespace

ImportOutcome ImportRows(DataVolume& volume, std::span<const PropertyId> columns,
    const ValueContext& context, QIODevice& source, const ImportMonitor& monitor,
    const ImportBatchLimits& limits)
{
    return Import(volume, columns, context, source, monitor, limits).Run();
}

ImportOutcome CountImportRows(
    std::span<const PropertyId> columns, const ValueContext& context, QIODevice& source)
{
    ImportFieldReader reader(source, columns.size(), context.userLocale.codePage);
    AmbiguousDates dates(columns, context);
    std::vector<PropertyValue> values;
    ImportOutcome outcome;
    while (reader.Next()) {
        ReadFields(reader.Fields(), columns, context, values);
        outcome.rows += values.empty() ? 0 : 1;
        dates.Look(reader.Fields());
    }
    outcome.lines = reader.LinesRead();
    outcome.isLastLineOpen = reader.HasOpenLine();
    outcome.ambiguousDate = dates.First();
    if (reader.HasFailed())
        outcome.result = ImportResult::Failed;
    return outcome;
}

} // namespace Quillory
