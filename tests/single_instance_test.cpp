// SPDX-License-Identifier: MIT
#include "desktop/single_instance.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <grp.h>
#include <memory>
#include <optional>

namespace {

using Outcome = SingleInstance::Outcome;

/// Whoever owns nothing.
constexpr uid_t kNobody = 65534;

/// Does something in a process of its own, as another user if told so, while this one goes on.
class Stranger
{
public:
    explicit Stranger(const std::function<int()>& work, bool isOtherUser = false)
        : m_process(fork())
    {
        if (m_process != 0)
            return;
        const bool isReady = !isOtherUser
            || (setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0);
        _exit(isReady ? work() : -1);
    }
    /// What the work returned.
    int Wait() const
    {
        int status = 0;
        while (waitpid(m_process, &status, WNOHANG) == 0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t m_process;
};

/// A connection without Qt, whose buffers would count as this process's memory; -1 if refused.
int ConnectPlainly(const QByteArray& path)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
    const int connection = socket(AF_UNIX, SOCK_STREAM, 0);
    return connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0
        ? connection
        : -1;
}

/// The most memory in KiB that this process used since it last asked with `isReset`.
long PeakMemory(bool isReset = false)
{
    QFile forget(u"/proc/self/clear_refs"_s);
    if (isReset && (!forget.open(QIODevice::WriteOnly) || forget.write("5") != 1))
        qFatal("the peak cannot be reset");
    forget.close();
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// How long to wait, as a share of the usual time, for what does not come.
constexpr double kLittle = 0.05;

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        qunsetenv("TMPDIR");
        m_folder = std::make_unique<QTemporaryDir>();
        m_requests.clear();
    }

