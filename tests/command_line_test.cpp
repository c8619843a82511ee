// SPDX-License-Identifier: MIT
#include "app/command_line.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/page_damage.h"
#include "tests/test_program.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

/// What a command left behind.
struct Call
{
    ExitCode code;
    QByteArray output;
    QByteArray errors;
};

/// A folder for data files, and commands that run on the one named "data.idb" in it.
class Shell
{
public:
    Shell() { context.userLocale.codePage = 1252; }

    QString Path(const QString& name = u"data.idb"_s) const
    {
        return QDir(m_folder.path()).filePath(name);
    }
    Call Run(const QStringList& arguments, const QByteArray& input = {})
    {
        QBuffer in;
        QBuffer out;
        QBuffer err;
        in.setData(input);
        in.open(QIODevice::ReadOnly);
        out.open(QIODevice::WriteOnly);
        err.open(QIODevice::WriteOnly);
        const ExitCode code
            = RunCommandLine(arguments, { in, out, err, context, Path(), Path(u"copies"_s) });
        return { code, out.data(), err.data() };
    }
    /// The output of a command that must succeed silently.
    QByteArray Output(const QStringList& arguments, const QByteArray& input = {})
    {
        const Call call = Run(arguments, input);
        if (call.code != ExitCode::Done || !call.errors.isEmpty())
            return "failed: " + call.errors;
        return call.output;
    }
    /// The pantry: Tea is low and expired, Oil is low, Rice expires in ten days.
    void MakePantry()
    {
        QCOMPARE(Output({ u"new"_s, u"Pantry"_s, u"--create"_s, u"--column=Price:price"_s,
                     u"--column"_s, u"Opened:checkbox"_s, u"--column"_s, u"Bought on:date"_s,
                     u"--column"_s, u"expiry"_s, u"--warn-count"_s, u"2"_s, u"--warn-expiry"_s }),
            ""_ba);
        QCOMPARE(Output({ u"import"_s, u"Pantry"_s, u"-"_s },
                     "Tea\t2\t3.5\tN\t1/5/2026\t6/15/2026\r\n"
                     "Rice\t9\t1.25\tY\t1/6/2026\t6/25/2026\r\n"
                     "Oil\t-1\r\n"),
            "3\n"_ba);
    }

    /// A list "L" of so many rows of low quantities, on more than one page.
    void MakeLongList(int rows)
    {
        QByteArray text;
        for (int i = 0; i < rows; ++i)
            text += "row " + QByteArray::number(i) + '\t' + QByteArray::number(i % 97) + "\r\n";
        QCOMPARE(Output({ u"new"_s, u"L"_s, u"--create"_s, u"--warn-count=99"_s }), ""_ba);
        QCOMPARE(Output({ u"import"_s, u"L"_s, u"-"_s }, text), QByteArray::number(rows) + '\n');
    }

    ValueContext context = TestContext();

private:
    QTemporaryDir m_folder;
};

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatItPrints_data();
    void whatItPrints();
    void wrongUsageExitsWithTwoAndUsage_data();
    void wrongUsageExitsWithTwoAndUsage();
    void failuresExitWithOneAndOneLine_data();
    void failuresExitWithOneAndOneLine();
    void everyCommandHasHelp();
    void listsNamedLikeOptionsAreReached();
    void noDataFileIsMadeUnlessTold();
    void aFileWhoseMakingWasCutShortHasNoLists();
    void jsonHoldsTypedValues();
    void columnsGiveTheImportItsOrder();
    void theSettingsNameFileAndCodePage();
    void writersAreRefusedWhileTheWindowHasTheFile();
    void loneSurrogatesAndControlsComeOutAsText();
    void anImportTellsWhatIsNotIn_data();
    void anImportTellsWhatIsNotIn();
    void anImportIsReadAsItIsTold_data();
    void anImportIsReadAsItIsTold();
    void aBackupIsTheSameData();
    void whatARunChangedIsKeptAndRestored();
    void whatIsLeftOfADamagedFileIsSaved();
    void damagedRowsAreNoRows_data();
    void damagedRowsAreNoRows();
    void rowsBesideDamageArePrinted_data();
    void rowsBesideDamageArePrinted();
    void aReaderThatStandsStillHoldsNoLock_data();
    void aReaderThatStandsStillHoldsNoLock();
    void theWindowKeepsItsArguments_data();
    void theWindowKeepsItsArguments();
};

