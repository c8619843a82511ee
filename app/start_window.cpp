// SPDX-License-Identifier: MIT
#include "app/start_window.h"

#include "app/main_frame.h"
#include "desktop/application.h"
#include "desktop/desktop_look.h"
#include "desktop/end_requests.h"
#include "desktop/screen_keyboard.h"
#include "desktop/single_instance.h"
#include "propdb/volume_path.h"
#include "res/language.h"
#include "store/kept_copies.h"
#include "store/settings.h"
#include "widgets/app_style.h"
#include "widgets/icon_set.h"
#include "widgets/window_style.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string_view>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;

constexpr char kNoDisplay[]
    = "quillory: there is no display to open a window on; \"quillory --help\" "
      "lists the commands that need none\n";

/// Whether there may be a place for a window.
bool HasDisplay(int argumentCount, char** argumentValues)
{
    for (const char* name : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" }) {
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    }
    return std::any_of(argumentValues, argumentValues + argumentCount,
        [](std::string_view argument) { return argument.ends_with("-platform"); });
}

/// The toolkit ends the process with a core dump where it reaches no display, after telling why.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fputs(kNoDisplay, stderr);
        _exit(kFailed);
    }
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

/// The permission to come to the front that the desktop gave this start. An application object
/// takes it out of the environment.
QString ActivationToken()
{
    QString token;
    for (const char* name : { "DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN" }) {
        if (qEnvironmentVariableIsSet(name))
            token = qEnvironmentVariable(name);
    }
    return token;
}

int ExitCodeOf(SingleInstance::Outcome outcome, const QString& listName)
{
    if (outcome == SingleInstance::Outcome::HandedOverUnknownList)
        NoteUnknownList(listName);
    if (outcome == SingleInstance::Outcome::HandedOverUnanswered)
        std::fputs("quillory: the open window is busy and will answer later\n", stderr);
    return kDone;
}

std::optional<ColourScheme> FixedScheme(const Settings& settings)
{
    if (settings.colourScheme == u"dark"_s)
        return ColourScheme::Dark;
    if (settings.colourScheme == u"light"_s)
        return ColourScheme::Light;
    return std::nullopt;
}

Settings SettingsFor(const WindowCall& call)
{
    Settings settings;
    ReadSettings(SettingsPath(), settings);
    if (!call.dataFile.isEmpty() && !IsSameVolume(call.dataFile, settings.DbPath)) {
        settings.DbPath = QFileInfo(call.dataFile).absoluteFilePath();
        settings.isPathForThisRun = true;
        settings.lastList.clear();
    }
    return settings;
}

/// Where starts on the same data file meet.
QString MeetingFolder(const Settings& settings)
{
    if (!settings.isPathForThisRun)
        return SingleInstance::Folder();
    const auto real = ResolveVolumePath(settings.DbPath);
    return SingleInstance::Folder(VolumeKey(real ? *real : QFile::encodeName(settings.DbPath)));
}

int RunFrame(Application& app, SingleInstance& instance, const Settings& settings,
    const StartRequest& request, int endRequests)
{
    const DesktopLook look(QDBusConnection::sessionBus(), FixedScheme(settings));
    EnlargeLetters();
    std::optional<ScreenKeyboard> keyboard;
    if (ScreenKeyboard::IsNeeded())
        keyboard.emplace(QDBusConnection::sessionBus());
    MainFrame frame(settings, { SettingsPath(), DefaultCopiesFolder() });
    instance.SetHandler(
        [&frame](const StartRequest& later) { return frame.TakeStartRequest(later); });
    MeetEndRequests(endRequests, frame, [&frame] { return frame.LetSessionEnd(); });
    QObject::connect(&app, &Application::MemoryRanOut, &frame, &MainFrame::TellOutOfMemory);
    frame.show();
    // After the window is on the screen.
    QMetaObject::invokeMethod(
        &frame, [&frame, &request] { frame.OpenDataFile(request); }, Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace

int RunWindow(int argumentCount, char** argumentValues, const WindowCall& call)
{
    const int endRequests = CatchEndRequests();
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    if (!HasDisplay(argumentCount, argumentValues)) {
        std::fputs(kNoDisplay, stderr);
        return kFailed;
    }
    const QString token = ActivationToken();
    const QtMessageHandler ownHandler = qInstallMessageHandler(EndWithoutDisplay);
    Application app(argumentCount, argumentValues);
    qInstallMessageHandler(ownHandler);
    QApplication::setStyle(new AppStyle);
    SpeakLanguage();
    QApplication::setApplicationName(u"quillory"_s);
    QApplication::setApplicationDisplayName(u"Quillory"_s);
    QApplication::setApplicationVersion(QStringLiteral(QUILLORY_VERSION));
    QApplication::setDesktopFileName(u"org.quillory.Quillory"_s);
    QApplication::setWindowIcon(ApplicationIcon());

    const Settings settings = SettingsFor(call);
    const StartRequest request { call.listName, token, call.isNewList };
    SingleInstance instance(MeetingFolder(settings));
    const SingleInstance::Outcome outcome = instance.Start(request);
    if (outcome != SingleInstance::Outcome::Alone)
        return ExitCodeOf(outcome, request.listName);

    return RunFrame(app, instance, settings, request, endRequests);
}

} // namespace Quillory
