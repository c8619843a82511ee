// SPDX-License-Identifier: MIT
#include "cli/reminder.h"
#include "tests/test_program.h"

#include <QDBusMessage>
#include <QDBusServer>
#include <QTemporaryDir>
#include <QTimer>

namespace {

const QList<ReminderRow> kReminded { { u"Pantry"_s, u"Salt & <b>"_s, u"low"_s },
    { u"Drugs"_s, u"Pills"_s, u"expired"_s }, { u"Pantry"_s, u"Tea"_s, u"low"_s } };

/// The desktop's side: shows nothing and answers by a key.
class Desktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QString answer;
    QStringList shown;

public Q_SLOTS:
    uint Notify(const QString& program, uint /*replaces*/, const QString& /*icon*/,
        const QString& heading, const QString& body, const QStringList& actions,
        const QVariantMap& /*hints*/, int /*time*/)
    {
        shown = QStringList { program, heading, body } + actions;
        QTimer::singleShot(0, this, [this] {
            // Those of others are none of ours.
            Q_EMIT NotificationClosed(kId + 1, 1);
            Q_EMIT ActionInvoked(kId + 1, u"default"_s);
            if (answer.isEmpty())
                return Q_EMIT NotificationClosed(kId, 2);
            Q_EMIT ActivationToken(kId, u"may come"_s);
            Q_EMIT ActionInvoked(kId, answer);
        });
        return kId;
    }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString& key);
    void ActivationToken(uint id, const QString& token);
    void NotificationClosed(uint id, uint reason);

private:
    static constexpr uint kId = 7;
};

} // namespace

class ReminderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAnswerOpensItsList()
    {
        QDBusServer server;
        Desktop desktop;
        connect(&server, &QDBusServer::newConnection, this, [&desktop](QDBusConnection peer) {
            peer.registerObject(u"/org/freedesktop/Notifications"_s, &desktop,
                QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        });
        const QDBusConnection bus = QDBusConnection::connectToPeer(server.address(), u"desktop"_s);
        QTRY_VERIFY(bus.isConnected());
        for (const auto& [answer, list] : { std::pair(u"default"_s, u"Pantry"_s),
                 { u"list-1"_s, u"Drugs"_s }, { u"list-9"_s, u""_s }, { u""_s, u""_s } }) {
            desktop.answer = answer;
            int shown = 0;
            const ReminderAnswer heard = Remind(bus, kReminded, 10000, [&shown] { ++shown; });
            QCOMPARE(heard.list, list);
            QCOMPARE(heard.failure, QString());
            QCOMPARE(heard.activationToken, answer.isEmpty() ? QString() : u"may come"_s);
            QCOMPARE(shown, 1);
        }
        QCOMPARE(desktop.shown,
            (QStringList { u"Quillory"_s, u"3 rows are due"_s,
                u"Pantry: Salt &amp; &lt;b&gt; (low), Tea (low)\nDrugs: Pills (expired)"_s,
                u"default"_s, u"Open"_s, u"list-0"_s, u"Pantry"_s, u"list-1"_s, u"Drugs"_s }));
        static_cast<void>(Remind(bus, kReminded.mid(1, 1), 10000, [] {}));
        QCOMPARE(desktop.shown[1], u"Pills has expired"_s);
        QDBusConnection::disconnectFromPeer(u"desktop"_s);
    }

    void onlyNewsAreToldOnceADay()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"quillory/reminded"_s);
        const QDate monday(2026, 6, 15);
        QCOMPARE(ReminderMemory(path).NewsIn(kReminded).size(), 3);
        QVERIFY(ReminderMemory(path).Store(kReminded.mid(1), monday));
        QVERIFY(ReminderMemory(path).WasToldOn(monday));
        QVERIFY(!ReminderMemory(path).WasToldOn(monday.addDays(1)));
        QCOMPARE(ReminderMemory(path).NewsIn(kReminded).size(), 1);
        QCOMPARE(ReminderMemory(path).NewsIn(kReminded).front().row, u"Salt & <b>"_s);
        // What was bought and ran low again is news; the day stays.
        QVERIFY(ReminderMemory(path).Store({}));
        QVERIFY(ReminderMemory(path).WasToldOn(monday));
        QCOMPARE(ReminderMemory(path).NewsIn(kReminded).size(), 3);
    }
};

QUILLORY_TEST(QCoreApplication, ReminderTest)
#include "reminder_test.moc"
