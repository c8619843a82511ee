// SPDX-License-Identifier: MIT
#include "widgets/colour_palette.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Quillory {

namespace {

struct ColourEntry
{
    QRgb colour;
    const char* name;
};

constexpr std::array<ColourEntry, kColourCount> kColours { {
    { qRgb(0, 0, 0), QT_TRANSLATE_NOOP("Colours", "Automatic") },
    { qRgb(0, 0, 255), QT_TRANSLATE_NOOP("Colours", "Blue") },
    { qRgb(0, 0, 128), QT_TRANSLATE_NOOP("Colours", "Navy") },
    { qRgb(0, 128, 255), QT_TRANSLATE_NOOP("Colours", "Azure") },
    { qRgb(0, 0, 64), QT_TRANSLATE_NOOP("Colours", "Midnight blue") },
    { qRgb(255, 0, 0), QT_TRANSLATE_NOOP("Colours", "Red") },
    { qRgb(128, 0, 0), QT_TRANSLATE_NOOP("Colours", "Maroon") },
    { qRgb(255, 0, 255), QT_TRANSLATE_NOOP("Colours", "Magenta") },
    { qRgb(255, 170, 255), QT_TRANSLATE_NOOP("Colours", "Pale pink") },
    { qRgb(128, 128, 192), QT_TRANSLATE_NOOP("Colours", "Slate blue") },
    { qRgb(64, 0, 64), QT_TRANSLATE_NOOP("Colours", "Dark plum") },
    { qRgb(128, 255, 255), QT_TRANSLATE_NOOP("Colours", "Pale cyan") },
    { qRgb(255, 128, 0), QT_TRANSLATE_NOOP("Colours", "Orange") },
    { qRgb(128, 64, 0), QT_TRANSLATE_NOOP("Colours", "Brown") },
    { qRgb(0, 255, 0), QT_TRANSLATE_NOOP("Colours", "Bright green") },
    { qRgb(0, 128, 0), QT_TRANSLATE_NOOP("Colours", "Green") },
    { qRgb(64, 128, 128), QT_TRANSLATE_NOOP("Colours", "Teal") },
    { qRgb(128, 128, 0), QT_TRANSLATE_NOOP("Colours", "Olive") },
    { qRgb(240, 240, 0), QT_TRANSLATE_NOOP("Colours", "Yellow") },
    { qRgb(185, 198, 240), QT_TRANSLATE_NOOP("Colours", "Pale blue") },
    { qRgb(128, 128, 255), QT_TRANSLATE_NOOP("Colours", "Periwinkle") },
    { qRgb(255, 128, 192), QT_TRANSLATE_NOOP("Colours", "Pink") },
    { qRgb(255, 204, 102), QT_TRANSLATE_NOOP("Colours", "Pale orange") },
    { qRgb(102, 102, 153), QT_TRANSLATE_NOOP("Colours", "Dusky blue") },
    { qRgb(180, 226, 255), QT_TRANSLATE_NOOP("Colours", "Sky blue") },
    { qRgb(102, 204, 51), QT_TRANSLATE_NOOP("Colours", "Leaf green") },
    { qRgb(178, 255, 178), QT_TRANSLATE_NOOP("Colours", "Pale green") },
    { qRgb(204, 204, 255), QT_TRANSLATE_NOOP("Colours", "Lavender") },
    { qRgb(142, 51, 180), QT_TRANSLATE_NOOP("Colours", "Violet") },
    { qRgb(142, 96, 129), QT_TRANSLATE_NOOP("Colours", "Mauve") },
    { qRgb(180, 52, 158), QT_TRANSLATE_NOOP("Colours", "Purple") },
    { qRgb(212, 130, 0), QT_TRANSLATE_NOOP("Colours", "Amber") },
    { qRgb(126, 202, 126), QT_TRANSLATE_NOOP("Colours", "Sage") },
    { qRgb(100, 100, 100), QT_TRANSLATE_NOOP("Colours", "Grey") },
    { qRgb(250, 70, 118), QT_TRANSLATE_NOOP("Colours", "Raspberry") },
    { qRgb(0, 64, 0), QT_TRANSLATE_NOOP("Colours", "Dark green") },
} };

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

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightnessF() < palette.color(QPalette::Text).lightnessF();
}

QColor PaletteColour(quint32 index)
{
    return kColours.at(index < kColourCount ? index : kAutomaticColour).colour;
}

QString ColourName(quint32 index)
{
    return QCoreApplication::translate(
        "Colours", kColours.at(index < kColourCount ? index : kAutomaticColour).name);
}

const std::array<quint32, kColourCount>& ColoursByValue()
{
    static const auto order = [] {
        std::array<quint32, kColourCount> indices {};
        std::iota(indices.begin(), indices.end(), 0U);
        std::sort(indices.begin(), indices.end(),
            [](quint32 a, quint32 b) { return kColours.at(a).colour < kColours.at(b).colour; });
        return indices;
    }();
    return order;
}

QColor TextColour(quint32 index, const QPalette& palette)
{
    const bool isDark = IsDark(palette);
    if (index == kAutomaticColour || index >= kColourCount)
        return isDark ? palette.color(QPalette::Text) : PaletteColour(kAutomaticColour);
    const QColor colour = PaletteColour(index);
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
