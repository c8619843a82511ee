// SPDX-License-Identifier: MIT
#include "widgets/message_box.h"

#include "res/string_table.h"
#include "widgets/measures.h"
#include "widgets/questions.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>

#include <algorithm>
#include <utility>

namespace Quillory {

namespace {

QMessageBox::Icon BoxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

struct BoxButtons
{
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton standard;
    QMessageBox::StandardButton escape;
};

BoxButtons ButtonsOf(MessageButtons buttons)
{
    switch (buttons) {
    case MessageButtons::Ok:
        return { QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok };
    case MessageButtons::YesNo:
        return { QMessageBox::Yes | QMessageBox::No, QMessageBox::No, QMessageBox::No };
    case MessageButtons::YesNoCancel:
        return { QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
            QMessageBox::Cancel };
    case MessageButtons::RetryCancel:
        return { QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry,
            QMessageBox::Cancel };
    }
    return { QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok };
}

MessageAnswer AnswerOf(int button)
{
    switch (button) {
    case QMessageBox::Ok:
        return MessageAnswer::Ok;
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    case QMessageBox::Retry:
        return MessageAnswer::Retry;
    default:
        return MessageAnswer::Cancel;
    }
}

/// A message box that is never wider than the window it stands over.
class FittingBox : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void showEvent(QShowEvent* event) override
    {
        QMessageBox::showEvent(event);
        auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        if (parentWidget() == nullptr || label == nullptr)
            return;
        // As wide as is good to read, within the window; the text takes the lines that it needs.
        const int beside = width() - label->width();
        const int text = label->fontMetrics().horizontalAdvance(label->text()) + kGrid;
        const int room = parentWidget()->width() - beside - 2 * kGrid;
        m_isFitted = true;
        // Answers that have no room beside each other lie one below the other.
        auto* answers = findChild<QDialogButtonBox*>();
        if (answers->sizeHint().width() > parentWidget()->width() - 4 * kGrid)
            answers->setOrientation(Qt::Vertical);
        label->setWordWrap(true);
        label->setFixedWidth(std::max(kLeastText, std::min({ text, room, kMostText })));
        layout()->activate();
        // What stands beside the text is only known once it is laid out.
        const int excess = layout()->sizeHint().width() - (parentWidget()->width() - 2 * kGrid);
        if (excess > 0)
            label->setFixedWidth(std::max(kLeastText, label->width() - excess));
        layout()->activate();
        setFixedSize(layout()->sizeHint().width(), layout()->totalHeightForWidth(width()));
    }
    bool event(QEvent* event) override
    {
        // The box itself would lay its text out in one line again.
        if (m_isFitted && event->type() == QEvent::LayoutRequest)
            return QDialog::event(event); // NOLINT(bugprone-parent-virtual-call)
        return QMessageBox::event(event);
    }

private:
    static constexpr int kLeastText = 80;
    static constexpr int kMostText = 360;
    bool m_isFitted = false;
};

} // namespace

void ShowMessage(QWidget* parent, const QString& text, MessageIcon icon, MessageButtons buttons,
    std::function<void(MessageAnswer)> then)
{
    Questions::Of(parent).Ask(
        [window = parent->window(), text, icon, buttons, then = std::move(then)] {
            return MakeMessageBox(window, text, icon, buttons, then);
        });
}

Question MakeMessageBox(QWidget* window, const QString& text, MessageIcon icon,
    MessageButtons buttons, const std::function<void(MessageAnswer)>& then)
{
    const BoxButtons boxButtons = ButtonsOf(buttons);
    auto* box
        = new FittingBox(BoxIcon(icon), LoadText(Text::Caption), text, boxButtons.buttons, window);
    box->setObjectName(QStringLiteral("messageBox"));
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(boxButtons.standard);
    box->setEscapeButton(boxButtons.escape);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    return { box, [then](int button) {
                if (then)
                    then(AnswerOf(button));
            } };
}

} // namespace Quillory
