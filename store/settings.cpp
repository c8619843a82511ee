// SPDX-License-Identifier: MIT
#include "store/settings.h"

#include "platform/code_page.h"
#include "store/user_folders.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 kVersion = 100;
/// A file larger than this was not written here and is not read.
constexpr qint64 kMaxFileSize = 256LL * 1024;

constexpr auto kVersionKey = "Version"_L1;
constexpr auto kPathKey = "DbPath"_L1;
constexpr auto kOptionsKey = "Options"_L1;
constexpr auto kOrientationKey = "ListOrientation"_L1;
constexpr auto kGeometryKey = "WindowGeometry"_L1;
constexpr auto kLastListKey = "LastList"_L1;
constexpr auto kCodePageKey = "CodePage"_L1;
constexpr auto kKeptCopiesKey = "KeptCopies"_L1;
constexpr auto kColourSchemeKey = "ColourScheme"_L1;

quint32 ReadNumber(const QSettings& file, QLatin1StringView key, quint32 fallback)
{
    bool isNumber = false;
    const quint32 number = file.value(key).toString().toUInt(&isNumber);
    return isNumber ? number : fallback;
}

QString ReadPath(const QSettings& file)
{
    const QString path = file.value(kPathKey).toString();
    const bool isPath = path.size() <= kMaxDataFilePathLength && !path.contains(QChar(u'\0'));
    return isPath ? path : QString();
}

int ReadKeptCopies(const QSettings& file)
{
    constexpr quint32 kMost = 9;
    const int usual = Settings().keptCopies;
    const quint32 count = ReadNumber(file, kKeptCopiesKey, static_cast<quint32>(usual));
    return count <= kMost ? static_cast<int>(count) : usual;
}

std::optional<int> ReadCodePage(const QSettings& file)
{
    bool isNumber = false;
    const int number = file.value(kCodePageKey).toString().toInt(&isNumber);
    return isNumber && CodePage::For(number) ? std::optional(number) : std::nullopt;
}

} // namespace

QString SettingsPath()
{
    return UserFolder("XDG_CONFIG_HOME", u".config"_s) + u"/quillory/quillory.conf"_s;
}

void ReadSettings(const QString& path, Settings& settings)
{
    const QFileInfo info(path);
    const AppOptions inMemory = settings.Options;
    settings = {};
    if (!info.exists()) {
        settings.Options = inMemory;
        return;
    }
    // A pipe in the file's place would hold the start up for ever.
    if (!info.isFile() || info.size() > kMaxFileSize)
        return;
    const QSettings file(path, QSettings::IniFormat);
    settings.DbPath = ReadPath(file);
    settings.Options = AppOptions(ReadNumber(file, kOptionsKey, 0));
    settings.ListOrientation = ReadNumber(file, kOrientationKey, kLandscapeRightHanded);
    settings.windowGeometry = file.value(kGeometryKey).toByteArray();
    settings.lastList = file.value(kLastListKey).toString();
    settings.codePage = ReadCodePage(file);
    settings.keptCopies = ReadKeptCopies(file);
    settings.colourScheme = file.value(kColourSchemeKey).toString().toLower();
}

void WriteSettings(const QString& path, const Settings& settings)
{
    const QFileInfo info(path);
    const bool isNew = !info.exists();
    if (!isNew && !info.isFile())
        return;
    static_cast<void>(MakeUserFolder(info.absolutePath()));
    QSettings file(path, QSettings::IniFormat);
    file.setValue(kVersionKey, kVersion);
    if (!settings.isPathForThisRun) {
        file.setValue(kPathKey, settings.DbPath);
        file.setValue(kLastListKey, settings.lastList);
    }
    file.setValue(kOptionsKey, static_cast<quint32>(settings.Options.to_ulong()));
    file.setValue(kOrientationKey, settings.ListOrientation);
    file.setValue(kGeometryKey, settings.windowGeometry);
    file.sync();
    // A file that was there keeps who may read it.
    if (isNew)
        QFile::setPermissions(path, kOwnerOnly);
}

ValueContext ContextOf(const Settings& settings)
{
    ValueContext context = ValueContext::FromEnvironment();
    if (settings.codePage) {
        context.userLocale.codePage = *settings.codePage;
        context.systemLocale.codePage = *settings.codePage;
    }
    return context;
}

} // namespace Quillory
