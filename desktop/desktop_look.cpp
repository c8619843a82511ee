// SPDX-License-Identifier: MIT
#include "desktop/desktop_look.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStyle>
#include <QStyleFactory>

#include <memory>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto kPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto kInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto kGroup = "org.freedesktop.appearance"_L1;
constexpr auto kKey = "color-scheme"_L1;
/// The portal's number for a desktop that prefers dark.
constexpr uint kPrefersDark = 1;

struct RoleColours
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr RoleColours kRoles[] {
    { QPalette::Window, 0xFFF4F5F7, 0xFF26262A },
    { QPalette::WindowText, 0xFF1B1B1F, 0xFFEDEDF0 },
    { QPalette::Base, 0xFFFFFFFF, 0xFF1D1D20 },
    { QPalette::AlternateBase, 0xFFF4F5F7, 0xFF26262A },
    { QPalette::Text, 0xFF1B1B1F, 0xFFEDEDF0 },
    { QPalette::Button, 0xFFF4F5F7, 0xFF2E2E33 },
    { QPalette::ButtonText, 0xFF1B1B1F, 0xFFEDEDF0 },
    { QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF },
    { QPalette::ToolTipBase, 0xFFFFFFFF, 0xFF2E2E33 },
    { QPalette::ToolTipText, 0xFF1B1B1F, 0xFFEDEDF0 },
    { QPalette::PlaceholderText, 0xFF6B6B73, 0xFF9A9AA3 },
    { QPalette::Highlight, 0xFF1A5FB4, 0xFF78AEED },
    { QPalette::HighlightedText, 0xFFFFFFFF, 0xFF14181F },
    { QPalette::Link, 0xFF1A5FB4, 0xFF78AEED },
    { QPalette::LinkVisited, 0xFF1A5FB4, 0xFF78AEED },
    { QPalette::Light, 0xFFFFFFFF, 0xFF3C3C42 },
    { QPalette::Midlight, 0xFFE4E5E9, 0xFF36363B },
    { QPalette::Mid, 0xFFC4C6CC, 0xFF55555C },
    { QPalette::Dark, 0xFF6B6B73, 0xFF9A9AA3 },
    { QPalette::Shadow, 0xFF6B6B73, 0xFF000000 },
};

constexpr QRgb kDisabledLight = 0xFFA0A2A9;
constexpr QRgb kDisabledDark = 0xFF6E6E77;

bool HasDesktopPalette()
{
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(u"fusion"_s));
    return plain == nullptr
        || QGuiApplication::palette().color(QPalette::Highlight)
        != plain->standardPalette().color(QPalette::Highlight);
}

} // namespace

QPalette PaletteOf(ColourScheme scheme)
{
    const bool isDark = scheme == ColourScheme::Dark;
    QPalette palette;
    for (const RoleColours& entry : kRoles)
        palette.setColor(entry.role, QColor(isDark ? entry.dark : entry.light));
    const QColor disabled(isDark ? kDisabledDark : kDisabledLight);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

DesktopLook::DesktopLook(std::optional<ColourScheme> fixed, QObject* parent)
    : QObject(parent)
{
    if (fixed) {
        QApplication::setPalette(PaletteOf(*fixed));
        return;
    }
    if (HasDesktopPalette())
        return;
    QApplication::setPalette(PaletteOf(ColourScheme::Light));
    AskPortal();
}

void DesktopLook::AskPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(kService, kPath, kInterface, u"SettingChanged"_s, this,
        SLOT(NoteSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
    question << QString(kGroup) << QString(kKey);
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            TakeScheme(reply.value().variant());
        answer->deleteLater();
    });
}

void DesktopLook::NoteSettingChanged(
    const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == kGroup && key == kKey)
        TakeScheme(value.variant());
}

void DesktopLook::TakeScheme(const QVariant& answer)
{
    // The older of the portal's two calls wraps the number twice.
    const QVariant number
        = answer.canConvert<QDBusVariant>() ? answer.value<QDBusVariant>().variant() : answer;
    const bool isDark = number.toUInt() == kPrefersDark;
    QApplication::setPalette(PaletteOf(isDark ? ColourScheme::Dark : ColourScheme::Light));
}

} // namespace Quillory