void CommandLineTest::whatItPrints_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");
    const auto add = [](const char* name, const QStringList& arguments, const QByteArray& output) {
        QTest::newRow(name) << arguments << output;
    };
    const QByteArray head = "Name\tQuantity\tPrice\tOpened\tBought on\tExpiry Date\n";
    const QByteArray oil = "Oil\t-1\t\t\t\t\n";
    const QByteArray rice = "Rice\t9\t1.25\tY\t1/6/2026\t6/25/2026\n";
    const QByteArray tea = "Tea\t2\t3.50\tN\t1/5/2026\t6/15/2026\n";
    const QStringList show { u"show"_s, u"Pantry"_s };
    const auto where = [&show](const QString& text) {
        return show + QStringList { u"--where"_s, text };
    };
    add("lists", { u"lists"_s }, "Pantry\t3\n");
    add("show", show, head + oil + rice + tea);
    add("show sorted", show + QStringList { u"--sort"_s, u"Quantity"_s }, head + oil + tea + rice);
    add("a condition in words", where(u"Quantity less than or equals to 2"_s), head + oil + tea);
    add("a condition as a sign", where(u"Quantity<=2"_s), head + oil + tea);
    add("text contains", where(u"Name contains e"_s), head + rice + tea);
    add("not equals to is what it is", where(u"Quantity != 9"_s), head + rice);
    add("a checkbox by word", where(u"Opened equals to Checked"_s), head + rice);
    add("a checkbox by letter", where(u"Opened != Y"_s), head + tea);
    add("a date, its column with a blank", where(u"Bought on on or after 1/6/2026"_s), head + rice);
    add("two conditions",
        where(u"Quantity > 1"_s) + QStringList { u"--where=Opened = Unchecked"_s }, head + tea);
    add("nothing passes", where(u"Name = x"_s), head);
    add("summary", { u"summary"_s, u"Pantry"_s }, "Quantity\t10\nPrice\t4.75\n");
    add("summary of some", { u"summary"_s, u"Pantry"_s, u"--where"_s, u"Opened = N"_s },
        "Quantity\t2\nPrice\t3.50\n");
    add("due", { u"due"_s }, "Pantry\tOil\tlow\nPantry\tTea\tlow\nPantry\tTea\texpired\n");
    add("due within days", { u"due"_s, u"--within"_s, u"10"_s },
        "Pantry\tOil\tlow\nPantry\tRice\t6/25/2026\nPantry\tTea\tlow\nPantry\tTea\texpired\n");
    add("check", { u"check"_s }, "ok\n");
    add("the version", { u"--version"_s }, "quillory " QUILLORY_VERSION "\n");
    add("the version beside a wrong command", { u"-v"_s, u"frob"_s },
        "quillory " QUILLORY_VERSION "\n");
}

void CommandLineTest::whatItPrints()
{
    QFETCH(QStringList, arguments);
    Shell shell;
    shell.MakePantry();
    QTEST(shell.Output(arguments), "output");
}

void CommandLineTest::wrongUsageExitsWithTwoAndUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto add
        = [](const char* name, const QStringList& arguments) { QTest::newRow(name) << arguments; };
    add("nothing", {});
    add("an empty command", { u""_s });
    add("an empty operand", { u"show"_s, u""_s });
    add("an empty option", { u"show"_s, u"Pantry"_s, u"--sort="_s });
    add("two lists", { u"Pantry"_s, u"Tools"_s });
    add("an unknown command", { u"frobnicate"_s });
    add("an unknown option", { u"lists"_s, u"--frob"_s });
    add("another command's option", { u"lists"_s, u"--where"_s, u"x"_s });
    add("an option without its value", { u"show"_s, u"Pantry"_s, u"--where"_s });
    add("a value for a flag", { u"lists"_s, u"--json=yes"_s });
    add("no data file behind the option", { u"lists"_s, u"--data"_s });
    add("a missing operand", { u"import"_s, u"Pantry"_s });
    add("an operand too many", { u"show"_s, u"Pantry"_s, u"Tools"_s });
    add("a condition on no column", { u"show"_s, u"Pantry"_s, u"--where"_s, u"Nam = x"_s });
    add("a column alone", { u"show"_s, u"Pantry"_s, u"--where"_s, u"Name"_s });
    add("a condition not offered", { u"show"_s, u"Pantry"_s, u"--where"_s, u"Name > a"_s });
    add("no date", { u"show"_s, u"Pantry"_s, u"--where"_s, u"Bought on = soon"_s });
    add("a number as another locale writes it",
        { u"show"_s, u"Pantry"_s, u"--where"_s, u"Price < 3,5"_s });
    add("a fraction of a whole number",
        { u"show"_s, u"Pantry"_s, u"--where"_s, u"Quantity < 2.5"_s });
    add("a whole number too large",
        { u"show"_s, u"Pantry"_s, u"--where"_s, u"Quantity = 4294967296"_s });
    add("an encoding there is not",
        { u"import"_s, u"Pantry"_s, u"-"_s, u"--encoding"_s, u"latin"_s });
    add("a code page there is not",
        { u"import"_s, u"Pantry"_s, u"-"_s, u"--encoding"_s, u"437"_s });
    add("no state of a box", { u"show"_s, u"Pantry"_s, u"--where"_s, u"Opened = maybe"_s });
    add("sorting by no column", { u"show"_s, u"Pantry"_s, u"--sort"_s, u"name"_s });
    add("a column type unknown", { u"new"_s, u"L"_s, u"--column"_s, u"A:float"_s });
    add("a column without a name", { u"new"_s, u"L"_s, u"--column"_s, u":string"_s });
    add("a column name too long",
        { u"new"_s, u"L"_s, u"--column"_s, QString(33, u'x') + u":string"_s });
    add("two expiry columns", { u"new"_s, u"L"_s, u"--column=expiry"_s, u"--column=expiry"_s });
    add("seventeen columns",
        QStringList { u"new"_s, u"L"_s } + QStringList(15, u"--column=A:string"_s));
    add("a list name too long", { u"new"_s, QString(129, u'x') });
    add("an icon there is not", { u"new"_s, u"L"_s, u"--icon"_s, u"43"_s });
    add("a threshold out of range", { u"new"_s, u"L"_s, u"--warn-count"_s, u"2147483648"_s });
    add("days that are no number", { u"due"_s, u"--within"_s, u"-1"_s });
    add("an import column twice",
        { u"import"_s, u"Pantry"_s, u"-"_s, u"--columns"_s, u"Name,Name"_s });
    add("a backup to a stream", { u"backup"_s, u"-"_s });
    add("a restored file to a stream", { u"restore"_s, u"-"_s, u"--salvage"_s });
    add("a file to restore, and not from what", { u"restore"_s, u"x.idb"_s });
    add("what to restore from, and no file", { u"restore"_s, u"--from=1"_s });
    add("two things to restore from", { u"restore"_s, u"x.idb"_s, u"--from=1"_s, u"--salvage"_s });
    add("a copy that is never kept", { u"restore"_s, u"x.idb"_s, u"--from=10"_s });
}

