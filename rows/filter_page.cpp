// SPDX-License-Identifier: MIT
#include "rows/filter_page.h"

#include "res/dialog_table.h"
#include "res/string_table.h"
#include "rows/date_field.h"
#include "rows/field_control.h"
#include "values/column_type.h"
#include "widgets/form.h"
#include "widgets/text_line.h"

#include <QComboBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

FilterPage::FilterPage(FilterDialogState state, const InventoryList& list,
    const ValueContext& context, QWidget* parent)
    : Page(
        state.mode == FilterMode::Find ? LoadText(Text::Find) : DialogTitle(Dialog::Filter), parent)
    , m_state(std::move(state))
    , m_context(context)
    , m_field(new QComboBox(this))
    , m_condition(new QComboBox(this))
    , m_value(new QStackedWidget(this))
    , m_text(new TextLine(m_value))
    , m_checkbox(new QComboBox(m_value))
    , m_date(new DateField(context, m_value))
{
    NameControls();
    for (QWidget* control : std::array<QWidget*, 3> { m_text, m_checkbox, m_date })
        m_value->addWidget(control);
    m_text->setMaxLength(kMaxFilterValueLength);
    m_checkbox->addItems({ LoadString(StringId::Unchecked), LoadString(StringId::Checked) });
    FillFields(list);
    FillConditions();
    SelectStoredCondition();
    ShowStoredValue();
    m_startEntry = ChosenEntry();
    connect(m_field, &QComboBox::currentIndexChanged, this, &FilterPage::FillConditions);

    auto* content = new QWidget(this);
    auto* lines = new QVBoxLayout(content);
    lines->setContentsMargins({});
    Form form(lines);
    form.AddLine(LoadText(Text::Field), m_field);
    form.AddLine(LoadText(Text::Condition), m_condition);
    form.AddLine(LoadText(Text::Value), m_value);
    lines->addStretch(1);
    Body()->addWidget(MakeScrollable(content));
    SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    // What is looked for is typed at once, mostly in the field that comes first.
    setFocusProxy(m_state.mode == FilterMode::Find ? static_cast<QWidget*>(m_value) : m_field);
}

void FilterPage::NameControls()
{
    setObjectName(u"filter"_s);
    m_field->setObjectName(u"fieldBox"_s);
    m_condition->setObjectName(u"conditionBox"_s);
    m_value->setObjectName(u"value"_s);
    m_text->setObjectName(u"valueEdit"_s);
    m_checkbox->setObjectName(u"checkboxValueBox"_s);
    m_date->setObjectName(u"datePicker"_s);
    const QString name = LoadText(Text::Value);
    for (QWidget* control : std::array<QWidget*, 4> { m_text, m_checkbox, m_date, m_date->Edit() })
        control->setAccessibleName(name);
}

void FilterPage::FillFields(const InventoryList& list)
{
    for (const ColumnDefinition& column : list.columns)
        m_field->addItem(column.name, static_cast<quint32>(column.id));
    const int stored = m_field->findData(static_cast<quint32>(m_state.entry.column));
    m_field->setCurrentIndex(std::max(stored, 0));
}

PropertyId FilterPage::ChosenColumn() const
{
    return static_cast<PropertyId>(m_field->currentData().toUInt());
}

void FilterPage::FillConditions()
{
    const PropertyId column = ChosenColumn();
    m_condition->clear();
    for (const FilterCondition condition : ConditionsFor(column))
        m_condition->addItem(ConditionText(column, condition), static_cast<int>(condition));
    m_condition->setCurrentIndex(0);
    ShowValueControl();
}

void FilterPage::SelectStoredCondition()
{
    // The stored code is taken for a position. A fresh state's "contains" stands for nothing in a
    // list of numbers or ticks; dates take it for their first condition.
    const PropertyId column = ChosenColumn();
    const FilterCondition condition = m_state.entry.condition;
    const bool isForeign = condition == FilterCondition::Contains
        && ColumnTypeOf(column) != ColumnType::Date
        && ConditionsFor(column).front() != FilterCondition::Contains;
    const int position = static_cast<int>(condition);
    m_condition->setCurrentIndex(isForeign || position >= m_condition->count() ? -1 : position);
}

void FilterPage::ShowValueControl()
{
    QWidget* shown = m_text;
    if (ColumnTypeOf(ChosenColumn()) == ColumnType::Checkbox)
        shown = m_checkbox;
    else if (ColumnTypeOf(ChosenColumn()) == ColumnType::Date)
        shown = m_date;
    for (QWidget* control : std::array<QWidget*, 3> { m_text, m_checkbox, m_date })
        control->setEnabled(control == shown);
    m_text->setInputMethodHints(HintsFor(ChosenColumn()));
    m_value->setCurrentWidget(shown);
    m_value->setFocusProxy(shown);
}

void FilterPage::ShowStoredValue()
{
    const QString& value = m_state.entry.value;
    m_checkbox->setCurrentIndex(value == u"T" ? 1 : 0);
    m_text->Give(value);
    m_date->Open(m_date->Read(value).value_or(m_context.clock().date));
}

QString FilterPage::ValueText() const
{
    switch (ColumnTypeOf(ChosenColumn())) {
    case ColumnType::Checkbox:
        return m_checkbox->currentIndex() == 0 ? u"F"_s : u"T"_s;
    case ColumnType::Date:
        return m_date->Entry();
    case ColumnType::String:
    case ColumnType::Price:
    case ColumnType::Integer:
        break;
    }
    return m_text->Entry();
}

FilterEntry FilterPage::ChosenEntry() const
{
    const QVariant code = m_condition->currentData();
    return { ChosenColumn(),
        code.isValid() ? static_cast<FilterCondition>(code.toInt()) : FilterCondition::None,
        ValueText() };
}

bool FilterPage::HasUnsavedInput() const
{
    const FilterEntry entry = ChosenEntry();
    return std::tie(entry.column, entry.condition, entry.value)
        != std::tie(m_startEntry.column, m_startEntry.condition, m_startEntry.value);
}

bool FilterPage::PrepareEnd(PageResult result)
{
    if (result != PageResult::Ok)
        return true;
    if (m_value->currentWidget() == m_date && m_date->IsUnread()) {
        m_date->TellUnread();
        return false;
    }
    m_state.entry = ChosenEntry();
    return true;
}

} // namespace Quillory
