// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/scanned_record.h"

#include <vector>

namespace Quillory {

/// A varint of SQLite's file format: a number of one to nine bytes. A size of 0 where there are no
/// bytes.
struct StoredNumber
{
    quint64 value = 0;
    qsizetype size = 0;
};
[[nodiscard]] StoredNumber ReadStoredNumber(QByteArrayView bytes);

/// A record from the bytes that a page holds. A place that the record does not have, or whose bytes
/// it lacks, is missing.
class StoredRecord final : public ScannedRecord
{
public:
    /// The record's first `skipped` columns have no places. Reads from `bytes` while it lives.
    StoredRecord(qint64 rowId, QByteArrayView bytes, size_t skipped);

    /// Pages do not say which column it is.
    [[nodiscard]] Origin StoredOrigin() const override { return kNoOrigin; }
    [[nodiscard]] ObjectId Oid() const override { return static_cast<ObjectId>(m_rowId); }
    [[nodiscard]] bool IsMissing(size_t place) const override;
    [[nodiscard]] qint64 Integer(size_t place) const override;
    [[nodiscard]] double Number(size_t place) const override;
    [[nodiscard]] QByteArrayView Bytes(size_t place) const override;

    [[nodiscard]] size_t Size() const { return m_columns.size(); }
    [[nodiscard]] QString Text(size_t place) const;

private:
    struct Column
    {
        /// The serial type of SQLite's record format: how the bytes are to be read.
        quint64 kind = 0;
        QByteArrayView bytes;
    };

    qint64 m_rowId;
    std::vector<Column> m_columns;
};

} // namespace Quillory
