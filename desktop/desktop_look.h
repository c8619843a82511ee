// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QPalette>

#include <optional>

class QDBusMessage;

namespace Quillory {

enum class ColourScheme
{
    Light,
    Dark,
};

/// The program's own colours, for desktops that bring none. With high contrast they are black and
/// white but for the accent.
[[nodiscard]] QPalette PaletteOf(ColourScheme scheme, bool isHighContrast = false);

/// Gives the application the desktop's colours, and follows when they change.
///
/// Colours that the desktop's theme gave the toolkit are left alone. Otherwise it is asked through
/// its portal (org.freedesktop.appearance) whether it is light or dark (color-scheme) and whether
/// it wants high contrast (contrast); the answers come later and hold nothing up. Without them the
/// scheme is light, of usual contrast.
class DesktopLook : public QObject
{
    Q_OBJECT

public:
    /// `bus` is the session's. `fixed` is used whether the desktop is light or dark.
    DesktopLook(QDBusConnection bus, std::optional<ColourScheme> fixed, QObject* parent = nullptr);

private:
    bool m_hasFixedScheme;
    ColourScheme m_scheme;
    bool m_isHighContrast = false;

    void AskPortal(QDBusConnection& bus);
    /// Takes over what the portal says of one of the two.
    void Take(const QString& key, const QVariant& answer);
    void SetPalette() const;

private Q_SLOTS:
    // Called by name, over the bus, with the group, the key and the value. As arguments of their
    // own they would need a type that the toolkit does not know by its name before it is first
    // used.
    void NoteSettingChanged(const QDBusMessage& signal);
};

} // namespace Quillory
