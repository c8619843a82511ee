// SPDX-License-Identifier: MIT
#include "widgets/app_style.h"

#include "widgets/accessibility.h"
#include "widgets/accessible_choice.h"
#include "widgets/focus_ring.h"
#include "widgets/icon_set.h"
#include "widgets/ink.h"
#include "widgets/measures.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QEvent>
#include <QPainter>
#include <QStyleOption>
#include <QStyledItemDelegate>

namespace Quillory {

namespace {

void DrawRadio(QPainter& painter, const QStyleOption& option)
{
    const bool isOn = option.state.testFlag(QStyle::State_On);
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor accent = isEnabled ? AccentInk(option.palette)
                                    : option.palette.color(QPalette::Disabled, QPalette::Text);
    const QColor line = isEnabled && !isOn
        ? option.palette.color(QPalette::Active, QPalette::PlaceholderText)
        : accent;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = QRectF(option.rect).adjusted(2, 2, -2, -2);
    constexpr qreal kLine = 1.5;
    painter.setPen(QPen(line, kLine));
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.drawEllipse(circle);
    if (isOn) {
        const qreal inset = circle.width() / 4;
        painter.setPen(Qt::NoPen);
        painter.setBrush(accent);
        painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
    }
    painter.restore();
}

void DrawCheckbox(QPainter& painter, const QStyleOption& option)
{
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    CheckboxIcon(option.state.testFlag(QStyle::State_On))
        .paint(&painter, option.rect, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
}

/// Lines of a drop-down list as high as those of every other list.
class ChoiceDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return { QStyledItemDelegate::sizeHint(option, index).width(),
            CurrentMeasures().lineHeight };
    }
};

} // namespace

AppStyle::AppStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
    MeetAs<AccessibleChoice, QComboBox>();
}

void AppStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    palette = LegiblePalette(palette);
}

void AppStyle::polish(QWidget* widget)
{
    auto* box = qobject_cast<QComboBox*>(widget);
    if (box != nullptr)
        box->installEventFilter(this);
    if (box != nullptr && dynamic_cast<ChoiceDelegate*>(box->itemDelegate()) == nullptr)
        box->setItemDelegate(new ChoiceDelegate(box));
    QProxyStyle::polish(widget);
}

bool AppStyle::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel)
        return QProxyStyle::eventFilter(watched, event);
    event->ignore();
    return true;
}

int AppStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
    QStyleHintReturn* returnData) const
{
    // Choices drop down below their box. Laid over it they have room for one line and a half.
    if (hint == SH_ComboBox_Popup)
        return 0;
    // A menu that is higher than the screen scrolls. In columns it would be wider than the screen.
    if (hint == SH_Menu_Scrollable)
        return 1;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

int AppStyle::pixelMetric(
    PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    if (metric == PM_MenuScrollerHeight)
        return CurrentMeasures().lineHeight;
    // On either side of a divider.
    if (metric == PM_HeaderGripMargin && HasTouchScreen())
        return kMinTouchTarget / 2;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

void AppStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
    QPainter* painter, const QWidget* widget) const
{
    if (element == PE_IndicatorCheckBox)
        DrawCheckbox(*painter, *option);
    else if (element == PE_IndicatorRadioButton)
        DrawRadio(*painter, *option);
    else if (element == PE_FrameFocusRect) {
        // The selected line of a list tells where the focus is; a frame over it would shade its
        // text.
        if (qobject_cast<const QAbstractItemView*>(widget) == nullptr)
            DrawFocusRing(*painter, option->rect, option->palette);
    } else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

} // namespace Quillory
