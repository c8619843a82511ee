// SPDX-License-Identifier: MIT
#include "widgets/colour_button.h"

#include "widgets/accessibility.h"
#include "widgets/colour_grid.h"
#include "widgets/colour_palette.h"
#include "widgets/focus_ring.h"
#include "widgets/ink.h"
#include "widgets/measures.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMarkWidth = 6;
constexpr int kMarkHeight = 3;
/// From the mark's left edge to the button's right one.
constexpr int kMarkPlace = 9;
constexpr int kMarkGap = 3;
constexpr QRgb kOutline = qRgb(128, 128, 128);
/// The units above are drawn at this scale, so that the mark can be seen at arm's length.
constexpr int kUnit = 2;

} // namespace

ColourButton::ColourButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    SetColour(0);
    connect(this, &QAbstractButton::clicked, this, &ColourButton::OpenGrid);
}

void ColourButton::SetColour(quint32 index)
{
    m_colour = index < kColourCount ? index : kAutomaticColour;
    setText(ColourName(m_colour));
    update();
}

QSize ColourButton::sizeHint() const
{
    const int height
        = std::max(CurrentMeasures().lineHeight, CurrentMeasures().textSize + 2 * kGrid);
    return { height + (kMarkPlace + kMarkGap) * kUnit, height };
}

void ColourButton::OpenGrid()
{
    m_isOpen = true;
    repaint();
    auto* grid = new ColourGrid(m_colour, this);
    connect(grid, &ColourGrid::Picked, this, [this](quint32 index) {
        SetColour(index);
        Q_EMIT ColourPicked(index);
    });
    connect(grid, &ColourGrid::Closed, this, [this] {
        m_isOpen = false;
        update();
    });
    grid->Open(mapToGlobal(QPoint()), QRect(window()->mapToGlobal(QPoint()), window()->size()));
}

void ColourButton::Step(int by)
{
    const auto& order = ColoursByValue();
    const auto found = std::find(order.begin(), order.end(), m_colour);
    const auto place = static_cast<int>(found - order.begin()) + by;
    if (place >= 0 && place < static_cast<int>(order.size()))
        SetColour(order.at(static_cast<size_t>(place)));
    Announce(text());
}

void ColourButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up)
        Step(-1);
    else if (event->key() == Qt::Key_Down)
        Step(1);
    else if (event->key() == Qt::Key_Space)
        // Not on its release: Wayland compositors show no pop-up for a key that was let go already.
        click();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        // The page's, as from any field; some desktops would press the button.
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

void ColourButton::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    update();
}

void ColourButton::focusOutEvent(QFocusEvent* event)
{
    QAbstractButton::focusOutEvent(event);
    update();
}

void ColourButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    QPainterPath frame;
    frame.addRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), kGrid / 2., kGrid / 2.);
    painter.setPen(isEnabled() ? OutlineColour(palette()) : HairlineColour(palette()));
    painter.setBrush(palette().color(group, QPalette::Base));
    painter.drawPath(frame);
    const QRect inner = rect().adjusted(1, 1, -1, -1);
    QRect strip = inner;
    strip.setLeft(inner.right() + 1 - (kMarkPlace + kMarkGap) * kUnit);
    painter.setClipPath(frame);
    DrawMark(painter, strip);
    QRect area = inner;
    area.setRight(strip.left() - 1);
    DrawSwatch(painter, area.adjusted(2, 1, -2, -1));
    if (hasFocus())
        DrawFocusRing(painter, rect(), palette());
}

void ColourButton::DrawMark(QPainter& painter, const QRect& strip) const
{
    const QColor text
        = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text);
    if (m_isOpen)
        painter.fillRect(strip, text);
    const QPointF left(strip.left() + kMarkGap * kUnit, strip.center().y() + 1 - kUnit);
    const QPolygonF mark { { left, left + QPointF(kMarkWidth * kUnit, 0),
        left + QPointF(kMarkWidth * kUnit / 2., kMarkHeight * kUnit) } };
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_isOpen ? palette().color(QPalette::Base) : text);
    painter.drawPolygon(mark);
}

void ColourButton::DrawSwatch(QPainter& painter, const QRect& area) const
{
    const bool isAutomatic = m_colour == kAutomaticColour;
    QColor fill = isAutomatic ? palette().color(QPalette::Text) : PaletteColour(m_colour);
    if (!isEnabled())
        fill = palette().color(QPalette::Disabled, QPalette::Text);
    const int inset = kGrid / 2;
    const QRectF swatch = QRectF(area).adjusted(inset + .5, inset + .5, -inset - .5, -inset - .5);
    painter.setPen(QColor(kOutline));
    painter.setBrush(fill);
    painter.drawRoundedRect(swatch, 3, 3);
    if (isAutomatic) {
        painter.setPen(palette().color(QPalette::Base));
        painter.drawText(swatch, Qt::AlignCenter, u"A"_s);
    }
}

} // namespace Quillory
