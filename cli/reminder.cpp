// SPDX-License-Identifier: MIT
#include "cli/reminder.h"

#include "store/user_folders.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTimer>
#include <QVariantMap>

#include <algorithm>
#include <iterator>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kService = "org.freedesktop.Notifications"_L1;
constexpr auto kPath = "/org/freedesktop/Notifications"_L1;
/// The key of a button is this and the number of its list.
constexpr auto kListKey = "list-"_L1;
constexpr auto kDefaultKey = "default"_L1;

/// A row as the memory has it, on one line.
QString LineOf(const ReminderRow& row)
{
    QString line = row.list + u'\t' + row.row + u'\t' + row.state;
    std::ranges::replace(line, u'\n', u' ');
    return line;
}

QStringList ListsOf(const QList<ReminderRow>& rows)
{
    QStringList lists;
    for (const ReminderRow& row : rows) {
        if (!lists.contains(row.list))
            lists << row.list;
    }
    return lists;
}

QString Heading(const QList<ReminderRow>& rows)
{
    if (rows.size() > 1)
        return u"%1 rows are due"_s.arg(rows.size());
    const ReminderRow& row = rows.front();
    const QString verb = row.state == u"expired" ? u"has"_s : u"is"_s;
    return u"%1 %2 %3"_s.arg(row.row, verb, row.state);
}

/// A line per list with its first rows. Some desktops take markup here.
QString Body(const QList<ReminderRow>& rows)
{
    constexpr int kMostRows = 5;
    QStringList lines;
    for (const QString& list : ListsOf(rows)) {
        QStringList words;
        int rest = 0;
        for (const ReminderRow& row : rows) {
            if (row.list != list)
                continue;
            if (words.size() < kMostRows)
                words << u"%1 (%2)"_s.arg(row.row, row.state);
            else
                ++rest;
        }
        if (rest > 0)
            words << u"and %1 more"_s.arg(rest);
        lines << list + u": "_s + words.join(u", "_s);
    }
    return lines.join(u'\n').toHtmlEscaped();
}

/// A notification on the screen, and what becomes of it.
class Notification : public QObject
{
    Q_OBJECT

public:
    explicit Notification(const QStringList& lists)
        : m_lists(lists)
    { }

    ReminderAnswer Show(QDBusConnection& bus, const QList<ReminderRow>& rows, int mostMs,
        const std::function<void()>& shown)
    {
        // Before it can be answered. The sender goes unnamed, for a service may start anew.
        bus.connect(
            QString(), kPath, kService, u"ActionInvoked"_s, this, SLOT(TakeAction(uint, QString)));
        bus.connect(
            QString(), kPath, kService, u"ActivationToken"_s, this, SLOT(TakeToken(uint, QString)));
        bus.connect(
            QString(), kPath, kService, u"NotificationClosed"_s, this, SLOT(TakeEnd(uint, uint)));
        auto call = QDBusMessage::createMethodCall(kService, kPath, kService, u"Notify"_s);
        const QVariantMap hints { { u"desktop-entry"_s, u"org.quillory.Quillory"_s } };
        constexpr int kDesktopsOwnTime = -1;
        call << u"Quillory"_s << 0U << u"org.quillory.Quillory"_s << Heading(rows) << Body(rows)
             << Actions() << hints << kDesktopsOwnTime;
        QDBusPendingCallWatcher watcher(bus.asyncCall(call));
        connect(&watcher, &QDBusPendingCallWatcher::finished, this, [&] {
            const QDBusPendingReply<uint> reply = watcher;
            if (reply.isError())
                return End({ {}, {}, reply.error().message() });
            m_id = reply.value();
            shown();
        });
        QTimer::singleShot(mostMs, &m_loop, &QEventLoop::quit);
        m_loop.exec();
        return m_answer;
    }

private Q_SLOTS:
    void TakeAction(uint id, const QString& key)
    {
        const bool isNamed = key.startsWith(kListKey);
        if (id == m_id && (isNamed || key == kDefaultKey))
            End({ m_lists.value(isNamed ? key.sliced(kListKey.size()).toInt() : 0),
                m_answer.activationToken, {} });
    }
    void TakeToken(uint id, const QString& token)
    {
        if (id == m_id)
            m_answer.activationToken = token;
    }
    void TakeEnd(uint id, uint /*reason*/)
    {
        if (id == m_id)
            m_loop.quit();
    }

private:
    QStringList m_lists;
    uint m_id = 0;
    ReminderAnswer m_answer;
    QEventLoop m_loop;

    [[nodiscard]] QStringList Actions() const
    {
        // Desktops show no more.
        constexpr qsizetype kMostButtons = 3;
        QStringList actions { kDefaultKey, u"Open"_s };
        for (qsizetype i = 0; i < std::min(m_lists.size(), kMostButtons); ++i)
            actions << kListKey + QString::number(i) << m_lists[i];
        return actions;
    }
    void End(const ReminderAnswer& answer)
    {
        m_answer = answer;
        m_loop.quit();
    }
};

} // namespace

ReminderMemory::ReminderMemory(const QString& path)
    : m_path(path)
{
    constexpr qint64 kMostBytes = 16LL * 1024 * 1024;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(file.read(kMostBytes)).split(u'\n');
    m_toldOn = lines.front();
    m_lines = QSet<QString>(lines.begin() + 1, lines.end());
}

bool ReminderMemory::WasToldOn(QDate day) const
{
    return m_toldOn == day.toString(Qt::ISODate);
}

QList<ReminderRow> ReminderMemory::NewsIn(const QList<ReminderRow>& due) const
{
    QList<ReminderRow> news;
    std::ranges::copy_if(due, std::back_inserter(news),
        [this](const ReminderRow& row) { return !m_lines.contains(LineOf(row)); });
    return news;
}

bool ReminderMemory::Store(const QList<ReminderRow>& due, std::optional<QDate> toldOn) const
{
    QStringList lines { toldOn ? toldOn->toString(Qt::ISODate) : m_toldOn };
    for (const ReminderRow& row : due)
        lines << LineOf(row);
    QSaveFile file(m_path);
    return MakeUserFolder(QFileInfo(m_path).absolutePath()) && file.open(QIODevice::WriteOnly)
        && file.setPermissions(kOwnerOnly) && file.write(lines.join(u'\n').toUtf8()) >= 0
        && file.commit();
}

ReminderAnswer Remind(QDBusConnection bus, const QList<ReminderRow>& rows, int mostMs,
    const std::function<void()>& shown)
{
    Notification notification(ListsOf(rows));
    return notification.Show(bus, rows, mostMs, shown);
}

} // namespace Quillory

#include "reminder.moc"
