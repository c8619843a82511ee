// SPDX-License-Identifier: MIT
#include "widgets/accessibility.h"

#include <QCoreApplication>

namespace Quillory {

namespace {

/// A notification that is there for as long as it takes to say it.
class Announcement : public QAccessibleInterface
{
public:
    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(QCoreApplication::instance());
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
        return kind == QAccessible::Name ? m_text : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& text) override { m_text = text; }
    [[nodiscard]] QRect rect() const override { return {}; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }

private:
    QString m_text;
};

} // namespace

void Announce(const QString& text)
{
    if (!QAccessible::isActive() || text.isEmpty())
        return;
    // One for all: assistive technology asks for it a while after the event.
    static auto* announcement = [] {
        auto* made = new Announcement;
        QAccessible::registerAccessibleInterface(made);
        return made;
    }();
    announcement->setText(QAccessible::Name, text);
    for (const auto type : { QAccessible::NameChanged, QAccessible::ObjectShow }) {
        QAccessibleEvent event(announcement, type);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace Quillory
