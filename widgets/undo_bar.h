// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QTimer;

namespace Quillory {

/// Says for some seconds what was deleted, and offers to bring it back.
class UndoBar : public QFrame
{
    Q_OBJECT

public:
    /// Hidden at first.
    explicit UndoBar(QWidget* parent = nullptr);

    /// Shows `text`; `undo` is called on a tap on Undo. Replaces what was offered before.
    void Offer(const QString& text, std::function<void()> undo);

private:
    QLabel* m_text;
    QPushButton* m_button;
    QTimer* m_timer;
    std::function<void()> m_undo;
};

} // namespace Quillory
