// SPDX-License-Identifier: MIT
#include "widgets/page.h"

#include "widgets/accessibility.h"
#include "widgets/ink.h"
#include "widgets/letter_menu.h"
#include "widgets/measures.h"
#include "widgets/message_box.h"
#include "widgets/text_line.h"
#include "widgets/undo_bar.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// The title of a page: in two lines of smaller letters where the header has no room for it in one.
/// Where it has none for these either the title is cut at its end, and a tip tells all of it.
class TitleLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip)
            setToolTip(WholeLines() == 0 ? TipOf(text()) : QString());
        return QLabel::event(event);
    }
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setPen(AccentInk(palette()));
        if (WholeLines() == 2) {
            painter.setFont(SmallFont());
            painter.drawText(
                rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextWordWrap, text());
        } else {
            painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                fontMetrics().elidedText(text(), Qt::ElideRight, width()));
        }
    }

private:
    /// In how many lines it is whole; 0 where it is cut.
    [[nodiscard]] int WholeLines() const
    {
        if (fontMetrics().horizontalAdvance(text()) <= width())
            return 1;
        const QSize two = QFontMetrics(SmallFont())
                              .boundingRect(QRect(0, 0, width(), 0), Qt::TextWordWrap, text())
                              .size();
        return two.width() <= width() && two.height() <= height() ? 2 : 0;
    }
    [[nodiscard]] QFont SmallFont() const
    {
        QFont small = font();
        small.setPixelSize(
            std::max(CurrentMeasures().textSize, QFontInfo(small).pixelSize() * 3 / 4));
        return small;
    }
};

/// A menu that a held finger opened: lifting the finger chooses nothing, whatever lies under it.
class HoldMenu : public LetterMenu
{
public:
    using LetterMenu::LetterMenu;

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        m_isPressed = true;
        LetterMenu::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton || m_isPressed)
            LetterMenu::mouseReleaseEvent(event);
    }

private:
    bool m_isPressed = false;
};

/// Presses a button that may open a menu, as keys and assistive technology do.
void PressWithoutPointer(QAbstractButton* button)
{
    button->click();
    LetterMenu::EnterOpened();
}

/// A page as assistive technology meets it. It can do what its keys do: Return, and the key of the
/// menu, which its lines do not tell of.
class AccessiblePage : public AccessibleAs<QAccessible::Pane>
{
public:
    using AccessibleAs::AccessibleAs;

    [[nodiscard]] QStringList actionNames() const override
    {
        return { pressAction(), showMenuAction() };
    }
    void doAction(const QString& name) override
    {
        // Keys would not reach a page that is covered, or that stands behind a question.
        if (!widget()->isVisible() || QApplication::activeModalWidget() != nullptr)
            return;
        if (name == pressAction()) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(widget(), &press);
        } else if (name == showMenuAction()) {
            QWidget* place
                = widget()->focusWidget() == nullptr ? widget() : widget()->focusWidget();
            const QPoint middle = place->rect().center();
            QContextMenuEvent menu(QContextMenuEvent::Keyboard, middle, place->mapToGlobal(middle));
            QCoreApplication::sendEvent(place, &menu);
        }
    }
};

/// A menu as assistive technology meets it: a button that says that it opens something.
class AccessibleMenuKey : public QAccessibleWidget
{
public:
    explicit AccessibleMenuKey(QToolButton* key)
        : QAccessibleWidget(key, QAccessible::Button)
        , m_key(key)
    { }
    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_key->text() : QAccessibleWidget::text(kind);
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override
    {
        return QStringList { pressAction(), showMenuAction() } + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction() || name == showMenuAction())
            PressWithoutPointer(m_key);
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QToolButton* m_key;
};

/// The soft key of a menu, which opens on the press of a key: Wayland compositors show no menu for
/// a key that was let go already.
class MenuKey : public QToolButton
{
    Q_OBJECT

public:
    explicit MenuKey(QWidget* parent)
        : QToolButton(parent)
    {
        MeetAs<AccessibleMenuKey, MenuKey>();
        // Older toolkits keep the state to themselves.
        setAccessibleDescription(tr("opens a menu"));
    }

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::Shortcut)
            return QToolButton::event(event);
        PressWithoutPointer(this);
        return true;
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Space)
            PressWithoutPointer(this);
        else
            QToolButton::keyPressEvent(event);
    }
};

