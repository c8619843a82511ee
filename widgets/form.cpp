#include "widgets/form.h"

#include "widgets/measures.h"

#include <QFormLayout>
#include <QVBoxLayout>
#include <QWidget>

namespace Quillory {

Form::Form(QVBoxLayout* body)
    : m_lines(new QFormLayout)
{
    m_lines->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kGrid);
    m_lines->setHorizontalSpacing(kPageMargin);
    m_lines->setVerticalSpacing(kGrid);
    m_lines->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_lines->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_lines->setRowWrapPolicy(QFormLayout::DontWrapRows);
    body->addLayout(m_lines);
}

void Form::AddLine(const QString& label, QWidget* control)
{
    control->setAccessibleName(label);
    control->setMinimumHeight(CurrentMeasures().lineHeight);
    control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_lines->addRow(label, control);
}

} // namespace Quillory
