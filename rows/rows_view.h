// SPDX-License-Identifier: MIT
#pragma once

#include "rows/rows_model.h"
#include "store/row_store.h"
#include "widgets/page.h"

#include <functional>
#include <optional>

namespace Quillory {

class ColumnLayout;
class EmptyHint;
class FilterBar;
class RowsTable;

struct RowsViewOptions
{
    /// Shows rows and lets none be made, changed or deleted.
    bool isReadOnly = false;
    bool hasAlternateLines = false;
    /// For the results of a Find: shows the rows that meet this condition, without menus. If there
    /// are none it says so and ends.
    std::optional<FilterEntry> foundBy {};
};

/// The rows of the open list, and every command on them. However it is left, it has put the widths
/// and the order of its columns into the list's definition before it ends.
class RowsView : public Page
{
    Q_OBJECT

public:
    /// `rows`, `list` and `context` outlive the page.
    RowsView(RowStore& rows, InventoryList& list, const ValueContext& context,
        const RowsViewOptions& options, QWidget* parent = nullptr);

    /// Deletes a row; true if it did.
    using RowDeleter = std::function<bool(ObjectId row)>;
    /// Who deletes rows; the store itself unless told otherwise.
    void SetRowDeleter(RowDeleter deleter);
    /// Whether rows may come back into this view: neither into one that is only read, nor among the
    /// results of a Find.
    [[nodiscard]] bool MayShowRestored() const
    {
        return !m_options.isReadOnly && !m_options.foundBy;
    }
    /// Adds a line for a row that came back where it belongs in the order shown, and selects it;
    /// not if it does not meet the criteria.
    void ShowRestored(ObjectId row);
    /// Shows the rows that meet the criteria, the selected one selected again if it is among them,
    /// else the first.
    void Fill();
    /// The same once another version of the list lies in the file, in place: in the order that it
    /// is shown in, scrolled as it is, a row selected where one was.
    void Refresh();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    [[nodiscard]] bool PrepareEnd(PageResult result) override;
    [[nodiscard]] bool IsAsWideAsWindow() const override { return true; }
    /// Edits the selected row.
    void TakeReturn() override { Trigger(Command::Modify); }

private:
    /// One line of the table of commands.
    struct CommandEntry;
    static const CommandEntry kCommands[];

    RowStore& m_store;
    InventoryList& m_list;
    const ValueContext& m_context;
    RowsViewOptions m_options;
    RowDeleter m_deleter;
    RowsModel* m_model;
    RowsTable* m_view;
    ColumnLayout* m_columns = nullptr;
    EmptyHint* m_hint;
    FilterBar* m_filterBar;
    /// The criteria of the rows shown; none once filters were cleared, as at first.
    std::optional<FilterSet> m_filters;
    /// How many rows the list has, where criteria leave some of them. To count them takes as long
    /// as to read them all.
    qint64 m_rowCount = 0;
    bool m_isPartlyReadTold = false;
    /// The column by which the lines were sorted since they were filled.
    std::optional<PropertyId> m_sortColumn;
    std::vector<int> m_checkboxColumns;
    /// Where the latest tap went down, in the view's coordinates.
    QPoint m_tapPosition;

    void BuildTable();
    void BuildCommands();
    void TellNothingFound();

    void Run(Command command);
    void UpdateCommands();
    [[nodiscard]] bool HasCriteria() const;
    /// Tells how many rows a filter or a search leaves; a list that has lost or gained some is not
    /// counted again.
    void UpdateFilterBar(int gained);
    void OpenRowMenu(const QPoint& position);
    /// -1 if none is selected.
    [[nodiscard]] int SelectedLine() const;
    /// kNoObject if none is selected.
    [[nodiscard]] ObjectId SelectedRow() const;
    /// The cell of `column` becomes the current one, of the first column if it is -1.
    void Select(int line, int column = -1);
    /// -1 if the row is not shown.
    [[nodiscard]] int LineOf(ObjectId row) const;
    /// The rows to be shown, in the order of names.
    [[nodiscard]] std::vector<ObjectId> ReadRows();
    /// Says that the list can be read only in part, once for what is shown of it now.
    void TellPartlyRead(ErrorNumber error);
    void Push(Page* page, std::function<void(PageResult)> then);

    void NewRow();
    [[nodiscard]] bool AddRow(const std::vector<QString>& texts);
    void ModifyRow();
    /// Another device may have changed the row meanwhile: what was typed counts, in other columns
    /// what is there now. A row that is gone becomes a new one.
    [[nodiscard]] bool StoreEdited(const Record& before, std::vector<QString> texts);
    void CopyRow();
    void DeleteRow();
    void AddOne() { AdjustCount(1); }
    void SubtractOne() { AdjustCount(-1); }
    void AdjustCount(qint32 step);
    /// Shows what a command stored in a column, and has a screen reader say it.
    void ShowChange(int line, PropertyId id);
    void SortByColumn(int column);
    /// Marks the column by which the lines stand in order, always ascending.
    void MarkSorted(PropertyId id);
    void TapCell(const QModelIndex& index);
    void DoubleTapCell(const QModelIndex& index);
    void ToggleCheckbox(int line, int column);
    /// What Space does: ticks the only checkbox of the selected row, or the one of the current
    /// cell.
    void ToggleByKey();
    void ShowSummary();
    void SetFilters();
    void ClearFilters();
    void FindRows();
    void ShowFound(const FilterEntry& condition);
    /// Stores what was typed; false if it could not be.
    using RowWriter = std::function<bool(const std::vector<QString>& texts)>;
    /// Edits a row, or a new one for none. What could not be stored comes back to be tried again.
    void OpenEditor(const std::optional<Record>& row, const RowWriter& write,
        const std::vector<QString>& typed = {});
};

} // namespace Quillory
