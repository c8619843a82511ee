// SPDX-License-Identifier: MIT
#include "desktop/single_instance.h"

#include "store/inventory_list.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kAttempts = 25;
constexpr int kAttemptIntervalMs = 100;
constexpr int kConnectLimitMs = 100;
constexpr int kAnswerLimitMs = 2500;
/// A connection that has not sent its request by then is dropped.
constexpr int kRequestLimitMs = 1000;
constexpr qsizetype kMaxMessage = 64LL * 1024;
constexpr qsizetype kMaxConnections = 16;

constexpr QByteArrayView kGreeting = "quillory";
constexpr QByteArrayView kDone = "done\n";
constexpr QByteArrayView kUnknownList = "unknown\n";

/// A request is the greeting, the list's name and the token, each ended by a NUL.
constexpr qsizetype kFieldCount = 3;

QByteArray WriteRequest(const StartRequest& request)
{
    QByteArray message;
    message.append(kGreeting).append('\0');
    // No list has a longer name, and what is shorter fits into a message.
    const QString listName = request.listName.left(kMaxListNameLength + 1);
    message.append(listName.toUtf8()).append('\0');
    message.append(request.activationToken.toUtf8()).append('\0');
    return message;
}

std::optional<StartRequest> ParseRequest(const QByteArray& message)
{
    const QList<QByteArray> fields = message.split('\0');
    if (fields.size() != kFieldCount + 1 || fields[0] != kGreeting || !fields[3].isEmpty())
        return std::nullopt;
    return StartRequest { QString::fromUtf8(fields[1]), QString::fromUtf8(fields[2]) };
}

/// Whether what has come so far may become a request.
bool IsBeginOfRequest(const QByteArray& message)
{
    const qsizetype common = std::min(message.size(), kGreeting.size());
    return message.size() <= kMaxMessage && message.count('\0') < kFieldCount
        && QByteArrayView(message).first(common) == kGreeting.first(common);
}

bool IsOwnPeer(const QLocalSocket& socket)
{
    ucred peer {};
    socklen_t size = sizeof(peer);
    return getsockopt(
               static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer, &size)
        == 0
        && peer.uid == geteuid();
}

/// Makes the folder if need be; true if nobody else can look into it or replace what is in it.
bool IsPrivateFolder(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    static_cast<void>(mkdir(name.constData(), 0700));
    struct stat status
    { };
    return lstat(name.constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == geteuid() && (status.st_mode & 0077) == 0;
}

} // namespace

void NoteUnknownList(const QString& name)
{
    std::fprintf(stderr, "quillory: there is no list “%s”\n", qUtf8Printable(name));
}

SingleInstance::SingleInstance(const QString& folder, double patience)
    : m_folder(folder)
    , m_patience(patience)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(kMaxConnections);
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::AcceptConnections);
}

SingleInstance::~SingleInstance()
{
    m_server.close();
    if (m_lock >= 0)
        close(m_lock);
}

QString SingleInstance::Folder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(runtime) && IsPrivateFolder(runtime + u"/quillory"_s))
        return runtime + u"/quillory"_s;
    const QString own = QDir::tempPath() + u"/quillory-%1"_s.arg(geteuid());
    return IsPrivateFolder(own) ? own : QString();
}

SingleInstance::Outcome SingleInstance::Start(const StartRequest& request)
{
    if (m_folder.isEmpty())
        return Outcome::Alone;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (TakeLock()) {
            Listen();
            return Outcome::Alone;
        }
        if (const std::optional<Outcome> outcome = HandOver(request))
            return *outcome;
        QThread::msleep(static_cast<unsigned long>(Patiently(kAttemptIntervalMs)));
    }
    return Outcome::Alone;
}

void SingleInstance::SetHandler(Handler handler)
{
    m_handler = std::move(handler);
}

int SingleInstance::Patiently(int usualMs) const
{
    return static_cast<int>(m_patience * usualMs);
}

bool SingleInstance::TakeLock()
{
    const QByteArray name = QFile::encodeName(m_folder + u"/lock"_s);
    const int file = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0)
        return false;
    // The kernel lets go of it when the process ends, however it ends.
    if (flock(file, LOCK_EX | LOCK_NB) != 0) {
        close(file);
        return false;
    }
    m_lock = file;
    return true;
}

void SingleInstance::Listen()
{
    const QString path = m_folder + u"/socket"_s;
    // Whoever holds the lock knows that nobody listens there any more.
    QLocalServer::removeServer(path);
    if (!m_server.listen(path))
        qWarning("quillory: later starts cannot be received: %s",
            qUtf8Printable(m_server.errorString()));
}

std::optional<SingleInstance::Outcome> SingleInstance::HandOver(const StartRequest& request) const
{
    QLocalSocket socket;
    socket.connectToServer(m_folder + u"/socket"_s);
    if (!socket.waitForConnected(Patiently(kConnectLimitMs)) || !IsOwnPeer(socket))
        return std::nullopt;
    QDeadlineTimer deadline(Patiently(kAnswerLimitMs));
    socket.write(WriteRequest(request));
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime())))
            return std::nullopt;
    }
    while (!socket.canReadLine() && socket.bytesAvailable() <= kUnknownList.size()) {
        if (!socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            break;
    }
    const QByteArray answer = socket.readLine();
    if (answer == kDone)
        return Outcome::HandedOver;
    if (answer == kUnknownList)
        return Outcome::HandedOverUnknownList;
    // A connection that was cut has lost the request; one that stands will be served in time.
    if (socket.state() == QLocalSocket::ConnectedState)
        return Outcome::HandedOverUnanswered;
    return std::nullopt;
}

void SingleInstance::AcceptConnections()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto open = m_server.findChildren<QLocalSocket*>(Qt::FindDirectChildrenOnly).size();
        if (open > kMaxConnections || !IsOwnPeer(*socket)) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        socket->setReadBufferSize(kMaxMessage + 1);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { ReadRequest(socket); });
        QTimer::singleShot(Patiently(kRequestLimitMs), socket, [socket] { socket->abort(); });
        ReadRequest(socket);
    }
}

void SingleInstance::ReadRequest(QLocalSocket* socket)
{
    const QByteArray message = socket->peek(kMaxMessage + 1);
    if (IsBeginOfRequest(message))
        return;
    const std::optional<StartRequest> request = ParseRequest(message);
    if (!request || message.size() > kMaxMessage)
        return socket->abort();
    socket->readAll();
    const StartAnswer answer = m_handler ? m_handler(*request) : StartAnswer::Done;
    const QByteArrayView line = answer == StartAnswer::Done ? kDone : kUnknownList;
    socket->write(line.data(), line.size());
    socket->disconnectFromServer();
}

} // namespace Quillory
