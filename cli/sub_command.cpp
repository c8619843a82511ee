// SPDX-License-Identifier: MIT
#include "cli/sub_command.h"

#include "platform/number_text.h"
#include "res/language.h"

#include <QTranslator>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kJsonFlag { "json" };
constexpr std::array kNewFlags { "create", "warn-expiry" };
constexpr std::array kNewOptions { "column", "icon", "warn-count" };
constexpr std::array kShowFlags { "descending", "json", "no-header" };
constexpr std::array kShowOptions { "sort", "where" };
constexpr std::array kExportOptions { "all", "dates", "format" };
constexpr std::array kImportFlags { "create", "dry-run" };
constexpr std::array kImportOptions { "all", "columns", "encoding", "format", "match" };
constexpr std::array kSummaryOptions { "where" };
constexpr std::array kReportFlags { "all" };
constexpr std::array kReportOptions { "format" };
constexpr std::array kDueFlags { "ics", "json", "notify" };
constexpr std::array kDueOptions { "within" };
constexpr std::array kChangeFlags { "dry-run" };
constexpr std::array kWhereOption { "where" };
constexpr std::array kRestoreFlags { "json", "salvage" };
constexpr std::array kMergeFlags { "dry-run", "json" };
constexpr std::array kBaseOption { "base" };
constexpr std::array kRestoreOptions { "from" };

constexpr const char* kListsHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Prints a line per list, in the order of their names: name TAB number of rows.\n"
    "\n"
    "  --json               name, rows, icon and columns of each list\n");

constexpr const char* kNewHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Makes a list and prints nothing. Its first columns are Name and Quantity.\n"
    "\n"
    "  --column NAME:TYPE   adds a column; TYPE is string, checkbox, price, integer, date or\n"
    "                       expiry (which needs no NAME). May be given several times.\n"
    "  --warn-count N       warns of rows whose quantity is N or less\n"
    "  --warn-expiry        warns of rows whose expiry date is reached\n"
    "  --icon N             icon 0 to 42\n"
    "  --create             makes the data file if there is none\n");

constexpr const char* kWhereHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "  --where CONDITION    only rows that meet it: \"COLUMN CONDITION VALUE\", as in\n"
    "                       \"Name contains tea\", \"Quantity < 3\", \"Opened = Checked\".\n"
    "                       Conditions are those of the program's filters, by their words or\n"
    "                       as = != > >= < <=. As there, != on text, numbers and prices finds\n"
    "                       what = finds. Numbers are read as they are shown. May be given\n"
    "                       several times: all must hold.\n");

constexpr const char* kShowHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Prints a line of column names, then the rows in the order of names, with TAB between\n"
    "fields. Control characters in texts are shown as blanks.\n"
    "\n"
    "  --sort COLUMN        in ascending order of a column\n"
    "  --descending         the other way round\n"
    "  --no-header          without the line of column names\n"
    "  --json               an object per row; dates as YYYY-MM-DD, missing values as null\n");

constexpr const char* kFindHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Looks for a text in every column of every list, whatever its "
    "case and accents, and prints a\n"
    "line per value that has it: list TAB row TAB column TAB value.\n"
    "\n"
    "  --json               list, row, column and text of each\n");

constexpr const char* kExportHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Writes the rows as text, as Export List does: UTF-16, TAB between fields, CR LF after each\n"
    "row. Without FILE, or with -, to standard output. An existing FILE is replaced.\n"
    "\n"
    "  --dates iso          dates as YYYY-MM-DD, which every locale reads alike\n"
    "  --format NAME        csv or tsv, a table for other programs in UTF-8 behind a line of "
    "column\n"
    "                       names: dates as YYYY-MM-DD, a point before decimals, true and "
    "false;\n"
    "                       json, as show prints it; or html, a page to read\n"
    "  --all DIR            every list into a folder, which is made if need be: a file for each, "
    "as csv\n"
    "                       unless told otherwise, and lists.json, which tells of them\n");

constexpr const char* kImportHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Adds a row for each line of a text file, as Import List does, and prints how many came in.\n"
    "FILE - is standard input. Each line must end in CR LF, the last one too.\n"
    "\n"
    "  --columns \"A,B\"      the columns that the fields of a line fill; those not named "
    "follow\n"
    "                       in the list's order, which is also what holds without this option\n"
    "  --encoding NAME      what the file is in: utf-8, utf-16, or the number of a code page "
    "such\n"
    "                       as 1252\n"
    "  --format NAME        csv or tsv, tables as export writes them: the first line names "
    "columns;\n"
    "                       of csv comma, semicolon or TAB part the fields. All rows come in, or "
    "none\n"
    "  --match COLUMN       of a table: changes the row that has the same value in this column, "
    "and\n"
    "                       adds one where none has\n"
    "  --all DIR            makes every list that lists.json in a folder tells of, and prints "
    "them\n"
    "  --create             with --all: makes the data file if there is none\n"
    "  --dry-run            stores nothing, prints how many rows would come in\n");

