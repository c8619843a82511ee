// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"

#include <QAbstractTableModel>

#include <optional>

namespace Quillory {

/// The columns of a list that is being defined: name and type, in the order of the list.
class ColumnTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ColumnTableModel(
        const std::vector<ColumnDefinition>& columns, QObject* parent = nullptr);

    /// The columns with their kinds. A column of no user type, the expiry date, takes the kind of
    /// the one before it, 0 at the top.
    [[nodiscard]] std::vector<ColumnDefinition> Columns() const;

    [[nodiscard]] bool IsFull() const { return rowCount() >= kMaxColumns; }
    [[nodiscard]] bool HasExpiryDate() const;
    /// Name and Count can be moved and renamed, not deleted.
    [[nodiscard]] bool IsDeletable(int row) const;

    /// A user column of a type, 0 to 4, before `row`; behind the last for a row that is not there.
    /// Each gives the row where the column stands.
    int InsertColumn(int row, const QString& name, int typeIndex);
    int InsertExpiryDate(int row);
    void DeleteColumn(int row);
    int MoveColumn(int row, int to);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(
        int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<ColumnDefinition> m_columns;

    int Insert(int row, ColumnDefinition column);
};

/// The template identifier of a user column of a type; the number is drawn anew when the list is
/// made.
[[nodiscard]] PropertyId ColumnTemplate(int typeIndex);

} // namespace Quillory
