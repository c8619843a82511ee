// SPDX-License-Identifier: MIT
#pragma once

#include "store/list_catalogue.h"

#include <QAbstractListModel>

#include <functional>

namespace Quillory {

enum class SortDirection
{
    Ascending = 16,
    Descending = 32,
};

/// The lists of the data file by name and icon.
class HomeListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void SetLists(std::vector<ListCatalogue::HomeListEntry> lists);
    /// Adds a line at the end.
    void Add(const ListCatalogue::HomeListEntry& list);
    /// Replaces the line of the same list.
    void Update(const ListCatalogue::HomeListEntry& list);
    void Remove(ObjectId oid);
    /// Orders the lines by their names' 16-bit units.
    void Sort(SortDirection direction);

    [[nodiscard]] ObjectId OidAt(const QModelIndex& index) const;
    [[nodiscard]] QString NameAt(const QModelIndex& index) const;
    /// Invalid if there is no such line.
    [[nodiscard]] QModelIndex Find(ObjectId oid) const;

    /// Stores a new name for a list; false if it cannot.
    using Renamer = std::function<bool(ObjectId oid, const QString& name)>;
    /// Who is asked when a line is renamed in place; without one no line can be.
    void SetRenamer(Renamer renamer);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(
        int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// A line has a new name and may stand in the wrong place now.
    void Renamed();

private:
    std::vector<ListCatalogue::HomeListEntry> m_lists;
    Renamer m_renamer;

    [[nodiscard]] const ListCatalogue::HomeListEntry& At(const QModelIndex& index) const;
};

} // namespace Quillory
