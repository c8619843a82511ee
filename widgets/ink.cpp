// SPDX-License-Identifier: MIT
#include "widgets/ink.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace Quillory {

namespace {

/// The light that each step of a part of a colour gives, by the formula of WCAG 2.
std::array<double, 256> LightOfSteps()
{
    std::array<double, 256> light {};
    for (size_t step = 0; step < light.size(); ++step) {
        const double part = static_cast<double>(step) / 255;
        light.at(step) = part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    }
    return light;
}

/// Relative luminance. A palette needs thousands, a screen shows no more than 256 steps.
double Luminance(const QColor& colour)
{
    static const std::array<double, 256> light = LightOfSteps();
    const auto lightOf = [](int step) { return light.at(static_cast<size_t>(step)); };
    return 0.2126 * lightOf(colour.red()) + 0.7152 * lightOf(colour.green())
        + 0.0722 * lightOf(colour.blue());
}

bool IsDarkGround(const QColor& ground)
{
    // Here black and white are equally far.
    constexpr double kMiddle = 0.179;
    return Luminance(ground) < kMiddle;
}

struct TextRole
{
    QPalette::ColorRole role;
    /// What text of the role is written on.
    std::vector<QPalette::ColorRole> grounds;
};

const std::array kTextRoles {
    TextRole { QPalette::Text, { QPalette::Base } },
    TextRole { QPalette::WindowText, { QPalette::Window, QPalette::Base } },
    TextRole { QPalette::ButtonText, { QPalette::Button } },
    TextRole { QPalette::ToolTipText, { QPalette::ToolTipBase } },
    TextRole { QPalette::PlaceholderText, { QPalette::Base, QPalette::Window } },
    TextRole { QPalette::Link, { QPalette::Base, QPalette::Window } },
    TextRole { QPalette::LinkVisited, { QPalette::Base, QPalette::Window } },
};

/// Text on a selection is that of the desktop, else that of pages, which may be the other way
/// round.
QColor SelectedInk(const QPalette& palette, QPalette::ColorGroup group)
{
    const QColor ground = palette.color(group, QPalette::Highlight);
    for (const auto role : { QPalette::HighlightedText, QPalette::Text, QPalette::Base }) {
        const QColor ink = palette.color(group, role);
        if (Contrast(ink, ground) >= kReadable)
            return ink;
    }
    return FitTo(palette.color(group, QPalette::HighlightedText), { ground });
}

} // namespace

double Contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Mix(const QColor& colour, const QColor& ground, double share)
{
    const auto part
        = [share](float a, float b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(part(colour.redF(), ground.redF()),
        part(colour.greenF(), ground.greenF()), part(colour.blueF(), ground.blueF()));
}

QColor FitTo(QColor colour, std::initializer_list<QColor> grounds, double contrast)
{
    constexpr float kStep = 0.02F;
    for (const QColor& ground : grounds) {
        const float step = IsDarkGround(ground) ? kStep : -kStep;
        float hue = 0;
        float saturation = 0;
        float lightness = 0;
        colour.getHslF(&hue, &saturation, &lightness);
        while (
            Contrast(colour, ground) < contrast && lightness == std::clamp(lightness, 0.F, 1.F)) {
            lightness += step;
            colour.setHslF(hue, saturation, std::clamp(lightness, 0.F, 1.F));
        }
    }
    return colour;
}

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightnessF() < palette.color(QPalette::Text).lightnessF();
}

QPalette LegiblePalette(QPalette palette)
{
    const QColor tinted = TintedGround(palette);
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
        for (const TextRole& text : kTextRoles) {
            QColor ink = palette.color(group, text.role);
            ink = Mix(ink, palette.color(group, text.grounds.front()), ink.alphaF());
            for (const QPalette::ColorRole ground : text.grounds)
                ink = FitTo(ink, { palette.color(group, ground) });
            if (text.grounds.front() == QPalette::Base)
                ink = FitTo(ink, { tinted });
            palette.setColor(group, text.role, ink);
        }
        palette.setColor(group, QPalette::HighlightedText, SelectedInk(palette, group));
    }
    return palette;
}

QColor AccentInk(const QPalette& palette)
{
    return FitTo(palette.color(QPalette::Highlight),
        { palette.color(QPalette::Base), palette.color(QPalette::Window), TintedGround(palette) });
}

QColor StrongerAccent(const QPalette& palette)
{
    constexpr double kShare = 0.8;
    const QColor away(
        IsDarkGround(palette.color(QPalette::HighlightedText)) ? Qt::white : Qt::black);
    return Mix(palette.color(QPalette::Highlight), away, kShare);
}

QColor TintedGround(const QPalette& palette)
{
    constexpr double kTint = 0.1;
    return Mix(palette.color(QPalette::Highlight), palette.color(QPalette::Base), kTint);
}

QColor OutlineColour(const QPalette& palette)
{
    constexpr double kShare = 0.35;
    const QColor ground = palette.color(QPalette::Base);
    return FitTo(Mix(palette.color(QPalette::Text), ground, kShare),
        { ground, palette.color(QPalette::Window), palette.color(QPalette::Button) }, kVisible);
}

QColor HairlineColour(const QPalette& palette)
{
    constexpr double kStrongest = 19;
    constexpr double kShare = 0.13;
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    return Contrast(text, ground) > kStrongest ? OutlineColour(palette) : Mix(text, ground, kShare);
}

} // namespace Quillory
