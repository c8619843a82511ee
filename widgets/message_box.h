// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Quillory {

struct Question;

enum class MessageIcon
{
    Stop,
    Exclamation,
    Information,
};

enum class MessageButtons
{
    Ok,
    /// No is the default.
    YesNo,
    YesNoCancel,
    RetryCancel,
};

enum class MessageAnswer
{
    Ok,
    Cancel,
    Yes,
    No,
    Retry,
};

/// Asks in a message captioned "Quillory" over the window of `parent`, as soon as what was asked
/// there before is answered, and returns at once; `then` is called with the answer. Escape answers
/// with the last button.
void ShowMessage(QWidget* parent, const QString& text, MessageIcon icon,
    MessageButtons buttons = MessageButtons::Ok, std::function<void(MessageAnswer)> then = {});

/// Such a message for whoever decides only when its turn comes.
[[nodiscard]] Question MakeMessageBox(QWidget* window, const QString& text, MessageIcon icon,
    MessageButtons buttons, const std::function<void(MessageAnswer)>& then);

} // namespace Quillory
