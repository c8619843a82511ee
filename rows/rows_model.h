// SPDX-License-Identifier: MIT
#pragma once

#include "rows/row_look.h"
#include "store/row_store.h"

#include <QAbstractTableModel>
#include <QCache>
#include <QTimer>

#include <vector>

namespace Quillory {

/// The lines of a rows view: identifiers only. What is shown is read from the store when it is
/// asked for, and kept for the few rows that were asked for last. When another day begins, or the
/// clock is set to one, all of them change: what expires then is shown in other colours.
class RowsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// All three outlive the model.
    RowsModel(RowStore& rows, const InventoryList& list, const ValueContext& context,
        QObject* parent = nullptr);

    /// Shows these rows in this order.
    void SetRows(std::vector<ObjectId> rows);
    [[nodiscard]] const std::vector<ObjectId>& Rows() const { return m_rows; }
    [[nodiscard]] ObjectId RowAt(int line) const;
    /// Adds a line before the one at `line`, or at the end.
    void Insert(int line, ObjectId row);
    void Remove(int line);
    /// The row was changed in the store.
    void Refresh(int line);
    /// Any row may have been changed in the store.
    void RefreshAll();

    [[nodiscard]] RowFacts FactsOf(int line) const;
    /// A column's name, what a row holds in it, and what the row warns of.
    [[nodiscard]] QString Spoken(int line, PropertyId id) const;
    /// Whether a column holds the rows' names.
    [[nodiscard]] bool IsName(int column) const;
    [[nodiscard]] bool IsCheckbox(int column) const;
    /// Whether a column holds whole numbers or prices.
    [[nodiscard]] bool IsNumber(int column) const;
    [[nodiscard]] bool IsChecked(int line, int column) const;
    /// The text of a cell; empty in a checkbox column.
    [[nodiscard]] QString Text(int line, int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// The line, from `start` on and round again, whose row has a name that begins with `value`:
    /// what is typed in a list leads there. One scan of the names, not a look at each row.
    [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value,
        int hits, Qt::MatchFlags flags) const override;
    [[nodiscard]] QVariant headerData(
        int section, Qt::Orientation orientation, int role) const override;

private:
    /// A row as read; without values if it could not be.
    struct ShownRow
    {
        Record record;
        std::vector<QString> texts;
    };

    RowStore& m_store;
    const InventoryList& m_list;
    const ValueContext& m_context;
    std::vector<ObjectId> m_rows;
    mutable QCache<quint32, ShownRow> m_shown;
    QDate m_day;
    QTimer m_dayTimer;

    void FollowDay();

    [[nodiscard]] const ShownRow& Shown(int line) const;
    [[nodiscard]] PropertyId ColumnId(int column) const;
    [[nodiscard]] Qt::Alignment AlignmentOf(int column) const;
    [[nodiscard]] QString AccessibleText(int line, int column) const;
    [[nodiscard]] RowWarnings WarningsOf(int line) const;
};

} // namespace Quillory
