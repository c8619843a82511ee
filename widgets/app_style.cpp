#include "widgets/app_style.h"

#include "widgets/icon_set.h"

#include <QPainter>
#include <QStyleOption>

namespace Quillory {

namespace {

void DrawRadio(QPainter& painter, const QStyleOption& option)
{
    const bool isOn = option.state.testFlag(QStyle::State_On);
    const QPalette::ColorGroup group
        = option.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    const QColor accent = option.palette.color(
        group, group == QPalette::Active ? QPalette::Highlight : QPalette::Text);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = QRectF(option.rect).adjusted(2, 2, -2, -2);
    constexpr qreal kLine = 1.5;
    painter.setPen(QPen(isOn ? accent : option.palette.color(group, QPalette::Dark), kLine));
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

} // namespace

AppStyle::AppStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{ }

void AppStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
    QPainter* painter, const QWidget* widget) const
{
    if (element == PE_IndicatorCheckBox)
        DrawCheckbox(*painter, *option);
    else if (element == PE_IndicatorRadioButton)
        DrawRadio(*painter, *option);
    // A tree has the line in focus framed, for no widget; the frame would shade the selection.
    else if (element != PE_FrameFocusRect || widget != nullptr)
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

} // namespace Quillory
