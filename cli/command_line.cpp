// SPDX-License-Identifier: MIT
#include "cli/command_line.h"

#include "cli/sub_command.h"
#include "store/kept_copies.h"
#include "store/settings.h"

#include <QDeadlineTimer>
#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

const QString kEmptyArgument = u"an argument is empty"_s;

/// The place of the first argument that is neither an option nor the value of one; -1 if there is
/// none, or only behind "--".
qsizetype SubCommandPlace(const QStringList& arguments)
{
    for (qsizetype i = 0; i < arguments.size() && arguments[i] != u"--"; ++i) {
        if (arguments[i] == u"--data")
            ++i;
        else if (!arguments[i].startsWith(u'-'))
            return i;
    }
    return -1;
}

/// What a call names that is no command: all but options, and the values of the toolkit's.
QStringList WindowOperands(const QStringList& arguments)
{
    constexpr std::array kValueOptions { "--data", "-platform", "-platformpluginpath",
        "-platformtheme", "-plugin", "-qwindowgeometry", "-qwindowicon", "-qwindowtitle",
        "-geometry", "-title", "-icon", "-style", "-stylesheet", "-session", "-display" };
    QStringList operands;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == u"--")
            return operands + arguments.mid(i + 1);
        const bool takesNext = std::any_of(kValueOptions.begin(), kValueOptions.end(),
            [&argument](const char* option) { return argument == QLatin1StringView(option); });
        if (takesNext)
            ++i;
        else if (!argument.startsWith(u'-'))
            operands << argument;
    }
    return operands;
}

void AddOptions(QCommandLineParser& parser, const SubCommand* command)
{
    parser.addOption({ u"data"_s, {}, u"FILE"_s });
    parser.addOption(QCommandLineOption(QStringList { u"h"_s, u"help"_s }));
    parser.addOption(QCommandLineOption(QStringList { u"v"_s, u"version"_s }));
    if (command == nullptr)
        return;
    for (const char* flag : command->flags)
        parser.addOption(QCommandLineOption(QString::fromLatin1(flag)));
    for (const char* option : command->valueOptions)
        parser.addOption({ QString::fromLatin1(option), {}, u"VALUE"_s });
}

[[nodiscard]] bool Parse(QCommandLineParser& parser, const QStringList& arguments)
{
    return parser.parse(QStringList { u"quillory"_s } + arguments);
}

/// Empty arguments come from variables of scripts that are not set.
void CheckArguments(
    const SubCommand& command, const QCommandLineParser& parser, const QStringList& operands)
{
    for (const QString& option : parser.optionNames()) {
        const bool hasValue = option == u"data"
            || std::find(
                   command.valueOptions.begin(), command.valueOptions.end(), option.toStdString())
                != command.valueOptions.end();
        if (hasValue && parser.values(option).contains(QString()))
            FailUsage(u"--%1 has an empty value"_s.arg(option));
    }
    if (operands.contains(QString()))
        FailUsage(kEmptyArgument);
    if (operands.size() < command.minOperands)
        FailUsage(u"an argument is missing"_s);
    if (operands.size() > command.maxOperands)
        FailUsage(u"“%1” is one argument too many"_s.arg(operands[command.maxOperands]));
}

/// Runs a call that names no sub-command there is, which can only ask for help or the version.
void RunBare(
    const QStringList& arguments, const CommandEnvironment& environment, TextOutput& output)
{
    QCommandLineParser parser;
    AddOptions(parser, nullptr);
    const bool isRight = Parse(parser, arguments);
    if (isRight && parser.isSet(u"help"_s))
        return output.WriteRaw(HelpText(environment));
    if (isRight && parser.isSet(u"version"_s))
        return output.WriteRaw("quillory " QUILLORY_VERSION "\n");
    const QStringList operands = WindowOperands(arguments);
    if (operands.contains(QString()))
        FailUsage(kEmptyArgument);
    const QString word = operands.value(0);
    if (const SubCommand* near = FindNearSubCommand(word))
        FailUsage(u"there is no command “%1”; the nearest is “%2”"_s.arg(
            word, QLatin1StringView(near->name)));
    if (operands.size() > 1)
        FailUsage(u"there is no command “%1”, and one list can be named at most"_s.arg(word));
    if (!word.isEmpty())
        FailUsage(u"there is no command “%1”"_s.arg(word));
    FailUsage(isRight ? u"no command is named"_s : parser.errorText());
}

