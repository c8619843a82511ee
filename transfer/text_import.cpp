// SPDX-License-Identifier: MIT
#include "transfer/text_import.h"

#include "store/list_catalogue.h"
#include "transfer/import_batch.h"
#include "transfer/import_rows.h"
#include "transfer/import_runs.h"

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
    RowWriter(DataVolume& volume, std::span<const PropertyId> columns, const ValueContext& context,
        size_t batchLines)
        : m_volume(volume)
        , m_database(volume.OpenDatabase(ListCatalogue::kRowsType))
        , m_columns(columns)
        , m_context(context)
        , m_batchLines(batchLines)
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
        return ++m_lines < m_batchLines || EndBatch();
    }
    /// Makes the rows of the batch under way durable.
    bool EndBatch()
    {
        if (!m_transaction)
            return m_error == ErrorNumber::None;
        const bool isStored = m_transaction->Commit();
        m_transaction.reset();
        if (!isStored)
            return Fail(m_volume.LastError());
        m_rows += std::exchange(m_batchRows, 0);
        m_lines = 0;
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
    size_t m_batchLines;
    std::vector<PropertyValue> m_values;
    std::optional<Transaction> m_transaction;
    size_t m_lines = 0;
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
        , m_writer(volume, columns, context, limits.lines)
    {
        m_progress.bytesTotal = source.isSequential() ? 0 : source.size();
    }

    ImportOutcome Run()
    {
        while (IsGoingOn() && m_reader.Next()) {
            m_batch.Add(m_reader.Fields());
            ++m_progress.lines;
            if (m_batch.IsFull())
                PutAside();
            Report();
        }
        if (!m_runs.IsEmpty() && IsGoingOn())
            PutAside();
        StoreBatch();
        if (IsGoingOn() && !m_runs.Drain(m_store))
            m_outcome.writeError = ErrorNumber::ReadFault;
        if (IsGoingOn())
            m_writer.EndBatch();
        if (m_reader.HasFailed())
            m_outcome.result = ImportResult::Failed;
        m_outcome.rows = m_writer.Rows();
        m_outcome.lines = m_reader.LinesRead();
        m_outcome.isLastLineOpen = m_reader.HasOpenLine();
        if (m_writer.Error() != ErrorNumber::None)
            m_outcome.writeError = m_writer.Error();
        return m_outcome;
    }

private:
    const ImportMonitor& m_monitor;
    ImportFieldReader m_reader;
    ImportBatch m_batch;
    ImportRuns m_runs;
    RowWriter m_writer;
    ImportProgress m_progress;
    ImportOutcome m_outcome;
    qint64 m_steps = 0;
    const ImportBatch::Visitor m_store = [this](std::span<const QStringView> fields) {
        return m_writer.Store(fields) && Report();
    };

    [[nodiscard]] bool IsGoingOn() const
    {
        return m_outcome.result == ImportResult::Done && m_writer.Error() == ErrorNumber::None;
    }
    /// A batch that cannot be put aside is stored at once.
    void PutAside()
    {
        if (m_batch.IsEmpty() || m_runs.PutAside(m_batch))
            return;
        StoreBatch();
        if (IsGoingOn())
            m_writer.EndBatch();
    }
    void StoreBatch()
    {
        if (IsGoingOn())
            m_batch.Visit(m_store);
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
    std::vector<PropertyValue> values;
    ImportOutcome outcome;
    while (reader.Next()) {
        ReadFields(reader.Fields(), columns, context, values);
        outcome.rows += values.empty() ? 0 : 1;
    }
    outcome.lines = reader.LinesRead();
    outcome.isLastLineOpen = reader.HasOpenLine();
    if (reader.HasFailed())
        outcome.result = ImportResult::Failed;
    return outcome;
}

} // namespace Quillory
