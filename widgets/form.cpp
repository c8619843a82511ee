// SPDX-License-Identifier: MIT
#include "widgets/form.h"

#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QVBoxLayout>

namespace Quillory {

namespace {

/// The text of a checkbox, beside it: the box itself does not wrap its text. Grey where that is.
class CheckLabel : public QLabel
{
public:
    CheckLabel(const QString& text, QCheckBox& box)
        : QLabel(text, box.parentWidget())
        , m_box(box)
    {
        setWordWrap(true);
        setTextFormat(Qt::PlainText);
        setEnabled(box.isEnabled());
        box.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &m_box && event->type() == QEvent::EnabledChange)
            setEnabled(m_box.isEnabled());
        return QLabel::eventFilter(watched, event);
    }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (rect().contains(event->position().toPoint()))
            m_box.click();
    }

private:
    QCheckBox& m_box;
};

} // namespace

Form::Form(QVBoxLayout* body)
    : m_lines(new QFormLayout)
{
    m_lines->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kGrid);
    m_lines->setHorizontalSpacing(kPageMargin);
    m_lines->setVerticalSpacing(kGrid);
    m_lines->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_lines->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_lines->setRowWrapPolicy(QFormLayout::WrapLongRows);
    body->addLayout(m_lines);
}

void Form::AddLine(const QString& label, QWidget* control)
{
    control->setAccessibleName(label);
    control->setMinimumHeight(CurrentMeasures().lineHeight);
    control->setMaximumWidth(kMaxFieldWidth);
    control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* text = new QLabel(label, control->parentWidget());
    text->setMinimumHeight(CurrentMeasures().lineHeight);
    text->setBuddy(control);
    m_lines->addRow(text, control);
}

void AddCheckLine(QVBoxLayout& body, QCheckBox& box, const QString& text)
{
    box.setAccessibleName(text);
    box.setFixedWidth(kCheckIndent);
    box.setMinimumHeight(CurrentMeasures().lineHeight);
    auto* line = new QHBoxLayout;
    line->setSpacing(0);
    line->addWidget(&box);
    line->addWidget(new CheckLabel(text, box), 1);
    body.addLayout(line);
}

QWidget* MakeScrollable(QWidget* content)
{
    auto* area = new QScrollArea(content->parentWidget());
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    content->setMaximumWidth(kMaxFormWidth);
    area->setWidget(content);
    area->setFocusPolicy(Qt::NoFocus);
    new TouchBehaviour(area);
    return area;
}

} // namespace Quillory
