// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace Quillory {

/// The toolkit's plain style with boxes and radio buttons as the lists draw them, legible on a dark
/// ground too. The window's style sheet builds on it. The wheel turns what a drop-down lies upon,
/// not its choice.
class AppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    AppStyle();

    using QProxyStyle::polish;
    /// What of a desktop's palette could not be read is made so.
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
        QStyleHintReturn* returnData) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Quillory