    void aSecondStartHandsItsRequestOver()
    {
        SingleInstance first(m_folder->path());
        Serve(first);
        for (const auto& [list, outcome] :
            { std::pair { u"Pantry"_s, Outcome::HandedOver }, { QString(), Outcome::HandedOver },
                { u"Vorräte 備"_s, Outcome::HandedOverUnknownList },
                { QString(100'000, u'x'), Outcome::HandedOverUnknownList } }) {
            m_requests.clear();
            QCOMPARE(StartSecond({ list, u"token"_s, list.isEmpty() }), outcome);
            QCOMPARE(m_requests.size(), 1U);
            QCOMPARE(m_requests[0].isNewList, list.isEmpty());
            QCOMPARE(m_requests[0].listName, list.left(129));
            QCOMPARE(m_requests[0].activationToken, u"token"_s);
        }
    }

    void whatIsNoRequestIsDropped()
    {
        SingleInstance first(m_folder->path(), 4 * kLittle);
        Serve(first);
        for (const QByteArray& message :
            { ""_ba, "GET / HTTP/1.1\r\n\r\n"_ba, QByteArray(100, '\0'), "quillory\0Pan"_ba,
                "quillory\0Pantry\0\0\0x\0"_ba, "quillory\0"_ba + QByteArray(1 << 26, 'x') }) {
            const std::unique_ptr<QLocalSocket> socket = Connect();
            QVERIFY(socket->waitForConnected());
            socket->write(message);
            QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QLocalSocket::UnconnectedState, 3000);
            QVERIFY2(m_requests.empty(), message.left(30).constData());
        }
        QCOMPARE(StartSecond({ u"Pantry"_s, {} }), Outcome::HandedOver);
    }

    void idleConnectionsDoNotKeepOthersOut()
    {
        SingleInstance first(m_folder->path());
        Serve(first);
        std::vector<std::unique_ptr<QLocalSocket>> idle;
        for (int i = 0; i < 300; ++i) {
            idle.push_back(Connect());
            QCoreApplication::processEvents();
        }
        QCOMPARE(StartSecond({ u"Pantry"_s, {} }), Outcome::HandedOver);
    }

    void longMessagesCostNoMemory()
    {
        SingleInstance first(m_folder->path());
        Serve(first);
        const QByteArray path = QFile::encodeName(m_folder->filePath(u"socket"_s));
        const long before = PeakMemory(true);
        const Stranger stranger([&path] {
            const QByteArray piece(1 << 20, 'x');
            std::array<int, 16> connections {};
            for (int& connection : connections) {
                connection = ConnectPlainly(path);
                static_cast<void>(send(connection, "quillory\0", 9, MSG_NOSIGNAL));
            }
            constexpr int kPieces = 64;
            for (const int connection : connections) {
                const auto size = static_cast<size_t>(piece.size());
                for (int i = 0; i < kPieces; ++i)
                    static_cast<void>(send(connection, piece.constData(), size, MSG_NOSIGNAL));
            }
            return 0;
        });
        QCOMPARE(stranger.Wait(), 0);
        QCOMPARE(StartSecond({ u"Pantry"_s, {} }), Outcome::HandedOver);
        const long growth = PeakMemory() - before;
        QVERIFY2(growth < 8L * 1024, qPrintable(QString::number(growth)));
    }

    void anotherUserIsNotHeard()
    {
        if (geteuid() != 0)
            QSKIP("Only root can be another user.");
        SingleInstance first(m_folder->path());
        Serve(first);
        const QString socket = m_folder->filePath(u"socket"_s);
        const QByteArray path = QFile::encodeName(socket);
        const auto ask = [&path] {
            const int connection = ConnectPlainly(path);
            if (connection < 0)
                return 1;
            static_cast<void>(send(connection, "quillory\0Pantry\0\0\0", 18, MSG_NOSIGNAL));
            char answer = 0;
            return recv(connection, &answer, 1, 0) <= 0 ? 2 : 3;
        };
        QCOMPARE(Stranger(ask, true).Wait(), 1);
        // Even if somebody opened the way to it.
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0755), 0);
        QCOMPARE(chmod(path.constData(), 0777), 0);
        QCOMPARE(Stranger(ask, true).Wait(), 2);
        QCOMPARE(m_requests.size(), 0U);
        QCOMPARE(Stranger(ask).Wait(), 3);
        QCOMPARE(m_requests.size(), 1U);
    }

