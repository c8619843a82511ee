#include "app/single_instance.h"

#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include <thread>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

using Outcome = SingleInstance::Outcome;

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aSecondStartHandsItsRequestOver_data();
    void aSecondStartHandsItsRequestOver();
    void whatIsNoRequestIsDropped_data();
    void whatIsNoRequestIsDropped();
    void idleConnectionsDoNotKeepOthersOut();
    void aSocketLeftBehindIsReplaced();
    void theFolderIsThisUsersAlone();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::vector<StartRequest> m_requests;

    void Serve(SingleInstance& first);
    Outcome StartSecond(const StartRequest& request);
    std::unique_ptr<QLocalSocket> Connect();
};

void SingleInstanceTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_requests.clear();
}

void SingleInstanceTest::Serve(SingleInstance& first)
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
Outcome SingleInstanceTest::StartSecond(const StartRequest& request)
{
    std::optional<Outcome> outcome;
    const std::unique_ptr<QThread> thread(QThread::create([this, &request, &outcome] {
        SingleInstance second(m_folder->path());
        outcome = second.Start(request);
    }));
    thread->start();
    while (!thread->wait(QDeadlineTimer(1)))
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return outcome.value_or(Outcome::Alone);
}

std::unique_ptr<QLocalSocket> SingleInstanceTest::Connect()
{
    auto socket = std::make_unique<QLocalSocket>();
    socket->connectToServer(m_folder->filePath(u"socket"_s));
    return socket;
}

void SingleInstanceTest::aSecondStartHandsItsRequestOver_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<Outcome>("outcome");
    QTest::newRow("known list") << u"Pantry"_s << Outcome::HandedOver;
    QTest::newRow("no list") << QString() << Outcome::HandedOver;
    QTest::newRow("unknown list") << u"Vorräte 備"_s << Outcome::HandedOverUnknownList;
}

void SingleInstanceTest::aSecondStartHandsItsRequestOver()
{
    QFETCH(QString, list);
    SingleInstance first(m_folder->path());
    Serve(first);
    QTEST(StartSecond({ list, u"token"_s }), "outcome");
    QCOMPARE(m_requests.size(), 1U);
    QCOMPARE(m_requests[0].listName, list);
    QCOMPARE(m_requests[0].activationToken, u"token"_s);
}

void SingleInstanceTest::whatIsNoRequestIsDropped_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("nothing") << ""_ba;
    QTest::newRow("another protocol") << "GET / HTTP/1.1\r\n\r\n"_ba;
    QTest::newRow("NULs") << QByteArray(100, '\0');
    QTest::newRow("half a request") << QByteArray("quillory\0Pan", 12);
    QTest::newRow("a field too many") << QByteArray("quillory\0Pantry\0\0x\0", 19);
    QTest::newRow("64 MB in a name") << QByteArray("quillory\0", 9) + QByteArray(1 << 26, 'x');
}

void SingleInstanceTest::whatIsNoRequestIsDropped()
{
    QFETCH(QByteArray, message);
    SingleInstance first(m_folder->path());
    Serve(first);
    const std::unique_ptr<QLocalSocket> socket = Connect();
    QVERIFY(socket->waitForConnected());
    socket->write(message);
    QTRY_COMPARE_WITH_TIMEOUT(socket->state(), QLocalSocket::UnconnectedState, 3000);
    QCOMPARE(m_requests.size(), 0U);
    QCOMPARE(StartSecond({ u"Pantry"_s, {} }), Outcome::HandedOver);
}

void SingleInstanceTest::idleConnectionsDoNotKeepOthersOut()
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

void SingleInstanceTest::aSocketLeftBehindIsReplaced()
{
    {
        QLocalServer killed;
        QVERIFY(killed.listen(m_folder->filePath(u"killed"_s)));
        // A process that was killed leaves its socket without anyone behind it.
        QVERIFY(QFile::rename(m_folder->filePath(u"killed"_s), m_folder->filePath(u"socket"_s)));
    }
    SingleInstance first(m_folder->path());
    Serve(first);
    QCOMPARE(StartSecond({ u"Pantry"_s, {} }), Outcome::HandedOver);
}

void SingleInstanceTest::theFolderIsThisUsersAlone()
{
    qputenv("XDG_RUNTIME_DIR", m_folder->path().toLocal8Bit());
    const QString folder = SingleInstance::Folder();
    QCOMPARE(folder, m_folder->filePath(u"quillory"_s));
    // The temporary folder takes its place when others could reach into it.
    qputenv("TMPDIR", m_folder->path().toLocal8Bit());
    QCOMPARE(chmod(QFile::encodeName(folder).constData(), 0755), 0);
    const QString fallback = SingleInstance::Folder();
    QVERIFY(fallback.startsWith(m_folder->filePath(u"quillory-"_s)));
    QCOMPARE(chmod(QFile::encodeName(fallback).constData(), 0777), 0);
    QCOMPARE(SingleInstance::Folder(), QString());
}

} // namespace

QTEST_GUILESS_MAIN(SingleInstanceTest)

#include "single_instance_test.moc"
