// SPDX-License-Identifier: MIT
#include "widgets/measures.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QInputDevice>

#include <algorithm>

namespace Quillory {

QPoint PlaceWithin(const QRect& room, const QPoint& wanted, const QSize& size)
{
    const auto clamp = [](int place, int length, int begin, int end) {
        const int margin = std::clamp((end - begin - length) / 2, 0, kGrid);
        const int least = begin + margin;
        return std::clamp(place, least, std::max(least, end - length - margin));
    };
    return { clamp(wanted.x(), size.width(), room.left(), room.right() + 1),
        clamp(wanted.y(), size.height(), room.top(), room.bottom() + 1) };
}

bool HasTouchScreen()
{
    const auto devices = QInputDevice::devices();
    return std::any_of(devices.begin(), devices.end(), [](const QInputDevice* device) {
        return device->type() == QInputDevice::DeviceType::TouchScreen;
    });
}

const Measures& CurrentMeasures()
{
    return HasTouchScreen() ? kTouchMeasures : kMouseMeasures;
}

const Measures& FrameMeasures(int windowHeight)
{
    return windowHeight < kLowWindow ? kMouseMeasures : CurrentMeasures();
}

int LineHeightFor(const QFontMetrics& font)
{
    return std::max(CurrentMeasures().lineHeight, font.height() + kGrid);
}

QMargins LineMargins(int leading, int trailing, Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? QMargins(trailing, 0, leading, 0)
                                        : QMargins(leading, 0, trailing, 0);
}

QFont FontFitting(QFont font, const QString& text, int width)
{
    const int needed = QFontMetrics(font).horizontalAdvance(text);
    if (needed > width && width > 0)
        font.setPointSizeF(QFontInfo(font).pointSizeF() * width / needed);
    return font;
}

} // namespace Quillory
