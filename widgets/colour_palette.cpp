// SPDX-License-Identifier: MIT
#include "widgets/colour_palette.h"

#include "widgets/ink.h"

#include <QCoreApplication>

#include <algorithm>
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

} // namespace

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

QColor TextColour(quint32 index, const QPalette& palette, const QColor& ground)
{
    const bool isDark = IsDark(palette);
    if (index == kAutomaticColour || index >= kColourCount)
        return isDark ? FitTo(palette.color(QPalette::Text), { ground })
                      : PaletteColour(kAutomaticColour);
    return isDark ? FitTo(PaletteColour(index), { ground }) : PaletteColour(index);
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
