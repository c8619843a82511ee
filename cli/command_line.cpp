// SPDX-License-Identifier: MIT
#include "cli/command_line.h"

#include "cli/sub_command.h"
#include "store/kept_copies.h"
#include "store/settings.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QRegularExpression>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

const QString kEmptyArgument = u"an argument is empty"_s;
const QString kEmptyValue = u"--%1 has an empty value"_s;
constexpr auto kDataPrefix = "--data="_L1;

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

/// A call that names no sub-command, by its parts. Options of the toolkit's are left out.
struct BareCall
{
    bool isNewList = false;
    /// Empty where it is said to be nothing.
    std::optional<QString> dataFile;
    QStringList otherOptions;
    QStringList operands;
};

BareCall ReadBareCall(const QStringList& arguments)
{
    constexpr std::array kToolkitOptions { "-platform", "-platformpluginpath", "-platformtheme",
        "-plugin", "-qwindowgeometry", "-qwindowicon", "-qwindowtitle", "-geometry", "-title",
        "-icon", "-style", "-stylesheet", "-session", "-display" };
    BareCall call;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == u"--") {
            call.operands << arguments.mid(i + 1);
            break;
        }
        const bool takesNext = std::any_of(kToolkitOptions.begin(), kToolkitOptions.end(),
            [&argument](const char* option) { return argument == QLatin1StringView(option); });
        if (takesNext)
            ++i;
        else if (argument == u"--data")
            call.dataFile = arguments.value(++i);
        else if (argument.startsWith(kDataPrefix))
            call.dataFile = argument.mid(kDataPrefix.size());
        else if (argument == u"--new-list")
            call.isNewList = true;
        else if (argument.startsWith(u"--") || argument == u"-h" || argument == u"-v")
            call.otherOptions << argument;
        else if (!argument.startsWith(u'-'))
            call.operands << argument;
    }
    return call;
}

void AddOptions(QCommandLineParser& parser, const SubCommand* command)
{
    parser.addOption({ u"data"_s, {}, u"FILE"_s });
    parser.addOption(QCommandLineOption(QStringList { u"h"_s, u"help"_s }));
    parser.addOption(QCommandLineOption(QStringList { u"v"_s, u"version"_s }));
    if (command == nullptr) {
        parser.addOption(QCommandLineOption(u"new-list"_s));
        return;
    }
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
            FailUsage(kEmptyValue.arg(option));
    }
    if (operands.contains(QString()))
        FailUsage(kEmptyArgument);
    if (operands.size() < command.minOperands)
        FailUsage(u"an argument is missing"_s);
    if (operands.size() > command.maxOperands)
        FailUsage(u"“%1” is one argument too many"_s.arg(operands[command.maxOperands]));
}

/// Runs a call that names no sub-command there is and is none of the window either: it can only ask
/// for help or the version.
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
    const BareCall call = ReadBareCall(arguments);
    const QStringList& operands = call.operands;
    if (operands.contains(QString()))
        FailUsage(kEmptyArgument);
    if (isRight && call.dataFile && call.dataFile->isEmpty())
        FailUsage(kEmptyValue.arg(u"data"));
    const QString word = operands.value(0);
    if (const SubCommand* near = FindNearSubCommand(word))
        FailUsage(u"there is no command “%1”; the nearest is “%2”"_s.arg(
            word, QLatin1StringView(near->name)));
    if (operands.size() > 1)
        FailUsage(u"there is no command “%1”, and one list can be named at most"_s.arg(word));
    if (call.isNewList && !word.isEmpty())
        FailUsage(u"a new list and “%1” cannot both be opened"_s.arg(word));
    if (!word.isEmpty() && !call.otherOptions.isEmpty())
        FailUsage(u"the window has no option “%1”"_s.arg(call.otherOptions.front()));
    if (!word.isEmpty())
        FailUsage(u"there is no command “%1”"_s.arg(word));
    FailUsage(isRight ? u"no command is named"_s : parser.errorText());
}

/// A number below 0 is an operand, no option: it goes behind all options. Not where it is the value
/// of one.
QStringList WithNumbersLast(QStringList arguments, const SubCommand& command)
{
    static const QRegularExpression number(u"^-[0-9]+$"_s);
    QStringList numbers;
    for (qsizetype i = arguments.size() - 1; i >= 0; --i) {
        const QString before = arguments.value(i - 1);
        const bool isValue = before == u"--data"
            || std::ranges::any_of(command.valueOptions, [&before](const char* option) {
                   return before == u"--"_s + QLatin1StringView(option);
               });
        if (number.match(arguments[i]).hasMatch() && !isValue)
            numbers.prepend(arguments.takeAt(i));
    }
    if (!numbers.isEmpty() && !arguments.contains(u"--"))
        arguments << u"--"_s;
    return arguments + numbers;
}

void Dispatch(const QStringList& arguments, const SubCommand* command,
    const CommandEnvironment& environment, TextOutput& output, bool& found)
{
    if (command == nullptr)
        return RunBare(arguments, environment, output);
    QStringList rest = arguments;
    rest.removeAt(SubCommandPlace(arguments));
    QCommandLineParser parser;
    AddOptions(parser, command);
    if (!Parse(parser, WithNumbersLast(rest, *command)))
        FailUsage(parser.errorText());
    if (parser.isSet(u"help"_s))
        return output.WriteRaw(HelpText(*command, environment));
    if (parser.isSet(u"version"_s))
        return RunBare({ u"--version"_s }, environment, output);
    const QStringList operands = parser.positionalArguments();
    CheckArguments(*command, parser, operands);
    command->run({ environment, parser, operands, output, found });
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
    bool found = false;
    try {
        Dispatch(arguments, command, environment, output, found);
        const ExitCode end = Finish(output, environment);
        return found && end == ExitCode::Done ? ExitCode::Due : end;
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

bool IsListOfFile(const QString& name, const QString& path)
{
    Settings settings;
    ReadSettings(SettingsPath(), settings);
    QFile errors;
    static_cast<void>(errors.open(STDERR_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered));
    try {
        CommandData data(path.isEmpty() ? settings.DbPath : path, VolumeAccess::ReadOnly,
            Disposition::OpenExisting, errors);
        return data.catalogue.FindList(name) != kNoObject;
    } catch (const WriterWaits&) {
        return IsListOfFile(name, path);
    } catch (const CommandFailure&) {
        return false;
    }
}

std::optional<WindowCall> ReadWindowCall(const QStringList& arguments,
    const std::function<bool(const QString& name, const QString& path)>& isList)
{
    const qsizetype place = SubCommandPlace(arguments);
    if (place >= 0 && FindSubCommand(arguments[place]) != nullptr)
        return std::nullopt;
    const BareCall call = ReadBareCall(arguments);
    const bool hasEmpty
        = call.operands.contains(QString()) || (call.dataFile && call.dataFile->isEmpty());
    const qsizetype mostOperands = call.isNewList ? 0 : 1;
    if (!call.otherOptions.isEmpty() || hasEmpty || call.operands.size() > mostOperands)
        return std::nullopt;
    const WindowCall window { call.dataFile.value_or(QString()), call.operands.value(0),
        call.isNewList };
    const bool isNearCommand = place >= 0 && arguments[place] == window.listName
        && FindNearSubCommand(window.listName) != nullptr;
    if (isNearCommand && !isList(window.listName, window.dataFile))
        return std::nullopt;
    return window;
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
