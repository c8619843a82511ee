// SPDX-License-Identifier: MIT
#include "widgets/form.h"

#include "widgets/measures.h"
#include "widgets/touch.h"

#include <QAbstractButton>
#include <QFormLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace Quillory {

namespace {

/// The text of a checkbox or radio button, beside it: the button itself does not wrap its text.
/// Grey where that is.
class ButtonLabel : public QLabel
{
public:
    ButtonLabel(const QString& text, QAbstractButton& button)
        : QLabel(text, button.parentWidget())
        , m_button(button)
    {
        setWordWrap(true);
        setTextFormat(Qt::PlainText);
        setEnabled(button.isEnabled());
        button.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &m_button && event->type() == QEvent::EnabledChange)
            setEnabled(m_button.isEnabled());
        return QLabel::eventFilter(watched, event);
    }

protected:
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (rect().contains(event->position().toPoint()))
            m_button.click();
    }

private:
    QAbstractButton& m_button;
};

} // namespace

class FormLayout : public QFormLayout
{
public:
    /// As narrow as its widest control alone, and never lower than it would be.
    [[nodiscard]] QSize minimumSize() const override
    {
        return { contentsMargins().left() + kMinFieldWidth + contentsMargins().right(),
            sizeHint().height() };
    }
    void setGeometry(const QRect& rect) override
    {
        int label = 0;
        for (int row = 0; row < rowCount(); ++row)
            label = std::max(label, itemAt(row, LabelRole)->sizeHint().width());
        const int needed = label + horizontalSpacing() + kMinFieldWidth + contentsMargins().left()
            + contentsMargins().right();
        const auto policy = needed > rect.width() ? WrapAllRows : DontWrapRows;
        if (policy != rowWrapPolicy()) {
            setRowWrapPolicy(policy);
            // It is as high as that asks for once whoever it stands in has heard of it.
            update();
        }
        QFormLayout::setGeometry(rect);
    }
};

Form::Form(QVBoxLayout* body)
    : m_lines(new FormLayout)
{
    m_lines->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kGrid);
    m_lines->setHorizontalSpacing(kPageMargin);
    m_lines->setVerticalSpacing(kGrid);
    m_lines->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_lines->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    body->addLayout(m_lines);
}

void Form::AddLine(const QString& label, QWidget* control)
{
    control->setAccessibleName(label);
    control->setMinimumHeight(CurrentMeasures().lineHeight);
    // A drop-down would else be as wide as its longest choice.
    control->setMinimumWidth(kMinFieldWidth);
    control->setMaximumWidth(kMaxFieldWidth);
    control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* text = new QLabel(label, control->parentWidget());
    text->setMinimumHeight(CurrentMeasures().lineHeight);
    text->setBuddy(control);
    m_lines->addRow(text, control);
}

void AddButtonLine(QVBoxLayout& body, QAbstractButton& button, const QString& text, int indent)
{
    button.setAccessibleName(text);
    button.setFixedWidth(kCheckIndent);
    button.setMinimumHeight(CurrentMeasures().lineHeight);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(LineMargins(indent, 0, button.layoutDirection()));
    line->setSpacing(0);
    line->addWidget(&button);
    line->addWidget(new ButtonLabel(text, button), 1);
    body.addLayout(line);
}

QLabel* MakeNote(const QString& text)
{
    auto* note = new QLabel(text);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    return note;
}

QWidget* MakeScrollable(QWidget* content)
{
    auto* area = new QScrollArea(content->parentWidget());
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(content);
    area->setFocusPolicy(Qt::NoFocus);
    new TouchBehaviour(area);
    return area;
}

} // namespace Quillory
