// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QTimer;

namespace Quillory {

/// Says for some seconds what happened, and where it was a deletion offers to undo it.
class UndoBar : public QFrame
{
    Q_OBJECT

public:
    /// Hidden at first.
    explicit UndoBar(QWidget* parent = nullptr);

    /// Shows `text`; `undo` is called on a tap on Undo. Replaces what was offered before.
    void Offer(const QString& text, std::function<void()> undo);
    /// The same without an offer.
    void Say(const QString& text);

private:
    QLabel* m_text;
    QPushButton* m_button;
    QTimer* m_timer;
    std::function<void()> m_undo;

    void Show(const QString& text, bool canUndo);
};

} // namespace Quillory
