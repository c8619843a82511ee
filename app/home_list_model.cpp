// SPDX-License-Identifier: MIT
#include "app/home_list_model.h"

#include "res/string_table.h"
#include "widgets/icon_set.h"
#include "widgets/text_line.h"

#include <algorithm>
#include <utility>

namespace Quillory {

void HomeListModel::SetLists(std::vector<ListCatalogue::HomeListEntry> lists)
{
    beginResetModel();
    m_lists = std::move(lists);
    endResetModel();
}

void HomeListModel::Add(const ListCatalogue::HomeListEntry& list)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_lists.push_back(list);
    endInsertRows();
}

void HomeListModel::Update(const ListCatalogue::HomeListEntry& list)
{
    const QModelIndex index = Find(list.oid);
    if (!index.isValid())
        return;
    m_lists[static_cast<size_t>(index.row())] = list;
    Q_EMIT dataChanged(index, index);
}

void HomeListModel::Remove(ObjectId oid)
{
    const QModelIndex index = Find(oid);
    if (!index.isValid())
        return;
    beginRemoveRows({}, index.row(), index.row());
    m_lists.erase(m_lists.begin() + index.row());
    endRemoveRows();
}

void HomeListModel::Sort(SortDirection direction)
{
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<ObjectId> oids;
    for (const QModelIndex& index : before)
        oids.push_back(OidAt(index));
    std::stable_sort(
        m_lists.begin(), m_lists.end(), [direction](const auto& left, const auto& right) {
            return direction == SortDirection::Ascending ? left.name < right.name
                                                         : right.name < left.name;
        });
    QModelIndexList after;
    for (const ObjectId oid : oids)
        after.push_back(Find(oid));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

ObjectId HomeListModel::OidAt(const QModelIndex& index) const
{
    return index.isValid() ? At(index).oid : kNoObject;
}

QString HomeListModel::NameAt(const QModelIndex& index) const
{
    return index.isValid() ? At(index).name : QString();
}

QModelIndex HomeListModel::Find(ObjectId oid) const
{
    const auto found = std::find_if(
        m_lists.begin(), m_lists.end(), [oid](const auto& list) { return list.oid == oid; });
    return found == m_lists.end() ? QModelIndex()
                                  : index(static_cast<int>(std::distance(m_lists.begin(), found)));
}

void HomeListModel::SetRenamer(Renamer renamer)
{
    m_renamer = std::move(renamer);
}

int HomeListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lists.size());
}

QVariant HomeListModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return At(index).name;
    case Qt::ToolTipRole:
        return TipOf(At(index).name);
    case Qt::DecorationRole:
        return ListIcon(At(index).icon);
    default:
        return {};
    }
}

QVariant HomeListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (section != 0 || orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return LoadString(StringId::InventoryList);
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeading | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags HomeListModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable
                           : Qt::NoItemFlags;
}

bool HomeListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const QString name = value.toString().left(kMaxListNameLength);
    if (role != Qt::EditRole || !index.isValid() || name.isEmpty() || name == At(index).name)
        return false;
    if (!m_renamer || !m_renamer(At(index).oid, name))
        return false;
    m_lists[static_cast<size_t>(index.row())].name = name;
    Q_EMIT dataChanged(index, index);
    Q_EMIT Renamed();
    return true;
}

const ListCatalogue::HomeListEntry& HomeListModel::At(const QModelIndex& index) const
{
    return m_lists.at(static_cast<size_t>(index.row()));
}

} // namespace Quillory
