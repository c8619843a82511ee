// SPDX-License-Identifier: MIT
#include "rows/accessible_calendar.h"

#include "widgets/accessibility.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QCoreApplication>
#include <QTableView>

#include <map>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// One place of the calendar's table, which has a line of weekdays above the days.
class AccessibleDay : public QAccessibleInterface
{
public:
    AccessibleDay(QTableView* view, const QModelIndex& index)
        : m_view(view)
        , m_index(index)
    { }

    [[nodiscard]] bool isValid() const override { return m_index.isValid(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override
    {
        return nullptr;
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override
    {
        return -1;
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind != QAccessible::Name)
            return {};
        const QDate date = Date();
        return date.isValid() ? m_view->locale().toString(date, QLocale::LongFormat)
                              : m_index.data().toString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override { }
    [[nodiscard]] QRect rect() const override
    {
        const QRect place = m_view->visualRect(m_index);
        return { m_view->viewport()->mapToGlobal(place.topLeft()), place.size() };
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state;
        state.disabled = !m_index.flags().testFlag(Qt::ItemIsEnabled);
        state.focusable = !state.disabled;
        state.selectable = !state.disabled;
        const bool isCurrent = m_view->currentIndex() == m_index;
        state.selected = isCurrent;
        state.focused = isCurrent && m_view->hasFocus();
        return state;
    }

private:
    QTableView* m_view;
    QModelIndex m_index;

    /// No date for a weekday.
    [[nodiscard]] QDate Date() const
    {
        const auto* calendar = qobject_cast<QCalendarWidget*>(m_view->parentWidget());
        bool isNumber = false;
        const int day = m_index.data().toInt(&isNumber);
        if (calendar == nullptr || !isNumber || m_index.row() == 0)
            return {};
        // The shown month is between the ends of those around it.
        constexpr int kMiddle = 3;
        constexpr int kFortnight = 14;
        const QDate month(calendar->yearShown(), calendar->monthShown(), 1);
        int other = 0;
        if (m_index.row() < kMiddle && day > kFortnight)
            other = -1;
        else if (m_index.row() > kMiddle && day < kFortnight)
            other = 1;
        return month.addMonths(other).addDays(day - 1);
    }
};

/// The days of a calendar, numbered as the cells of a table with both headers, as which the toolkit
/// tells of them.
class AccessibleDays : public QAccessibleWidget
{
public:
    explicit AccessibleDays(QTableView* view)
        : QAccessibleWidget(view, QAccessible::List)
        , m_view(view)
    { }
    ~AccessibleDays() override
    {
        for (const auto& [cell, id] : m_days)
            QAccessible::deleteAccessibleInterface(id);
    }

    [[nodiscard]] int childCount() const override
    {
        return (m_view->model()->rowCount() + 1) * Columns();
    }
    [[nodiscard]] QAccessibleInterface* child(int place) const override
    {
        const QModelIndex index
            = m_view->model()->index(place / Columns() - 1, place % Columns() - 1);
        if (!index.isValid())
            return nullptr;
        const Cell cell(index.row(), index.column());
        const auto known = m_days.find(cell);
        if (known != m_days.end())
            return QAccessible::accessibleInterface(known->second);
        auto* day = new AccessibleDay(m_view, index);
        m_days[cell] = QAccessible::registerAccessibleInterface(day);
        return day;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        for (const auto& [cell, id] : m_days) {
            if (QAccessible::accessibleInterface(id) == child)
                return (cell.first + 1) * Columns() + cell.second + 1;
        }
        return -1;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override
    {
        const QModelIndex current = m_view->currentIndex();
        return child((current.row() + 1) * Columns() + current.column() + 1);
    }

private:
    /// Row and column: the number of a day changes with that of the columns, which a calendar has
    /// one more of until it is dressed.
    using Cell = std::pair<int, int>;

    QTableView* m_view;
    mutable std::map<Cell, QAccessible::Id> m_days;

    [[nodiscard]] int Columns() const { return m_view->model()->columnCount() + 1; }
};

QAccessibleInterface* MakeDays(const QString& name, QObject* object)
{
    auto* view = name.endsWith(u"QCalendarView"_s) ? qobject_cast<QTableView*>(object) : nullptr;
    return view == nullptr ? nullptr : new AccessibleDays(view);
}

} // namespace

void MeetDays()
{
    static const bool isInstalled = (QAccessible::installFactory(MakeDays), true);
    static_cast<void>(isInstalled);
}

void NameParts(QCalendarWidget& calendar)
{
    const auto name = [&calendar](const QString& part, const QString& text) {
        if (auto* widget = calendar.findChild<QWidget*>(part))
            widget->setAccessibleName(text);
    };
    name(u"qt_calendar_calendarview"_s, calendar.accessibleName());
    name(u"qt_calendar_prevmonth"_s, QCoreApplication::translate("Calendar", "Previous month"));
    name(u"qt_calendar_nextmonth"_s, QCoreApplication::translate("Calendar", "Next month"));
    name(u"qt_calendar_yearedit"_s, QCoreApplication::translate("Calendar", "Year"));
    QObject::connect(&calendar, &QCalendarWidget::currentPageChanged, &calendar,
        [&calendar](int year, int month) {
            Announce(calendar.locale().toString(QDate(year, month, 1), u"MMMM yyyy"_s));
        });
}

} // namespace Quillory
