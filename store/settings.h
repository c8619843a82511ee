// SPDX-License-Identifier: MIT
#pragma once

#include "values/value_text.h"

#include <QByteArray>
#include <QString>

#include <bitset>
#include <optional>

namespace Quillory {

/// The option bits of the settings, by their index. An index of 32 or more throws
/// std::out_of_range.
using AppOptions = std::bitset<32>;

constexpr size_t kLandscapeOption = 0;
constexpr size_t kReadOnlyOption = 1;
constexpr size_t kAlternateColourOption = 2;

/// A longer path of a data file is not remembered.
constexpr qsizetype kMaxDataFilePathLength = 260;

/// The rotation of the screen that landscape display asks for.
constexpr quint32 kLandscapeRightHanded = 1;
constexpr quint32 kLandscapeLeftHanded = 4;

/// What the program remembers from one start to the next.
struct Settings
{
    /// The full path of the data file; empty until one was chosen.
    QString DbPath;
    AppOptions Options;
    quint32 ListOrientation = kLandscapeRightHanded;
    /// As the window toolkit wrote it; empty before the first end of the program.
    QByteArray windowGeometry;
    /// The list that was open when the window closed; empty for none.
    QString lastList;
    /// Overrides the code page of the locale for reading text files; set by hand in the file.
    std::optional<int> codePage;
    /// "light" or "dark" overrides the desktop's colours; set by hand in the file.
    QString colourScheme;
    /// How many copies of the data file are kept, 0 to 9; set by hand in the file.
    int keptCopies = 3;
    /// DbPath was named for this run alone: neither it nor what was open in it is written.
    bool isPathForThisRun = false;
};

/// quillory/quillory.conf in the user's folder of settings.
[[nodiscard]] QString SettingsPath();

/// Takes the settings of a file over. What is missing, damaged or foreign in it becomes the
/// default; where there is no file at all, `settings.Options` stays as it is.
void ReadSettings(const QString& path, Settings& settings);

/// Writes everything but code page, kept copies and colour scheme, which are the user's own lines.
/// A file that cannot be written stays as it is.
void WriteSettings(const QString& path, const Settings& settings);

/// The context of the environment with what the settings override of it: window and command line
/// read and write texts alike.
[[nodiscard]] ValueContext ContextOf(const Settings& settings);

} // namespace Quillory
