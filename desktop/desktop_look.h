// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPalette>

#include <optional>

class QDBusVariant;

namespace Quillory {

enum class ColourScheme
{
    Light,
    Dark,
};

/// The program's own colours, for desktops that bring none.
[[nodiscard]] QPalette PaletteOf(ColourScheme scheme);

/// Gives the application the desktop's colours, and follows when they change.
///
/// Colours that the desktop's theme gave the toolkit are left alone. Otherwise it is asked through
/// its portal (org.freedesktop.appearance, color-scheme) whether it is light or dark; the answer
/// comes later and holds nothing up. Without one the scheme is light.
class DesktopLook : public QObject
{
    Q_OBJECT

public:
    /// `fixed` is used whatever the desktop says.
    explicit DesktopLook(std::optional<ColourScheme> fixed, QObject* parent = nullptr);

private:
    void AskPortal();
    void TakeScheme(const QVariant& answer);

private Q_SLOTS:
    // Called by name, over the bus.
    void NoteSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace Quillory
