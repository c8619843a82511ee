#include "rows/row_editor_page.h"

#include "values/column_type.h"
#include "widgets/form.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

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

Qt::InputMethodHints HintsFor(PropertyId column)
{
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
        return Qt::ImhPreferNumbers;
    case ColumnType::Price:
        return Qt::ImhFormattedNumbersOnly;
    case ColumnType::Date:
        return Qt::ImhDate;
    case ColumnType::String:
    case ColumnType::Checkbox:
        break;
    }
    return Qt::ImhNone;
}

} // namespace

RowEditorPage::RowEditorPage(const QString& title, const InventoryList& list, const Record* row,
    const ValueContext& context, QWidget* parent)
    : Page(title, parent)
{
    setObjectName(u"rowEditor"_s);
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    auto* fields = new QWidget(area);
    auto* layout = new QVBoxLayout(fields);
    layout->setContentsMargins(0, 0, 0, 0);
    Form form(layout);
    for (const ColumnDefinition& column : list.columns) {
        m_fields.push_back(MakeField(column.id, StartText(column.id, row, context), context));
        m_fields.back()->setObjectName(u"field%1"_s.arg(m_fields.size() - 1));
        form.AddLine(column.name, m_fields.back());
    }
    layout->addStretch(1);
    area->setWidget(fields);
    Body()->addWidget(area, 1);
    SetSoftKeys(SoftKeysOf(MenuBar::Cancel));
    connect(this, &Page::CommandChosen, this, [this](Command command) {
        if (command == Command::Cancel)
            End(PageResult::CancelKey);
    });
    setFocusProxy(m_fields.front());
}

QWidget* RowEditorPage::MakeField(
    PropertyId column, const QString& text, const ValueContext& context)
{
    if (ColumnTypeOf(column) == ColumnType::Checkbox) {
        auto* box = new QComboBox(this);
        box->addItems({ context.uncheckedText, context.checkedText });
        box->setCurrentIndex(text.isEmpty() || text == context.uncheckedText ? 0 : 1);
        box->installEventFilter(this);
        return box;
    }
    auto* edit = new QLineEdit(text, this);
    edit->setInputMethodHints(HintsFor(column));
    edit->installEventFilter(this);
    return edit;
}

std::vector<QString> RowEditorPage::Texts() const
{
    std::vector<QString> texts;
    for (const QWidget* field : m_fields) {
        const auto* box = qobject_cast<const QComboBox*>(field);
        texts.push_back(
            box != nullptr ? box->currentText() : qobject_cast<const QLineEdit*>(field)->text());
    }
    return texts;
}

void RowEditorPage::RequestEnd(PageResult result)
{
    End(result == PageResult::Ok ? PageResult::Ok : PageResult::CancelKey);
}

void RowEditorPage::Step(QWidget* from, int by)
{
    const auto found = std::find(m_fields.begin(), m_fields.end(), from);
    const auto place = static_cast<int>(found - m_fields.begin()) + by;
    const int last = static_cast<int>(m_fields.size()) - 1;
    QWidget* field = m_fields[static_cast<size_t>(std::clamp(place, 0, last))];
    field->setFocus();
    if (auto* edit = qobject_cast<QLineEdit*>(field))
        edit->selectAll();
}

bool RowEditorPage::eventFilter(QObject* watched, QEvent* event)
{
    auto* field = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || field == nullptr)
        return Page::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        Step(field, -1);
        return true;
    case Qt::Key_Down:
        Step(field, 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (field == m_fields.back())
            RequestEnd(PageResult::Ok);
        else
            Step(field, 1);
        return true;
    default:
        return Page::eventFilter(watched, event);
    }
}

} // namespace Quillory