/// Alt and the letter that its text begins with press a soft key. Where no key types that letter
/// there is none.
void MeetLetter(QToolButton* key)
{
    const QChar letter = key->text().isEmpty() ? QChar() : key->text().front().toUpper();
    if (letter < u'A' || letter > u'Z')
        return;
    auto* shortcut = new QShortcut(
        QKeyCombination(Qt::AltModifier, static_cast<Qt::Key>(letter.unicode())), key);
    QObject::connect(shortcut, &QShortcut::activated, key, [key] { PressWithoutPointer(key); });
}

} // namespace

Page::Page(const QString& title, QWidget* parent)
    : QWidget(parent)
{
    MeetAs<AccessiblePage, Page>();
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleName(title);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    BuildHeader(title);
    m_body = new QVBoxLayout;
    m_body->setContentsMargins(0, 0, 0, 0);
    m_body->setSpacing(0);
    layout->addLayout(m_body, 1);
    m_undoBar = new UndoBar(this);
    layout->addWidget(m_undoBar);
    m_softKeys = new QWidget(this);
    m_softKeys->setAttribute(Qt::WA_StyledBackground);
    m_softKeys->setObjectName(u"softKeys"_s);
    m_softKeys->hide();
    layout->addWidget(m_softKeys);
    // As in other programs; lists would take an arrow for themselves.
    for (const QKeyCombination key : { Qt::CTRL | Qt::Key_W, Qt::ALT | Qt::Key_Left })
        connect(new QShortcut(key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, this, &Page::GoBack);
    for (const QKeyCombination key : { Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter })
        connect(new QShortcut(key, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, this, [this] { RequestEnd(PageResult::Ok); });
}

void Page::BuildHeader(const QString& title)
{
    m_header = new QWidget(this);
    m_header->setAttribute(Qt::WA_StyledBackground);
    m_header->setObjectName(u"header"_s);
    auto* line = new QHBoxLayout(m_header);
    m_title = new TitleLabel(title, m_header);
    m_title->setObjectName(u"title"_s);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setMinimumWidth(0);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_note = new QLabel(m_header);
    m_note->setObjectName(u"note"_s);
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_note->hide();
    m_titleLine = new QBoxLayout(QBoxLayout::LeftToRight);
    m_titleLine->addWidget(m_title, 1);
    m_titleLine->addWidget(m_note);
    line->addLayout(m_titleLine, 1);
    m_help = MakeHelpButton(m_header);
    m_help->hide();
    line->addWidget(m_help);
    m_ok = new QPushButton(tr("OK"), m_header);
    m_ok->setObjectName(u"ok"_s);
    m_ok->setFont(bold);
    m_ok->setAutoDefault(true);
    connect(m_ok, &QPushButton::clicked, this, [this] { RequestEnd(PageResult::Ok); });
    line->addWidget(m_ok);
    setFocusProxy(m_ok);
    m_header->setVisible(!title.isEmpty());
    layout()->addWidget(m_header);
}

QString Page::Title() const
{
    return m_title->text();
}

void Page::SetTitle(const QString& title)
{
    m_title->setText(title);
    setAccessibleName(title);
    m_header->setVisible(!title.isEmpty());
}

void Page::SetNote(const QString& note)
{
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    setAccessibleDescription(note);
}

QToolButton* Page::MakeHelpButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(u"help"_s);
    button->setText(u"?"_s);
    button->setAccessibleName(tr("Help"));
    button->setToolTip(button->accessibleName());
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, [this] { Q_EMIT HelpRequested(m_helpAnchor); });
    return button;
}

void Page::ShowOkButton(bool isShown)
{
    m_ok->setVisible(isShown);
}

void Page::SetHelpAnchor(const QString& anchor)
{
    m_helpAnchor = anchor;
    m_help->setVisible(!anchor.isEmpty());
}

