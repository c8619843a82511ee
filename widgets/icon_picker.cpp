// SPDX-License-Identifier: MIT
#include "widgets/icon_picker.h"

#include "widgets/accessibility.h"
#include "widgets/focus_ring.h"
#include "widgets/icon_grid_page.h"
#include "widgets/icon_set.h"
#include "widgets/ink.h"
#include "widgets/measures.h"
#include "widgets/page_stack.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kTriangleWidth = 12;
constexpr int kTriangleHeight = 6;

enum class Face
{
    UpTriangle,
    DownTriangle,
    Dots,
};

/// A button at the right end of the picker.
class PickerButton : public QAbstractButton
{
public:
    PickerButton(Face face, const QString& name, QWidget* parent)
        : QAbstractButton(parent)
        , m_face(face)
    {
        setAccessibleName(name);
        setToolTip(name);
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }
    [[nodiscard]] QSize sizeHint() const override
    {
        const int side = std::max(CurrentMeasures().lineHeight - kGrid / 2, 4 * kGrid);
        return { side, side };
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor ink = palette().color(isDown() ? QPalette::Base : QPalette::Text);
        painter.setPen(OutlineColour(palette()));
        const bool isUnderMouse = underMouse() && !isDown() && !HasTouchScreen();
        painter.setBrush(isUnderMouse
                ? TintedGround(palette())
                : palette().color(isDown() ? QPalette::Text : QPalette::Base));
        painter.drawRoundedRect(
            QRectF(rect()).adjusted(.5, .5, -.5, -.5), kCornerRadius, kCornerRadius);
        if (hasFocus())
            DrawFocusRing(painter, rect(), palette());
        painter.setPen(ink);
        if (m_face == Face::Dots) {
            painter.drawText(rect(), Qt::AlignCenter, u"..."_s);
            return;
        }
        const QPointF middle = QRectF(rect()).center();
        const qreal tip = m_face == Face::UpTriangle ? -kTriangleHeight / 2. : kTriangleHeight / 2.;
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawPolygon(
            QPolygonF { { middle + QPointF(0, tip), middle + QPointF(-kTriangleWidth / 2., -tip),
                middle + QPointF(kTriangleWidth / 2., -tip) } });
    }

private:
    Face m_face;
};

} // namespace

/// The picker as assistive technology meets it: a button, which has a value too.
class AccessibleIconPicker : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit AccessibleIconPicker(IconPicker* picker)
        : QAccessibleWidget(picker, QAccessible::Button)
        , m_picker(picker)
    { }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_picker->accessibleDescription()
                                          : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QVariant currentValue() const override { return m_picker->Icon(); }
    void setCurrentValue(const QVariant& value) override
    {
        m_picker->SetIcon(std::clamp(value.toInt(), 0, kListIconCount - 1));
    }
    [[nodiscard]] QVariant minimumValue() const override { return 0; }
    [[nodiscard]] QVariant maximumValue() const override { return kListIconCount - 1; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList { pressAction() } + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            m_picker->OpenGrid();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    IconPicker* m_picker;
};

IconPicker::IconPicker(QWidget* parent)
    : QWidget(parent)
{
    MeetAs<AccessibleIconPicker, IconPicker>();
    setFocusPolicy(Qt::StrongFocus);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(1, 1, 1, 1);
    line->setSpacing(2);
    line->addStretch(1);
    const auto add = [this, line](Face face, const QString& name, const QString& objectName) {
        auto* button = new PickerButton(face, name, this);
        button->setObjectName(objectName);
        line->addWidget(button);
        return button;
    };
    connect(add(Face::UpTriangle, tr("Next icon"), u"nextIcon"_s), &QAbstractButton::clicked, this,
        &IconPicker::NextIcon);
    connect(add(Face::DownTriangle, tr("Previous icon"), u"previousIcon"_s),
        &QAbstractButton::clicked, this, &IconPicker::PreviousIcon);
    connect(add(Face::Dots, tr("All icons"), u"allIcons"_s), &QAbstractButton::clicked, this,
        &IconPicker::OpenGrid);
}

void IconPicker::SetIcon(int index)
{
    m_icon = index;
    setAccessibleDescription(index >= 0 ? ListIconName(index) : QString());
    update();
}

QSize IconPicker::sizeHint() const
{
    const QSize least = minimumSizeHint();
    return { least.width() + least.height(), least.height() };
}

QSize IconPicker::minimumSizeHint() const
{
    const int height
        = std::max(CurrentMeasures().lineHeight, CurrentMeasures().iconSize + 2 * kGrid);
    return { layout()->minimumSize().width() + height, height };
}

void IconPicker::Choose(int index)
{
    SetIcon(index);
    setFocus();
    Announce(accessibleDescription());
}

void IconPicker::NextIcon()
{
    Choose(m_icon + 1 < kListIconCount ? m_icon + 1 : 0);
}

void IconPicker::PreviousIcon()
{
    Choose(m_icon > 0 ? m_icon - 1 : kListIconCount - 1);
}

void IconPicker::OpenGrid()
{
    auto* page = new IconGridPage(m_icon);
    PageStack::Of(this).Push(page, [this, page](PageResult result) {
        if (result != PageResult::Closing)
            Choose(page->Icon());
    });
}

void IconPicker::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void IconPicker::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        OpenGrid();
}

void IconPicker::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up)
        NextIcon();
    else if (event->key() == Qt::Key_Down)
        PreviousIcon();
    else if (event->key() == Qt::Key_Space)
        OpenGrid();
    else
        QWidget::keyPressEvent(event);
}

void IconPicker::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void IconPicker::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

void IconPicker::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto* firstButton = findChild<QWidget*>(u"nextIcon"_s);
    QRect face = rect();
    if (isRightToLeft())
        face.setLeft(firstButton->geometry().right() + 3);
    else
        face.setRight(firstButton->x() - 3);
    painter.setPen(OutlineColour(palette()));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(face).adjusted(.5, .5, -.5, -.5), kCornerRadius, kCornerRadius);
    if (hasFocus())
        DrawFocusRing(painter, face, palette());
    if (m_icon < 0)
        return;
    const int size = face.height() - kGrid;
    QRect picture(0, 0, size, size);
    picture.moveCenter(face.center());
    ListIcon(m_icon).paint(&painter, picture);
}

} // namespace Quillory