void CommandLineTest::wrongUsageExitsWithTwoAndUsage()
{
    QFETCH(QStringList, arguments);
    Shell shell;
    shell.MakePantry();
    const Call call = shell.Run(arguments);
    QVERIFY(call.code == ExitCode::WrongUsage);
    QVERIFY(call.output.isEmpty());
    QVERIFY(call.errors.startsWith("quillory: ") && call.errors.contains("\nusage: "));
}

void CommandLineTest::failuresExitWithOneAndOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no such list") << QStringList { u"show"_s, u"pantry"_s };
    QTest::newRow("a list there is already") << QStringList { u"new"_s, u"Pantry"_s };
    QTest::newRow("no such data file") << QStringList { u"lists"_s, u"--data"_s, u"/no/x"_s };
    QTest::newRow("a folder for a data file") << QStringList { u"lists"_s, u"--data=/"_s };
    QTest::newRow("a device for a data file") << QStringList { u"lists"_s, u"--data=/dev/null"_s };
    QTest::newRow("no such file") << QStringList { u"import"_s, u"Pantry"_s, u"/no/x"_s };
    QTest::newRow("a folder to import") << QStringList { u"import"_s, u"Pantry"_s, u"/"_s };
    QTest::newRow("no such folder") << QStringList { u"export"_s, u"Pantry"_s, u"/no/x"_s };
    QTest::newRow("a full device") << QStringList { u"export"_s, u"Pantry"_s, u"/dev/full"_s };
    QTest::newRow("a backup over a file") << QStringList { u"backup"_s, u"/dev/null"_s };
    QTest::newRow("a copy over a file")
        << QStringList { u"restore"_s, u"/dev/null"_s, u"--from=1"_s };
    QTest::newRow("a salvaged file over a file")
        << QStringList { u"restore"_s, u"/dev/null"_s, u"--salvage"_s };
    QTest::newRow("a copy there is not") << QStringList { u"restore"_s, u"x"_s, u"--from=3"_s };
    QTest::newRow("a file without copies")
        << QStringList { u"restore"_s, u"--data"_s, u"/dev/null"_s };
}

void CommandLineTest::failuresExitWithOneAndOneLine()
{
    QFETCH(QStringList, arguments);
    Shell shell;
    shell.MakePantry();
    const Call call = shell.Run(arguments);
    QVERIFY(call.code == ExitCode::Failed);
    QVERIFY(call.output.isEmpty());
    QVERIFY(call.errors.startsWith("quillory: "));
    QCOMPARE(call.errors.count('\n'), 1);
}

void CommandLineTest::everyCommandHasHelp()
{
    Shell shell;
    const QByteArray help = shell.Output({ u"--help"_s });
    QCOMPARE(shell.Output({ u"--help"_s, u"frob"_s }), help);
    for (const QString& form : { shell.Path(), u"M/d/yyyy"_s, u"1,234.50"_s, u"1252"_s })
        QVERIFY(help.contains(form.toUtf8()));
    for (const char* name : { "lists", "new", "show", "export", "import", "summary", "due", "check",
             "backup", "restore" }) {
        QVERIFY(help.contains(QByteArray("  quillory ") + name));
        const QByteArray own = shell.Output({ QString::fromLatin1(name), u"--help"_s });
        QVERIFY(own.startsWith(QByteArray("usage: quillory ") + name));
        const QByteArray usage = own.left(own.indexOf('\n'));
        const auto options
            = QRegularExpression(u"\n  (--[a-z-]+)"_s).globalMatch(QString::fromUtf8(own));
        for (const QRegularExpressionMatch& option : options)
            QVERIFY2(usage.contains(option.captured(1).toUtf8()), own.constData());
    }
}

