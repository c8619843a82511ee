// SPDX-License-Identifier: MIT
#include "widgets/colour_grid.h"

#include "widgets/colour_palette.h"
#include "widgets/measures.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kColumnLength = 6;
constexpr QRgb kSwatchOutline = qRgb(192, 192, 192);
constexpr int kSwatchInset = 3;

/// One colour of the grid.
class Swatch : public QAbstractButton
{
public:
    Swatch(quint32 index, bool isSelected, QWidget* parent)
        : QAbstractButton(parent)
        , m_index(index)
    {
        setObjectName(u"colour%1"_s.arg(index));
        setAccessibleName(ColourName(index));
        setCheckable(true);
        setChecked(isSelected);
        setFocusPolicy(Qt::StrongFocus);
        setMouseTracking(true);
        m_opened.start();
    }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        // A pointer that rests where the grid opened leaves the keyboard its place.
        if (event->globalPosition().toPoint() != m_restingPointer)
            setFocus();
        QAbstractButton::mouseMoveEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override
    {
        // The second one of a double click or tap falls where the first one opened the grid.
        const QWidget* button = window()->parentWidget();
        if (m_opened.elapsed() > QApplication::doubleClickInterval()
            || !button->rect().contains(button->mapFromGlobal(event->globalPosition().toPoint())))
            QAbstractButton::mousePressEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        // A button's own arrows go from one to the next, whatever lies beside it.
        if (event->key() == Qt::Key_Space)
            QAbstractButton::keyPressEvent(event);
        else
            event->ignore();
    }
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (hasFocus() || isChecked()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette().color(QPalette::Highlight));
            painter.drawRoundedRect(
                rect(), kCornerRadius + kSwatchInset, kCornerRadius + kSwatchInset);
        }
        if (isChecked() && !hasFocus()) {
            painter.setBrush(palette().color(QPalette::Base));
            painter.drawRoundedRect(
                rect().adjusted(2, 2, -2, -2), kCornerRadius + 1, kCornerRadius + 1);
        }
        const bool isAutomatic = m_index == kAutomaticColour;
        painter.setPen(QColor(kSwatchOutline));
        painter.setBrush(isAutomatic ? palette().color(QPalette::Text) : PaletteColour(m_index));
        painter.drawRoundedRect(QRectF(rect()).adjusted(kSwatchInset + .5, kSwatchInset + .5,
                                    -kSwatchInset - .5, -kSwatchInset - .5),
            kCornerRadius, kCornerRadius);
        if (isAutomatic) {
            painter.setPen(palette().color(QPalette::Base));
            painter.drawText(rect(), Qt::AlignCenter, u"A"_s);
        }
    }

private:
    quint32 m_index;
    QPoint m_restingPointer = QCursor::pos();
    QElapsedTimer m_opened;
};

} // namespace

ColourGrid::ColourGrid(quint32 selected, QWidget* parent)
    : QFrame(parent, Qt::Popup)
{
    setObjectName(u"colourGrid"_s);
    setAccessibleName(tr("Colours"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(kGrid, kGrid, kGrid, kGrid);
    grid->setSpacing(kGrid / 4);
    int place = 0;
    for (const quint32 index : ColoursByValue()) {
        auto* swatch = new Swatch(index, index == selected, this);
        // By whatever means: assistive technology toggles a button without a click.
        connect(swatch, &QAbstractButton::toggled, this, [this, index] { Pick(index); });
        grid->addWidget(swatch, place % kColumnLength, place / kColumnLength);
        if (index == selected)
            swatch->setFocus();
        ++place;
    }
}

void ColourGrid::Open(const QPoint& topLeft, const QRect& window)
{
    // Smaller ones where the window has no room for six.
    const int room = window.width() - layout()->contentsMargins().left()
        - layout()->contentsMargins().right() - (kColumnLength - 1) * layout()->spacing()
        - 2 * frameWidth();
    const int size = std::min(
        { CurrentMeasures().lineHeight + 2 * kSwatchInset, kMinTouchTarget, room / kColumnLength });
    for (auto* swatch : findChildren<QAbstractButton*>())
        swatch->setFixedSize(size, size);
    adjustSize();
    move(PlaceWithin(window, topLeft, geometry().size()));
    show();
}

void ColourGrid::Pick(quint32 index)
{
    Q_EMIT Picked(index);
    close();
}

void ColourGrid::keyPressEvent(QKeyEvent* event)
{
    auto* grid = qobject_cast<QGridLayout*>(layout());
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(
        std::max(0, grid->indexOf(focusWidget())), &row, &column, &rows, &columns);
    switch (event->key()) {
    case Qt::Key_Up:
        row = std::max(0, row - 1);
        break;
    case Qt::Key_Down:
        row = std::min(kColumnLength - 1, row + 1);
        break;
    case Qt::Key_Left:
        column = std::max(0, column - 1);
        break;
    case Qt::Key_Right:
        column = std::min(grid->columnCount() - 1, column + 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* swatch = qobject_cast<QAbstractButton*>(focusWidget()))
            swatch->click();
        return;
    default:
        return QFrame::keyPressEvent(event);
    }
    grid->itemAtPosition(row, column)->widget()->setFocus();
}

void ColourGrid::closeEvent(QCloseEvent* event)
{
    Q_EMIT Closed();
    QFrame::closeEvent(event);
}

} // namespace Quillory