QAction* Page::ActionOf(Command command)
{
    const QString name = u"command%1"_s.arg(static_cast<int>(command));
    if (auto* action = findChild<QAction*>(name, Qt::FindDirectChildrenOnly))
        return action;
    auto* action = new QAction(this);
    action->setObjectName(name);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(action, &QAction::triggered, this, [this, command] { Carry(command); });
    addAction(action);
    return action;
}

void Page::Carry(Command command)
{
    if (!isVisible() || m_isBeside)
        return;
    if (command == Command::Cancel)
        return RequestEnd(PageResult::Cancel);
    // What a command finds is what was typed before it.
    CommitInPlace();
    if (command == Command::Done)
        RequestEnd(PageResult::Ok);
    else
        Q_EMIT CommandChosen(command);
}

void Page::SetSoftKeys(const SoftKeys& keys, std::span<const MenuEntry> menu)
{
    const auto former = m_softKeys->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    qDeleteAll(former);
    delete m_softKeys->layout();
    auto* halves = new QHBoxLayout(m_softKeys);
    halves->setSpacing(0);
    QWidget* left = MakeSoftKey(keys.left, {});
    left->setObjectName(u"leftKey"_s);
    QWidget* right = MakeSoftKey(keys.right, menu);
    right->setObjectName(u"rightKey"_s);
    right->setAttribute(Qt::WA_StyledBackground);
    // Equal halves, whatever their texts.
    halves->addWidget(left, 1);
    halves->addWidget(right, 1);
    FitToWindow();
    ShowSoftKeys();
}

void Page::ShowSoftKeys()
{
    m_softKeys->setVisible(m_softKeys->layout() != nullptr && !m_isBeside);
}

void Page::SetBeside(bool isBeside)
{
    m_isBeside = isBeside;
    ShowSoftKeys();
    // What was deleted here cannot be brought back from there.
    if (isBeside)
        WithdrawUndo();
}

void Page::resizeEvent(QResizeEvent* event)
{
    FitToWindow();
    QWidget::resizeEvent(event);
}

void Page::FitToWindow()
{
    const Measures& frame = FrameMeasures(height());
    m_help->setFixedSize(frame.headerHeight, frame.headerHeight);
    m_ok->setFixedHeight(frame.headerHeight);
    m_header->setFixedHeight(frame.headerHeight + 1);
    m_softKeys->setFixedHeight(frame.softKeyHeight);
    const bool isNarrow = width() < kNarrowPage;
    m_titleLine->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_titleLine->setSpacing(isNarrow ? 0 : kGrid);
    m_header->layout()->setContentsMargins(LineMargins(
        isNarrow ? kNarrowMargin : kPageMargin, isNarrow ? 0 : kGrid, layoutDirection()));
    m_header->layout()->setSpacing(isNarrow ? 0 : kGrid);
    const int beside = std::max(0, (width() - kMaxPageWidth) / 2);
    if (!IsAsWideAsWindow())
        m_body->setContentsMargins(beside, 0, beside, 0);
    // The keys are never far from each other.
    if (m_softKeys->layout() != nullptr)
        m_softKeys->layout()->setContentsMargins(beside, 1, beside, 0);
}

QWidget* Page::MakeSoftKey(const MenuEntry& entry, std::span<const MenuEntry> menu)
{
    if (entry.command == Command::Separator)
        return new QWidget(m_softKeys);
    const bool isMenu = entry.command == Command::Menu;
    auto* button = isMenu ? new MenuKey(m_softKeys) : new QToolButton(m_softKeys);
    button->setText(entry.Text());
    MeetLetter(button);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoRaise(true);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    if (isMenu) {
        button->setShortcut(Qt::Key_F10);
        auto* popup = new LetterMenu(button);
        connect(button, &QToolButton::clicked, popup, [this, button, popup, menu] {
            Q_EMIT MenuAboutToOpen();
            popup->clear();
            FillMenu(popup, menu);
            OpenAbove(*popup, *button);
        });
        return button;
    }
    QAction* action = ActionOf(entry.command);
    const auto follow = [button, action] { button->setEnabled(action->isEnabled()); };
    connect(action, &QAction::changed, button, follow);
    follow();
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    return button;
}

