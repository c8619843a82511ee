// SPDX-License-Identifier: MIT
#include "tests/person.h"

#include "widgets/colour_palette.h"
#include "widgets/page_stack.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCursor>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTabBar>
#include <QTest>

#include <cstdlib>
#include <optional>

namespace {

/// What a screen reader was told since somebody listened.
QStringList latestHeard;

} // namespace

bool QAccessible::isActive()
{
    return true;
}

void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    const QAccessibleInterface* told
        = event->type() == QAccessible::NameChanged || event->type() == QAccessible::Focus
        ? event->accessibleInterface()
        : nullptr;
    // The lines of a list are no objects.
    const bool isLine = event->type() == QAccessible::Focus && event->object() == nullptr;
    if (told != nullptr && (isLine || told->role() == QAccessible::Notification))
        latestHeard << told->text(QAccessible::Name);
}

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// Where something is that can be tapped.
struct Spot
{
    QWidget* widget;
    QPoint place;
    bool isEnabled;
    /// All of it.
    QRect area;
};

/// What was looked at last.
QImage latestLook;

/// The pages of the window that can be seen; null where there is none.
PageStack* PagesOf(QWidget* window)
{
    auto* pages = qobject_cast<PageStack*>(window);
    return pages == nullptr ? window->findChild<PageStack*>() : pages;
}

QWidget* InFront()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget* box = QApplication::activeModalWidget())
        return box;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->windowType() != Qt::Window)
            continue;
        // As a window manager does once a question is answered or a menu gone.
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window))
            return nullptr;
        const PageStack* pages = PagesOf(window);
        return pages == nullptr ? window : pages->Top();
    }
    return nullptr;
}

template <typename T> QList<T*> SeenIn(const QWidget& front)
{
    QList<T*> seen;
    for (T* widget : front.findChildren<T*>()) {
        if (widget->isVisible())
            seen << widget;
    }
    return seen;
}

QAbstractItemView* ViewIn(const QWidget& front)
{
    for (auto* view : SeenIn<QAbstractItemView>(front)) {
        if (qobject_cast<QHeaderView*>(view) == nullptr)
            return view;
    }
    return nullptr;
}

QHeaderView* HeaderIn(const QWidget& front)
{
    for (auto* header : SeenIn<QHeaderView>(front)) {
        if (header->orientation() == Qt::Horizontal)
            return header;
    }
    return nullptr;
}

/// The column of that header, -1 if there is none.
int ColumnOf(const QWidget& front, const QString& title)
{
    const QHeaderView* header = HeaderIn(front);
    int column = header == nullptr ? -1 : header->count() - 1;
    while (column >= 0 && header->model()->headerData(column, Qt::Horizontal).toString() != title)
        --column;
    return column;
}

/// The text of a cell; whether it is ticked if it can be.
QString TextAt(const QAbstractItemView& view, int line, int column)
{
    const QModelIndex cell = view.model()->index(line, column);
    const QVariant tick = cell.data(Qt::CheckStateRole);
    if (tick.isValid())
        return tick.toInt() == Qt::Checked ? u"ticked"_s : QString();
    return cell.data().toString();
}

std::optional<Spot> CellSpot(const QWidget& front, const QString& what)
{
    QAbstractItemView* view = ViewIn(front);
    const QAbstractItemModel* model = view == nullptr ? nullptr : view->model();
    const int wanted = ColumnOf(front, what.section(u" of "_s, 0, 0));
    for (int line = 0; model != nullptr && line < model->rowCount(); ++line) {
        for (int column = 0; column < model->columnCount(); ++column) {
            const bool isNamed
                = wanted == column && TextAt(*view, line, 0) == what.section(u" of "_s, 1);
            if (!isNamed && TextAt(*view, line, column) != what)
                continue;
            const QModelIndex cell = model->index(line, column);
            view->scrollTo(cell);
            const QRect area = view->visualRect(cell);
            return Spot { view->viewport(), area.center(), true, area };
        }
    }
    return {};
}

