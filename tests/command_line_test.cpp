// SPDX-License-Identifier: MIT
#include "cli/command_line.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/page_damage.h"
#include "tests/test_program.h"

#include <QBuffer>
#include <QRegularExpression>

#include <sys/wait.h>

#include <cstdio>

namespace {

const QString kTranscripts = QStringLiteral(QUILLORY_TEST_FOLDER "/command_line/");

/// What a command left behind.
struct Call
{
    int status = 0;
    QByteArray output {};
    QByteArray errors {};

    /// As it stands below the command in a transcript.
    [[nodiscard]] QString Text() const
    {
        QString text = QString::fromUtf8(output).replace(u'\t', u'→').replace(u'\r', u'␍');
        if (!text.isEmpty() && !text.endsWith(u'\n'))
            text += u"(no line feed)\n"_s;
        for (const QString& line : QString::fromUtf8(errors).split(u'\n', Qt::SkipEmptyParts))
            text += u"! "_s + line + u'\n';
        return status == 0 ? text : text + u"[%1]\n"_s.arg(status);
    }
};

Call RunInShell(const QString& command, const QByteArray& input = {})
{
    WriteFileBytes(u".input"_s, input);
    // Emulators of other processors know this call, not the one by which QProcess starts a program.
    FILE* pipe = popen(
        qPrintable(
            u"program() { '%1' command_line_test --run \"$@\"; }\n{ %2\n} <.input 2>.errors"_s.arg(
                QCoreApplication::applicationFilePath(), command)),
        "r");
    QFile output;
    if (pipe == nullptr || !output.open(pipe, QIODevice::ReadOnly))
        qFatal("there is no shell");
    const QByteArray bytes = output.readAll();
    return { WEXITSTATUS(pclose(pipe)), bytes, FileBytes(u".errors"_s) };
}

/// Runs command lines in a new folder. "quillory" with the data file "data.idb", and what only
/// tests know, run in this process; all else in the system's shell, where "program" is quillory as
/// a process of its own.
class Session
{
public:
    Session()
    {
        QDir::setCurrent(m_folder.path());
        qputenv("VERSION", QUILLORY_VERSION);
        qputenv("MANUAL", QUILLORY_TEST_FOLDER "/../packaging/installed/quillory.1");
        for (const char* name : { "XDG_CONFIG_HOME", "XDG_STATE_HOME" })
            qputenv(name, QFile::encodeName(m_folder.path()));
    }

    /// A line may be a pipe of commands; it has the status of the one of ours in it.
    Call Run(const QString& line)
    {
        static const QRegularExpression ours(u"(^|\\s\\|\\s)(quillory|test-)"_s);
        static const QRegularExpression pipe(u"\\s\\|\\s"_s);
        if (!line.contains(ours))
            return RunInShell(line);
        Call whole;
        for (const QString& stage : line.split(pipe)) {
            const bool isOurs = stage.contains(ours);
            const Call call
                = isOurs ? RunHere(stage, whole.output) : RunInShell(stage, whole.output);
            whole
                = { isOurs ? call.status : whole.status, call.output, whole.errors + call.errors };
        }
        return whole;
    }

private:
    QTemporaryDir m_folder;
    DataVolume m_window;

    /// What tests prepare ends with the number of an error, or 0.
    Call RunHere(const QString& command, const QByteArray& input)
    {
        // The shell parts the arguments.
        const QByteArray parted = RunInShell(u"printf '%s\\0' "_s + command).output;
        QStringList words = QString::fromUtf8(parted).chopped(1).split(QChar(u'\0'));
        const QString name = words.takeFirst();
        if (name == u"quillory")
            return RunQuillory(words, input);
        if (name == u"test-is-command") {
            const auto isList = [](const QString& list, const QString&) { return list == u"Shew"; };
            const auto call = ReadWindowCall(words, isList);
            if (!call)
                return { 0, "command\n" };
            QStringList parts { u"window"_s, call->dataFile, call->listName };
            parts << (call->isNewList ? u"new"_s : QString());
            parts.removeAll(QString());
            return { 0, parts.join(u' ').toUtf8() + '\n' };
        }
        if (name == u"test-open")
            return { static_cast<int>(m_window.Mount(words[0], Disposition::OpenAlways)) };
        if (name == u"test-close")
            m_window.Unmount();
        else if (name == u"test-damage")
            DamagePage(words[0], words[1] == u"table" ? kTableLeaf : kIndexLeaf, words[2]);
        else
            qFatal("there is no %s", qPrintable(name));
        return {};
    }
    static Call RunQuillory(const QStringList& words, QByteArray input)
    {
        QBuffer in(&input);
        QBuffer out;
        QBuffer err;
        in.open(QIODevice::ReadOnly);
        out.open(QIODevice::WriteOnly);
        err.open(QIODevice::WriteOnly);
        const ExitCode code
            = RunCommandLine(words, { in, out, err, TestContext(), u"data.idb"_s, u"copies"_s });
        return { static_cast<int>(code), out.data(), err.data() };
    }
};

/// Where "..." in the expected text stands for anything within its line.
bool Fits(const QString& text, const QString& expected)
{
    const QString pattern
        = QRegularExpression::escape(expected).replace(u"\\.\\.\\."_s, u"[^\\n]*"_s);
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
}

/// Runs the commands of a transcript; tells of each that printed something else than it says.
QString Differences(const QString& name, Session& session)
{
    static const QRegularExpression step(
        u"^\\$ (.*(?:\\n> .*)*)\\n((?:(?![$#] ).*\\n)*)"_s, QRegularExpression::MultilineOption);
    const QString transcript = QString::fromUtf8(FileBytes(kTranscripts + name));
    QString differences;
    for (const QRegularExpressionMatch& match : step.globalMatch(transcript)) {
        const QString command = match.captured(1).replace(u"\n> "_s, u"\n"_s);
        const QString text = command.startsWith(u". ") ? Differences(command.mid(2), session)
                                                       : session.Run(command).Text();
        const qsizetype line = transcript.first(match.capturedStart()).count(u'\n') + 1;
        if (!Fits(text.trimmed(), match.captured(2).trimmed()))
            differences += u"%1:%2: %3\n-- expected:\n%4\n-- actual:\n%5\n"_s.arg(
                name, QString::number(line), command, match.captured(2).trimmed(), text.trimmed());
    }
    return differences;
}

} // namespace

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itAnswersAsInTheTranscript_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names = QDir(kTranscripts).entryList({ u"*.txt"_s });
        QVERIFY(!names.isEmpty());
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << name;
    }
    void itAnswersAsInTheTranscript()
    {
        QFETCH(const QString, name);
        Session session;
        const QString differences = Differences(name, session);
        // A failure's own text is cut where it is long.
        std::fputs(qPrintable(differences), stderr);
        QVERIFY2(differences.isEmpty(), "It answers something else, see above.");
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
