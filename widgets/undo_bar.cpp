// SPDX-License-Identifier: MIT
#include "widgets/undo_bar.h"

#include "widgets/accessibility.h"
#include "widgets/measures.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kShownMs = 8000;

} // namespace

UndoBar::UndoBar(QWidget* parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_button(new QPushButton(tr("Undo"), this))
    , m_timer(new QTimer(this))
{
    MeetAs<AccessibleAs<QAccessible::Notification>, UndoBar>();
    setObjectName(u"undoBar"_s);
    setAttribute(Qt::WA_StyledBackground);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setMinimumWidth(kMinTouchTarget);
    m_button->setObjectName(u"undo"_s);
    m_button->setAutoDefault(false);
    m_button->setFocusPolicy(Qt::TabFocus);
    m_button->setMinimumHeight(CurrentMeasures().lineHeight);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(
        LineMargins(kPageMargin, kGrid, layoutDirection()) + QMargins(0, kGrid / 2, 0, kGrid / 2));
    line->setSpacing(kGrid / 2);
    line->addWidget(m_text, 1);
    line->addWidget(m_button);
    m_timer->setSingleShot(true);
    m_timer->setInterval(kShownMs);
    connect(m_timer, &QTimer::timeout, this, &QWidget::hide);
    connect(m_button, &QPushButton::clicked, this, [this] {
        hide();
        m_undo();
    });
    hide();
}

void UndoBar::Offer(const QString& text, std::function<void()> undo)
{
    m_undo = std::move(undo);
    Show(text, true);
}

void UndoBar::Say(const QString& text)
{
    Show(text, false);
}

void UndoBar::Show(const QString& text, bool canUndo)
{
    m_button->setVisible(canUndo);
    m_text->setText(text);
    setAccessibleName(text);
    // A notification is told when it comes up.
    hide();
    show();
    m_timer->start();
}

} // namespace Quillory
