// SPDX-License-Identifier: MIT
#include "app/command_line.h"

#include "app/command_line_run.h"
#include "app/settings_context.h"
#include "store/kept_copies.h"

#include <QFile>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kJsonFlag { "json" };
constexpr std::array kNewFlags { "create", "warn-expiry" };
constexpr std::array kNewOptions { "column", "icon", "warn-count" };
constexpr std::array kShowOptions { "sort", "where" };
constexpr std::array kImportFlags { "dry-run" };
constexpr std::array kImportOptions { "columns" };
constexpr std::array kSummaryOptions { "where" };
constexpr std::array kDueOptions { "within" };
constexpr std::array kRestoreFlags { "json", "salvage" };
constexpr std::array kRestoreOptions { "from" };

constexpr const char* kListsHelp
    = "Prints a line per list, in the order of their names: name TAB number of rows.\n"
      "\n"
      "  --json               name, rows, icon and columns of each list\n";

constexpr const char* kNewHelp
    = "Makes a list and prints nothing. Its first columns are Name and Quantity.\n"
      "\n"
      "  --column NAME:TYPE   adds a column; TYPE is string, checkbox, price, integer, date or\n"
      "                       expiry (which needs no NAME). May be given several times.\n"
      "  --warn-count N       warns of rows whose quantity is N or less\n"
      "  --warn-expiry        warns of rows whose expiry date is reached\n"
      "  --icon N             icon 0 to 42\n"
      "  --create             makes the data file if there is none\n";

constexpr const char* kWhereHelp
    = "  --where CONDITION    only rows that meet it: \"COLUMN CONDITION VALUE\", as in\n"
      "                       \"Name contains tea\", \"Quantity < 3\", \"Opened = Checked\".\n"
      "                       Conditions are those of the program's filters, by their words or\n"
      "                       as = != > >= < <=. As there, != on text, numbers and prices finds\n"
      "                       what = finds. May be given several times: all must hold.\n";

constexpr const char* kShowHelp
    = "Prints a line of column names, then the rows in the order of names, with TAB between\n"
      "fields. Control characters in texts are shown as blanks.\n"
      "\n"
      "  --sort COLUMN        in ascending order of a column\n"
      "  --json               an object per row; dates as YYYY-MM-DD, missing values as null\n";

constexpr const char* kExportHelp
    = "Writes the rows as text, as Export List does: UTF-16, TAB between fields, CR LF after each\n"
      "row. Without FILE, or with -, to standard output. An existing FILE is replaced.\n";

constexpr const char* kImportHelp
    = "Adds a row for each line of a text file, as Import List does, and prints how many came in.\n"
      "FILE - is standard input. Each line must end in CR LF.\n"
      "\n"
      "  --columns \"A,B\"      the columns that the fields of a line fill; those not named "
      "follow\n"
      "                       in the list's order, which is also what holds without this option\n"
      "  --dry-run            stores nothing, prints how many rows would come in\n";

constexpr const char* kSummaryHelp
    = "Prints a line per total of a number or price column: name TAB total.\n"
      "\n"
      "  --json               name and total of each\n";

constexpr const char* kDueHelp
    = "Prints rows of lists whose warnings are on: list TAB row TAB \"low\", \"expired\" or the "
      "date\n"
      "on which the row expires.\n"
      "\n"
      "  --within DAYS        also rows that expire in so many days\n"
      "  --json               list, row, state and count or date of each\n";

constexpr const char* kCheckHelp
    = "Reads the whole data file. Prints \"ok\", or what is wrong and exits with 1.\n";

constexpr const char* kBackupHelp
    = "Writes a consistent copy of the data file, also while it is in use. FILE must not exist.\n";

constexpr const char* kRestoreHelp
    = "After each run that changed the data file a copy of it is kept; the last three are. "
      "Without\n"
      "options prints a line per copy, the newest first: number TAB time TAB bytes, and then a "
      "line\n"
      "per list that can be read from the data file itself, also if that is damaged: salvage TAB\n"
      "list TAB rows TAB what is lost. Makes the new data file FILE, which must not exist:\n"
      "\n"
      "  --from N             from copy N\n"
      "  --salvage            from what can still be read of the data file, and prints what that "
      "is;\n"
      "                       the data file is only read\n"
      "  --json               an object per copy and per list\n";

