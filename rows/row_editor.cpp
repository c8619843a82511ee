// SPDX-License-Identifier: MIT
#include "rows/row_editor.h"

#include "res/dialog_table.h"
#include "rows/date_field.h"
#include "rows/field_control.h"
#include "rows/row_field_delegate.h"
#include "values/column_type.h"
#include "widgets/line_view.h"
#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kValueColumn = 1;

/// What a column of a new row starts with, as the value that it would show.
std::optional<PropertyValue> NewValue(PropertyId column)
{
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        return PropertyValue { column, 0, qint32 { 0 } };
    case ColumnType::Price:
        return PropertyValue { column, 0, 0.0 };
    case ColumnType::Checkbox:
        return PropertyValue { column, 0, false };
    case ColumnType::String:
    case ColumnType::Date:
        break;
    }
    return std::nullopt;
}

QString StartText(PropertyId column, const Record* row, const ValueContext& context)
{
    if (row != nullptr)
        return FormatEditText(FindProperty(row->values, column), column, context);
    const auto value = NewValue(column);
    return FormatEditText(value ? &*value : nullptr, column, context);
}

} // namespace

RowEditor::RowEditor(
    const InventoryList& list, const Record* row, const ValueContext& context, QWidget* parent)
    : Page(list.Name, parent)
    , m_list(list)
    , m_startTexts(TextsOf(list, row, context))
    , m_lines(new QStandardItemModel(this))
    , m_view(new QTableView(this))
    , m_control(new FieldControl(context, m_view->viewport()))
{
    setObjectName(u"rowEditor"_s);
    SetHelpAnchor(QLatin1StringView(kHelpEditList));
    for (size_t i = 0; i < m_startTexts.size(); ++i)
        m_lines->appendRow(
            { new QStandardItem(list.columns[i].name), new QStandardItem(m_startTexts[i]) });
    BuildTable();
    BuildControl();
    SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    Edit(0);
}

std::vector<QString> RowEditor::TextsOf(
    const InventoryList& list, const Record* row, const ValueContext& context)
{
    std::vector<QString> texts;
    for (const ColumnDefinition& column : list.columns)
        texts.push_back(StartText(column.id, row, context));
    return texts;
}

void RowEditor::SetTexts(const std::vector<QString>& texts)
{
    for (size_t i = 0; i < texts.size(); ++i)
        m_lines->item(static_cast<int>(i), kValueColumn)->setText(texts[i]);
    Edit(0);
}

void RowEditor::BuildTable()
{
    m_view->setObjectName(u"fieldList"_s);
    m_view->setAccessibleName(m_list.Name);
    m_view->setModel(m_lines);
    m_view->setItemDelegate(new RowFieldDelegate(m_view));
    DressLineView(m_view);
    ShareWidthWithoutNames(*m_view);
    // The keyboard belongs to the control.
    m_view->setFocusPolicy(Qt::NoFocus);
    connect(m_view, &QTableView::clicked, this, [this](const QModelIndex& tap) {
        Commit();
        Edit(tap.row());
    });
    // By which assistive technology goes from field to field.
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndexList lines = m_view->selectionModel()->selectedRows();
        if (lines.isEmpty() || lines.first().row() == m_current)
            return;
        Commit();
        Edit(lines.first().row());
    });
    connect(m_view->verticalScrollBar(), &QScrollBar::valueChanged, this, &RowEditor::PlaceControl);
    new TouchBehaviour(m_view);
    m_view->viewport()->installEventFilter(this);
    Body()->addWidget(m_view, 1);
}

void RowEditor::BuildControl()
{
    connect(m_control, &FieldControl::Left, this, &RowEditor::Commit);
    connect(m_control, &FieldControl::Stepped, this, &RowEditor::Step);
    connect(m_control, &FieldControl::Confirmed, this, &RowEditor::Confirm);
}

int RowEditor::LastField() const
{
    return static_cast<int>(m_startTexts.size()) - 1;
}

std::vector<QString> RowEditor::Texts() const
{
    std::vector<QString> texts;
    for (int field = 0; field <= LastField(); ++field) {
        texts.push_back(
            field == m_current ? m_control->Text() : m_lines->item(field, kValueColumn)->text());
    }
    return texts;
}

bool RowEditor::HasUnsavedInput() const
{
    return Texts() != m_startTexts;
}

void RowEditor::Commit()
{
    QStandardItem* value = m_lines->item(m_current, kValueColumn);
    value->setText(m_control->Text());
    QFont font;
    font.setStrikeOut(IsUnreadDate(m_current));
    value->setFont(font);
    value->setAccessibleDescription(font.strikeOut() ? DateField::tr("not a date") : QString());
}

bool RowEditor::IsUnreadDate(int field) const
{
    const auto place = static_cast<size_t>(field);
    return ColumnTypeOf(m_list.columns[place].id) == ColumnType::Date
        && m_control->Date()->IsUnread(
            m_startTexts[place], m_lines->item(field, kValueColumn)->text());
}

void RowEditor::Edit(int field)
{
    m_current = field;
    const auto place = static_cast<size_t>(field);
    const QModelIndex cell = m_lines->index(field, kValueColumn);
    m_view->setCurrentIndex(cell);
    m_control->Open(m_list.columns[place], m_startTexts[place], cell.data().toString());
    setFocusProxy(m_control->Shown());
    KeepInView();
}

void RowEditor::Step(int by)
{
    Commit();
    Edit(std::clamp(m_current + by, 0, LastField()));
}

void RowEditor::Confirm()
{
    if (m_current == LastField())
        RequestEnd(PageResult::Ok);
    else
        Step(1);
}

void RowEditor::PlaceControl()
{
    // Two pixels from the hairlines; as tall as a finger needs where the line is.
    constexpr int kInset = 2;
    const QRect cell = m_view->visualRect(m_lines->index(m_current, kValueColumn));
    m_control->Place(cell.marginsRemoved(
        LineMargins(0, kGrid, layoutDirection()) + QMargins(0, kInset, 0, kInset + 1)));
}

void RowEditor::KeepInView()
{
    m_view->scrollTo(m_lines->index(m_current, kValueColumn));
    PlaceControl();
}

bool RowEditor::PrepareEnd(PageResult result)
{
    if (result != PageResult::Ok)
        return true;
    Commit();
    for (int field = 0; field <= LastField(); ++field) {
        if (IsUnreadDate(field)) {
            Edit(field);
            m_control->Date()->TellUnread();
            return false;
        }
    }
    return true;
}

bool RowEditor::eventFilter(QObject* watched, QEvent* event)
{
    const auto isOffLines = [this, event] {
        const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
        return m_view->viewport()->rect().contains(place) && !m_view->indexAt(place).isValid();
    };
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        m_isTapOffLines = isOffLines();
        // The view would take the selection from the current line.
        if (m_isTapOffLines)
            return true;
    } else if (event->type() == QEvent::MouseButtonRelease && m_isTapOffLines) {
        if (isOffLines()) {
            Commit();
            Edit(0);
        }
        return true;
    } else if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) {
        // Once the view has laid itself out: an on-screen keyboard may have taken half of it, a
        // larger font made its lines higher.
        QMetaObject::invokeMethod(this, &RowEditor::KeepInView, Qt::QueuedConnection);
    }
    return Page::eventFilter(watched, event);
}

} // namespace Quillory