std::optional<Spot> HeaderSpot(const QWidget& front, const QString& what)
{
    const int column = ColumnOf(front, what);
    if (column < 0)
        return {};
    const QHeaderView* header = HeaderIn(front);
    const int left = header->sectionViewportPosition(column);
    return Spot { header->viewport(), QPoint(left + 20, header->height() / 2), true,
        QRect(left, 0, header->sectionSize(column), header->height()) };
}

std::optional<Spot> ControlSpot(const QWidget& front, const QString& what)
{
    for (QWidget* widget : SeenIn<QWidget>(front)) {
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        const auto* label = qobject_cast<QLabel*>(widget);
        const bool isSo = (button != nullptr && button->text().remove(u'&') == what)
            || (label != nullptr && label->text() == what);
        // Where a checkbox has its square.
        const int x = button != nullptr && button->isCheckable() ? 10 : widget->width() / 2;
        if (isSo || widget->objectName() == what)
            return Spot { widget, { x, widget->height() / 2 }, widget->isEnabled(),
                widget->rect() };
        auto* tabs = qobject_cast<QTabBar*>(widget);
        for (int tab = 0; tabs != nullptr && tab < tabs->count(); ++tab) {
            if (tabs->tabText(tab) == what)
                return Spot { tabs, tabs->tabRect(tab).center(), true, tabs->tabRect(tab) };
        }
    }
    return {};
}

std::optional<Spot> FindSpot(QWidget& front, const QString& what)
{
    if (const auto* menu = qobject_cast<QMenu*>(&front)) {
        for (QAction* entry : menu->actions()) {
            const QRect area = menu->actionGeometry(entry);
            if (entry->text() == what)
                return Spot { &front, area.center(), entry->isEnabled(), area };
        }
        return {};
    }
    for (const auto find : { ControlSpot, HeaderSpot, CellSpot }) {
        if (const auto spot = find(front, what))
            return spot;
    }
    return {};
}

/// What a control holds, as a text.
QString HeldBy(const QWidget* control)
{
    if (const auto* edit = qobject_cast<const QLineEdit*>(control))
        return edit->text();
    if (const auto* box = qobject_cast<const QComboBox*>(control))
        return box->currentText();
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->text();
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    if (button == nullptr)
        return control->accessibleDescription().isEmpty() ? control->accessibleName()
                                                          : control->accessibleDescription();
    if (!button->isCheckable())
        return button->text();
    return button->isChecked() ? u"ticked"_s : QString();
}

/// A control of that name that is seen on the page, or else beside it; null where there is none.
QWidget* Named(const QWidget& front, const QString& name)
{
    for (const QWidget* place : { &front, static_cast<const QWidget*>(front.window()) }) {
        for (QWidget* widget : SeenIn<QWidget>(*place)) {
            if (!name.isEmpty() && widget->objectName() == name)
                return widget;
        }
    }
    return nullptr;
}

QString LineOf(const QWidget& front, int line)
{
    const QAbstractItemView& view = *ViewIn(front);
    QStringList cells { TextAt(view, line, 0) };
    for (int column = 1; HeaderIn(front) == nullptr && column < view.model()->columnCount();
         ++column)
        cells << TextAt(view, line, column);
    return cells.join(u'|');
}

/// What is seen of a column or a control of that name; of all that is in front if it is empty.
QString ReadFrom(const QWidget& front, const QString& name)
{
    QStringList seen;
    const int column = ColumnOf(front, name);
    const QWidget* control = Named(front, name);
    if (control != nullptr)
        seen << HeldBy(control);
    else if (const auto* box = qobject_cast<const QMessageBox*>(&front))
        seen << box->text();
    else if (const auto* menu = qobject_cast<const QMenu*>(&front)) {
        for (const QAction* entry : menu->actions()) {
            const QString text = (entry->isChecked() ? u"*"_s : QString()) + entry->text();
            if (!entry->isSeparator())
                seen << (entry->isEnabled() ? text : u'(' + text + u')');
        }
    } else if (const auto* view = ViewIn(front)) {
        for (int line = 0; line < view->model()->rowCount(); ++line)
            seen << (column < 0 ? LineOf(front, line) : TextAt(*view, line, column));
    }
    return seen.join(u", "_s);
}