constexpr std::array kSubCommands {
    SubCommand { "lists", "", kListsHelp, 0, 0, kJsonFlag, {}, &RunLists },
    SubCommand { "new", "LIST [--column NAME:TYPE]... [--create]", kNewHelp, 1, 1, kNewFlags,
        kNewOptions, &RunNew },
    SubCommand { "show", "LIST [--where CONDITION]... [--sort COLUMN]", kShowHelp, 1, 1, kJsonFlag,
        kShowOptions, &RunShow },
    SubCommand { "export", "LIST [FILE]", kExportHelp, 1, 2, {}, {}, &RunExport },
    SubCommand { "import", "LIST FILE [--columns \"A,B\"] [--dry-run]", kImportHelp, 2, 2,
        kImportFlags, kImportOptions, &RunImport },
    SubCommand { "summary", "LIST [--where CONDITION]...", kSummaryHelp, 1, 1, kJsonFlag,
        kSummaryOptions, &RunSummary },
    SubCommand { "due", "[--within DAYS]", kDueHelp, 0, 0, kJsonFlag, kDueOptions, &RunDue },
    SubCommand { "check", "", kCheckHelp, 0, 0, {}, {}, &RunCheck },
    SubCommand { "backup", "FILE", kBackupHelp, 1, 1, {}, {}, &RunBackup },
    SubCommand { "restore", "[FILE --from N | FILE --salvage]", kRestoreHelp, 0, 1, kRestoreFlags,
        kRestoreOptions, &RunRestore },
};

constexpr const char* kUsageHead = "usage: quillory [LIST]\n"
                                   "       quillory COMMAND [--data FILE] [ARGUMENTS]\n";

const SubCommand* FindSubCommand(const QString& name)
{
    const auto found = std::find_if(kSubCommands.begin(), kSubCommands.end(),
        [&name](const SubCommand& command) { return name == QLatin1StringView(command.name); });
    return found == kSubCommands.end() ? nullptr : &*found;
}

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

QByteArray UsageLine(const SubCommand& command)
{
    return QByteArray("quillory ") + command.name + (*command.usage == '\0' ? "" : " ")
        + command.usage + '\n';
}

QByteArray HelpText()
{
    QByteArray text = kUsageHead;
    text += "\nOpens the window, showing LIST if it is named. The commands work without it:\n\n";
    for (const SubCommand& command : kSubCommands)
        text += "  " + UsageLine(command);
    text += "\n  --data FILE          works on another data file than the configured one\n"
            "  --help               help, on a command if one is named\n"
            "  --version            the version\n"
            "\nExit status: 0 done, 1 failed, 2 wrong usage.\n";
    return text;
}

QByteArray HelpText(const SubCommand& command)
{
    QByteArray text = "usage: " + UsageLine(command) + '\n' + command.help;
    if (std::find(
            command.valueOptions.begin(), command.valueOptions.end(), std::string_view("where"))
        != command.valueOptions.end())
        text += kWhereHelp;
    return text + "  --data FILE          works on another data file than the configured one\n";
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

void CheckOperands(const SubCommand& command, const QStringList& operands)
{
    if (operands.size() < command.minOperands)
        FailUsage(u"an argument is missing"_s);
    if (operands.size() > command.maxOperands)
        FailUsage(u"“%1” is one argument too many"_s.arg(operands[command.maxOperands]));
}

/// Runs a call that names no sub-command there is, which can only ask for help or the version.
void RunBare(const QStringList& arguments, TextOutput& output)
{
    QCommandLineParser parser;
    AddOptions(parser, nullptr);
    const bool isRight = Parse(parser, arguments);
    if (isRight && parser.isSet(u"help"_s))
        return output.WriteRaw(HelpText());
    if (isRight && parser.isSet(u"version"_s))
        return output.WriteRaw("quillory " QUILLORY_VERSION "\n");
    const qsizetype place = SubCommandPlace(arguments);
    if (place >= 0)
        FailUsage(u"there is no command “%1”"_s.arg(arguments[place]));
    FailUsage(isRight ? u"no command is named"_s : parser.errorText());
}

void Dispatch(const QStringList& arguments, const SubCommand* command,
    const CommandEnvironment& environment, TextOutput& output)
{
    if (command == nullptr)
        return RunBare(arguments, output);
    QStringList rest = arguments;
    rest.removeAt(SubCommandPlace(arguments));
    QCommandLineParser parser;
    AddOptions(parser, command);
    if (!Parse(parser, rest))
        FailUsage(parser.errorText());
    if (parser.isSet(u"help"_s))
        return output.WriteRaw(HelpText(*command));
    if (parser.isSet(u"version"_s))
        return RunBare({ u"--version"_s }, output);
    const QStringList operands = parser.positionalArguments();
    CheckOperands(*command, operands);
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

} // namespace

bool IsCommandLine(const QStringList& arguments)
{
    if (arguments.isEmpty())
        return false;
    // The toolkit's own options, which the window passes on, begin with a single dash.
    const QString& first = arguments.front();
    if (first.startsWith(u"--") || first == u"-h" || first == u"-v")
        return first != u"--";
    const qsizetype place = SubCommandPlace(arguments);
    return place >= 0 && FindSubCommand(arguments[place]) != nullptr;
}

ExitCode RunCommandLine(const QStringList& arguments, const CommandEnvironment& environment)
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
            environment.errors.write(
                command == nullptr ? QByteArray(kUsageHead) : "usage: " + UsageLine(*command));
        return failure.Code();
    } catch (const std::bad_alloc&) {
        Complain(environment.errors, u"out of memory"_s);
        return ExitCode::Failed;
    }
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
        { input, output, errors, ContextOf(settings), settings.DbPath, DefaultCopiesFolder() }));
}

} // namespace Quillory
