// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLineEdit;

namespace Quillory {

/// A whole number to type, or to step up and down between -32767 and 32767.
class ThresholdEdit : public QWidget
{
    Q_OBJECT

public:
    explicit ThresholdEdit(qint32 value, QWidget* parent = nullptr);

    /// The number that the text begins with; 0 if it begins with none, or with one beyond 32 bits.
    [[nodiscard]] qint32 Value() const;
    /// Shows the number, or the nearest of those that can be stepped to.
    void SetValue(qint64 value);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* m_edit;

    void FitToFont();
    void Step(int by);
};

} // namespace Quillory