void CommandLineTest::listsNamedLikeOptionsAreReached()
{
    Shell shell;
    QCOMPARE(shell.Output({ u"new"_s, u"--create"_s, u"--"_s, u"--json"_s }), ""_ba);
    QCOMPARE(shell.Output({ u"lists"_s }), "--json\t0\n"_ba);
    QCOMPARE(shell.Output({ u"summary"_s, u"--"_s, u"--json"_s }), "Quantity\t0\n"_ba);
}

void CommandLineTest::noDataFileIsMadeUnlessTold()
{
    Shell shell;
    const QString other = shell.Path(u"other.idb"_s);
    for (const QStringList& arguments : { QStringList { u"lists"_s }, { u"new"_s, u"L"_s },
             { u"show"_s, u"L"_s }, { u"import"_s, u"L"_s, u"-"_s }, { u"check"_s } }) {
        QVERIFY(shell.Run(QStringList { u"--data"_s, other } + arguments).code == ExitCode::Failed);
        QVERIFY(!QFile::exists(other));
    }
    QVERIFY(
        shell.Run({ u"--data"_s, other, u"new"_s, u"L"_s, u"--create"_s }).code == ExitCode::Done);
    QVERIFY(QFile::exists(other) && !QFile::exists(shell.Path()));
    // Copies are kept of the configured file alone.
    QVERIFY(!QFile::exists(shell.Path(u"copies"_s)));
}

void CommandLineTest::aFileWhoseMakingWasCutShortHasNoLists()
{
    Shell shell;
    QCOMPARE(DataVolume().Mount(shell.Path(), Disposition::OpenAlways), ErrorNumber::None);
    QCOMPARE(shell.Output({ u"lists"_s }), ""_ba);
    QCOMPARE(shell.Output({ u"check"_s }), "ok\n"_ba);
    QCOMPARE(shell.Run({ u"show"_s, u"Pantry"_s }).code, ExitCode::Failed);
    shell.MakePantry();
}

void CommandLineTest::jsonHoldsTypedValues()
{
    Shell shell;
    shell.MakePantry();
    const auto rows = QJsonDocument::fromJson(
        shell.Output({ u"show"_s, u"Pantry"_s, u"--json"_s, u"--sort"_s, u"Price"_s }))
                          .array();
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows[0].toObject(),
        (QJsonObject { { u"Name"_s, u"Oil"_s }, { u"Quantity"_s, -1 }, { u"Price"_s, {} },
            { u"Opened"_s, {} }, { u"Bought on"_s, {} }, { u"Expiry Date"_s, {} } }));
    QCOMPARE(rows[2].toObject(),
        (QJsonObject { { u"Name"_s, u"Tea"_s }, { u"Quantity"_s, 2 }, { u"Price"_s, 3.5 },
            { u"Opened"_s, false }, { u"Bought on"_s, u"2026-01-05"_s },
            { u"Expiry Date"_s, u"2026-06-15"_s } }));
    QCOMPARE(shell.Output({ u"summary"_s, u"Pantry"_s, u"--json"_s }),
        "[\n{\"name\":\"Quantity\",\"total\":10},\n{\"name\":\"Price\",\"total\":4.75}\n]\n"_ba);
    QVERIFY(shell.Output({ u"show"_s, u"Pantry"_s, u"--json"_s })
                .startsWith("[\n{\"Name\":\"Oil\",\"Quantity\":-1,\"Price\":null,\"Opened\":"));
    QCOMPARE(
        shell.Output({ u"show"_s, u"Pantry"_s, u"--json"_s, u"--where=Name = x"_s }), "[]\n"_ba);

    const auto list = QJsonDocument::fromJson(shell.Output({ u"lists"_s, u"--json"_s }))[0];
    QCOMPARE(list[u"rows"], 3);
    QCOMPARE(list[u"columns"][5],
        (QJsonObject { { u"name"_s, u"Expiry Date"_s }, { u"type"_s, u"expiry"_s } }));
    const auto due = QJsonDocument::fromJson(shell.Output({ u"due"_s, u"--json"_s })).array();
    QCOMPARE(due.size(), 3);
    QCOMPARE(due[2][u"date"], u"2026-06-15"_s);
}

