// SPDX-License-Identifier: MIT
#include "res/dialog_table.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace Quillory {

namespace {

const char* TitleSource(Dialog dialog)
{
    switch (dialog) {
    case Dialog::Welcome:
        return QT_TRANSLATE_NOOP("Dialogs", "Welcome to Quillory");
    case Dialog::General:
        return QT_TRANSLATE_NOOP("Dialogs", "General");
    case Dialog::Columns:
        return QT_TRANSLATE_NOOP("Dialogs", "Columns");
    case Dialog::ColumnDefinition:
        return QT_TRANSLATE_NOOP("Dialogs", "Column Definition");
    case Dialog::ListOptions:
    case Dialog::DisplayOptions:
        return QT_TRANSLATE_NOOP("Dialogs", "Options");
    case Dialog::Summary:
        return "Quillory";
    case Dialog::Filters:
        return QT_TRANSLATE_NOOP("Dialogs", "Filters");
    case Dialog::Filter:
        return QT_TRANSLATE_NOOP("Dialogs", "Filter");
    case Dialog::ImportColumnOrder:
        return QT_TRANSLATE_NOOP("Dialogs", "Import Column Order");
    case Dialog::About:
    case Dialog::IconGrid:
    case Dialog::RowEditor:
        return nullptr;
    }
    return nullptr;
}

struct ControlEntry
{
    Control control;
    const char* text;
};

constexpr std::array kControls {
    ControlEntry { Control::VersionText, "1.00.034" },
    ControlEntry { Control::WarnOnCount,
        QT_TRANSLATE_NOOP("Controls", "Enable row colour when count is less than or equal to") },
    ControlEntry { Control::WarnOnExpiry,
        QT_TRANSLATE_NOOP("Controls", "Enable row colour when expiry date is reached to colour") },
    ControlEntry {
        Control::Landscape, QT_TRANSLATE_NOOP("Controls", "Display list using landscape mode") },
    ControlEntry {
        Control::LandscapeRight, QT_TRANSLATE_NOOP("Controls", "Landscape (right-handed)") },
    ControlEntry {
        Control::LandscapeLeft, QT_TRANSLATE_NOOP("Controls", "Landscape (left-handed)") },
    ControlEntry {
        Control::AlternateColour, QT_TRANSLATE_NOOP("Controls", "Use alternate row colour") },
    ControlEntry { Control::MoveUp, QT_TRANSLATE_NOOP("Controls", "Move Up") },
    ControlEntry { Control::MoveDown, QT_TRANSLATE_NOOP("Controls", "Move Down") },
};

QString Translated(const char* context, const char* source)
{
    return source == nullptr ? QString() : QCoreApplication::translate(context, source);
}

} // namespace

QString DialogTitle(Dialog dialog)
{
    return Translated("Dialogs", TitleSource(dialog));
}

QString ControlText(Control control)
{
    const auto found = std::find_if(kControls.begin(), kControls.end(),
        [control](const ControlEntry& entry) { return entry.control == control; });
    return found == kControls.end() ? QString() : Translated("Controls", found->text);
}

} // namespace Quillory