constexpr const char* kSummaryHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Prints a line per total of a number or price column: name TAB total, with a point before\n"
    "decimals.\n"
    "\n"
    "  --json               name and total of each\n");

constexpr const char* kReportHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Writes a list to print or to send: its rows with what runs low and what is expired marked,\n"
    "totals, and drawings of what expires in the next twelve months and of what fewest are left.\n"
    "Without FILE, or with -, to standard output. An existing FILE is replaced.\n"
    "\n"
    "  --all                all lists in one report\n"
    "  --format NAME        pdf, or html for one page that needs no other file; without it what\n"
    "                       the name of FILE ends in, or pdf\n");

constexpr const char* kDueHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Prints rows of lists whose warnings are on: list TAB row TAB \"low\", \"expired\" or the "
    "date\n"
    "on which the row expires.\n"
    "\n"
    "  --within DAYS        also rows that expire in so many days\n"
    "  --json               list, row, state and count or date of each\n"
    "  --ics                prints a calendar of all expiry dates instead, as iCalendar; with\n"
    "                       --within only those until then\n"
    "  --notify             prints nothing, but shows what is due since it was shown last, once "
    "a\n"
    "                       day at most, as a notification of the desktop. A tap on that opens "
    "the\n"
    "                       list; until then or until it is closed the command waits.\n"
    "\n"
    "Exits with 3 if something is due, with 0 if nothing is.\n");

constexpr const char* kRemindersHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Turns a notification each morning of what is due on or off, or prints whether it is on.\n"
    "Needs systemd, whose timer quillory-reminders then runs \"quillory due --notify\".\n");

constexpr const char* kAddHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Adds a row with these values and prints 1. Numbers are read as "
    "they are shown, a checkbox is\n"
    "Checked or Unchecked.\n"
    "\n"
    "  --dry-run            stores nothing\n");

constexpr const char* kSetHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Gives all rows that meet the conditions these values, or none of them if one cannot be\n"
    "stored, and prints how many there are.\n"
    "\n"
    "  --dry-run            stores nothing\n");

constexpr const char* kCountHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Counts all rows that meet the conditions up by +N or down by -N, or none of them if one\n"
    "cannot be stored, and prints how many there are.\n"
    "\n"
    "  --dry-run            stores nothing\n");

constexpr const char* kDeleteHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Deletes all rows that meet the conditions, or none of them if "
    "one cannot be, and prints how\n"
    "many there are.\n"
    "\n"
    "  --dry-run            deletes nothing\n");

constexpr const char* kRenameHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Gives a list another name and prints nothing.\n"
    "\n"
    "  --dry-run            stores nothing\n");

constexpr const char* kRemoveHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Deletes a list with all its rows and prints how many these are.\n"
    "\n"
    "  --dry-run            deletes nothing\n");

constexpr const char* kCheckHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Reads the whole data file. Prints \"ok\", or what is wrong and exits with 1.\n");

constexpr const char* kBackupHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Writes a consistent copy of the data file, also while it is in use. FILE must not exist.\n");

constexpr const char* kRestoreHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "After each run that changed lists or rows of the configured data file a copy of it is "
    "kept,\n"
    "the last three, or as many as KeptCopies=0...9 in the settings says, and older ones while\n"
    "all together are no larger than 32 MB. They are dropped 90 days after the file is found to\n"
    "be gone.\n"
    "\n"
    "Without options prints a line per copy, the newest first: number TAB time TAB bytes, and\n"
    "then a line per list that can be read from the data file itself, also if that is damaged:\n"
    "salvage TAB list TAB rows TAB what is lost. Otherwise makes the new data file FILE, which\n"
    "must not exist:\n"
    "\n"
    "  --from N             from copy N\n"
    "  --salvage            from what can still be read of the data file, and prints what that\n"
    "                       is; the data file is only read\n"
    "  --json               an object per copy and per list\n");

constexpr const char* kDiffHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Prints what merging OTHER, another device's copy of the data file, would do, as merge prints "
    "it.\n"
    "Changes nothing. Exits with 3 if OTHER has something that the data file has not.\n"
    "\n"
    "  --base FILE          what both come from, where no kept copy is\n"
    "  --json               an object per line\n");

constexpr const char* kMergeHelp = QT_TRANSLATE_NOOP("CommandHelp",
    "Brings the data file and OTHER, another device's copy of it, together in the data file. "
    "OTHER\n"
    "is only read. Prints a line per thing that came or went, and per value that both had "
    "changed:\n"
    "what TAB list TAB row TAB column TAB value TAB other value. Both files are kept as copies\n"
    "before.\n"
    "\n"
    "  --base FILE          what both come from, where no kept copy is\n"
    "  --dry-run            stores nothing\n"
    "  --json               an object per line\n");

