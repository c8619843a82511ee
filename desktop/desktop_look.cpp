// SPDX-License-Identifier: MIT
#include "desktop/desktop_look.h"

#include <QApplication>
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
constexpr auto kSchemeKey = "color-scheme"_L1;
constexpr auto kContrastKey = "contrast"_L1;
/// The portal's numbers for a desktop that prefers dark, and for one that wants more contrast.
constexpr uint kPrefersDark = 1;
constexpr uint kWantsContrast = 1;

struct RoleColours
{
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
    QRgb blackOnWhite;
    QRgb whiteOnBlack;
};

constexpr RoleColours kRoles[] {
    { QPalette::Window, 0xFFF4F5F7, 0xFF26262A, 0xFFFFFFFF, 0xFF000000 },
    { QPalette::WindowText, 0xFF1B1B1F, 0xFFEDEDF0, 0xFF000000, 0xFFFFFFFF },
    { QPalette::Base, 0xFFFFFFFF, 0xFF1D1D20, 0xFFFFFFFF, 0xFF000000 },
    { QPalette::AlternateBase, 0xFFF4F5F7, 0xFF26262A, 0xFFFFFFFF, 0xFF000000 },
    { QPalette::Text, 0xFF1B1B1F, 0xFFEDEDF0, 0xFF000000, 0xFFFFFFFF },
    { QPalette::Button, 0xFFF4F5F7, 0xFF2E2E33, 0xFFFFFFFF, 0xFF000000 },
    { QPalette::ButtonText, 0xFF1B1B1F, 0xFFEDEDF0, 0xFF000000, 0xFFFFFFFF },
    { QPalette::BrightText, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF },
    { QPalette::ToolTipBase, 0xFFFFFFFF, 0xFF2E2E33, 0xFFFFFFFF, 0xFF000000 },
    { QPalette::ToolTipText, 0xFF1B1B1F, 0xFFEDEDF0, 0xFF000000, 0xFFFFFFFF },
    { QPalette::PlaceholderText, 0xFF66666E, 0xFF9A9AA3, 0xFF3A3A3F, 0xFFD0D0D6 },
    { QPalette::Highlight, 0xFF1A5FB4, 0xFF78AEED, 0xFF003C8C, 0xFF8CC4FF },
    { QPalette::HighlightedText, 0xFFFFFFFF, 0xFF14181F, 0xFFFFFFFF, 0xFF000000 },
    { QPalette::Link, 0xFF1A5FB4, 0xFF78AEED, 0xFF003C8C, 0xFF8CC4FF },
    { QPalette::LinkVisited, 0xFF1A5FB4, 0xFF78AEED, 0xFF003C8C, 0xFF8CC4FF },
    { QPalette::Light, 0xFFFFFFFF, 0xFF3C3C42, 0xFFFFFFFF, 0xFF3C3C42 },
    { QPalette::Midlight, 0xFFE4E5E9, 0xFF36363B, 0xFFE4E5E9, 0xFF36363B },
    { QPalette::Mid, 0xFFC4C6CC, 0xFF55555C, 0xFF6B6B73, 0xFF9A9AA3 },
    { QPalette::Dark, 0xFF6B6B73, 0xFF9A9AA3, 0xFF3A3A3F, 0xFFD0D0D6 },
    { QPalette::Shadow, 0xFF6B6B73, 0xFF000000, 0xFF3A3A3F, 0xFF000000 },
};

/// Of all disabled text.
constexpr RoleColours kDisabled { QPalette::Text, 0xFF6C6E76, 0xFF9797A0, 0xFF5C5C63, 0xFFA6A6AD };

QRgb ColourOf(const RoleColours& entry, ColourScheme scheme, bool isHighContrast)
{
    if (scheme == ColourScheme::Dark)
        return isHighContrast ? entry.whiteOnBlack : entry.dark;
    return isHighContrast ? entry.blackOnWhite : entry.light;
}

bool HasDesktopPalette()
{
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(u"fusion"_s));
    return plain == nullptr
        || QGuiApplication::palette().color(QPalette::Highlight)
        != plain->standardPalette().color(QPalette::Highlight);
}

} // namespace

QPalette PaletteOf(ColourScheme scheme, bool isHighContrast)
{
    QPalette palette;
    for (const RoleColours& entry : kRoles)
        palette.setColor(entry.role, QColor(ColourOf(entry, scheme, isHighContrast)));
    const QColor disabled(ColourOf(kDisabled, scheme, isHighContrast));
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

DesktopLook::DesktopLook(QDBusConnection bus, std::optional<ColourScheme> fixed, QObject* parent)
    : QObject(parent)
    , m_hasFixedScheme(fixed.has_value())
    , m_scheme(fixed.value_or(ColourScheme::Light))
{
    if (!fixed && HasDesktopPalette())
        return;
    SetPalette();
    AskPortal(bus);
}

void DesktopLook::SetPalette() const
{
    QApplication::setPalette(PaletteOf(m_scheme, m_isHighContrast));
}

void DesktopLook::AskPortal(QDBusConnection& bus)
{
    if (!bus.isConnected())
        return;
    // The sender goes unnamed: two that meet without a daemon between them have no names.
    bus.connect(QString(), kPath, kInterface, u"SettingChanged"_s, this,
        SLOT(NoteSettingChanged(QDBusMessage)));
    for (const QString key : { kSchemeKey, kContrastKey }) {
        QDBusMessage question
            = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
        question << QString(kGroup) << key;
        auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, key] {
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            if (reply.isValid())
                Take(key, reply.value().variant());
            answer->deleteLater();
        });
    }
}

void DesktopLook::NoteSettingChanged(const QDBusMessage& signal)
{
    const QVariantList told = signal.arguments();
    if (told.size() == 3 && told[0].toString() == kGroup)
        Take(told[1].toString(), told[2].value<QDBusVariant>().variant());
}

void DesktopLook::Take(const QString& key, const QVariant& answer)
{
    // The older of the portal's two calls wraps the number twice.
    const QVariant number
        = answer.canConvert<QDBusVariant>() ? answer.value<QDBusVariant>().variant() : answer;
    if (key == kContrastKey)
        m_isHighContrast = number.toUInt() == kWantsContrast;
    else if (key == kSchemeKey && !m_hasFixedScheme)
        m_scheme = number.toUInt() == kPrefersDark ? ColourScheme::Dark : ColourScheme::Light;
    else
        return;
    SetPalette();
}

} // namespace Quillory
