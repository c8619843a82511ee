// SPDX-License-Identifier: MIT
#include "store/row_sort.h"

#include "store/column_scan.h"
#include "store/key_sort.h"
#include "store/text_sort.h"
#include "values/column_type.h"
#include "values/file_date.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace Quillory {

namespace {

constexpr quint64 kSign = quint64 { 1 } << 63;

/// Keys that stand in the order of the numbers.
quint64 KeyOf(qint64 number)
{
    return static_cast<quint64>(number) ^ kSign;
}

quint64 KeyOf(double number)
{
    // Adding zero makes one of the two zeros.
    const auto bits = std::bit_cast<quint64>(number + 0.0);
    return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

quint64 KeyOf(const ScannedRecord& record, ColumnType type)
{
    switch (type) {
    case ColumnType::Integer:
        return KeyOf(qint64 { static_cast<qint32>(record.Integer(0)) });
    case ColumnType::Checkbox:
        return KeyOf(qint64 { record.Integer(0) != 0 });
    case ColumnType::Date: {
        const FileTime time { static_cast<quint64>(record.Integer(0)) };
        const bool isMissing = time == FileTime {} && record.IsMissing(0);
        return KeyOf(isMissing ? 0.0 : FileTimeToDateNumber(time).value_or(0.0));
    }
    case ColumnType::Price:
    case ColumnType::String:
        break;
    }
    return KeyOf(record.Number(0));
}

Result<std::vector<quint32>> SortNumbers(
    Database& database, const std::vector<ObjectId>& rows, PropertyId column, ScanOrder order)
{
    const ColumnType type = ColumnTypeOf(column);
    const bool isFraction = type == ColumnType::Price || type == ColumnType::Date;
    RecordMap<quint64> keys(rows, isFraction ? KeyOf(0.0) : KeyOf(qint64 { 0 }));
    const auto read
        = database.ScanInPlace(std::span(&column, 1), order, [&](const ScannedRecord& record) {
              keys.Set(record.Oid(), KeyOf(record, type));
              return true;
          });
    if (!read)
        return read.Error();
    std::vector<SortEntry> entries(rows.size());
    for (size_t i = 0; i < rows.size(); ++i)
        entries[i] = { keys.Find(rows[i]), static_cast<quint32>(i) };
    std::vector<SortEntry> spare;
    SortByKey(entries, spare);
    return PositionsOf(entries);
}

Result<std::vector<quint32>> SortTexts(
    Database& database, const std::vector<ObjectId>& rows, PropertyId column, ScanOrder order)
{
    constexpr quint32 kNowhere = std::numeric_limits<quint32>::max();
    RecordMap<quint32> positions(rows, kNowhere);
    for (size_t i = 0; i < rows.size(); ++i)
        positions.Set(rows[i], static_cast<quint32>(i));
    TextSort texts(rows.size());
    const auto read
        = database.ScanInPlace(std::span(&column, 1), order, [&](const ScannedRecord& record) {
              const quint32 position = positions.Find(record.Oid());
              if (position != kNowhere)
                  texts.Set(position, record.Bytes(0));
              return true;
          });
    if (!read)
        return read.Error();
    return texts.Sort();
}

} // namespace

Result<std::vector<ObjectId>> SortByColumn(
    Database& database, const std::vector<ObjectId>& rows, PropertyId column, ScanOrder order)
{
    const bool isText = ColumnTypeOf(column) == ColumnType::String;
    QUILLORY_TRY_VALUE(
        const auto positions, (isText ? SortTexts : SortNumbers)(database, rows, column, order));
    std::vector<ObjectId> sorted(rows.size());
    std::ranges::transform(
        positions, sorted.begin(), [&rows](quint32 position) { return rows[position]; });
    return sorted;
}

Result<std::vector<ObjectId>> ListByName(Database& database)
{
    if (auto listed = database.ListRecords())
        return listed;
    constexpr PropertyId kNameColumn = PropName;
    std::vector<ObjectId> named;
    std::vector<ObjectId> nameless;
    const auto read = database.ScanInPlace(
        std::span(&kNameColumn, 1), ScanOrder::Stored, [&](const ScannedRecord& record) {
            (record.IsMissing(0) ? nameless : named).push_back(record.Oid());
            return true;
        });
    if (!read)
        return read.Error();
    auto rows = SortByColumn(database, named, kNameColumn, ScanOrder::Stored);
    if (rows)
        rows->insert(rows->end(), nameless.begin(), nameless.end());
    return rows;
}

} // namespace Quillory
