// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Quillory {

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

/// Shows a message captioned "Quillory" over the window of `parent` and returns at once; `then` is
/// called with the answer. Escape answers with the last button.
void ShowMessage(QWidget* parent, const QString& text, MessageIcon icon,
    MessageButtons buttons = MessageButtons::Ok, std::function<void(MessageAnswer)> then = {});

} // namespace Quillory
