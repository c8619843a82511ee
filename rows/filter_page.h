// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "values/filters.h"
#include "widgets/page.h"

class QComboBox;
class QStackedWidget;

namespace Quillory {

class DateField;
class TextLine;

enum class FilterMode
{
    Filter,
    Find,
};

/// One condition as the page takes and gives it. The fresh state names no column.
struct FilterDialogState
{
    FilterMode mode = FilterMode::Filter;
    FilterEntry entry;
};

/// Asks for a field, a condition and a value. Ends with Ok or Cancel.
class FilterPage : public Page
{
    Q_OBJECT

public:
    /// `context` outlives the page.
    FilterPage(FilterDialogState state, const InventoryList& list, const ValueContext& context,
        QWidget* parent = nullptr);

    /// What was chosen, once the page ended with Ok; otherwise what the page was opened with. With
    /// no condition chosen that is FilterCondition::None.
    [[nodiscard]] const FilterDialogState& State() const { return m_state; }

    [[nodiscard]] bool HasUnsavedInput() const override;

protected:
    [[nodiscard]] bool PrepareEnd(PageResult result) override;

private:
    FilterDialogState m_state;
    /// What the controls said at first.
    FilterEntry m_startEntry;
    const ValueContext& m_context;
    QComboBox* m_field;
    QComboBox* m_condition;
    /// The three controls of the value lie in one place.
    QStackedWidget* m_value;
    TextLine* m_text;
    QComboBox* m_checkbox;
    DateField* m_date;

    void NameControls();
    void FillFields(const InventoryList& list);
    void FillConditions();
    void SelectStoredCondition();
    void ShowValueControl();
    void ShowStoredValue();
    [[nodiscard]] PropertyId ChosenColumn() const;
    [[nodiscard]] QString ValueText() const;
    /// What the controls say.
    [[nodiscard]] FilterEntry ChosenEntry() const;
};

} // namespace Quillory