void CommandLineTest::columnsGiveTheImportItsOrder()
{
    Shell shell;
    QCOMPARE(shell.Output({ u"new"_s, u"L"_s, u"--create"_s, u"--column=A, B:string"_s,
                 u"--column=A:string"_s }),
        ""_ba);
    QCOMPARE(shell.Output({ u"import"_s, u"L"_s, u"-"_s, u"--columns"_s, u"A, B,A,Name"_s },
                 "ab\ta\tname\t7\r\n"),
        "1\n"_ba);
    QCOMPARE(shell.Output({ u"import"_s, u"L"_s, u"-"_s, u"--columns"_s, u"A"_s }, "x\ty\r\n"),
        "1\n"_ba);
    QCOMPARE(shell.Output({ u"show"_s, u"L"_s }),
        "Name\tQuantity\tA, B\tA\nname\t7\tab\ta\ny\t\t\tx\n"_ba);
}

void CommandLineTest::theSettingsNameFileAndCodePage()
{
    Shell shell;
    QCOMPARE(shell.Output({ u"new"_s, u"L"_s, u"--create"_s }), ""_ba);
    const auto write = [&shell](const QString& name, const QByteArray& bytes) {
        QVERIFY(QDir().mkpath(QFileInfo(shell.Path(name)).path()));
        QFile file(shell.Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    write(u"quillory/quillory.conf"_s,
        "[General]\nDbPath=" + shell.Path().toUtf8() + "\nCodePage=1251\n");
    write(u"in.txt"_s, "\xE4\r\n");
    qputenv("XDG_CONFIG_HOME", QFileInfo(shell.Path()).path().toUtf8());
    qputenv("XDG_STATE_HOME", QFileInfo(shell.Path()).path().toUtf8());
    QCOMPARE(RunCommandLine({ u"import"_s, u"L"_s, shell.Path(u"in.txt"_s) }), 0);
    QCOMPARE(shell.Output({ u"show"_s, u"L"_s }), "Name\tQuantity\n\xD0\xB4\t\n"_ba);
}

void CommandLineTest::writersAreRefusedWhileTheWindowHasTheFile()
{
    Shell shell;
    shell.MakePantry();
    DataVolume window;
    QCOMPARE(window.Mount(shell.Path(), Disposition::OpenExisting), ErrorNumber::None);
    for (const QStringList& arguments :
        { QStringList { u"new"_s, u"L"_s }, { u"import"_s, u"Pantry"_s, u"-"_s } }) {
        const Call call = shell.Run(arguments, "a\r\n");
        QVERIFY(call.code == ExitCode::Failed);
        QVERIFY(call.errors.contains("is open in Quillory; close it first"));
    }
}

void CommandLineTest::loneSurrogatesAndControlsComeOutAsText()
{
    Shell shell;
    shell.MakePantry();
    const QString line = u"a\nb\x1B"_s + QChar(0xD800) + u"ü\r\n"_s;
    QByteArray wide("\xFF\xFE");
    wide.append(reinterpret_cast<const char*>(line.utf16()), line.size() * 2);
    QCOMPARE(shell.Output({ u"import"_s, u"Pantry"_s, u"-"_s }, wide), "1\n"_ba);
    const QByteArray shown = shell.Output({ u"show"_s, u"Pantry"_s });
    QCOMPARE(shown.count('\n'), 5);
    QVERIFY(shown.endsWith("\na b ?\xC3\xBC\t\t\t\t\t\n"));
    QVERIFY(
        !QJsonDocument::fromJson(shell.Output({ u"show"_s, u"Pantry"_s, u"--json"_s })).isNull());
}

void CommandLineTest::anImportTellsWhatIsNotIn_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("rows");
    QTest::addColumn<QByteArray>("reason");
    const QByteArray unended = "no line to import that ends with a carriage return";
    const QByteArray open = "the last line is not in";
    const QByteArray empty = "no line gives a value";
    QTest::newRow("a mark alone") << "\xFF\xFE"_ba
                                  << "0"_ba
                                  << "Import is completed with errors"_ba;
    QTest::newRow("lines as editors on this system end them") << "a\nb\n"_ba
                                                              << "0"_ba << unended;
    QTest::newRow("nothing") << ""_ba
                             << "0"_ba << unended;
    QTest::newRow("a last line without its end") << "1/6/2026\r\n1/7/2026"_ba
                                                 << "1"_ba << open;
    QTest::newRow("the same in UTF-16") << "\xFF\xFE\1\0\r\0\n\0x\0"_ba
                                        << "0"_ba << open;
    QTest::newRow("text before a NUL") << "1/6/2026\r\nx\0"_ba
                                       << "1"_ba << open;
    QTest::newRow("tabs") << "\t\t\r\n"_ba
                          << "0"_ba << empty;
    QTest::newRow("an empty line") << "\r\n"_ba
                                   << "0"_ba << empty;
    QTest::newRow("no date") << "xyz\r\n\0"_ba
                             << "0"_ba << empty;
}

void CommandLineTest::anImportTellsWhatIsNotIn()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, rows);
    QFETCH(QByteArray, reason);
    Shell shell;
    shell.MakePantry();
    const QStringList arguments { u"import"_s, u"Pantry"_s, u"-"_s, u"--columns=Bought on"_s };
    const QByteArray before = FileBytes(shell.Path());
    for (const QStringList& more : { QStringList { u"--dry-run"_s }, {} }) {
        QCOMPARE(FileBytes(shell.Path()), before);
        const Call call = shell.Run(arguments + more, input);
        QCOMPARE(call.code, ExitCode::Failed);
        QCOMPARE(call.output, rows + '\n');
        QVERIFY2(call.errors.contains(reason), call.errors.constData());
    }
}

