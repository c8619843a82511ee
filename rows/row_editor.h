// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/value_text.h"
#include "widgets/page.h"

#include <vector>

class QStandardItemModel;
class QTableView;

namespace Quillory {

class FieldControl;

/// The fields of one row, a line each, edited in their places one at a time. Ends with Ok, or with
/// Cancel and nothing to be written.
class RowEditor : public Page
{
    Q_OBJECT

public:
    /// `row` holds the values to start with; null for those of a new row. `list` and `context`
    /// outlive the page.
    RowEditor(const InventoryList& list, const Record* row, const ValueContext& context,
        QWidget* parent = nullptr);

    /// The texts that it starts with for a row, or for a new one if it is null.
    [[nodiscard]] static std::vector<QString> TextsOf(
        const InventoryList& list, const Record* row, const ValueContext& context);

    /// One text per column, in column order, what is being typed included.
    [[nodiscard]] std::vector<QString> Texts() const;
    /// Shows texts that were typed before and could not be stored.
    void SetTexts(const std::vector<QString>& texts);

    [[nodiscard]] bool HasUnsavedInput() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    [[nodiscard]] bool PrepareEnd(PageResult result) override;

private:
    const InventoryList& m_list;
    std::vector<QString> m_startTexts;
    QStandardItemModel* m_lines;
    QTableView* m_view;
    FieldControl* m_control;
    /// The field being edited.
    int m_current = 0;
    bool m_isTapOffLines = false;

    void BuildTable();
    void BuildControl();
    /// Puts what the control says into its line.
    void Commit();
    void Edit(int field);
    void Step(int by);
    void Confirm();
    /// Whether something was typed into a date that names no day.
    [[nodiscard]] bool IsUnreadDate(int field) const;
    void PlaceControl();
    void KeepInView();
    [[nodiscard]] int LastField() const;
};

} // namespace Quillory