QString SelectedIn(const QWidget& front)
{
    const auto* view = ViewIn(front);
    const auto lines = view == nullptr ? QModelIndexList() : view->selectionModel()->selectedRows();
    if (lines.isEmpty())
        return {};
    const bool isSeen = view->viewport()->rect().intersects(view->visualRect(lines.front()));
    return isSeen ? TextAt(*view, lines.front().row(), 0) : u"a line out of sight"_s;
}

void Press(QWidget& front, const QString& keys)
{
    for (const QString& name : keys.split(u' ')) {
        const QKeyCombination key = QKeySequence::fromString(name)[0];
        QWidget* focused = QApplication::focusWidget();
        const bool isInFront = focused != nullptr && focused->window() == front.window();
        QTest::keyClick(isInFront ? focused : &front, key.key(), key.keyboardModifiers());
    }
}

bool Choose(QComboBox* box, const QString& text)
{
    if (box == nullptr || !box->isVisible() || box->findText(text) < 0)
        return false;
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    while (box->currentText() != text)
        QTest::keyClick(box, Qt::Key_Down);
    return true;
}

void Touch(const QString& how, const Spot& spot)
{
    if (how == u"hold") {
        const QPoint place = spot.widget->mapToGlobal(spot.place);
        QContextMenuEvent event(QContextMenuEvent::Mouse, spot.place, place);
        QApplication::sendEvent(spot.widget, &event);
        return;
    }
    QTest::mouseClick(spot.widget, Qt::LeftButton, {}, spot.place);
    if (how == u"double-tap")
        QTest::mouseDClick(spot.widget, Qt::LeftButton, {}, spot.place);
}

/// Fills a control, or looks at what it or a column holds.
bool DoWithNamed(QWidget& front, const QString& verb, const QString& name, const QString& text)
{
    if (verb == u"choose")
        return Choose(front.findChild<QComboBox*>(name), text);
    if (verb == u"see")
        return ReadFrom(front, name) == text;
    const auto spot = ControlSpot(front, name);
    if (!spot)
        return false;
    Touch(u"tap"_s, *spot);
    Press(front, u"Ctrl+A Del"_s);
    QTest::keyClicks(QApplication::focusWidget(), text);
    return true;
}

/// Whether a picture has a colour of that name, but for the shades at the edges of letters.
bool HasInk(const QImage& picture, const QString& name)
{
    quint32 wanted = 0;
    while (wanted < kColourCount && ColourName(wanted) != name)
        ++wanted;
    const auto isNear = [ink = PaletteColour(wanted).rgb()](QRgb seen) {
        return std::abs(qRed(seen) - qRed(ink)) + std::abs(qGreen(seen) - qGreen(ink))
            + std::abs(qBlue(seen) - qBlue(ink))
            < 60;
    };
    for (int y = 0; wanted < kColourCount && y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isNear(picture.pixel(x, y)))
                return true;
        }
    }
    return false;
}

/// Whether the look of something is as it is said to be; "look" takes it as it is.
bool LooksSo(QWidget& front, const QString& verb, const QString& what)
{
    const auto spot = FindSpot(front, verb == u"ink" ? what.section(u" of "_s, 1) : what);
    if (!spot)
        return false;
    const QImage seen = spot->widget->grab(spot->area).toImage();
    if (verb == u"ink")
        return HasInk(seen, what.section(u" of "_s, 0, 0));
    const bool isSo = verb == u"look" || (seen == latestLook) == (verb == u"same");
    if (isSo)
        latestLook = seen;
    return isSo;
}

