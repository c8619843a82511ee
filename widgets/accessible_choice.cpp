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

QStringList AccessibleChoice::actionNames() const
{
    if (!m_box->isEnabled())
        return {};
    return QStringList { showMenuAction(), increaseAction(), decreaseAction() }
    + QAccessibleWidget::actionNames();
}

void AccessibleChoice::doAction(const QString& name)
{
    if (!m_box->isEnabled())
        return;
    const int step = name == increaseAction() ? 1 : name == decreaseAction() ? -1 : 0;
    const int chosen = m_box->currentIndex() + step;
    if (name == showMenuAction())
        m_box->showPopup();
    else if (step == 0)
        QAccessibleWidget::doAction(name);
    else if (chosen >= 0 && chosen < m_box->count())
        m_box->setCurrentIndex(chosen);
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
