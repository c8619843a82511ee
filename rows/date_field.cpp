// SPDX-License-Identifier: MIT
#include "rows/date_field.h"

#include "values/column_type.h"
#include "values/file_date.h"
#include "widgets/measures.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// File times begin here.
constexpr int kFirstYear = 1601;

constexpr int kDays = 7;

/// Days that fingers can hit, in the colours of the palette alone.
void DressCalendar(QCalendarWidget* calendar)
{
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setMinimumWidth(kDays * kMinTouchTarget);
    calendar->setMinimumHeight(kDays * kMinTouchTarget);
    // The cells of lists have room around their texts; here that would leave none for the days.
    calendar->setStyleSheet(u"QTableView::item { padding: 0; }"
                            "#qt_calendar_prevmonth, #qt_calendar_nextmonth {"
                            " color: palette(highlighted-text); font-weight: bold; }"_s);
    for (const auto day : { Qt::Saturday, Qt::Sunday })
        calendar->setWeekdayTextFormat(day, calendar->weekdayTextFormat(Qt::Monday));
    for (const auto& [name, text] : { std::pair(u"qt_calendar_prevmonth"_s, u"‹"_s),
             std::pair(u"qt_calendar_nextmonth"_s, u"›"_s) }) {
        if (auto* button = calendar->findChild<QToolButton*>(name)) {
            button->setIcon({});
            button->setText(text);
            button->setMinimumSize(CurrentMeasures().lineHeight, CurrentMeasures().lineHeight);
        }
    }
}

} // namespace

DateField::DateField(const ValueContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_edit(new QLineEdit(this))
{
    m_edit->setObjectName(u"dateEdit"_s);
    m_edit->setInputMethodHints(Qt::ImhDate);
    m_edit->installEventFilter(this);
    auto* button = new QToolButton(m_edit);
    button->setObjectName(u"openCalendar"_s);
    button->setAccessibleName(tr("Calendar"));
    button->setArrowType(Qt::DownArrow);
    button->setAutoRaise(true);
    button->setCursor(Qt::ArrowCursor);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedWidth(CurrentMeasures().lineHeight);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_edit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(button, &QToolButton::clicked, this, &DateField::OpenCalendar);
    // The button lies inside the line, at its end.
    auto* inside = new QHBoxLayout(m_edit);
    inside->setContentsMargins(2, 2, 2, 2);
    inside->addStretch(1);
    inside->addWidget(button);
    m_edit->setTextMargins(0, 0, button->width(), 0);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_edit);
    setFocusProxy(m_edit);
    SetDate(std::nullopt);
}

QString DateField::TextOf(QDate date) const
{
    const auto time = DateToFileTime(date);
    if (!time)
        return {};
    const PropertyValue value { PropExpiryDate, 0, *time };
    return FormatCellText(&value, PropExpiryDate, m_context);
}

void DateField::SetDate(std::optional<QDate> date)
{
    m_date = date;
    m_dateText = date ? TextOf(*date) : QString();
    m_edit->setText(m_dateText);
    m_edit->setPlaceholderText(TextOf(m_context.clock().date));
}

std::optional<QDate> DateField::Date() const
{
    const QString text = m_edit->text();
    if (text == m_dateText)
        return m_date;
    if (text.trimmed().isEmpty())
        return m_mayBeEmptied ? std::nullopt : m_date;
    const auto date = Read(text);
    return date ? date : m_date;
}

std::optional<QDate> DateField::Read(const QString& text) const
{
    const auto time = ParseDateText(text, m_context);
    return time ? FileTimeToDate(*time) : std::nullopt;
}

QString DateField::DateText() const
{
    const auto date = Date();
    return date ? TextOf(*date) : QString();
}

void DateField::OpenCalendar()
{
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setObjectName(u"calendarPopup"_s);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setFrameShape(QFrame::StyledPanel);
    auto* calendar = new QCalendarWidget(popup);
    calendar->setObjectName(u"calendar"_s);
    calendar->setAccessibleName(accessibleName());
    DressCalendar(calendar);
    calendar->setMinimumDate(QDate(kFirstYear, 1, 1));
    calendar->setSelectedDate(Date().value_or(m_context.clock().date));
    auto* layout = new QVBoxLayout(popup);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(calendar);
    const auto pick = [this, popup](QDate date) {
        popup->close();
        m_edit->setText(TextOf(date));
    };
    connect(calendar, &QCalendarWidget::clicked, popup, pick);
    connect(calendar, &QCalendarWidget::activated, popup, pick);
    connect(popup, &QObject::destroyed, m_edit, [this] { m_edit->setFocus(Qt::PopupFocusReason); });

    const QSize size = popup->sizeHint();
    const QRect room = screen()->availableGeometry();
    QPoint place = mapToGlobal(QPoint(width() - size.width(), height()));
    if (place.y() + size.height() > room.bottom())
        place.setY(mapToGlobal(QPoint()).y() - size.height());
    place.setX(std::max(place.x(), room.left()));
    place.setY(std::max(place.y(), room.top()));
    popup->move(place);
    popup->show();
    calendar->setFocus();
}

bool DateField::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isAltDown
            = key->key() == Qt::Key_Down && key->modifiers().testFlag(Qt::AltModifier);
        if (isAltDown || key->key() == Qt::Key_F4) {
            OpenCalendar();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Quillory
