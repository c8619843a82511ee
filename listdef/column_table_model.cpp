// SPDX-License-Identifier: MIT
#include "listdef/column_table_model.h"

#include "res/string_table.h"
#include "values/column_type.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

namespace {

enum TableColumn
{
    NameColumn,
    TypeColumn,
    TableColumnCount,
};

constexpr std::array kTemplates {
    MakePropertyId(10003, CEVT_LPWSTR),
    MakePropertyId(10004, CEVT_BOOL),
    MakePropertyId(10005, CEVT_R8),
    MakePropertyId(10006, CEVT_I4),
    MakePropertyId(10007, CEVT_FILETIME),
};

std::optional<int> TypeIndexOf(PropertyId id)
{
    const auto found = std::find(kTemplates.begin(), kTemplates.end(), id);
    if (found == kTemplates.end())
        return std::nullopt;
    return static_cast<int>(found - kTemplates.begin());
}

QString TypeName(PropertyId id)
{
    if (id == PropName)
        return LoadString(StringId::TypeName);
    if (id == PropCount)
        return LoadString(StringId::TypeCount);
    if (id == PropExpiryDate)
        return LoadString(StringId::TypeExpiryDate);
    return LoadString(static_cast<int>(StringId::TypeString) + TypeIndexOf(id).value_or(0));
}

} // namespace

PropertyId ColumnTemplate(int typeIndex)
{
    return kTemplates.at(static_cast<size_t>(typeIndex));
}

ColumnTableModel::ColumnTableModel(const std::vector<ColumnDefinition>& columns, QObject* parent)
    : QAbstractTableModel(parent)
    , m_columns(columns)
{ }

std::vector<ColumnDefinition> ColumnTableModel::Columns() const
{
    std::vector<ColumnDefinition> columns = m_columns;
    int kind = 0;
    for (ColumnDefinition& column : columns) {
        if (column.id == PropName)
            kind = kKindName;
        else if (column.id == PropCount)
            kind = kKindCount;
        else
            kind = TypeIndexOf(column.id).value_or(kind);
        column.kind = kind;
    }
    return columns;
}

bool ColumnTableModel::HasExpiryDate() const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
        [](const ColumnDefinition& column) { return column.id == PropExpiryDate; });
}

bool ColumnTableModel::IsDeletable(int row) const
{
    if (row < 0 || row >= rowCount())
        return false;
    const PropertyId id = m_columns[static_cast<size_t>(row)].id;
    return id != PropName && id != PropCount;
}

int ColumnTableModel::Insert(int row, ColumnDefinition column)
{
    if (IsFull())
        return row;
    const int place = row < 0 || row > rowCount() ? rowCount() : row;
    beginInsertRows({}, place, place);
    m_columns.insert(m_columns.begin() + place, std::move(column));
    endInsertRows();
    return place;
}

int ColumnTableModel::InsertColumn(int row, const QString& name, int typeIndex)
{
    return Insert(row, { name.left(kMaxColumnNameLength), typeIndex, ColumnTemplate(typeIndex) });
}

int ColumnTableModel::InsertExpiryDate(int row)
{
    return Insert(row, { LoadString(StringId::TypeExpiryDate), 0, PropExpiryDate });
}

void ColumnTableModel::DeleteColumn(int row)
{
    beginRemoveRows({}, row, row);
    m_columns.erase(m_columns.begin() + row);
    endRemoveRows();
}

int ColumnTableModel::MoveColumn(int row, int to)
{
    if (to < 0 || to >= rowCount() || to == row)
        return row;
    // The place is counted as it is before the move.
    beginMoveRows({}, row, row, {}, to > row ? to + 1 : to);
    std::swap(m_columns[static_cast<size_t>(row)], m_columns[static_cast<size_t>(to)]);
    endMoveRows();
    return to;
}

int ColumnTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

int ColumnTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : TableColumnCount;
}

QVariant ColumnTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    const ColumnDefinition& column = m_columns[static_cast<size_t>(index.row())];
    return index.column() == NameColumn ? column.name : TypeName(column.id);
}

bool ColumnTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const QString name = value.toString().left(kMaxColumnNameLength);
    if (role != Qt::EditRole || index.column() != NameColumn || name.isEmpty())
        return false;
    m_columns[static_cast<size_t>(index.row())].name = name;
    Q_EMIT dataChanged(index, index);
    return true;
}

Qt::ItemFlags ColumnTableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == NameColumn ? flags | Qt::ItemIsEditable : flags;
}

QVariant ColumnTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    return LoadString(section == NameColumn ? StringId::Name : StringId::Type);
}

} // namespace Quillory
