// SPDX-License-Identifier: MIT
#include "store/row_sort.h"

#include "store/column_scan.h"
#include "values/column_type.h"
#include "values/file_date.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <utility>

namespace Quillory {

namespace {

/// A row's key beside its place, so that a sort touches nothing else.
struct SortEntry
{
    quint64 key = 0;
    quint32 position = 0;

    friend bool operator<(const SortEntry& a, const SortEntry& b)
    {
        return a.key != b.key ? a.key < b.key : a.position < b.position;
    }
};

using Entries = std::vector<SortEntry>;
using EntrySpan = std::span<SortEntry>;

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

/// Digits of a key, from the lowest.
constexpr int kDigitBits = 11;
constexpr size_t kDigits = 6;
using DigitCounts = std::array<std::array<quint32, size_t { 1 } << kDigitBits>, kDigits>;

size_t DigitOf(quint64 key, size_t digit)
{
    return static_cast<size_t>(key >> (digit * kDigitBits)) & ((size_t { 1 } << kDigitBits) - 1);
}

/// Sorts entries that stand in the order of their positions, digit by digit; digits that all keys
/// share cost nothing.
void SortDigits(EntrySpan entries, Entries& spare)
{
    DigitCounts counts {};
    for (const SortEntry& entry : entries) {
        for (size_t digit = 0; digit < kDigits; ++digit)
            ++counts[digit][DigitOf(entry.key, digit)];
    }
    spare.resize(std::max(spare.size(), entries.size()));
    EntrySpan from = entries;
    EntrySpan to = EntrySpan(spare).first(entries.size());
    for (size_t digit = 0; digit < kDigits; ++digit) {
        auto& places = counts[digit];
        if (places[DigitOf(entries.front().key, digit)] == entries.size())
            continue;
        quint32 next = 0;
        for (quint32& place : places)
            next += std::exchange(place, next);
        for (const SortEntry& entry : from)
            to[places[DigitOf(entry.key, digit)]++] = entry;
        std::swap(from, to);
    }
    if (from.data() != entries.data())
        std::ranges::copy(from, entries.begin());
}

void SortByKey(EntrySpan entries, Entries& spare)
{
    constexpr size_t kWorthCounting = 4096;
    if (entries.size() < kWorthCounting)
        std::sort(entries.begin(), entries.end());
    else
        SortDigits(entries, spare);
}

/// The texts of a column by the positions of their rows.
class ColumnTexts
{
public:
    explicit ColumnTexts(size_t rows)
        : m_begins(rows)
        , m_bytes(kKeyBytes)
    { }

    void Add(quint32 position, QByteArrayView text)
    {
        m_begins[position] = m_bytes.size();
        m_bytes.insert(m_bytes.end(), text.begin(), text.end());
        m_bytes.resize(m_bytes.size() + kKeyBytes);
    }
    /// Sorts entries that stand in the order of their positions.
    void Sort(EntrySpan entries) { SortFrom(entries, 0); }

private:
    /// So many bytes of a text make a key. As many zeros end each text, which holds none, so that
    /// the key of a text's end is smaller than that of a longer one.
    static constexpr size_t kKeyBytes = sizeof(quint64);
    static constexpr quint64 kLastUnit = 0xFFFF;

    /// Where each text begins. A row without one has the empty text at the front.
    std::vector<size_t> m_begins;
    std::vector<char> m_bytes;
    Entries m_spare;

    [[nodiscard]] const char* TextOf(const SortEntry& entry) const
    {
        return m_bytes.data() + m_begins[entry.position];
    }

    /// Sorts entries whose texts are equal in their first `depth` bytes.
    void SortFrom(EntrySpan entries, size_t depth)
    {
        constexpr size_t kFewEntries = 16;
        constexpr size_t kMaxDepth = 32 * kKeyBytes;
        if (entries.size() < kFewEntries || depth >= kMaxDepth)
            return SortWhole(entries, depth);
        for (SortEntry& entry : entries)
            entry.key = qFromBigEndian<quint64>(TextOf(entry) + depth);
        SortByKey(entries, m_spare);
        for (auto begin = entries.begin(); begin != entries.end();) {
            const quint64 key = begin->key;
            const auto end = std::find_if(
                begin, entries.end(), [key](const SortEntry& entry) { return entry.key != key; });
            if (end - begin > 1 && (key & kLastUnit) != 0)
                SortFrom({ begin, end }, depth + kKeyBytes);
            begin = end;
        }
    }

    void SortWhole(EntrySpan entries, size_t depth)
    {
        std::sort(entries.begin(), entries.end(), [&](const SortEntry& a, const SortEntry& b) {
            const int order = CompareFrom(TextOf(a) + depth, TextOf(b) + depth);
            return order != 0 ? order < 0 : a.position < b.position;
        });
    }
    static int CompareFrom(const char* a, const char* b)
    {
        for (;; a += kKeyBytes, b += kKeyBytes) {
            const auto keyOfA = qFromBigEndian<quint64>(a);
            const auto keyOfB = qFromBigEndian<quint64>(b);
            if (keyOfA != keyOfB)
                return keyOfA < keyOfB ? -1 : 1;
            if ((keyOfA & kLastUnit) == 0)
                return 0;
        }
    }
};

/// An entry for each row, in their order.
template <typename KeyOfRow>
Entries EntriesOf(const std::vector<ObjectId>& rows, const KeyOfRow& keyOf)
{
    Entries entries(rows.size());
    for (size_t i = 0; i < rows.size(); ++i)
        entries[i] = { keyOf(rows[i]), static_cast<quint32>(i) };
    return entries;
}

Result<Entries> SortNumbers(
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
    Entries entries = EntriesOf(rows, [&keys](ObjectId row) { return keys.Find(row); });
    Entries spare;
    SortByKey(entries, spare);
    return entries;
}

Result<Entries> SortTexts(
    Database& database, const std::vector<ObjectId>& rows, PropertyId column, ScanOrder order)
{
    constexpr quint32 kNowhere = std::numeric_limits<quint32>::max();
    Entries entries = EntriesOf(rows, [](ObjectId) { return quint64 { 0 }; });
    RecordMap<quint32> positions(rows, kNowhere);
    for (const SortEntry& entry : entries)
        positions.Set(rows[entry.position], entry.position);
    ColumnTexts texts(rows.size());
    const auto read
        = database.ScanInPlace(std::span(&column, 1), order, [&](const ScannedRecord& record) {
              const quint32 position = positions.Find(record.Oid());
              if (position != kNowhere)
                  texts.Add(position, record.Bytes(0));
              return true;
          });
    if (!read)
        return read.Error();
    texts.Sort(entries);
    return entries;
}

} // namespace

Result<std::vector<ObjectId>> SortByColumn(
    Database& database, const std::vector<ObjectId>& rows, PropertyId column, ScanOrder order)
{
    const bool isText = ColumnTypeOf(column) == ColumnType::String;
    const auto entries = (isText ? SortTexts : SortNumbers)(database, rows, column, order);
    if (!entries)
        return entries.Error();
    std::vector<ObjectId> sorted;
    sorted.reserve(rows.size());
    for (const SortEntry& entry : *entries)
        sorted.push_back(rows[entry.position]);
    return sorted;
}

Result<std::vector<ObjectId>> ListWithoutIndex(Database& database)
{
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
