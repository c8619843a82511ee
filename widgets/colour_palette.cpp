#include "widgets/colour_palette.h"

#include <array>
#include <cmath>

namespace Quillory {

namespace {

constexpr std::array<QRgb, kColourCount> kColours {
    qRgb(0, 0, 0),
    qRgb(0, 0, 255),
    qRgb(0, 0, 128),
    qRgb(0, 128, 255),
    qRgb(0, 0, 64),
    qRgb(255, 0, 0),
    qRgb(128, 0, 0),
    qRgb(255, 0, 255),
    qRgb(255, 170, 255),
    qRgb(128, 128, 192),
    qRgb(64, 0, 64),
    qRgb(128, 255, 255),
    qRgb(255, 128, 0),
    qRgb(128, 64, 0),
    qRgb(0, 255, 0),
    qRgb(0, 128, 0),
    qRgb(64, 128, 128),
    qRgb(128, 128, 0),
    qRgb(240, 240, 0),
    qRgb(185, 198, 240),
    qRgb(128, 128, 255),
    qRgb(255, 128, 192),
    qRgb(255, 204, 102),
    qRgb(102, 102, 153),
    qRgb(180, 226, 255),
    qRgb(102, 204, 51),
    qRgb(178, 255, 178),
    qRgb(204, 204, 255),
    qRgb(142, 51, 180),
    qRgb(142, 96, 129),
    qRgb(180, 52, 158),
    qRgb(212, 130, 0),
    qRgb(126, 202, 126),
    qRgb(100, 100, 100),
    qRgb(250, 70, 118),
    qRgb(0, 64, 0),
};

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightnessF() < palette.color(QPalette::Text).lightnessF();
}

/// Relative luminance by the formula of WCAG 2.
double Luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor LightenedFor(QColor colour, const QColor& ground)
{
    constexpr double kReadable = 4.5;
    constexpr float kStep = 0.02F;
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    colour.getHslF(&hue, &saturation, &lightness);
    while (Contrast(colour, ground) < kReadable && lightness < 1) {
        lightness = std::min(1.0F, lightness + kStep);
        colour.setHslF(hue, saturation, lightness);
    }
    return colour;
}

} // namespace

QColor TextColour(quint32 index, const QPalette& palette)
{
    const bool isDark = IsDark(palette);
    if (index == kAutomaticColour || index >= kColourCount)
        return isDark ? palette.color(QPalette::Text) : QColor(kColours[kAutomaticColour]);
    const QColor colour(kColours.at(index));
    return isDark ? LightenedFor(colour, palette.color(QPalette::Base)) : colour;
}

QColor AlternateRowColour(const QPalette& palette)
{
    const QColor colour(kAlternateRowColour);
    if (!IsDark(palette))
        return colour;
    constexpr float kDarkLightness = 0.25F;
    return QColor::fromHslF(colour.hslHueF(), colour.hslSaturationF() / 2, kDarkLightness);
}

} // namespace Quillory