/// The list, and a value for each column.
constexpr qsizetype kMostOperands = 1 + qsizetype { kMaxColumns };

constexpr std::array kSubCommands {
    SubCommand { "lists", "[--json]", kListsHelp, 0, 0, kJsonFlag, {}, &RunLists },
    SubCommand { "new",
        "LIST [--column NAME:TYPE]... [--warn-count N] [--warn-expiry] [--icon N] [--create]",
        kNewHelp, 1, 1, kNewFlags, kNewOptions, &RunNew },
    SubCommand { "show",
        "LIST [--where CONDITION]... [--sort COLUMN] [--descending] [--no-header | --json]",
        kShowHelp, 1, 1, kShowFlags, kShowOptions, &RunShow },
    SubCommand { "find", "TEXT [--json]", kFindHelp, 1, 1, kJsonFlag, {}, &RunFind },
    SubCommand { "export", "LIST [FILE] [--dates iso | --format NAME] | --all DIR [--format NAME]",
        kExportHelp, 0, 2, {}, kExportOptions, &RunExport },
    SubCommand { "import",
        "LIST FILE [--columns \"A,B\"] [--encoding NAME] [--format NAME] [--match COLUMN] "
        "[--dry-run] | --all DIR [--create] [--dry-run]",
        kImportHelp, 0, 2, kImportFlags, kImportOptions, &RunImport },
    SubCommand { "summary", "LIST [--where CONDITION]... [--json]", kSummaryHelp, 1, 1, kJsonFlag,
        kSummaryOptions, &RunSummary },
    SubCommand { "report", "LIST [FILE] [--format NAME] | --all [FILE] [--format NAME]",
        kReportHelp, 0, 2, kReportFlags, kReportOptions, &RunReport },
    SubCommand { "due", "[--within DAYS] [--json | --ics | --notify]", kDueHelp, 0, 0, kDueFlags,
        kDueOptions, &RunDue },
    SubCommand { "reminders", "[on | off]", kRemindersHelp, 0, 1, {}, {}, &RunReminders },
    SubCommand { "add", "LIST COLUMN=VALUE... [--dry-run]", kAddHelp, 1, kMostOperands,
        kChangeFlags, {}, &RunAdd },
    SubCommand { "set", "LIST --where CONDITION... COLUMN=VALUE... [--dry-run]", kSetHelp, 1,
        kMostOperands, kChangeFlags, kWhereOption, &RunSet },
    SubCommand { "count", "LIST --where CONDITION... +N|-N [--dry-run]", kCountHelp, 2, 2,
        kChangeFlags, kWhereOption, &RunCount },
    SubCommand { "delete", "LIST --where CONDITION... [--dry-run]", kDeleteHelp, 1, 1, kChangeFlags,
        kWhereOption, &RunDelete },
    SubCommand {
        "rename", "LIST NAME [--dry-run]", kRenameHelp, 2, 2, kChangeFlags, {}, &RunRename },
    SubCommand { "remove", "LIST [--dry-run]", kRemoveHelp, 1, 1, kChangeFlags, {}, &RunRemove },
    SubCommand { "check", "", kCheckHelp, 0, 0, {}, {}, &RunCheck },
    SubCommand { "backup", "FILE", kBackupHelp, 1, 1, {}, {}, &RunBackup },
    SubCommand { "restore", "[--json | FILE --from N | FILE --salvage]", kRestoreHelp, 0, 1,
        kRestoreFlags, kRestoreOptions, &RunRestore },
    SubCommand {
        "diff", "OTHER [--base FILE] [--json]", kDiffHelp, 1, 1, kJsonFlag, kBaseOption, &RunDiff },
    SubCommand { "merge", "OTHER [--base FILE] [--dry-run] [--json]", kMergeHelp, 1, 1, kMergeFlags,
        kBaseOption, &RunMerge },
};

/// The least number of characters left out, put in, replaced or swapped with the next that makes
/// one word of the other.
size_t Distance(QStringView a, QLatin1StringView b)
{
    const auto columns = static_cast<size_t>(b.size()) + 1;
    std::vector<size_t> beforeLast(columns);
    std::vector<size_t> last(columns);
    std::vector<size_t> current(columns);
    for (size_t k = 0; k < columns; ++k)
        current[k] = k;
    for (qsizetype i = 0; i < a.size(); ++i) {
        beforeLast = std::exchange(last, current);
        current[0] = static_cast<size_t>(i) + 1;
        for (qsizetype j = 0; j < b.size(); ++j) {
            const auto k = static_cast<size_t>(j) + 1;
            const bool isSame = a[i] == b[j];
            current[k]
                = std::min({ last[k] + 1, current[k - 1] + 1, last[k - 1] + (isSame ? 0 : 1) });
            if (i > 0 && j > 0 && a[i] == b[j - 1] && a[i - 1] == b[j])
                current[k] = std::min(current[k], beforeLast[k - 2] + 1);
        }
    }
    return current.back();
}