/// Whether that page is in front, and its window is named after it.
bool IsAt(const QWidget& front, const QString& title)
{
    const auto* page = qobject_cast<const Page*>(&front);
    const bool isNamed = qobject_cast<const QMainWindow*>(front.window()) == nullptr
        || front.window()->windowTitle()
            == (title.isEmpty() || title == u"Quillory" ? u"Quillory"_s : title + u" – Quillory"_s);
    return page != nullptr && page->Title() == title && isNamed;
}

/// The page that is seen beside the topmost; null where there is none.
QWidget* Beside(QWidget* top)
{
    for (Page* page : PagesOf(top->window())->findChildren<Page*>()) {
        if (page != top && page->isVisible())
            return page;
    }
    return nullptr;
}

/// Whether the step could be done.
bool DoStep(QWidget* front, const QString& verb, const QString& what)
{
    if (front == nullptr)
        return false;
    if (verb == u"beside")
        return DoStep(Beside(front), what.section(u' ', 0, 0), what.section(u' ', 1));
    if (verb == u"size") {
        front->window()->resize(what.section(u'x', 0, 0).toInt(), what.section(u'x', 1).toInt());
        return true;
    }
    const QString name = what.section(u": "_s, 0, 0);
    const bool isNamed
        = what.contains(u": ") && (ColumnOf(*front, name) >= 0 || Named(*front, name) != nullptr);
    if (isNamed)
        return DoWithNamed(*front, verb, name, what.section(u": "_s, 1));
    const QString text = what == u"nothing" ? QString() : what;
    if (verb == u"see")
        return text.endsWith(u'…') ? ReadFrom(*front, {}).startsWith(text.chopped(1))
                                   : ReadFrom(*front, {}) == text;
    if (verb == u"on")
        return SelectedIn(*front) == text;
    if (verb == u"at")
        return IsAt(*front, text);
    if (verb == u"hear")
        return latestHeard.contains(text) && (latestHeard.clear(), true);
    if (verb == u"look" || verb == u"same" || verb == u"other" || verb == u"ink")
        return LooksSo(*front, verb, what);
    if (verb == u"press")
        return Press(*front, what), true;
    if (verb == u"type") {
        // Whoever does not see it is told where he types.
        QWidget* typed = QApplication::focusWidget();
        QTest::keyClicks(typed, what);
        return !QAccessible::queryAccessibleInterface(typed)->text(QAccessible::Name).isEmpty();
    }
    const auto spot = FindSpot(*front, what);
    if (!spot || spot->isEnabled == (verb == u"cannot"))
        return false;
    if (verb != u"cannot")
        Touch(verb, *spot);
    return true;
}

} // namespace

void Act(const QString& steps)
{
    // A menu takes a tap only away from where the pointer was when it opened, which newer toolkits
    // cannot tell of a pointer that never moved.
    QCursor::setPos(0, 0);
    for (const QString& step : steps.split(u"; "_s, Qt::SkipEmptyParts)) {
        const QString verb = step.section(u' ', 0, 0);
        const QString what = step.section(u' ', 1);
        if (QTest::currentTestFailed())
            return;
        // Nobody is quicker than what the step before brings about.
        QTest::qWait(0);
        if (!QTest::qWaitFor([&] { return DoStep(InFront(), verb, what); })) {
            const QWidget* front = InFront();
            const QString name = what.contains(u": ") ? what.section(u": "_s, 0, 0) : QString();
            const QString seen = front == nullptr ? u"no window"_s : ReadFrom(*front, name);
            QTest::qFail(qPrintable(step + u", but seen is "_s + seen + u", heard "_s
                             + latestHeard.join(u", "_s).right(100)),
                __FILE__, __LINE__);
        }
    }
}

} // namespace Quillory
