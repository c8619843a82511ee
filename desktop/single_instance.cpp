// SPDX-License-Identifier: MIT
#include "desktop/single_instance.h"

#include "store/inventory_list.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
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

/// A request is the greeting, the list's name, the token and the word for a new list or nothing,
/// each ended by a NUL.
constexpr qsizetype kFieldCount = 4;
constexpr QByteArrayView kNewList = "new";

QByteArray WriteRequest(const StartRequest& request)
{
    QByteArray message;
    message.append(kGreeting).append('\0');
    // No list has a longer name, and what is shorter fits into a message.
    const QString listName = request.listName.left(kMaxListNameLength + 1);
    message.append(listName.toUtf8()).append('\0');
    message.append(request.activationToken.toUtf8()).append('\0');
    message.append(request.isNewList ? kNewList : QByteArrayView()).append('\0');
    return message;
}

std::optional<StartRequest> ParseRequest(const QByteArray& message)
{
    const QList<QByteArray> fields = message.split('\0');
    if (fields.size() != kFieldCount + 1 || fields[0] != kGreeting || !fields.back().isEmpty())
        return std::nullopt;
    return StartRequest { QString::fromUtf8(fields[1]), QString::fromUtf8(fields[2]),
        fields[3] == kNewList };
}

/// Whether what has come so far may become a request.
bool IsBeginOfRequest(const QByteArray& message)
{
    const qsizetype common = std::min(message.size(), kGreeting.size());
    return message.size() <= kMaxMessage && message.count('\0') < kFieldCount
        && QByteArrayView(message).first(common) == kGreeting.first(common);
}

