// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/measures.h"
#include "widgets/page.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>

#include <algorithm>

namespace Quillory {

/// The room that a control's text needs.
inline QSize RoomForText(const QWidget& widget)
{
    const QFontMetrics metrics = widget.fontMetrics();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty()
            ? QSize()
            : QSize(metrics.size(Qt::TextShowMnemonic, button->text()).width(), metrics.height());
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr) {
        if (label->wordWrap())
            return { 0, label->heightForWidth(label->width()) };
        return metrics.size(0, label->text());
    }
    return { kMinTouchTarget, metrics.height() };
}

/// The room that it has.
inline QSize RoomOfText(const QWidget& widget)
{
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(box);
        const int width
            = box->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, box).width();
        return { width, widget.height() };
    }
    return widget.size();
}

/// A title says by a tip what it has no room for.
inline bool IsCutTitle(QLabel& label)
{
    QHelpEvent help(QEvent::ToolTip, {}, {});
    QCoreApplication::sendEvent(&label, &help);
    return !label.toolTip().isEmpty();
}

/// The titles of tabs that are shortened.
inline bool HasCutTab(const QTabBar& bar)
{
    for (int i = 0; i < bar.count(); ++i) {
        if (bar.tabRect(i).width() < bar.fontMetrics().horizontalAdvance(bar.tabText(i)))
            return true;
    }
    return false;
}

/// What of a page's controls cannot be seen whole, nor scrolled to.
inline QStringList CutControls(const Page& page)
{
    QStringList cut;
    const auto areas = page.findChildren<QScrollArea*>();
    for (const QWidget* widget : page.findChildren<QWidget*>()) {
        const auto* bar = qobject_cast<const QTabBar*>(widget);
        const bool isControl = bar != nullptr || qobject_cast<const QAbstractButton*>(widget)
            || qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget);
        const bool isText
            = qobject_cast<const QLabel*>(widget) != nullptr && widget->objectName() != u"title";
        if ((!isControl && !isText) || !widget->isVisible())
            continue;
        const QRect place(widget->mapTo(&page, QPoint()), widget->size());
        // The soft keys are half a page each; the second may have a pixel more.
        const bool isKey = widget->parentWidget()->objectName() == u"softKeys";
        const bool isScrolled = std::ranges::any_of(
            areas, [widget](const QScrollArea* area) { return area->isAncestorOf(widget); });
        const QRect room
            = isScrolled ? QRect(0, place.y(), page.width(), place.height()) : page.rect();
        const QSize needed = RoomForText(*widget);
        const QSize given = RoomOfText(*widget);
        if (!room.contains(place)
            || (isControl && widget->width() > (isKey ? kMaxPageWidth / 2 + 1 : kMaxPageWidth))
            || given.width() < needed.width() || given.height() < needed.height()
            || (bar != nullptr && HasCutTab(*bar)))
            QDebug(&cut.emplace_back()) << widget->metaObject()->className() << widget->objectName()
                                        << place << needed << given;
    }
    return cut;
}

} // namespace Quillory
