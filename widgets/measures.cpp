// SPDX-License-Identifier: MIT
#include "widgets/measures.h"

#include <QFontMetrics>
#include <QInputDevice>

#include <algorithm>

namespace Quillory {

const Measures& CurrentMeasures()
{
    const auto devices = QInputDevice::devices();
    const bool hasTouch
        = std::any_of(devices.begin(), devices.end(), [](const QInputDevice* device) {
              return device->type() == QInputDevice::DeviceType::TouchScreen;
          });
    return hasTouch ? kTouchMeasures : kMouseMeasures;
}

int LineHeightFor(const QFontMetrics& font)
{
    return std::max(CurrentMeasures().lineHeight, font.height() + kGrid);
}

} // namespace Quillory
