// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>
#include <vector>

namespace Quillory {

/// Closes every menu and pop-up of the program: what comes to the front is not covered by them.
void ClosePopups();

struct Question
{
    /// Over the window; deletes itself once it is closed. Null if there is nothing to ask any more.
    QDialog* dialog = nullptr;
    /// Called with the result of the dialog, which is still there.
    std::function<void(int result)> answer;
};

/// What one window asks of its user: one dialog at a time, in the order in which they were asked
/// for. The dialog that is shown has the keyboard, and the window behind it takes nothing.
class Questions : public QObject
{
    Q_OBJECT

public:
    /// Those of the window that `widget` stands in; they live as long as it does.
    [[nodiscard]] static Questions& Of(const QWidget* widget);

    using Asker = std::function<Question()>;
    /// Opens the dialog that `asker` makes as soon as those before it are answered.
    void Ask(Asker asker);
    /// Whether nothing is asked, nothing waits to be, and no work holds the window up.
    [[nodiscard]] bool IsIdle() const;
    /// Calls `then` once IsIdle(), at once if it is so already.
    void WhenIdle(std::function<void()> then);
    /// The dialog that waits for its answer; null if there is none.
    [[nodiscard]] QDialog* Shown() const { return m_shown; }
    /// Takes away what is asked and what waits. Nobody hears an answer.
    void Drop();

    /// Work that holds the window up and shows its own progress: nothing is asked while it lives.
    class Work
    {
    public:
        explicit Work(Questions& questions);
        ~Work();
        Work(const Work&) = delete;
        Work& operator=(const Work&) = delete;

    private:
        QPointer<Questions> m_questions;
    };

private:
    std::deque<Asker> m_waiting;
    std::vector<std::function<void()>> m_whenIdle;
    QPointer<QDialog> m_shown;
    int m_work = 0;

    explicit Questions(QWidget* window);
    void ShowNext();
    void TakeAnswer(const Question& question, int result);
    void TellIdle();
};

} // namespace Quillory
