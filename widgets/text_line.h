// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace Quillory {

/// Line breaks and tabs that come into a line of text, by pasting mostly, become blanks.
void KeepToOneLine(QLineEdit* edit);

/// A text to be told by a tip, which would take one that looks like a page for a page.
[[nodiscard]] QString TipOf(const QString& text);

/// A line of text to be edited, kept to one line. What nobody edits comes back as it was given,
/// also where it has line breaks, or is longer than the line takes.
class TextLine : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextLine(QWidget* parent = nullptr);

    void Give(const QString& text);
    /// The text as it was edited, or as it was given.
    [[nodiscard]] QString Entry() const;

private:
    QString m_given;
    /// What the line made of the text that it was given.
    QString m_shown;
};

} // namespace Quillory
