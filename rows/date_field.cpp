// SPDX-License-Identifier: MIT
#include "rows/date_field.h"

#include "rows/accessible_calendar.h"
#include "values/column_type.h"
#include "values/file_date.h"
#include "values/typed_date.h"
#include "widgets/measures.h"
#include "widgets/message_box.h"

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// File times begin here.
constexpr int kFirstYear = 1601;

constexpr int kDays = 7;

/// Makes the month and the year as small as the longest month asks for, between the arrows.
void FitHeader(const QCalendarWidget& calendar)
{
    QString longest;
    for (int month = 1; month <= 12; ++month) {
        const QString name = calendar.locale().standaloneMonthName(month);
        longest = name.size() > longest.size() ? name : longest;
    }
    const int beside = 2 * (CurrentMeasures().lineHeight + kPageMargin);
    QFont font = calendar.font();
    font.setBold(true);
    font = FontFitting(font, longest + u" 0000"_s, calendar.width() - beside);
    for (const QString& name : { u"qt_calendar_monthbutton"_s, u"qt_calendar_yearbutton"_s }) {
        if (auto* button = calendar.findChild<QToolButton*>(name))
            button->setFont(font);
    }
}

/// Days that fingers can hit where `room` allows it, in the colours of the palette alone.
void DressCalendar(QCalendarWidget* calendar, const QSize& room)
{
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Dates are typed in the field; what is begun here would be lost, memory with it, on closing.
    calendar->setDateEditEnabled(false);
    const QSize usual = QSize(kDays, kDays) * kMinTouchTarget;
    calendar->setFont(FontFitting(calendar->font(), QString(qsizetype { 4 } * kDays, u'0'),
        std::min(room.width(), usual.width())));
    calendar->setFixedSize(calendar->minimumSizeHint().expandedTo(usual).boundedTo(room));
    // The cells of lists have room around their texts; here that would leave none for the days.
    calendar->setStyleSheet(u"QTableView::item { padding: 0; }"_s);
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
    FitHeader(*calendar);
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
    button->setToolTip(button->accessibleName());
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
    connect(m_edit, &QLineEdit::textEdited, this, [this] { MarkUnread(false); });
    Open({}, {});
}

QString DateField::TextOf(QDate date) const
{
    const auto time = DateToFileTime(date);
    if (!time)
        return {};
    const PropertyValue value { PropExpiryDate, 0, *time };
    return FormatCellText(&value, PropExpiryDate, m_context);
}

void DateField::Open(const QString& stored, const QString& text)
{
    m_stored = stored;
    m_edit->setPlaceholderText(stored.isEmpty() ? tr("no date") : stored);
    m_edit->setText(text);
    MarkUnread(IsUnread());
}

void DateField::Open(QDate date)
{
    Open(TextOf(date), TextOf(date));
}

QString DateField::Entry() const
{
    const QString text = m_edit->text();
    if (text == m_stored || text.trimmed().isEmpty())
        return m_stored;
    const auto date = Read(text);
    return date ? TextOf(*date) : text;
}

std::optional<QDate> DateField::Read(const QString& text) const
{
    //: Typed in place of a date, in small letters.
    return ReadTypedDate(text, tr("today"), m_context);
}

bool DateField::IsUnread(const QString& stored, const QString& text) const
{
    return text != stored && !text.trimmed().isEmpty() && !Read(text);
}

bool DateField::IsUnread() const
{
    return IsUnread(m_stored, m_edit->text());
}

void DateField::MarkUnread(bool isUnread)
{
    QFont font;
    font.setStrikeOut(isUnread);
    m_edit->setFont(font);
    const QString description = isUnread ? tr("not a date") : QString();
    for (QWidget* widget : std::array<QWidget*, 2> { this, m_edit })
        widget->setAccessibleDescription(description);
}

void DateField::TellUnread()
{
    constexpr int kQuoted = 40;
    MarkUnread(true);
    m_edit->setFocus();
    m_edit->selectAll();
    const QString today = TextOf(m_context.clock().date);
    ShowMessage(this,
        tr("\"%1\" is not a date. Type it as in %2, or pick it from the calendar.")
            .arg(m_edit->text().left(kQuoted), today),
        MessageIcon::Exclamation);
}

void DateField::OpenCalendar()
{
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setObjectName(u"calendarPopup"_s);
    popup->setAccessibleName(tr("Calendar"));
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setFrameShape(QFrame::StyledPanel);
    MeetDays();
    auto* calendar = new QCalendarWidget(popup);
    calendar->setObjectName(u"calendar"_s);
    calendar->setAccessibleName(accessibleName());
    NameParts(*calendar);
    const QRect room = screen()->availableGeometry();
    constexpr int kFrame = 1;
    DressCalendar(calendar, room.size() - 2 * QSize(kFrame, kFrame));
    calendar->setMinimumDate(QDate(kFirstYear, 1, 1));
    calendar->setSelectedDate(Read(Entry()).value_or(m_context.clock().date));
    auto* layout = new QVBoxLayout(popup);
    layout->setContentsMargins(kFrame, kFrame, kFrame, kFrame);
    layout->addWidget(calendar);
    const auto pick = [this, popup](QDate date) {
        popup->close();
        m_edit->setText(TextOf(date));
        MarkUnread(false);
    };
    connect(calendar, &QCalendarWidget::clicked, popup, pick);
    connect(calendar, &QCalendarWidget::activated, popup, pick);
    connect(popup, &QObject::destroyed, m_edit, [this] { m_edit->setFocus(Qt::PopupFocusReason); });

    const QSize size = popup->sizeHint();
    QPoint place = mapToGlobal(QPoint(width() - size.width(), height()));
    if (place.y() + size.height() > room.bottom() - kGrid)
        place.setY(mapToGlobal(QPoint()).y() - size.height());
    popup->move(PlaceWithin(room, place, size));
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
    } else if (event->type() == QEvent::FocusOut) {
        if (m_edit->text().trimmed().isEmpty())
            m_edit->setText(m_stored);
        MarkUnread(IsUnread());
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace Quillory