void CommandLineTest::anImportIsReadAsItIsTold_data()
{
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("name");
    const QByteArray longName(65'535 - 2, 'x');
    QTest::newRow("UTF-8") << u"utf-8"_s << "\xD0\xB4\r\n"_ba
                           << "\xD0\xB4"_ba;
    QTest::newRow("UTF-8 with a mark") << u"UTF-8"_s << "\xEF\xBB\xBFx\r\n"_ba
                                       << "x"_ba;
    QTest::newRow("UTF-8 in parts") << u"utf-8"_s << longName + "\xD0\xB4\xD0\xB4\r\n"
                                    << longName + "\xD0\xB4\xD0\xB4";
    QTest::newRow("what is not UTF-8") << u"utf-8"_s << "\xE4\r\n"_ba << QByteArray();
    QTest::newRow("UTF-16") << u"utf-16"_s << "\x34\4\r\0\n\0"_ba
                            << "\xD0\xB4"_ba;
    QTest::newRow("UTF-16 with a mark") << u"utf-16"_s << "\xFF\xFE\x34\4\r\0\n\0"_ba
                                        << "\xD0\xB4"_ba;
    QTest::newRow("high byte first") << u"utf-16"_s << "\xFE\xFF\4\x34\0\r\0\n"_ba
                                     << "\xD0\xB4"_ba;
    QTest::newRow("a code page") << u"1251"_s << "\xE4\r\n"_ba
                                 << "\xD0\xB4"_ba;
}

void CommandLineTest::anImportIsReadAsItIsTold()
{
    QFETCH(QString, encoding);
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, name);
    Shell shell;
    QCOMPARE(shell.Output({ u"new"_s, u"L"_s, u"--create"_s }), ""_ba);
    const Call call = shell.Run({ u"import"_s, u"L"_s, u"-"_s, u"--encoding"_s, encoding }, input);
    QCOMPARE(call.code, name.isEmpty() ? ExitCode::Failed : ExitCode::Done);
    QCOMPARE(call.output, name.isEmpty() ? "0\n"_ba : "1\n"_ba);
    const QByteArray row = name.isEmpty() ? QByteArray() : name + "\t\n";
    QCOMPARE(shell.Output({ u"show"_s, u"L"_s }), "Name\tQuantity\n" + row);
}

void CommandLineTest::aBackupIsTheSameData()
{
    Shell shell;
    shell.MakePantry();
    const QString copy = shell.Path(u"copy.idb"_s);
    QCOMPARE(shell.Output({ u"backup"_s, copy }), ""_ba);
    const QStringList show { u"show"_s, u"Pantry"_s };
    QCOMPARE(shell.Output(show + QStringList { u"--data"_s, copy }), shell.Output(show));
    const QString text = shell.Path(u"out.txt"_s);
    QCOMPARE(shell.Output({ u"export"_s, u"Pantry"_s, text }), ""_ba);
    QCOMPARE(FileBytes(text), shell.Output({ u"export"_s, u"Pantry"_s, u"-"_s }));

    // What the next start would play back.
    const QString journal = shell.Path() + u"-journal"_s;
    for (const QStringList& arguments :
        { QStringList { u"backup"_s, journal }, { u"export"_s, u"Pantry"_s, journal },
            { u"restore"_s, journal, u"--from=1"_s }, { u"restore"_s, journal, u"--salvage"_s } }) {
        QVERIFY(shell.Run(arguments).errors.contains("the data file's journal"));
        QVERIFY(!QFile::exists(journal));
    }
    const QByteArray link = QFile::encodeName(shell.Path(u"link.idb"_s));
    QCOMPARE(::link(QFile::encodeName(shell.Path()).constData(), link.constData()), 0);
    QVERIFY(shell.Run(show).errors.contains("a second name, by a hard link (error 1142)"));
}

