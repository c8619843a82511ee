// SPDX-License-Identifier: MIT
#include "transfer/text_export.h"

#include "store/column_scan.h"
#include "transfer/export_lines.h"

#include <QtEndian>

#include <string>

namespace Quillory {

namespace {

/// Units of text that are gathered before they are written.
constexpr size_t kChunkUnits = 32'768;

/// Gathers text and writes it in chunks. After a failed write it goes on with the next chunk.
class ChunkWriter
{
public:
    explicit ChunkWriter(QIODevice& target)
        : m_target(target)
    {
        m_text.reserve(2 * kChunkUnits);
        m_text.push_back(QChar::ByteOrderMark);
    }

    /// What was not written yet; lines are appended to it.
    [[nodiscard]] std::u16string& Text() { return m_text; }
    void EndRow()
    {
        ++m_rows;
        if (m_text.size() >= kChunkUnits)
            Flush();
    }
    void Flush()
    {
        const auto units = static_cast<qsizetype>(m_text.size());
        qToLittleEndian<quint16>(m_text.data(), units, m_text.data());
        if (Write(reinterpret_cast<const char*>(m_text.data()),
                units * qsizetype { sizeof(char16_t) }))
            m_writtenRows += m_rows;
        m_rows = 0;
        m_text.clear();
    }

    [[nodiscard]] qint64 WrittenRows() const { return m_writtenRows; }
    [[nodiscard]] const QString& Failure() const { return m_failure; }

private:
    QIODevice& m_target;
    std::u16string m_text;
    qint64 m_rows = 0;
    qint64 m_writtenRows = 0;
    QString m_failure;

    bool Write(const char* bytes, qint64 size)
    {
        while (size > 0) {
            const qint64 written = m_target.write(bytes, size);
            if (written <= 0) {
                if (m_failure.isEmpty())
                    m_failure = m_target.errorString();
                return false;
            }
            bytes += written;
            size -= written;
        }
        return true;
    }
};

} // namespace

ExportOutcome ExportRows(Database& rows, const InventoryList& list, const ValueContext& context,
    QIODevice& target, const ExportMonitor& monitor)
{
    constexpr qint64 kRowsPerCall = 1024;
    ExportOutcome outcome;
    ChunkWriter writer(target);
    ExportLineBuilder builder(list, context);
    qint64 count = 0;
    const auto scanned
        = ScanPastDamage(rows, builder.Columns(), nullptr, context, [&](const ScannedRecord& row) {
              builder.AppendLine(writer.Text(), row);
              writer.EndRow();
              ++count;
              if (count % kRowsPerCall == 0 && monitor)
                  outcome.isCancelled = !monitor(count);
              return !outcome.isCancelled;
          });
    writer.Flush();
    outcome.rows = writer.WrittenRows();
    outcome.passedOver = scanned.passedOver;
    outcome.readError = scanned.error;
    outcome.writeFailure = writer.Failure();
    return outcome;
}

ExportOutcome ExportToFile(Database& rows, const InventoryList& list, const ValueContext& context,
    const ListFile& target, const ExportMonitor& monitor)
{
    ExportOutcome outcome = ExportRows(rows, list, context, *target.file, monitor);
    if (outcome.writeFailure.isEmpty() && !outcome.isCancelled)
        outcome.writeFailure = target.Commit();
    return outcome;
}

} // namespace Quillory