QByteArray Words(const SubCommand& command)
{
    return QByteArray(command.name) + (*command.usage == '\0' ? "" : " ") + command.usage;
}

/// Puts help into the language that the person reads.
class HelpLanguage
{
public:
    HelpLanguage() { LoadLanguage(m_translator); }
    [[nodiscard]] QString operator()(const char* text) const
    {
        const QString translated = m_translator.translate(kContext, text);
        return translated.isEmpty() ? QString::fromUtf8(text) : translated;
    }

private:
    static constexpr auto kContext = "CommandHelp";
    QTranslator m_translator;
};

/// What depends on the user's settings and locale.
QString FormsText(const CommandEnvironment& environment, const HelpLanguage& language)
{
    const LocaleProfile& locale = environment.context.userLocale;
    const QString file = environment.dataFile.isEmpty()
        ? language(QT_TRANSLATE_NOOP("CommandHelp", "none so far"))
        : environment.dataFile;
    //: %1 is the data file, %2 such as dd/MM/yyyy, %3 such as 1,234.50, %4 such as 1252.
    return language(
        QT_TRANSLATE_NOOP("CommandHelp",
            "  --data FILE          works on another data file than the configured one (%1)\n"
            "\n"
            "Here dates are written %2 and numbers %3, but in text files with a point and no\n"
            "groups. Text files are written in UTF-16 behind a byte-order mark, and read in code "
            "page\n"
            "%4 where there is none.\n"))
        .arg(file, environment.context.systemLocale.shortDatePicture,
            FormatNumber(u"1234.5", locale).value_or(QString()), QString::number(locale.codePage));
}

} // namespace

const SubCommand* FindSubCommand(QStringView name)
{
    const auto found = std::find_if(kSubCommands.begin(), kSubCommands.end(),
        [&name](const SubCommand& command) { return name == QLatin1StringView(command.name); });
    return found == kSubCommands.end() ? nullptr : &*found;
}

const SubCommand* FindNearSubCommand(QStringView word)
{
    // Of a short word one character more would make another one.
    constexpr qsizetype kLongWord = 5;
    const SubCommand* nearest = nullptr;
    size_t least = word.size() < kLongWord ? 1 : 2;
    for (const SubCommand& command : kSubCommands) {
        const size_t distance = Distance(word, QLatin1StringView(command.name));
        if (distance < least || (distance == least && nearest == nullptr)) {
            nearest = &command;
            least = distance;
        }
    }
    return nearest;
}

QByteArray UsageText(const SubCommand* command)
{
    if (command == nullptr)
        return "usage: quillory [--data FILE] [LIST | --new-list]\n"
               "       quillory COMMAND [--data FILE] [ARGUMENTS]\n";
    return "usage: quillory " + Words(*command) + " [--data FILE]\n";
}

QByteArray HelpText(const CommandEnvironment& environment)
{
    const HelpLanguage language;
    QString text = QString::fromUtf8(UsageText(nullptr));
    text += language(QT_TRANSLATE_NOOP("CommandHelp",
        "\nOpens the window, showing LIST if it is named. The commands work without it:\n\n"));
    for (const SubCommand& command : kSubCommands)
        text += u"  quillory "_s + QString::fromUtf8(Words(command)) + u'\n';
    text += language(QT_TRANSLATE_NOOP("CommandHelp",
        "\n  --new-list           opens the window with the page of a new list\n"
        "  --help               help, on a command if one is named\n"
        "  --version            the version\n"));
    text += FormsText(environment, language);
    text += language(QT_TRANSLATE_NOOP(
        "CommandHelp", "\nExit status: 0 done, 1 failed, 2 wrong usage, 3 something is due.\n"));
    return text.toUtf8();
}

QByteArray HelpText(const SubCommand& command, const CommandEnvironment& environment)
{
    const HelpLanguage language;
    QString text = QString::fromUtf8(UsageText(&command)) + u'\n' + language(command.help);
    if (!text.contains(u"\n  --"))
        text += u'\n';
    if (std::find(
            command.valueOptions.begin(), command.valueOptions.end(), std::string_view("where"))
        != command.valueOptions.end())
        text += language(kWhereHelp);
    return (text + FormsText(environment, language)).toUtf8();
}

} // namespace Quillory
