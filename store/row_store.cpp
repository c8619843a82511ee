// SPDX-License-Identifier: MIT
#include "store/row_store.h"

#include "store/column_scan.h"
#include "store/list_catalogue.h"
#include "store/row_sort.h"
#include "values/column_type.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr DatabaseType kRows = ListCatalogue::kRowsType;

/// The rows that pass in the order of names, up to the first one that cannot be read.
Listing RowsUpToDamage(Database& database, const FilterSet* filters, const ValueContext& context)
{
    Listing listing;
    listing.error = ScanFilteredInPlace(
        database, {}, filters, context, ScanOrder::Sorted, [&listing](const ScannedRecord& record) {
            listing.rows.push_back(record.Oid());
            return true;
        }).Error();
    return listing;
}

} // namespace

RowStore::RowStore(DataVolume& volume, const InventoryList& list, const ValueContext& context)
    : m_volume(volume)
    , m_list(list)
    , m_context(context)
{ }

Listing RowStore::FillRows()
{
    Database* database = m_volume.OpenDatabase(kRows);
    if (database == nullptr)
        return { {}, m_volume.LastError() };
    auto rows = database->ListRecords();
    if (rows)
        return { std::move(*rows), ErrorNumber::None };
    Listing listing = RowsUpToDamage(*database, nullptr, m_context);
    listing.error = rows.Error();
    return listing;
}

Listing RowStore::FillFilteredRows(const FilterSet& filters)
{
    Database* database = m_volume.OpenDatabase(kRows);
    if (database == nullptr || filters.entries.empty())
        return FillRows();
    std::vector<ObjectId> passing;
    const auto scanned = ScanFilteredInPlace(*database, {}, &filters, m_context, ScanOrder::Any,
        [&passing](const ScannedRecord& record) {
            passing.push_back(record.Oid());
            return true;
        });
    if (!scanned) {
        Listing listing = RowsUpToDamage(*database, &filters, m_context);
        listing.error = scanned.Error();
        return listing;
    }
    if (passing.empty())
        return {};
    const RowSet passingRows(passing);
    Listing listing = FillRows();
    std::erase_if(listing.rows, [&](ObjectId oid) { return !passingRows.Contains(oid); });
    return listing;
}

qint64 RowStore::RowCount()
{
    return std::max<qint64>(m_volume.RecordCount(kRows), 0);
}

std::vector<ObjectId> RowStore::RowsNamed(const QString& beginning)
{
    Database* database = m_volume.OpenDatabase(kRows);
    std::vector<ObjectId> named;
    if (database == nullptr)
        return named;
    PropertyValue name { PropName, 0, {} };
    const std::array kIds { PropName };
    const auto scanned
        = database->ScanInPlace(kIds, ScanOrder::Any, [&](const ScannedRecord& record) {
              record.Read(0, name);
              const auto* text = std::get_if<QString>(&name.value);
              if (text != nullptr && text->startsWith(beginning, Qt::CaseInsensitive))
                  named.push_back(record.Oid());
              return true;
          });
    return scanned ? named : std::vector<ObjectId>();
}

Listing RowStore::SortRows(std::vector<ObjectId> rows, PropertyId column)
{
    Database* database = m_volume.OpenDatabase(kRows);
    if (database == nullptr)
        return { std::move(rows), m_volume.LastError() };
    auto sorted = SortByColumn(*database, rows, column);
    if (sorted)
        return { std::move(*sorted), ErrorNumber::None };
    return { std::move(rows), sorted.Error() };
}

std::vector<PropertyValue> RowStore::ParseTexts(std::span<const QString> texts) const
{
    std::vector<PropertyValue> values;
    values.reserve(texts.size());
    const size_t count = std::min(texts.size(), m_list.columns.size());
    for (size_t i = 0; i < count; ++i) {
        if (auto value = ParseValueText(m_list.columns[i].id, texts[i], m_context))
            values.push_back(std::move(*value));
    }
    return values;
}

ObjectId RowStore::WriteNewRow(std::span<const QString> texts)
{
    return m_volume.Write(kRows, kNoObject, ParseTexts(texts));
}

bool RowStore::ModifyRow(ObjectId row, std::span<const QString> texts)
{
    return row != kNoObject && m_volume.Write(kRows, row, ParseTexts(texts)) == row;
}

bool RowStore::IsGone(ObjectId row)
{
    return m_volume.SeekTo(kRows, row) == kNoObject
        && m_volume.LastError() == ErrorNumber::NotFound;
}

ObjectId RowStore::CopyRow(ObjectId row)
{
    const Record record = ReadRow(row);
    return record ? m_volume.Write(kRows, kNoObject, record.values) : kNoObject;
}

bool RowStore::DeleteRow(ObjectId row)
{
    return m_volume.DeleteRecord(kRows, row);
}

std::optional<qint32> RowStore::AdjustCount(ObjectId row, qint32 step)
{
    constexpr std::array kIds { PropCount };
    const auto isCount = [](const ColumnDefinition& column) { return column.id == PropCount; };
    if (std::none_of(m_list.columns.begin(), m_list.columns.end(), isCount)
        || m_volume.SeekTo(kRows, row) == kNoObject)
        return std::nullopt;
    Transaction transaction(m_volume);
    if (!transaction)
        return std::nullopt;
    const Record record = m_volume.Read(kRows, kIds);
    if (!record)
        return std::nullopt;
    const PropertyValue& stored = record.values.front();
    const qint32 before = stored.IsMissing() ? 0 : std::get<qint32>(stored.value);
    const auto count
        = static_cast<qint32>(static_cast<quint32>(before) + static_cast<quint32>(step));
    const std::array<PropertyValue, 1> values { { { PropCount, 0, count } } };
    if (m_volume.Write(kRows, row, values) != row || !transaction.Commit())
        return std::nullopt;
    return count;
}

bool RowStore::SetCheckboxValue(ObjectId row, PropertyId column, bool isChecked)
{
    const std::array<PropertyValue, 1> values { { { column, 0, isChecked } } };
    return row != kNoObject && m_volume.Write(kRows, row, values) == row;
}

Record RowStore::ReadRow(ObjectId row)
{
    return m_volume.SeekTo(kRows, row) == kNoObject ? Record {} : m_volume.ReadAll(kRows);
}

ListTotals RowStore::Totals(const FilterSet* filters)
{
    return ComputeTotals(m_volume, m_list, filters, m_context);
}

QString RowStore::FormatCellText(PropertyId column, ObjectId row)
{
    if (m_volume.SeekTo(kRows, row) == kNoObject)
        return u"<Err>"_s;
    const Record record = m_volume.Read(kRows, std::span(&column, 1));
    if (!record)
        return u"<Err>"_s;
    const PropertyValue& value = record.values.front();
    return Quillory::FormatCellText(value.IsMissing() ? nullptr : &value, column, m_context);
}

} // namespace Quillory