void Page::FillMenu(QMenu* menu, std::span<const MenuEntry> entries)
{
    for (const MenuEntry& entry : entries) {
        if (entry.command == Command::Separator) {
            menu->addSeparator();
            continue;
        }
        QAction* action = ActionOf(entry.command);
        // Assistive technology finds an action in one menu only, so each entry is one of its own.
        // Its shortcut is there to be read.
        QAction* own = menu->addAction(entry.Text());
        own->setShortcutContext(Qt::WidgetShortcut);
        own->setShortcut(action->shortcut());
        own->setEnabled(action->isEnabled());
        own->setCheckable(action->isCheckable());
        own->setChecked(action->isChecked());
        connect(own, &QAction::triggered, action, &QAction::trigger);
    }
    menu->setProperty("hasTicks", std::ranges::any_of(menu->actions(), &QAction::isCheckable));
}

void Page::SetCommandEnabled(Command command, bool isEnabled)
{
    ActionOf(command)->setEnabled(isEnabled);
}

void Page::SetCommandChecked(Command command, bool isChecked)
{
    QAction* action = ActionOf(command);
    action->setCheckable(true);
    action->setChecked(isChecked);
}

void Page::SetShortcut(Command command, const QKeySequence& shortcut)
{
    ActionOf(command)->setShortcut(shortcut);
}

void Page::Trigger(Command command)
{
    ActionOf(command)->trigger();
}

void Page::OpenContextMenu(std::span<const MenuEntry> entries, const QPoint& globalPosition)
{
    Q_EMIT MenuAboutToOpen();
    auto* menu = new HoldMenu(this);
    menu->setObjectName(u"contextMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FillMenu(menu, entries);
    OpenAt(*menu, *this, globalPosition);
}

void Page::OfferUndo(const QString& text, std::function<void()> undo)
{
    m_undoBar->Offer(text, std::move(undo));
}

void Page::WithdrawUndo()
{
    m_undoBar->hide();
}

void Page::Say(const QString& text)
{
    m_undoBar->Say(text);
}

void Page::RequestEnd(PageResult result)
{
    if (result == PageResult::Ok)
        CommitInPlace();
    if (PrepareEnd(result))
        Q_EMIT Ended(result);
}

void Page::GoBack()
{
    if (HasUnsavedInput())
        AskToDiscard([this] { RequestEnd(PageResult::Cancel); });
    else
        RequestEnd(PageResult::Cancel);
}

void Page::AskToDiscard(const std::function<void()>& then)
{
    ShowMessage(this, tr("Do you want to discard what you have entered?"), MessageIcon::Exclamation,
        MessageButtons::YesNo, [page = QPointer(this), then](MessageAnswer answer) {
            if (page != nullptr && answer == MessageAnswer::Yes)
                then();
        });
}

void Page::CommitInPlace()
{
    QWidget* editor = focusWidget();
    for (QWidget* widget = editor; widget != nullptr && widget != this;
         widget = widget->parentWidget()) {
        auto* view = qobject_cast<QAbstractItemView*>(widget);
        // A view that never takes the keyboard has no editors of its own.
        if (view != nullptr && view != editor && view->focusPolicy() != Qt::NoFocus)
            return view->setFocus();
    }
}

bool Page::focusNextPrevChild(bool next)
{
    // With its proxy the page would be a stop of its own, from which Tab passes over the header.
    QWidget* first = focusProxy();
    setFocusProxy(nullptr);
    const bool isMoved = QWidget::focusNextPrevChild(next);
    setFocusProxy(first);
    return isMoved;
}

void Page::keyPressEvent(QKeyEvent* event)
{
    QWidget* focused = focusWidget();
    switch (event->key()) {
    case Qt::Key_Escape:
        return m_isBeside ? event->ignore() : GoBack();
    case Qt::Key_F1:
        Q_EMIT HelpRequested(m_helpAnchor);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (qobject_cast<QPushButton*>(focused) != nullptr
            || qobject_cast<QToolButton*>(focused) != nullptr)
            PressWithoutPointer(qobject_cast<QAbstractButton*>(focused));
        else if (qobject_cast<QTabBar*>(focused) == nullptr)
            // A tab that has the keyboard is chosen already.
            TakeReturn();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace Quillory

#include "page.moc"
