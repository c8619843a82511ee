// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QAbstractButton;
class QLabel;
class QVBoxLayout;
class QWidget;

namespace Quillory {

/// Where the text of a checkbox begins, and with it what depends on the box.
constexpr int kCheckIndent = 32;

class FormLayout;

/// Lines of a label and a control, as pages with a few fields show them; on a page that is too
/// narrow for one of them all labels stand above their controls.
class Form
{
public:
    /// Adds the lines to the end of `body`.
    explicit Form(QVBoxLayout* body);

    /// The label names the control to screen readers.
    void AddLine(const QString& label, QWidget* control);

private:
    FormLayout* m_lines;
};

/// Adds a checkbox or radio button and its text, which wraps where it is longer than the page is
/// wide; a tap on the text is one on the button, and the text is as grey as that.
void AddButtonLine(QVBoxLayout& body, QAbstractButton& button, const QString& text, int indent = 0);

/// A quiet sentence that explains what is above it.
[[nodiscard]] QLabel* MakeNote(const QString& text);

/// `content` in an area that scrolls, by a finger too, where the page is not high enough for it.
[[nodiscard]] QWidget* MakeScrollable(QWidget* content);

} // namespace Quillory