void Dispatch(const QStringList& arguments, const SubCommand* command,
    const CommandEnvironment& environment, TextOutput& output)
{
    if (command == nullptr)
        return RunBare(arguments, environment, output);
    QStringList rest = arguments;
    rest.removeAt(SubCommandPlace(arguments));
    QCommandLineParser parser;
    AddOptions(parser, command);
    if (!Parse(parser, rest))
        FailUsage(parser.errorText());
    if (parser.isSet(u"help"_s))
        return output.WriteRaw(HelpText(*command, environment));
    if (parser.isSet(u"version"_s))
        return RunBare({ u"--version"_s }, environment, output);
    const QStringList operands = parser.positionalArguments();
    CheckArguments(*command, parser, operands);
    command->run({ environment, parser, operands, output });
}

ExitCode Finish(TextOutput& output, const CommandEnvironment& environment)
{
    const QString failure = output.Flush();
    if (failure.isEmpty())
        return ExitCode::Done;
    // Whoever closed the other end of a pipe knows.
    if (failure != qt_error_string(EPIPE))
        Complain(environment.errors, u"cannot write to standard output: %1"_s.arg(failure));
    return ExitCode::Failed;
}

/// Throws WriterWaits before anything is printed.
ExitCode RunOnce(const QStringList& arguments, const CommandEnvironment& environment)
{
    const qsizetype place = SubCommandPlace(arguments);
    const SubCommand* command = place < 0 ? nullptr : FindSubCommand(arguments[place]);
    TextOutput output(environment.output);
    try {
        Dispatch(arguments, command, environment, output);
        return Finish(output, environment);
    } catch (const CommandFailure& failure) {
        Finish(output, environment);
        Complain(environment.errors, failure.Message());
        if (failure.Code() == ExitCode::WrongUsage)
            environment.errors.write(UsageText(command));
        return failure.Code();
    } catch (const std::bad_alloc&) {
        Complain(environment.errors, u"out of memory"_s);
        return ExitCode::Failed;
    }
}

} // namespace

bool IsListOfConfiguredFile(const QString& name)
{
    Settings settings;
    ReadSettings(SettingsPath(), settings);
    QFile errors;
    static_cast<void>(errors.open(STDERR_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered));
    try {
        CommandData data(
            settings.DbPath, VolumeAccess::ReadOnly, Disposition::OpenExisting, errors);
        return data.catalogue.FindList(name) != kNoObject;
    } catch (const WriterWaits&) {
        return IsListOfConfiguredFile(name);
    } catch (const CommandFailure&) {
        return false;
    }
}

bool IsCommandLine(const QStringList& arguments, const std::function<bool(const QString&)>& isList)
{
    if (arguments.isEmpty())
        return false;
    // The toolkit's own options, which the window passes on, begin with a single dash.
    const QString& first = arguments.front();
    if ((first.startsWith(u"--") && first != u"--") || first == u"-h" || first == u"-v")
        return true;
    const qsizetype place = SubCommandPlace(arguments);
    if (place >= 0 && FindSubCommand(arguments[place]) != nullptr)
        return true;
    const QStringList operands = WindowOperands(arguments);
    if (operands.size() > 1 || operands.contains(QString()))
        return true;
    return place >= 0 && FindNearSubCommand(arguments[place]) != nullptr
        && operands.contains(arguments[place]) && !isList(arguments[place]);
}

ExitCode RunCommandLine(const QStringList& arguments, const CommandEnvironment& environment)
{
    constexpr int kPatienceMs = 10'000;
    const QDeadlineTimer patience(kPatienceMs);
    do {
        try {
            return RunOnce(arguments, environment);
        } catch (const WriterWaits&) {
            continue;
        }
    } while (!patience.hasExpired());
    Complain(environment.errors, u"the data file is being changed all the time; try again later"_s);
    return ExitCode::Failed;
}

int RunCommandLine(const QStringList& arguments)
{
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
    QFile input;
    QFile output;
    QFile errors;
    constexpr auto kMode = QIODevice::Unbuffered;
    // A stream that is closed fails when it is used.
    static_cast<void>(input.open(STDIN_FILENO, QIODevice::ReadOnly | kMode));
    static_cast<void>(output.open(STDOUT_FILENO, QIODevice::WriteOnly | kMode));
    static_cast<void>(errors.open(STDERR_FILENO, QIODevice::WriteOnly | kMode));
    Settings settings;
    ReadSettings(SettingsPath(), settings);
    return static_cast<int>(RunCommandLine(arguments,
        { input, output, errors, ContextOf(settings), settings.DbPath, DefaultCopiesFolder(),
            settings.keptCopies }));
}

} // namespace Quillory
