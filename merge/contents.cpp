// SPDX-License-Identifier: MIT
#include "merge/contents.h"

#include "store/list_catalogue.h"

#include <algorithm>
#include <bit>
#include <tuple>

namespace Quillory {

namespace {

bool ComesBefore(const RowMark& a, const RowMark& b)
{
    return std::tie(a.origin, a.row) < std::tie(b.origin, b.row);
}

/// Equal for records of equal values.
class Fingerprint
{
public:
    explicit Fingerprint(std::vector<PropertyId> ids)
        : m_ids(std::move(ids))
    { }

    [[nodiscard]] quint64 operator()(const ScannedRecord& record) const
    {
        quint64 hash = 0;
        for (size_t i = 0; i < m_ids.size(); ++i)
            hash = record.IsMissing(i) ? StableHash(i, ~hash) : ValueHash(record, i, hash);
        return hash;
    }

private:
    std::vector<PropertyId> m_ids;

    [[nodiscard]] quint64 ValueHash(const ScannedRecord& record, size_t place, quint64 seed) const
    {
        switch (PropertyType(m_ids[place])) {
        case CEVT_R8:
            return StableHash(std::bit_cast<quint64>(record.Number(place)), seed);
        case CEVT_LPWSTR:
        case CEVT_BLOB:
            return StableHash(record.Bytes(place), seed);
        default:
            return StableHash(static_cast<quint64>(record.Integer(place)), seed);
        }
    }
};

/// Gives an origin of its own to each row but the first of those that have one in common: no file
/// of this program's has such rows, and none may be lost.
void PartTwins(std::vector<RowMark>& rows)
{
    bool haveTwins = false;
    for (size_t i = 1; i < rows.size(); ++i) {
        if (rows[i].origin != rows[i - 1].origin)
            continue;
        haveTwins = true;
        const auto origin = static_cast<quint64>(rows[i].origin);
        for (quint64 twin = 1; i < rows.size() && static_cast<quint64>(rows[i].origin) == origin;
             ++i, ++twin)
            rows[i].origin = static_cast<Origin>(StableHash(origin, twin));
        --i;
    }
    if (haveTwins)
        std::ranges::sort(rows, ComesBefore);
}

Result<std::vector<RowMark>> ReadMarks(Database& rows, const InventoryList& list)
{
    const std::vector<PropertyId> ids = ColumnIds(list);
    const Fingerprint fingerprint(ids);
    std::vector<RowMark> marks;
    QUILLORY_TRY(rows.ScanOrigins(ids, [&](Origin origin, const ScannedRecord& record) {
        marks.push_back({ origin, fingerprint(record), record.Oid() });
        return true;
    }));
    std::ranges::sort(marks, ComesBefore);
    PartTwins(marks);
    return marks;
}

Result<ListContents> ReadList(Volume& volume, const Record& record)
{
    ListContents list { record.oid, ListCatalogue::DefinitionOf(record.values), {} };
    QUILLORY_TRY_VALUE(
        const auto rows, volume.OpenDatabase(list.definition.MapName, ListCatalogue::kByRowName));
    list.definition.columns = ListCatalogue::ColumnsOf(rows->Properties());
    QUILLORY_TRY_VALUE(list.rows, ReadMarks(*rows, list.definition));
    return list;
}

} // namespace

std::vector<PropertyId> ColumnIds(const InventoryList& list)
{
    std::vector<PropertyId> ids;
    for (const ColumnDefinition& column : list.columns)
        ids.push_back(column.id);
    return ids;
}

ListKey KeyOf(const InventoryList& list)
{
    return { list.MapName, ColumnIds(list) };
}

Result<FileContents> ReadContents(Volume& volume)
{
    FileContents contents;
    QUILLORY_TRY_VALUE(contents.history, volume.ReadHistory());
    QUILLORY_TRY_VALUE(const auto databases, volume.Databases());
    if (databases.empty())
        return contents;
    QUILLORY_TRY_VALUE(const auto catalogue,
        volume.OpenDatabase(ListCatalogue::kDatabaseName, ListCatalogue::kByListName));
    QUILLORY_TRY_VALUE(const auto records, catalogue->ListRecords());
    for (const ObjectId oid : records) {
        const auto place = catalogue->SeekTo(oid);
        QUILLORY_TRY_VALUE(const auto record, place ? catalogue->ReadAll() : place.Error());
        QUILLORY_TRY_VALUE(auto list, ReadList(volume, record));
        const ListKey key = KeyOf(list.definition);
        if (!contents.lists.emplace(key, std::move(list)).second)
            return ErrorNumber::FileCorrupt;
    }
    return contents;
}

RowReader::RowReader(Volume& volume, const InventoryList& list)
    : m_volume(volume)
    , m_list(list)
    , m_ids(ColumnIds(list))
{ }

Result<RowValues> RowReader::Read(ObjectId row)
{
    if (m_rows == nullptr) {
        QUILLORY_TRY_VALUE(
            m_rows, m_volume.OpenDatabase(m_list.MapName, ListCatalogue::kByRowName));
    }
    const auto place = m_rows->SeekTo(row);
    QUILLORY_TRY_VALUE(auto record, place ? m_rows->Read(m_ids) : place.Error());
    return std::move(record.values);
}

} // namespace Quillory