    void anotherUsersFolderIsNotUsed()
    {
        if (geteuid() != 0)
            QSKIP("Only root can be another user.");
        qputenv("XDG_RUNTIME_DIR", m_folder->path().toLocal8Bit());
        qputenv("TMPDIR", m_folder->path().toLocal8Bit());
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0777), 0);
        const auto take = [this](const QString& name) {
            const QByteArray path = QFile::encodeName(m_folder->filePath(name));
            return Stranger([&path] { return mkdir(path.constData(), 0700); }, true).Wait() == 0;
        };
        QVERIFY(take(u"quillory"_s));
        const QString fallback = SingleInstance::Folder();
        QVERIFY(fallback.startsWith(m_folder->filePath(u"quillory-"_s)));
        QVERIFY(QDir().rmdir(fallback));
        QVERIFY(take(QFileInfo(fallback).fileName()));
        QCOMPARE(SingleInstance::Folder(), QString());
    }

    void whatLiesInTheFolderKeepsNobodyFromStarting_data()
    {
        const Table<QString, char, bool> add;
        add("lock of a run that ended", u"lock"_s, 'f', true);
        add("pipe for a lock", u"lock"_s, 'p', true);
        add("link for a lock", u"lock"_s, 'l', false);
        add("socket of a run that was killed", u"socket"_s, 's', true);
        add("file for a socket", u"socket"_s, 'f', true);
        add("link for a socket", u"socket"_s, 'l', true);
        add("folder for a socket", u"socket"_s, 'd', false);
    }

    void whatLiesInTheFolderKeepsNobodyFromStarting()
    {
        const auto [name, kind, isHeard] = Table<QString, char, bool>::Row();
        const QByteArray path = QFile::encodeName(m_folder->filePath(name));
        const QByteArray elsewhere = QFile::encodeName(m_folder->filePath(u"elsewhere"_s));
        if (kind == 'f')
            QVERIFY(close(open(path.constData(), O_CREAT | O_WRONLY, 0600)) == 0);
        else if (kind == 'p')
            QCOMPARE(mkfifo(path.constData(), 0600), 0);
        else if (kind == 's')
            LeaveSocket(name);
        else if (kind == 'l')
            QCOMPARE(symlink(elsewhere.constData(), path.constData()), 0);
        else
            QCOMPARE(mkdir(path.constData(), 0700), 0);
        SingleInstance first(m_folder->path());
        Serve(first);
        const auto outcome = StartSecond({ u"Pantry"_s, {} }, isHeard ? 1 : kLittle);
        QCOMPARE(outcome == Outcome::HandedOver, isHeard);
        // Nothing is made where a link leads.
        QVERIFY(!QFile::exists(QFile::decodeName(elsewhere)));
    }

    void aBusyProgramIsLeftToAnswerLater()
    {
        const QByteArray lock = QFile::encodeName(m_folder->filePath(u"lock"_s));
        const int held = open(lock.constData(), O_CREAT | O_RDWR, 0600);
        QCOMPARE(flock(held, LOCK_EX), 0);
        QLocalServer busy;
        QVERIFY(busy.listen(m_folder->filePath(u"socket"_s)));
        SingleInstance second(m_folder->path(), kLittle);
        QCOMPARE(second.Start({}), Outcome::HandedOverUnanswered);
        close(held);
    }

    void theFolderIsThisUsersAlone()
    {
        qputenv("XDG_RUNTIME_DIR", m_folder->path().toLocal8Bit());
        const QString folder = SingleInstance::Folder();
        QCOMPARE(folder, m_folder->filePath(u"quillory"_s));
        QCOMPARE(SingleInstance::Folder(u"key"_s), m_folder->filePath(u"quillory/key"_s));
        // The temporary folder takes its place when others could reach into it.
        qputenv("TMPDIR", m_folder->path().toLocal8Bit());
        QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0755), 0);
        const QString fallback = SingleInstance::Folder();
        QVERIFY(fallback.startsWith(m_folder->filePath(u"quillory-"_s)));
        QCOMPARE(chmod(QFile::encodeName(fallback).constData(), 0777), 0);
        QCOMPARE(SingleInstance::Folder(), QString());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::vector<StartRequest> m_requests;

    void Serve(SingleInstance& first)
    {
        QCOMPARE(first.Start({}), Outcome::Alone);
        first.SetHandler([this](const StartRequest& request) {
            m_requests.push_back(request);
            return request.listName == u"Pantry" || request.listName.isEmpty()
                ? StartAnswer::Done
                : StartAnswer::UnknownList;
        });
    }

    /// A start that waits, while the first instance goes on.
    Outcome StartSecond(const StartRequest& request, double patience = 1)
    {
        std::optional<Outcome> outcome;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            SingleInstance second(m_folder->path(), patience);
            outcome = second.Start(request);
        }));
        thread->start();
        while (!thread->wait(QDeadlineTimer(1)))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return outcome.value_or(Outcome::Alone);
    }

    /// A process that is killed leaves its socket without anyone behind it.
    void LeaveSocket(const QString& name) const
    {
        QLocalServer killed;
        const QString path = m_folder->filePath(u"killed"_s);
        QVERIFY(killed.listen(path) && QFile::rename(path, m_folder->filePath(name)));
    }

    std::unique_ptr<QLocalSocket> Connect()
    {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(m_folder->filePath(u"socket"_s));
        return socket;
    }
};

} // namespace

QUILLORY_TEST(QCoreApplication, SingleInstanceTest)

#include "single_instance_test.moc"