bool IsOwnPeer(int socket)
{
    ucred peer {};
    socklen_t size = sizeof(peer);
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

using AddressCall = int (*)(int socket, const sockaddr* address, socklen_t size);

/// Calls connect() or bind(); false, and errno tells why, if that fails.
bool CallWithAddress(AddressCall call, int socket, const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    if (std::cmp_greater_equal(name.size(), sizeof(address.sun_path))) {
        errno = ENAMETOOLONG;
        return false;
    }
    std::memcpy(address.sun_path, name.constData(), static_cast<size_t>(name.size()));
    return call(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

/// For how long the next calls on a socket wait at most.
void SetPatience(int socket, const QDeadlineTimer& deadline)
{
    // No time at all would be for ever.
    const qint64 ms = std::max<qint64>(deadline.remainingTime(), 1);
    const timeval time { ms / 1000, ms % 1000 * 1000 };
    for (const int direction : { SO_SNDTIMEO, SO_RCVTIMEO })
        setsockopt(socket, SOL_SOCKET, direction, &time, sizeof(time));
}

/// False if it could not be sent until then.
bool SendAll(int socket, QByteArrayView bytes, const QDeadlineTimer& deadline)
{
    while (!bytes.isEmpty()) {
        SetPatience(socket, deadline);
        const ssize_t sent
            = send(socket, bytes.data(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        bytes = bytes.sliced(sent);
    }
    return true;
}

/// What was received, and whether there may be more.
struct Received
{
    QByteArray bytes;
    bool isOpen = true;
};

Received Receive(int socket)
{
    std::array<char, 4096> piece {};
    const ssize_t size = recv(socket, piece.data(), piece.size(), 0);
    if (size > 0)
        return { QByteArray(piece.data(), size), true };
    return { {}, size < 0 && (errno == EAGAIN || errno == EINTR) };
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
{ }

SingleInstance::~SingleInstance()
{
    for (QSocketNotifier* socket : findChildren<QSocketNotifier*>())
        Drop(socket);
    if (m_lock < 0)
        return;
    QFile::remove(m_folder + u"/socket"_s);
    close(m_lock);
}

QString SingleInstance::Folder(const QString& key)
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QString folder = runtime + u"/quillory"_s;
    if (!QDir::isAbsolutePath(runtime) || !IsPrivateFolder(folder))
        folder = QDir::tempPath() + u"/quillory-%1"_s.arg(geteuid());
    if (!IsPrivateFolder(folder))
        return {};
    if (!key.isEmpty())
        folder += u'/' + key;
    return IsPrivateFolder(folder) ? folder : QString();
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
    QFile::remove(path);
    const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    // Nobody can connect before it listens.
    if (!CallWithAddress(bind, server, path)
        || chmod(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) != 0
        || listen(server, kMaxConnections) != 0) {
        std::fprintf(
            stderr, "quillory: later starts cannot be received: %s\n", std::strerror(errno));
        close(server);
        return;
    }
    auto* arrivals = new QSocketNotifier(server, QSocketNotifier::Read, this);
    connect(arrivals, &QSocketNotifier::activated, this, [this, arrivals] { Accept(*arrivals); });
}

std::optional<SingleInstance::Outcome> SingleInstance::HandOver(const StartRequest& request) const
{
    const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto closing = qScopeGuard([connection] { close(connection); });
    SetPatience(connection, QDeadlineTimer(Patiently(kConnectLimitMs)));
    if (!CallWithAddress(::connect, connection, m_folder + u"/socket"_s) || !IsOwnPeer(connection))
        return std::nullopt;
    const QDeadlineTimer deadline(Patiently(kAnswerLimitMs));
    if (!SendAll(connection, WriteRequest(request), deadline))
        return std::nullopt;
    QByteArray answer;
    Received received;
    while (received.isOpen && !deadline.hasExpired() && answer.size() <= kUnknownList.size()
        && !answer.endsWith('\n')) {
        SetPatience(connection, deadline);
        received = Receive(connection);
        answer += received.bytes;
    }
    if (answer == kDone)
        return Outcome::HandedOver;
    if (answer == kUnknownList)
        return Outcome::HandedOverUnknownList;
    // A connection that was cut has lost the request; one that stands will be served in time.
    if (received.isOpen)
        return Outcome::HandedOverUnanswered;
    return std::nullopt;
}

void SingleInstance::Accept(QSocketNotifier& arrivals)
{
    for (;;) {
        const int connection = accept4(
            static_cast<int>(arrivals.socket()), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (connection < 0) {
            // What cannot be taken would be announced without end.
            if (errno == EMFILE || errno == ENFILE)
                arrivals.setEnabled(false);
            return;
        }
        if (m_connections == kMaxConnections || !IsOwnPeer(connection)) {
            close(connection);
            continue;
        }
        ++m_connections;
        auto* socket = new QSocketNotifier(connection, QSocketNotifier::Read, this);
        connect(socket, &QSocketNotifier::activated, this,
            [this, socket, message = QByteArray()]() mutable { ReadRequest(socket, message); });
        QTimer::singleShot(Patiently(kRequestLimitMs), socket, [this, socket] { Drop(socket); });
    }
}

void SingleInstance::ReadRequest(QSocketNotifier* socket, QByteArray& message)
{
    const auto connection = static_cast<int>(socket->socket());
    const Received received = Receive(connection);
    message += received.bytes;
    if (received.isOpen && IsBeginOfRequest(message))
        return;
    // Whatever comes while the request is carried out, this is the end of it.
    socket->setEnabled(false);
    const std::optional<StartRequest> request = ParseRequest(message);
    if (request && message.size() <= kMaxMessage) {
        const StartAnswer answer = m_handler ? m_handler(*request) : StartAnswer::Done;
        const QByteArrayView line = answer == StartAnswer::Done ? kDone : kUnknownList;
        static_cast<void>(
            send(connection, line.data(), static_cast<size_t>(line.size()), MSG_NOSIGNAL));
    }
    Close(socket);
}

void SingleInstance::Drop(QSocketNotifier* socket)
{
    if (!socket->isEnabled())
        return;
    socket->setEnabled(false);
    Close(socket);
}

void SingleInstance::Close(QSocketNotifier* socket)
{
    close(static_cast<int>(socket->socket()));
    socket->deleteLater();
    --m_connections;
}

} // namespace Quillory
