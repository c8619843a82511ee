// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QSocketNotifier;

namespace Quillory {

/// What a second start asks of the running program.
struct StartRequest
{
    /// The list to open; empty to come to the front only.
    QString listName;
    /// The desktop's permission to come to the front; empty if there is none.
    QString activationToken;
    /// The page of a new list is to be opened.
    bool isNewList = false;

    /// Whether more is asked for than to come to the front.
    [[nodiscard]] bool NamesPage() const { return isNewList || !listName.isEmpty(); }
};

/// How the running program answered.
enum class StartAnswer
{
    Done,
    UnknownList,
};

/// Says on standard error that there is no list so named.
void NoteUnknownList(const QString& name);

/// Keeps the program to one process per user and data file: a lock file tells who is first, and a
/// local socket beside it brings the requests of later starts to the first one.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `folder` belongs to this user alone; empty if there is none, and every start is the only
    /// one. Waits for others this many times as long as it usually does.
    explicit SingleInstance(const QString& folder, double patience = 1);
    ~SingleInstance() override;

    /// The folder for lock and socket in the runtime folder, or else in the temporary one; made if
    /// missing. Empty if neither can be had or another user could reach into it. One of its own
    /// within that for a data file that is not the configured one, by its key.
    [[nodiscard]] static QString Folder(const QString& key = {});

    enum class Outcome
    {
        /// This process is the only one, or no other could be reached.
        Alone,
        HandedOver,
        HandedOverUnknownList,
        /// The running program took the request and has not answered yet.
        HandedOverUnanswered,
    };
    /// Becomes the first process, or hands `request` to the one that is. Takes 2.5 seconds where
    /// there is another that cannot be reached.
    [[nodiscard]] Outcome Start(const StartRequest& request);

    /// Who carries requests out.
    using Handler = std::function<StartAnswer(const StartRequest&)>;
    void SetHandler(Handler handler);

private:
    QString m_folder;
    double m_patience;
    int m_lock = -1;
    qsizetype m_connections = 0;
    Handler m_handler;

    [[nodiscard]] int Patiently(int usualMs) const;
    [[nodiscard]] bool TakeLock();
    void Listen();
    [[nodiscard]] std::optional<Outcome> HandOver(const StartRequest& request) const;
    void Accept(QSocketNotifier& arrivals);
    /// Carries a request out once `message` holds all of it.
    void ReadRequest(QSocketNotifier* socket, QByteArray& message);
    /// Closes a socket unless its request is being carried out, or was.
    void Drop(QSocketNotifier* socket);
    void Close(QSocketNotifier* socket);
};

} // namespace Quillory
