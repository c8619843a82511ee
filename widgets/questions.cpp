// SPDX-License-Identifier: MIT
#include "widgets/questions.h"

#include <QApplication>

#include <utility>

namespace Quillory {

void ClosePopups()
{
    // One that refuses to close must not hold the program up.
    for (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && popup->close();)
        popup = QApplication::activePopupWidget();
}

Questions::Questions(QWidget* window)
    : QObject(window)
{ }

Questions& Questions::Of(const QWidget* widget)
{
    QWidget* window = widget->window();
    auto* questions = window->findChild<Questions*>(QString(), Qt::FindDirectChildrenOnly);
    return questions == nullptr ? *new Questions(window) : *questions;
}

void Questions::Ask(Asker asker)
{
    m_waiting.push_back(std::move(asker));
    ShowNext();
}

bool Questions::IsIdle() const
{
    return m_shown == nullptr && m_waiting.empty() && m_work == 0;
}

void Questions::WhenIdle(std::function<void()> then)
{
    if (IsIdle())
        return then();
    m_whenIdle.push_back(std::move(then));
}

void Questions::ShowNext()
{
    while (m_shown == nullptr && m_work == 0 && !m_waiting.empty()) {
        const Asker asker = std::move(m_waiting.front());
        m_waiting.pop_front();
        const Question question = asker();
        if (question.dialog == nullptr)
            continue;
        m_shown = question.dialog;
        connect(m_shown, &QDialog::finished, this,
            [this, question](int result) { TakeAnswer(question, result); });
        ClosePopups();
        m_shown->open();
    }
    // Not from inside the answer.
    if (IsIdle() && !m_whenIdle.empty())
        QMetaObject::invokeMethod(this, &Questions::TellIdle, Qt::QueuedConnection);
}

void Questions::TakeAnswer(const Question& question, int result)
{
    // Whoever asked hears the answer first, and what he asks next waits for its turn.
    try {
        question.answer(result);
    } catch (...) {
        m_shown = nullptr;
        throw;
    }
    m_shown = nullptr;
    ShowNext();
}

void Questions::TellIdle()
{
    // One of them may ask something; the others go on waiting then.
    while (IsIdle() && !m_whenIdle.empty()) {
        const auto then = std::move(m_whenIdle.front());
        m_whenIdle.erase(m_whenIdle.begin());
        then();
    }
}

void Questions::Drop()
{
    m_waiting.clear();
    m_whenIdle.clear();
    if (m_shown == nullptr)
        return;
    disconnect(m_shown, nullptr, nullptr, nullptr);
    m_shown->deleteLater();
    m_shown->hide();
    m_shown = nullptr;
}

Questions::Work::Work(Questions& questions)
    : m_questions(&questions)
{
    ++questions.m_work;
}

Questions::Work::~Work()
{
    if (m_questions == nullptr)
        return;
    --m_questions->m_work;
    m_questions->ShowNext();
}

} // namespace Quillory
