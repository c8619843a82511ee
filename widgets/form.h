#pragma once

#include <QString>

class QFormLayout;
class QVBoxLayout;
class QWidget;

namespace Quillory {

/// Lines of a label and a control, as pages with a few fields show them.
class Form
{
public:
    /// Adds the lines to the end of `body`.
    explicit Form(QVBoxLayout* body);

    /// The label names the control to screen readers.
    void AddLine(const QString& label, QWidget* control);

private:
    QFormLayout* m_lines;
};

} // namespace Quillory
