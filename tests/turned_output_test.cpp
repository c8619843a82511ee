// SPDX-License-Identifier: MIT
#include "app/turned_output.h"
#include "tests/file_bytes.h"
#include "tests/test_program.h"

#include <QTemporaryDir>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

class TurnedOutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHandsTurnToDifferentSides();
    void aNoteIsReadAsItWasWritten();
    void whatCannotBeNotedLeavesTheEarlierNote_data();
    void whatCannotBeNotedLeavesTheEarlierNote();
    void anythingButAWholeNoteIsNone_data();
    void anythingButAWholeNoteIsNone();

private:
    QTemporaryDir m_folder;

    QString Path() const { return m_folder.filePath(u"turned-output"_s); }
};

void TurnedOutputTest::theHandsTurnToDifferentSides()
{
    QCOMPARE(TurnsOf(1), 1);
    QCOMPARE(TurnsOf(4), 3);
    // The options show every other code as the left hand.
    QCOMPARE(TurnsOf(0), 3);
}

void TurnedOutputTest::aNoteIsReadAsItWasWritten()
{
    const TurnedOutput first { u":0.0"_s, u"eDP-1"_s, 0, 1 };
    const TurnedOutput second { u"host:1"_s, u"Bildschirm ü = 1"_s, 2, 3 };
    QVERIFY(!ReadTurnedOutput(Path()));
    for (const TurnedOutput& turned : { first, second }) {
        QVERIFY(WriteTurnedOutput(Path(), turned));
        QCOMPARE(ReadTurnedOutput(Path()), turned);
    }
}

void TurnedOutputTest::whatCannotBeNotedLeavesTheEarlierNote_data()
{
    QTest::addColumn<QString>("display");
    QTest::addColumn<QString>("output");
    QTest::newRow("no display") << QString() << u"DSI-1"_s;
    QTest::newRow("no output") << u":0"_s << QString();
    QTest::newRow("a line end in the name") << u":0"_s << u"DSI\n1"_s;
    QTest::newRow("a NUL in the name") << u":0"_s << u"DSI"_s + QChar(0);
}

void TurnedOutputTest::whatCannotBeNotedLeavesTheEarlierNote()
{
    QFETCH(const QString, display);
    QFETCH(const QString, output);
    const TurnedOutput earlier { u":0"_s, u"DSI-1"_s, 0, 3 };
    QVERIFY(WriteTurnedOutput(Path(), earlier));
    QVERIFY(!WriteTurnedOutput(Path(), { display, output, 0, 1 }));
    QCOMPARE(ReadTurnedOutput(Path()), earlier);
}

void TurnedOutputTest::anythingButAWholeNoteIsNone_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray first = "quillory turned output 1\n";
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut") << first + ":0\nDSI-1\n0\n";
    QTest::newRow("cut in its last line") << first + ":0\nDSI-1\n0\n1";
    QTest::newRow("another version") << QByteArray("quillory turned output 2\n:0\nDSI-1\n0\n1\n");
    QTest::newRow("five quarters") << first + ":0\nDSI-1\n0\n5\n";
    QTest::newRow("no number") << first + ":0\nDSI-1\n\n1\n";
    QTest::newRow("no output") << first + ":0\n\n0\n1\n";
    QTest::newRow("more than a note") << first + ":0\nDSI-1\n0\n1\nmore\n";
    QTest::newRow("too large") << first + ':' + QByteArray(8192, '0') + "\nDSI-1\n0\n1\n";
}

void TurnedOutputTest::anythingButAWholeNoteIsNone()
{
    QFETCH(const QByteArray, content);
    WriteFileBytes(Path(), content);
    QVERIFY(!ReadTurnedOutput(Path()));
}

} // namespace

QUILLORY_TEST(QCoreApplication, TurnedOutputTest)
#include "turned_output_test.moc"
