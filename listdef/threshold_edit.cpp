// SPDX-License-Identifier: MIT
#include "listdef/threshold_edit.h"

#include "res/dialog_table.h"
#include "widgets/accessibility.h"
#include "widgets/measures.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QToolButton>

#include <algorithm>
#include <limits>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMaxCharacters = 16;
constexpr qint32 kMaxStep = 32767;

/// The number as assistive technology meets it, around the line in which it is typed.
class AccessibleThreshold : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleThreshold(ThresholdEdit* edit)
        : QAccessibleWidget(edit, QAccessible::SpinBox)
        , m_edit(edit)
    { }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QVariant currentValue() const override { return m_edit->Value(); }
    void setCurrentValue(const QVariant& value) override { m_edit->SetValue(value.toInt()); }
    [[nodiscard]] QVariant minimumValue() const override { return qint32 { -kMaxStep }; }
    [[nodiscard]] QVariant maximumValue() const override { return qint32 { kMaxStep }; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    ThresholdEdit* m_edit;
};

} // namespace

ThresholdEdit::ThresholdEdit(qint32 value, QWidget* parent)
    : QWidget(parent)
    , m_edit(new QLineEdit(QString::number(value), this))
{
    MeetAs<AccessibleThreshold, ThresholdEdit>();
    setAccessibleName(ControlText(Control::WarnOnCount));
    m_edit->setObjectName(u"threshold"_s);
    m_edit->setAccessibleName(ControlText(Control::WarnOnCount));
    //: The least and the greatest number that can be typed.
    m_edit->setAccessibleDescription(tr("%1 to %2").arg(-kMaxStep).arg(kMaxStep));
    m_edit->setMaxLength(kMaxCharacters);
    m_edit->setInputMethodHints(Qt::ImhPreferNumbers);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(kGrid / 2);
    line->addWidget(m_edit, 1);
    const auto add = [this, line](const QString& text, const QString& name, int by) {
        auto* button = new QToolButton(this);
        button->setText(text);
        button->setAccessibleName(name);
        button->setToolTip(name);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        const int height = std::max(CurrentMeasures().lineHeight, 4 * kGrid);
        button->setFixedSize(std::min(height, kMinTouchTarget), height);
        line->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, by] { Step(by); });
    };
    add(u"\u2212"_s, tr("Less"), -1);
    add(u"+"_s, tr("More"), 1);
    setFocusProxy(m_edit);
    FitToFont();
}

void ThresholdEdit::FitToFont()
{
    const QFontMetrics metrics = fontMetrics();
    const int least = std::max(CurrentMeasures().lineHeight, 4 * kGrid);
    m_edit->setMinimumWidth(metrics.horizontalAdvance(u"-000"_s) + 3 * kGrid);
    m_edit->setFixedHeight(std::max(least, metrics.height() + kGrid));
}

void ThresholdEdit::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        FitToFont();
    QWidget::changeEvent(event);
}

qint32 ThresholdEdit::Value() const
{
    static const QRegularExpression leadingNumber(u"^\\s*[+-]?[0-9]+"_s);
    const qint64 wide = leadingNumber.match(m_edit->text()).captured().trimmed().toLongLong();
    constexpr std::numeric_limits<qint32> kRange;
    return wide < kRange.min() || wide > kRange.max() ? 0 : static_cast<qint32>(wide);
}

void ThresholdEdit::SetValue(qint64 value)
{
    m_edit->setText(QString::number(std::clamp<qint64>(value, -kMaxStep, kMaxStep)));
}

void ThresholdEdit::Step(int by)
{
    SetValue(qint64 { Value() } + by);
    Announce(m_edit->text());
}

void ThresholdEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up)
        Step(1);
    else if (event->key() == Qt::Key_Down)
        Step(-1);
    else
        QWidget::keyPressEvent(event);
}

} // namespace Quillory