void CommandLineTest::whatARunChangedIsKeptAndRestored()
{
    Shell shell;
    shell.MakePantry();
    // None of these changes anything, or ends well.
    shell.Output({ u"lists"_s });
    QCOMPARE(shell.Output({ u"import"_s, u"Pantry"_s, u"-"_s, u"--dry-run"_s }, "a\r\n\t\r\nb\r\n"),
        "2\n"_ba);
    QVERIFY(shell.Run({ u"new"_s, u"Pantry"_s }).code == ExitCode::Failed);

    const QList<QByteArray> lines = shell.Output({ u"restore"_s }).split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[0].startsWith("1\t") && lines[1].startsWith("2\t"));
    QCOMPARE(lines[2], "salvage\tPantry\t3\tcomplete"_ba);
    const auto json = QJsonDocument::fromJson(shell.Output({ u"restore"_s, u"--json"_s })).array();
    QCOMPARE(json.size(), 3);
    QCOMPARE(json[1][u"copy"], 2);
    QVERIFY(QDateTime::fromString(json[1][u"time"].toString(), Qt::ISODate).isValid());
    QCOMPARE(json[2],
        (QJsonObject { { u"salvage"_s, u"Pantry"_s }, { u"rows"_s, 3 }, { u"lost"_s, 0 },
            { u"complete"_s, true } }));

    for (const auto& [number, rows] :
        { std::pair { u"1"_s, "Pantry\t3\n"_ba }, { u"2"_s, "Pantry\t0\n"_ba } }) {
        const QString made = shell.Path(u"made-"_s + number);
        QCOMPARE(shell.Output({ u"restore"_s, made, u"--from"_s, number }), ""_ba);
        QCOMPARE(shell.Output({ u"lists"_s, u"--data"_s, made }), rows);
    }
    // The copies are found by the file's place, also when it is gone.
    QVERIFY(QFile::remove(shell.Path()));
    QCOMPARE(shell.Output({ u"restore"_s }).count('\n'), 2);
}

void CommandLineTest::whatIsLeftOfADamagedFileIsSaved()
{
    Shell shell;
    shell.MakePantry();
    DamagePage(shell.Path(), kTableLeaf, u"Tea"_s);
    const QByteArray bytes = FileBytes(shell.Path());
    const QString saved = shell.Path(u"saved.idb"_s);
    const Call call = shell.Run({ u"restore"_s, saved, u"--salvage"_s });
    QVERIFY(call.code == ExitCode::Done);
    QCOMPARE(call.output, "Pantry\t0\t3 lost\n"_ba);
    QCOMPARE(shell.Output({ u"lists"_s, u"--data"_s, saved }), "Pantry\t0\n"_ba);
    QCOMPARE(FileBytes(shell.Path()), bytes);
}

void CommandLineTest::damagedRowsAreNoRows_data()
{
    QTest::addColumn<char>("page");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");
    const auto add
        = [](const char* name, char page, const QStringList& arguments, const QByteArray& output) {
              QTest::newRow(name) << page << arguments << output;
          };
    add("totals", kTableLeaf, { u"summary"_s, u"Pantry"_s }, "");
    add("totals as JSON", kTableLeaf, { u"summary"_s, u"Pantry"_s, u"--json"_s }, "");
    add("totals of some", kTableLeaf, { u"summary"_s, u"Pantry"_s, u"--where=Name = Tea"_s }, "");
    // One list that cannot be read does not hide the next.
    add("lists", kIndexLeaf, { u"lists"_s }, "Tools\t1\n");
    add("lists as JSON", kIndexLeaf, { u"lists"_s, u"--json"_s },
        "[\n{\"name\":\"Tools\",\"rows\":1,\"icon\":0,\"columns\":[{\"name\":\"Name\",\"type\":"
        "\"string\"},{\"name\":\"Quantity\",\"type\":\"integer\"}]}\n]\n");
    add("what is due", kTableLeaf, { u"due"_s }, "Tools\tSaw\tlow\n");
    add("what is due as JSON", kTableLeaf, { u"due"_s, u"--json"_s },
        "[\n{\"list\":\"Tools\",\"row\":\"Saw\",\"state\":\"low\",\"count\":1}\n]\n");
}

void CommandLineTest::damagedRowsAreNoRows()
{
    QFETCH(char, page);
    QFETCH(QStringList, arguments);
    Shell shell;
    shell.MakePantry();
    shell.Output({ u"new"_s, u"Tools"_s, u"--warn-count=1"_s });
    shell.Output({ u"import"_s, u"Tools"_s, u"-"_s }, "Saw\t1\r\n");
    DamagePage(shell.Path(), page, u"Tea"_s);
    const Call call = shell.Run(arguments);
    QCOMPARE(call.code, ExitCode::Failed);
    QTEST(call.output, "output");
    QVERIFY(call.errors.contains("the file is damaged (error 1392); “quillory restore” lists"));
}

void CommandLineTest::rowsBesideDamageArePrinted_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("export") << QStringList { u"export"_s, u"L"_s };
    QTest::newRow("show") << QStringList { u"show"_s, u"L"_s };
    QTest::newRow("JSON") << QStringList { u"show"_s, u"L"_s, u"--json"_s };
    QTest::newRow("sorted") << QStringList { u"show"_s, u"L"_s, u"--sort"_s, u"Quantity"_s };
    QTest::newRow("filtered") << QStringList { u"show"_s, u"L"_s, u"--where=Quantity < 90"_s };
    QTest::newRow("due") << QStringList { u"due"_s };
}

