// SPDX-License-Identifier: MIT
#include "app/command_line.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/page_damage.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace {

/// The arguments that a line holds, parted by blanks; "_" is a blank within an argument.
class Words : public QStringList
{
public:
    // NOLINTBEGIN(google-explicit-constructor): a line stands for its words.
    Words(const QStringList& words)
        : QStringList(words)
    { }
    Words(const QByteArray& line)
    {
        if (!line.isEmpty())
            append(QString::fromUtf8(line).split(u' '));
        replaceInStrings(u"_"_s, u" "_s);
    }
    Words(const char* line)
        : Words(QByteArray(line))
    { }
    // NOLINTEND(google-explicit-constructor)
};

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
    Call Run(const Words& arguments, const QByteArray& input = {})
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
    QByteArray Output(const Words& arguments, const QByteArray& input = {})
    {
        const Call call = Run(arguments, input);
        if (call.code != ExitCode::Done || !call.errors.isEmpty())
            return "failed: " + call.errors;
        return call.output;
    }
    /// The pantry: Tea is low and expired, Oil is low, Rice expires in ten days.
    void MakePantry()
    {
        QCOMPARE(
            Output("new Pantry --create --column=Price:price --column Opened:checkbox --column "
                   "Bought_on:date --column expiry --warn-count 2 --warn-expiry"),
            ""_ba);
        QCOMPARE(Output("import Pantry -",
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
        QCOMPARE(Output("new L --create --warn-count=99"), ""_ba);
        QCOMPARE(Output("import L -", text), QByteArray::number(rows) + '\n');
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
    void whatItPrints()
    {
        const QByteArray head = "Name\tQuantity\tPrice\tOpened\tBought on\tExpiry Date\n";
        const QByteArray oil = "Oil\t-1\t\t\t\t\n";
        const QByteArray rice = "Rice\t9\t1.25\tY\t1/6/2026\t6/25/2026\n";
        const QByteArray tea = "Tea\t2\t3.50\tN\t1/5/2026\t6/15/2026\n";
        const std::pair<const char*, QByteArray> cases[] {
            { "lists", "Pantry\t3\n" },
            { "show Pantry", head + oil + rice + tea },
            { "show Pantry --sort Quantity", head + oil + tea + rice },
            { "show Pantry --where Quantity_less_than_or_equals_to_2", head + oil + tea },
            { "show Pantry --where Quantity<=2", head + oil + tea },
            { "show Pantry --where Name_contains_e", head + rice + tea },
            { "show Pantry --where Quantity_!=_9", head + rice },
            { "show Pantry --where Opened_equals_to_Checked", head + rice },
            { "show Pantry --where Opened_!=_Y", head + tea },
            { "show Pantry --where Bought_on_on_or_after_1/6/2026", head + rice },
            { "show Pantry --where Quantity_>_1 --where=Opened_=_Unchecked", head + tea },
            { "show Pantry --where Name_=_x", head },
            { "show Pantry --json --where=Name_=_x", "[]\n" },
            { "show Pantry --json --sort Price",
                R"([
{"Name":"Oil","Quantity":-1,"Price":null,"Opened":null,"Bought on":null,"Expiry Date":null},
{"Name":"Rice","Quantity":9,"Price":1.25,"Opened":true,"Bought on":"2026-01-06",)"
                R"("Expiry Date":"2026-06-25"},
{"Name":"Tea","Quantity":2,"Price":3.5,"Opened":false,"Bought on":"2026-01-05",)"
                R"("Expiry Date":"2026-06-15"}
]
)" },
            { "due --json", R"([
{"list":"Pantry","row":"Oil","state":"low","count":-1},
{"list":"Pantry","row":"Tea","state":"low","count":2},
{"list":"Pantry","row":"Tea","state":"expired","date":"2026-06-15"}
]
)" },
            { "summary Pantry", "Quantity\t10\nPrice\t4.75\n" },
            { "summary Pantry --where Opened_=_N", "Quantity\t2\nPrice\t3.50\n" },
            { "summary Pantry --json",
                "[\n{\"name\":\"Quantity\",\"total\":10},\n{\"name\":\"Price\",\"total\":4.75}\n]"
                "\n" },
            { "due", "Pantry\tOil\tlow\nPantry\tTea\tlow\nPantry\tTea\texpired\n" },
            { "due --within 10",
                "Pantry\tOil\tlow\nPantry\tRice\t6/25/"
                "2026\nPantry\tTea\tlow\nPantry\tTea\texpired\n" },
            { "check", "ok\n" },
            { "--version", "quillory " QUILLORY_VERSION "\n" },
            { "-v frob", "quillory " QUILLORY_VERSION "\n" },
        };
        Shell shell;
        shell.MakePantry();
        for (const auto& [line, output] : cases)
            QCOMPARE(shell.Output(line), output);
    }

    void wrongUsageExitsWithTwoAndUsage()
    {
        const QByteArray x129(129, 'x');
        const QByteArray columns = QByteArray(" --column=A:string").repeated(15);
        Shell shell;
        shell.MakePantry();
        for (const QByteArray& line : std::initializer_list<QByteArray> {
                 // No command, or not this one's words; an empty argument.
                 "", " ", "show ", "show Pantry --sort=", "Pantry Tools", "frobnicate",
                 "lists --frob", "lists --where x", "show Pantry --where", "lists --json=yes",
                 "lists --data", "import Pantry", "show Pantry Tools",
                 // Conditions and columns that there are not.
                 "show Pantry --where Nam_=_x", "show Pantry --where Name",
                 "show Pantry --where Name_containstea", "show Pantry --where Name_>_a",
                 "show Pantry --where Bought_on_=_soon", "show Pantry --where Price_<_3,5",
                 "show Pantry --where Quantity_<_2.5", "show Pantry --where Quantity_=_4294967296",
                 "show Pantry --where Opened_=_maybe", "show Pantry --sort name",
                 "import Pantry - --encoding latin", "import Pantry - --encoding 437",
                 "import Pantry - --columns Name,Name",
                 // Lists that cannot be.
                 "new L --column A:float", "new L --column :string",
                 "new L --column " + x129.left(33) + ":string",
                 "new L --column=expiry --column=expiry", "new L" + columns, "new " + x129,
                 "new L --icon 43", "new L --warn-count 2147483648", "due --within -1",
                 // Files that cannot be what they are named for.
                 "backup -", "restore - --salvage", "restore x.idb", "restore --from=1",
                 "restore x.idb --from=1 --salvage", "restore x.idb --from=10" }) {
            const Call call = shell.Run(line);
            QVERIFY2(call.code == ExitCode::WrongUsage && call.output.isEmpty(), line.constData());
            QVERIFY2(call.errors.startsWith("quillory: ") && call.errors.contains("\nusage: "),
                line.constData());
        }
    }

    void failuresExitWithOneAndOneLine()
    {
        Shell shell;
        shell.MakePantry();
        for (const char* line : { "show pantry", "new Pantry", "lists --data /no/x",
                 "lists --data=/", "lists --data=/dev/null", "import Pantry /no/x",
                 "import Pantry /", "export Pantry /no/x", "export Pantry /dev/full",
                 "backup /dev/null", "restore /dev/null --from=1", "restore /dev/null --salvage",
                 "restore x --from=3", "restore --data /dev/null" }) {
            const Call call = shell.Run(line);
            QVERIFY2(call.code == ExitCode::Failed && call.output.isEmpty(), line);
            QVERIFY2(call.errors.startsWith("quillory: ") && call.errors.count('\n') == 1, line);
        }
    }

    void everyCommandHasHelp()
    {
        Shell shell;
        const QByteArray help = shell.Output("--help");
        QCOMPARE(shell.Output("--help frob"), help);
        for (const QString& form : { shell.Path(), u"M/d/yyyy"_s, u"1,234.50"_s, u"1252"_s })
            QVERIFY(help.contains(form.toUtf8()));
        for (const QByteArray name : { "lists", "new", "show", "export", "import", "summary", "due",
                 "check", "backup", "restore" }) {
            QVERIFY(help.contains("  quillory " + name));
            const QByteArray own = shell.Output(name + " --help");
            QVERIFY(own.startsWith("usage: quillory " + name));
            const QByteArray usage = own.left(own.indexOf('\n'));
            const auto options
                = QRegularExpression(u"\n  (--[a-z-]+)"_s).globalMatch(QString::fromUtf8(own));
            for (const QRegularExpressionMatch& option : options)
                QVERIFY2(usage.contains(option.captured(1).toUtf8()), own.constData());
        }
    }

    void listsNamedLikeOptionsAreReached()
    {
        Shell shell;
        QCOMPARE(shell.Output("new --create -- --json"), ""_ba);
        QCOMPARE(shell.Output("lists"), "--json\t0\n"_ba);
        QCOMPARE(shell.Output("summary -- --json"), "Quantity\t0\n"_ba);
    }

    void noDataFileIsMadeUnlessTold()
    {
        Shell shell;
        const QString other = shell.Path(u"other.idb"_s);
        const QStringList onOther { u"--data"_s, other };
        for (const char* line : { "lists", "new L", "show L", "import L -", "check" }) {
            QVERIFY(shell.Run(onOther + Words(line)).code == ExitCode::Failed);
            QVERIFY(!QFile::exists(other));
        }
        QVERIFY(shell.Run(onOther + Words("new L --create")).code == ExitCode::Done);
        QVERIFY(QFile::exists(other) && !QFile::exists(shell.Path()));
        // Copies are kept of the configured file alone.
        QVERIFY(!QFile::exists(shell.Path(u"copies"_s)));
    }

    void aFileWhoseMakingWasCutShortHasNoLists()
    {
        Shell shell;
        QCOMPARE(DataVolume().Mount(shell.Path(), Disposition::OpenAlways), ErrorNumber::None);
        QCOMPARE(shell.Output("lists"), ""_ba);
        QCOMPARE(shell.Output("check"), "ok\n"_ba);
        QCOMPARE(shell.Run("show Pantry").code, ExitCode::Failed);
        shell.MakePantry();
    }

    void columnsGiveTheImportItsOrder()
    {
        Shell shell;
        QCOMPARE(shell.Output("new L --create --column=A,_B:string --column=A:string"), ""_ba);
        QCOMPARE(shell.Output("import L - --columns A,_B,A,Name", "ab\ta\tname\t7\r\n"), "1\n"_ba);
        QCOMPARE(shell.Output("import L - --columns A", "x\ty\r\n"), "1\n"_ba);
        QCOMPARE(shell.Output("show L"), "Name\tQuantity\tA, B\tA\nname\t7\tab\ta\ny\t\t\tx\n"_ba);
    }

    void theSettingsNameFileAndCodePage()
    {
        Shell shell;
        QCOMPARE(shell.Output("new L --create"), ""_ba);
        const QByteArray folder = QFileInfo(shell.Path()).path().toUtf8();
        QVERIFY(QDir().mkpath(shell.Path(u"quillory"_s)));
        WriteFileBytes(shell.Path(u"quillory/quillory.conf"_s),
            "[General]\nDbPath=" + shell.Path().toUtf8() + "\nCodePage=1251\n");
        WriteFileBytes(shell.Path(u"in.txt"_s), "\xE4\r\n");
        qputenv("XDG_CONFIG_HOME", folder);
        qputenv("XDG_STATE_HOME", folder);
        QCOMPARE(RunCommandLine({ u"import"_s, u"L"_s, shell.Path(u"in.txt"_s) }), 0);
        QCOMPARE(shell.Output("show L"), "Name\tQuantity\n\xD0\xB4\t\n"_ba);
    }

    void writersAreRefusedWhileTheWindowHasTheFile()
    {
        Shell shell;
        shell.MakePantry();
        DataVolume window;
        QCOMPARE(window.Mount(shell.Path(), Disposition::OpenExisting), ErrorNumber::None);
        for (const char* line : { "new L", "import Pantry -" }) {
            const Call call = shell.Run(line, "a\r\n");
            QVERIFY(call.code == ExitCode::Failed);
            QVERIFY(call.errors.contains("is open in Quillory; close it first"));
        }
    }

    void loneSurrogatesAndControlsComeOutAsText()
    {
        Shell shell;
        shell.MakePantry();
        const QString line = u"a\nb\x1B"_s + QChar(0xD800) + u"ü\r\n"_s;
        QByteArray wide("\xFF\xFE");
        wide.append(reinterpret_cast<const char*>(line.utf16()), line.size() * 2);
        QCOMPARE(shell.Output("import Pantry -", wide), "1\n"_ba);
        const QByteArray shown = shell.Output("show Pantry");
        QCOMPARE(shown.count('\n'), 5);
        QVERIFY(shown.endsWith("\na b ?\xC3\xBC\t\t\t\t\t\n"));
        QVERIFY(!QJsonDocument::fromJson(shell.Output("show Pantry --json")).isNull());
    }

    void anImportTellsWhatIsNotIn_data()
    {
        const Table<QByteArray, QByteArray, QByteArray> add;
        const QByteArray unended = "no line to import that ends with a carriage return";
        const QByteArray open = "the last line is not in";
        const QByteArray empty = "no line gives a value";
        add("a mark alone", "\xFF\xFE", "0", "Import is completed with errors");
        add("lines as editors on this system end them", "a\nb\n", "0", unended);
        add("nothing", "", "0", unended);
        add("a last line without its end", "1/6/2026\r\n1/7/2026", "1", open);
        add("the same in UTF-16", "\xFF\xFE\1\0\r\0\n\0x\0"_ba, "0", open);
        add("text before a NUL", "1/6/2026\r\nx\0"_ba, "1", open);
        add("tabs", "\t\t\r\n", "0", empty);
        add("an empty line", "\r\n", "0", empty);
        add("no date", "xyz\r\n\0"_ba, "0", empty);
    }

    void anImportTellsWhatIsNotIn()
    {
        const auto [input, rows, reason] = Table<QByteArray, QByteArray, QByteArray>::Row();
        Shell shell;
        shell.MakePantry();
        const QByteArray before = FileBytes(shell.Path());
        for (const char* more : { " --dry-run", "" }) {
            QCOMPARE(FileBytes(shell.Path()), before);
            const Call call
                = shell.Run(QByteArray("import Pantry - --columns=Bought_on") + more, input);
            QCOMPARE(call.code, ExitCode::Failed);
            QCOMPARE(call.output, rows + '\n');
            QVERIFY2(call.errors.contains(reason), call.errors.constData());
        }
    }

    void anImportIsReadAsItIsTold_data()
    {
        const Table<QByteArray, QByteArray, QByteArray> add;
        const QByteArray longName(65'535 - 2, 'x');
        add("UTF-8", "utf-8", "\xD0\xB4\r\n", "\xD0\xB4");
        add("UTF-8 with a mark", "UTF-8", "\xEF\xBB\xBFx\r\n", "x");
        add("UTF-8 in parts", "utf-8", longName + "\xD0\xB4\xD0\xB4\r\n",
            longName + "\xD0\xB4\xD0\xB4");
        add("what is not UTF-8", "utf-8", "\xE4\r\n", {});
        add("UTF-16", "utf-16", "\x34\4\r\0\n\0"_ba, "\xD0\xB4");
        add("UTF-16 with a mark", "utf-16", "\xFF\xFE\x34\4\r\0\n\0"_ba, "\xD0\xB4");
        add("high byte first", "utf-16", "\xFE\xFF\4\x34\0\r\0\n"_ba, "\xD0\xB4");
        add("a code page", "1251", "\xE4\r\n", "\xD0\xB4");
    }

    void anImportIsReadAsItIsTold()
    {
        const auto [encoding, input, name] = Table<QByteArray, QByteArray, QByteArray>::Row();
        Shell shell;
        QCOMPARE(shell.Output("new L --create"), ""_ba);
        const Call call = shell.Run("import L - --encoding " + encoding, input);
        QCOMPARE(call.code, name.isEmpty() ? ExitCode::Failed : ExitCode::Done);
        QCOMPARE(call.output, name.isEmpty() ? "0\n"_ba : "1\n"_ba);
        const QByteArray row = name.isEmpty() ? QByteArray() : name + "\t\n";
        QCOMPARE(shell.Output("show L"), "Name\tQuantity\n" + row);
    }

    void aBackupIsTheSameData()
    {
        Shell shell;
        shell.MakePantry();
        const QString copy = shell.Path(u"copy.idb"_s);
        QCOMPARE(shell.Output(QStringList { u"backup"_s, copy }), ""_ba);
        const Words show("show Pantry");
        QCOMPARE(shell.Output(show + QStringList { u"--data"_s, copy }), shell.Output(show));
        const QString text = shell.Path(u"out.txt"_s);
        QCOMPARE(shell.Output(Words("export Pantry") + QStringList { text }), ""_ba);
        QCOMPARE(FileBytes(text), shell.Output("export Pantry -"));

        // What the next start would play back.
        const QString journal = shell.Path() + u"-journal"_s;
        for (const Words& words : { Words("backup"), Words("export Pantry"),
                 Words("restore --from=1"), Words("restore --salvage") }) {
            QVERIFY(shell.Run(words + QStringList { journal })
                        .errors.contains("the data file's journal"));
            QVERIFY(!QFile::exists(journal));
        }
        const QByteArray link = QFile::encodeName(shell.Path(u"link.idb"_s));
        QCOMPARE(::link(QFile::encodeName(shell.Path()).constData(), link.constData()), 0);
        QVERIFY(shell.Run(show).errors.contains("a second name, by a hard link (error 1142)"));
    }

    void whatARunChangedIsKeptAndRestored()
    {
        Shell shell;
        shell.MakePantry();
        // None of these changes anything, or ends well.
        shell.Output("lists");
        QCOMPARE(shell.Output("import Pantry - --dry-run", "a\r\n\t\r\nb\r\n"), "2\n"_ba);
        QVERIFY(shell.Run("new Pantry").code == ExitCode::Failed);

        const QList<QByteArray> lines = shell.Output("restore").split('\n');
        QCOMPARE(lines.size(), 4);
        QVERIFY(lines[0].startsWith("1\t") && lines[1].startsWith("2\t"));
        QCOMPARE(lines[2], "salvage\tPantry\t3\tcomplete"_ba);
        const auto json = QJsonDocument::fromJson(shell.Output("restore --json")).array();
        QCOMPARE(json.size(), 3);
        QCOMPARE(json[1][u"copy"], 2);
        QVERIFY(QDateTime::fromString(json[1][u"time"].toString(), Qt::ISODate).isValid());
        QCOMPARE(json[2],
            (QJsonObject { { u"salvage"_s, u"Pantry"_s }, { u"rows"_s, 3 }, { u"lost"_s, 0 },
                { u"complete"_s, true } }));

        for (const auto& [number, rows] :
            { std::pair { u"1"_s, "Pantry\t3\n"_ba }, { u"2"_s, "Pantry\t0\n"_ba } }) {
            const QString made = shell.Path(u"made-"_s + number);
            QCOMPARE(shell.Output(QStringList { u"restore"_s, made, u"--from"_s, number }), ""_ba);
            QCOMPARE(shell.Output(QStringList { u"lists"_s, u"--data"_s, made }), rows);
        }
        // The copies are found by the file's place, also when it is gone.
        QVERIFY(QFile::remove(shell.Path()));
        QCOMPARE(shell.Output("restore").count('\n'), 2);

        Shell other;
        WriteFileBytes(other.Path(u"copies"_s), {});
        const Call call = other.Run("new L --create");
        QVERIFY(call.code == ExitCode::Done);
        QVERIFY(call.errors.contains("could be kept: access denied (error 5)"));
    }

    void whatIsLeftOfADamagedFileIsSaved()
    {
        Shell shell;
        shell.MakePantry();
        DamagePage(shell.Path(), kTableLeaf, u"Tea"_s);
        const QByteArray bytes = FileBytes(shell.Path());
        const QString saved = shell.Path(u"saved.idb"_s);
        const Call call = shell.Run(QStringList { u"restore"_s, saved, u"--salvage"_s });
        QVERIFY(call.code == ExitCode::Done);
        QCOMPARE(call.output, "Pantry\t0\t3 lost\n"_ba);
        QCOMPARE(shell.Output(QStringList { u"lists"_s, u"--data"_s, saved }), "Pantry\t0\n"_ba);
        QCOMPARE(FileBytes(shell.Path()), bytes);
    }

    void damagedRowsAreNoRows_data()
    {
        const Table<char, QByteArray> add;
        add("summary Pantry", kTableLeaf, "");
        add("summary Pantry --json", kTableLeaf, "");
        add("summary Pantry --where=Name_=_Tea", kTableLeaf, "");
        // One list that cannot be read does not hide the next.
        add("lists", kIndexLeaf, "Tools\t1\n");
        add("lists --json", kIndexLeaf,
            R"([
{"name":"Tools","rows":1,"icon":0,"columns":[{"name":"Name","type":"string"},)"
            R"({"name":"Quantity","type":"integer"},{"name":"Expiry Date","type":"expiry"}]}
]
)");
        add("due", kTableLeaf, "Tools\tSaw\tlow\n");
        add("due --json", kTableLeaf,
            "[\n{\"list\":\"Tools\",\"row\":\"Saw\",\"state\":\"low\",\"count\":1}\n]\n");
    }

    void damagedRowsAreNoRows()
    {
        const auto [page, output] = Table<char, QByteArray>::Row();
        Shell shell;
        shell.MakePantry();
        shell.Output("new Tools --warn-count=1 --column expiry");
        shell.Output("import Tools -", "Saw\t1\r\n");
        DamagePage(shell.Path(), page, u"Tea"_s);
        const Call call = shell.Run(QTest::currentDataTag());
        QCOMPARE(call.code, ExitCode::Failed);
        QCOMPARE(call.output, output);
        QVERIFY(call.errors.contains("the file is damaged (error 1392); “quillory restore” lists"));
    }

    void rowsBesideDamageArePrinted()
    {
        Shell shell;
        shell.MakeLongList(1000);
        const QByteArray bytes = FileBytes(shell.Path());
        for (const QByteArray line : { "export L", "show L", "show L --json",
                 "show L --sort Quantity", "show L --where=Quantity_<_90", "due" }) {
            WriteFileBytes(shell.Path(), bytes);
            const QList<QByteArray> whole = shell.Output(line).split('\n');
            // An index can be done without.
            DamagePage(shell.Path(), kIndexLeaf, u"row 500"_s);
            QCOMPARE(shell.Output(line).split('\n'), whole);

            WriteFileBytes(shell.Path(), bytes);
            DamagePage(shell.Path(), kTableLeaf, u"row 500"_s);
            const Call call = shell.Run(line);
            QCOMPARE(call.code, ExitCode::Failed);
            const QList<QByteArray> lines = call.output.split('\n');
            QVERIFY2(lines.size() > 700 && lines.size() < whole.size(), line.constData());
            QVERIFY(std::all_of(
                lines.begin(), lines.end(), [&whole](auto row) { return whole.contains(row); }));
            const auto passedOver = QByteArray::number(whole.size() - lines.size());
            // Which rows pass a filter is not known of those that cannot be read.
            if (!line.contains("--where"))
                QVERIFY2(call.errors.contains("passed over, " + passedOver + " of them"),
                    call.errors.constData());
        }
    }

    void aReaderThatStandsStillHoldsNoLock()
    {
        Shell shell;
        constexpr int kRows = 10'000;
        shell.MakeLongList(kRows);
        for (const QString& arguments : { u"show L"_s, u"show L --sort Quantity"_s,
                 u"show L --json"_s, u"export L"_s, u"export L /dev/stdout"_s, u"due"_s }) {
            // Emulators of other processors know this call, not the one by which QProcess starts a
            // program.
            const QString call = u"'%1' command_line_test --run --data '%2' %3"_s.arg(
                QCoreApplication::applicationFilePath(), shell.Path(), arguments);
            FILE* reader = popen(qPrintable(call), "r");
            QVERIFY2(reader != nullptr && fgetc(reader) != EOF, qPrintable(arguments));
            QCOMPARE(shell.Output("import L -", "x\r\n"), "1\n"_ba);
            qsizetype lines = 0;
            for (int byte = fgetc(reader); byte != EOF; byte = fgetc(reader))
                lines += byte == '\n' ? 1 : 0;
            QCOMPARE(pclose(reader), 0);
            QVERIFY2(lines >= kRows, qPrintable(arguments));
        }
    }

    void theWindowKeepsItsArguments()
    {
        const char* const window = "";
        const std::pair<Words, QByteArray> cases[] {
            { "", window },
            { "Pantry", window },
            { "Shew", window },
            { "-- show", window },
            { "-platform offscreen", window },
            { "-platform offscreen Pantry", window },
            { "Imports", "there is no command “Imports”; the nearest is “import”\n" },
            { "lits", "there is no command “lits”; the nearest is “lists”\n" },
            { "-platform offscreen A B", "one list can be named at most\n" },
            { "-- A ", "an argument is empty\n" },
            { "--frob Pantry", "there is no command “Pantry”\n" },
            { "--data x", "no command is named\n" },
            { "--data x Pantry", "there is no command “Pantry”\n" },
            { "--data x shwo Pantry --json",
                "there is no command “shwo”; the nearest is “show”\n" },
        };
        for (const auto& [arguments, error] : cases) {
            const auto isList = [](const QString& name) { return name == u"Shew"; };
            QVERIFY2(IsCommandLine(arguments, isList) != error.isEmpty(),
                qPrintable(arguments.join(u' ')));
            if (error.isEmpty())
                continue;
            const Call call = Shell().Run(arguments);
            QCOMPARE(call.code, ExitCode::WrongUsage);
            QVERIFY2(call.errors.contains(error + "usage: quillory"), call.errors.constData());
        }
    }
};

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
