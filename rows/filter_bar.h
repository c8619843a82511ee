// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace Quillory {

/// Says how many of a list's rows are shown, where not all are, and offers to show all again.
class FilterBar : public QFrame
{
    Q_OBJECT

public:
    /// Hidden at first.
    explicit FilterBar(QWidget* parent = nullptr);

    /// Shows the numbers, and the offer if `mayClear`.
    void Tell(qint64 shown, qint64 all, bool mayClear);

Q_SIGNALS:
    void ClearChosen();

private:
    QLabel* m_text;
    QPushButton* m_clear;
};

} // namespace Quillory
