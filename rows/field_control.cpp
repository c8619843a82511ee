// SPDX-License-Identifier: MIT
#include "rows/field_control.h"

#include "rows/date_field.h"
#include "values/column_type.h"
#include "widgets/accessibility.h"
#include "widgets/text_line.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

#include <array>

namespace Quillory {

using namespace Qt::StringLiterals;

Qt::InputMethodHints HintsFor(PropertyId column)
{
    switch (ColumnTypeOf(column)) {
    case ColumnType::Integer:
    case ColumnType::Price:
        // Other hints for numbers do not pass through Wayland.
        return Qt::ImhFormattedNumbersOnly;
    case ColumnType::Date:
        return Qt::ImhDate;
    case ColumnType::String:
    case ColumnType::Checkbox:
        break;
    }
    return Qt::ImhNone;
}

FieldControl::FieldControl(const ValueContext& context, QWidget* place)
    : QObject(place)
    , m_edit(new TextLine(place))
    , m_box(new QComboBox(place))
    , m_date(new DateField(context, place))
{
    m_edit->setObjectName(u"valueEdit"_s);
    m_box->setObjectName(u"valueBox"_s);
    m_date->setObjectName(u"datePicker"_s);
    m_box->addItems({ context.uncheckedText, context.checkedText });
    for (QWidget* control : std::array<QWidget*, 3> { m_edit, m_box, m_date })
        control->hide();
    for (QWidget* typed : std::array<QWidget*, 3> { m_edit, m_box, m_date->Edit() })
        typed->installEventFilter(this);
}

void FieldControl::Open(const ColumnDefinition& column, const QString& stored, const QString& text)
{
    for (QWidget* control : std::array<QWidget*, 4> { m_edit, m_box, m_date, m_date->Edit() })
        control->setAccessibleName(column.name);
    switch (ColumnTypeOf(column.id)) {
    case ColumnType::Checkbox:
        m_box->setCurrentIndex(text.isEmpty() || text == m_box->itemText(0) ? 0 : 1);
        Show(m_box);
        return;
    case ColumnType::Date:
        m_date->Open(stored, text);
        Show(m_date);
        m_date->Edit()->selectAll();
        return;
    case ColumnType::String:
    case ColumnType::Price:
    case ColumnType::Integer:
        // To a screen reader a line that only goes on to another column is what it was, and so is
        // one that had the keyboard before its page was seen.
        if (m_shown == nullptr || m_shown == m_edit)
            QMetaObject::invokeMethod(
                this, [name = column.name] { Announce(name); }, Qt::QueuedConnection);
        m_edit->setInputMethodHints(HintsFor(column.id));
        m_edit->Give(text);
        Show(m_edit);
        m_edit->selectAll();
        return;
    }
}

void FieldControl::Show(QWidget* control)
{
    m_shown = control;
    control->show();
    // One that has the keyboard already is another field's now. The view told of its line in
    // between.
    QAccessibleEvent focused(
        control->focusProxy() != nullptr ? control->focusProxy() : control, QAccessible::Focus);
    if (control->hasFocus())
        QAccessible::updateAccessibility(&focused);
    control->setFocus();
    for (QWidget* other : std::array<QWidget*, 3> { m_edit, m_box, m_date })
        other->setVisible(other == control);
}

void FieldControl::Place(const QRect& rect)
{
    if (m_shown != nullptr)
        m_shown->setGeometry(rect);
}

QString FieldControl::Text() const
{
    if (m_shown == m_box)
        return m_box->currentText();
    if (m_shown == m_date)
        return m_date->Entry();
    return m_edit->Entry();
}

bool FieldControl::IsLeft(Qt::FocusReason reason) const
{
    // A menu or calendar of the control's own, or a window that is only deactivated: it comes back.
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason
        || reason == Qt::MenuBarFocusReason)
        return false;
    // An on-screen keyboard stands in a window of its own.
    const QWidget* next = QApplication::focusWidget();
    return next != nullptr && next != m_shown && !m_shown->isAncestorOf(next)
        && next->window() == m_shown->window();
}

bool FieldControl::HandleKey(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Shift) {
        m_isShiftAlone = true;
        return false;
    }
    const bool isBackward = m_isShiftLatched && event.key() == Qt::Key_Tab;
    m_isShiftAlone = false;
    m_isShiftLatched = false;
    if (event.modifiers().testFlag(Qt::AltModifier)
        || (m_shown == m_box && m_box->view()->isVisible()))
        return false;
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        // Only a latched Shift turns the way round; one that is held does not.
        Q_EMIT Stepped(isBackward ? -1 : 1);
        return true;
    case Qt::Key_Up:
        Q_EMIT Stepped(-1);
        return true;
    case Qt::Key_Down:
        Q_EMIT Stepped(1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT Confirmed();
        return true;
    default:
        return false;
    }
}

bool FieldControl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        return HandleKey(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::KeyRelease && m_isShiftAlone
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Shift) {
        m_isShiftAlone = false;
        m_isShiftLatched = !m_isShiftLatched;
    }
    if (event->type() == QEvent::FocusOut && IsLeft(static_cast<QFocusEvent*>(event)->reason()))
        Q_EMIT Left();
    return QObject::eventFilter(watched, event);
}

} // namespace Quillory
