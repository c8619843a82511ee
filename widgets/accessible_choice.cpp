// SPDX-License-Identifier: MIT
#include "widgets/accessible_choice.h"

#include <QComboBox>

namespace Quillory {

AccessibleChoice::AccessibleChoice(QComboBox* box)
    : QAccessibleWidget(box, QAccessible::ComboBox)
    , m_box(box)
{ }

void* AccessibleChoice::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString AccessibleChoice::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? m_box->currentText() : QAccessibleWidget::text(kind);
}

QAccessible::State AccessibleChoice::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    return state;
}

void AccessibleChoice::doAction(const QString& name)
{
    if (name == showMenuAction())
        m_box->showPopup();
}

QString AccessibleChoice::text(int start, int end) const
{
    return m_box->currentText().mid(start, end - start);
}

int AccessibleChoice::characterCount() const
{
    return static_cast<int>(m_box->currentText().size());
}

void AccessibleChoice::selection(int /*index*/, int* start, int* end) const
{
    *start = 0;
    *end = 0;
}

QString AccessibleChoice::attributes(int /*offset*/, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

} // namespace Quillory
