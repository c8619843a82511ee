// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

namespace Quillory {

/// Has a screen reader say a text that nobody's focus leads to: what a command changed, or which
/// page came up. Nothing happens where there is none.
void Announce(const QString& text);

/// Lets assistive technology meet a class of widgets, and those derived from it, as `Interface`,
/// which is made from a pointer to one. To be called by the widgets' constructor.
template <typename Interface, typename Widget> void MeetAs()
{
    const auto make = [](const QString& name, QObject* object) -> QAccessibleInterface* {
        if (name != QLatin1StringView(Widget::staticMetaObject.className()))
            return nullptr;
        return new Interface(static_cast<Widget*>(object));
    };
    static const bool isInstalled = (QAccessible::installFactory(make), true);
    static_cast<void>(isInstalled);
}

/// A widget with a role that the toolkit does not give it; its name is its accessible name.
template <QAccessible::Role kRole> class AccessibleAs : public QAccessibleWidget
{
public:
    explicit AccessibleAs(QWidget* widget)
        : QAccessibleWidget(widget, kRole)
    { }
};

} // namespace Quillory
