// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QMargins>
#include <QPoint>
#include <QRect>

class QFontMetrics;

namespace Quillory {

/// Sizes in logical pixels. Those that fingers meet come in two: for touch and for a mouse.
struct Measures
{
    int headerHeight;
    int softKeyHeight;
    int lineHeight;
    int iconSize;
    /// The least size of letters.
    int textSize;
};

constexpr Measures kTouchMeasures { 48, 56, 48, 24, 15 };
constexpr Measures kMouseMeasures { 40, 44, 28, 16, 13 };

constexpr int kGrid = 8;
constexpr int kPageMargin = 16;
/// Of what is drawn with round corners: swatches, faces of pickers.
constexpr double kCornerRadius = 4;
/// The margin of pages narrower than kNarrowPage.
constexpr int kNarrowMargin = 8;
constexpr int kNarrowPage = 300;
/// The least height of what a finger is to hit.
constexpr int kMinTouchTarget = 44;
/// Wider than this neither a field nor a page of fields is good to read.
constexpr int kMaxFieldWidth = 480;
constexpr int kMinFieldWidth = 184;
constexpr int kMaxPageWidth = 700;
/// A lower window has no height to spare for its frame.
constexpr int kLowWindow = 400;

/// Where a pop-up of this size goes that is wanted at a place: within `room`, and kGrid from its
/// edges unless it is as large as that. One that is larger begins where the room does.
[[nodiscard]] QPoint PlaceWithin(const QRect& room, const QPoint& wanted, const QSize& size);

[[nodiscard]] bool HasTouchScreen();
/// The measures for the devices at hand: touch where there is a touch screen.
[[nodiscard]] const Measures& CurrentMeasures();
/// The measures of the header, tabs and soft keys in a window of this height: those for a mouse in
/// a low one.
[[nodiscard]] const Measures& FrameMeasures(int windowHeight);
/// The height of a list's lines: more where the font needs it.
[[nodiscard]] int LineHeightFor(const QFontMetrics& font);
/// The margins of a line that reads from `leading` to `trailing`, in this direction.
[[nodiscard]] QMargins LineMargins(int leading, int trailing, Qt::LayoutDirection direction);
/// The font, or so much smaller a one that `text` takes no more than `width`.
[[nodiscard]] QFont FontFitting(QFont font, const QString& text, int width);

} // namespace Quillory