void CommandLineTest::rowsBesideDamageArePrinted()
{
    QFETCH(QStringList, arguments);
    Shell shell;
    shell.MakeLongList(1000);
    const QList<QByteArray> whole = shell.Output(arguments).split('\n');
    const QByteArray bytes = FileBytes(shell.Path());

    // An index can be done without.
    DamagePage(shell.Path(), kIndexLeaf, u"row 500"_s);
    QCOMPARE(shell.Output(arguments).split('\n'), whole);

    WriteFileBytes(shell.Path(), bytes);
    DamagePage(shell.Path(), kTableLeaf, u"row 500"_s);
    const Call call = shell.Run(arguments);
    QCOMPARE(call.code, ExitCode::Failed);
    const QList<QByteArray> lines = call.output.split('\n');
    QVERIFY(lines.size() > 700 && lines.size() < whole.size());
    QVERIFY(std::all_of(
        lines.begin(), lines.end(), [&whole](auto line) { return whole.contains(line); }));
    const auto passedOver = QByteArray::number(whole.size() - lines.size());
    // Which rows pass a filter is not known of those that cannot be read.
    if (!arguments.last().startsWith(u"--where"))
        QVERIFY2(call.errors.contains("passed over, " + passedOver + " of them"),
            call.errors.constData());
}

void CommandLineTest::aReaderThatStandsStillHoldsNoLock_data()
{
    QTest::addColumn<QString>("arguments");
    for (const char* arguments : { "show L", "show L --sort Quantity", "show L --json", "export L",
             "export L /dev/stdout", "due" })
        QTest::newRow(arguments) << QString::fromLatin1(arguments);
}

void CommandLineTest::aReaderThatStandsStillHoldsNoLock()
{
    QFETCH(QString, arguments);
    Shell shell;
    constexpr int kRows = 10'000;
    shell.MakeLongList(kRows);
    // Emulators of other processors know this call, not the one by which QProcess starts a program.
    FILE* reader = popen(qPrintable(u"'%1' command_line_test --run --data '%2' %3"_s.arg(
                             QCoreApplication::applicationFilePath(), shell.Path(), arguments)),
        "r");
    QVERIFY(reader != nullptr && fgetc(reader) != EOF);
    QCOMPARE(shell.Output({ u"import"_s, u"L"_s, u"-"_s }, "x\r\n"), "1\n"_ba);
    qsizetype lines = 0;
    for (int byte = fgetc(reader); byte != EOF; byte = fgetc(reader))
        lines += byte == '\n' ? 1 : 0;
    QCOMPARE(pclose(reader), 0);
    QVERIFY(lines >= kRows);
}

void CommandLineTest::theWindowKeepsItsArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");
    const auto add = [](const QStringList& arguments, const char* error) {
        QTest::newRow(qPrintable(u'"' + arguments.join(u' ') + u'"'))
            << arguments << QByteArray(error);
    };
    const char* const window = "";
    add({}, window);
    add({ u"Pantry"_s }, window);
    add({ u"Shew"_s }, window);
    add({ u"--"_s, u"show"_s }, window);
    add({ u"-platform"_s, u"offscreen"_s }, window);
    add({ u"-platform"_s, u"offscreen"_s, u"Pantry"_s }, window);
    add({ u"Imports"_s }, "there is no command “Imports”; the nearest is “import”\n");
    add({ u"lits"_s }, "there is no command “lits”; the nearest is “lists”\n");
    add({ u"-platform"_s, u"offscreen"_s, u"A"_s, u"B"_s }, "one list can be named at most\n");
    add({ u"--"_s, u"A"_s, u""_s }, "an argument is empty\n");
    add({ u"--frob"_s, u"Pantry"_s }, "there is no command “Pantry”\n");
    add({ u"--data"_s, u"x"_s }, "no command is named\n");
    add({ u"--data"_s, u"x"_s, u"Pantry"_s }, "there is no command “Pantry”\n");
    add({ u"--data"_s, u"x"_s, u"shwo"_s, u"Pantry"_s, u"--json"_s },
        "there is no command “shwo”; the nearest is “show”\n");
}

void CommandLineTest::theWindowKeepsItsArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);
    const auto isList = [](const QString& name) { return name == u"Shew"; };
    QCOMPARE(IsCommandLine(arguments, isList), !error.isEmpty());
    if (error.isEmpty())
        return;
    const Call call = Shell().Run(arguments);
    QCOMPARE(call.code, ExitCode::WrongUsage);
    QVERIFY2(call.errors.contains(error + "usage: quillory"), call.errors.constData());
}

/// Started with --run it is the program itself.
static int RunOrTest(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 2; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);
    if (argc > 1 && QByteArrayView(argv[1]) == "--run")
        return RunCommandLine(arguments);
    return RunTest<QCoreApplication, CommandLineTest>(argc, argv);
}

static const TestProgram kCommandLineTest(__FILE__, RunOrTest);
#include "command_line_test.moc"
