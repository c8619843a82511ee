// SPDX-License-Identifier: MIT
#include "app/turned_output.h"
#include "tests/file_bytes.h"
#include "tests/test_program.h"

#include <QTemporaryDir>

#include <utility>

namespace {

class TurnedOutputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHandsTurnToDifferentSides()
    {
        QCOMPARE(TurnsOf(1), 1);
        QCOMPARE(TurnsOf(4), 3);
        // The options show every other code as the left hand.
        QCOMPARE(TurnsOf(0), 3);
    }

    void aNoteIsReadAsItWasWritten()
    {
        const TurnedOutput first { u":0.0"_s, u"eDP-1"_s, 0, 1 };
        const TurnedOutput second { u"host:1"_s, u"Bildschirm ü = 1"_s, 2, 3 };
        QVERIFY(!ReadTurnedOutput(Path()));
        for (const TurnedOutput& turned : { first, second }) {
            QVERIFY(WriteTurnedOutput(Path(), turned));
            QCOMPARE(ReadTurnedOutput(Path()), turned);
        }
    }

    void whatCannotBeNotedLeavesTheEarlierNote()
    {
        const std::pair<QString, QString> cases[] { { {}, u"DSI-1"_s }, { u":0"_s, {} },
            { u":0"_s, u"DSI\n1"_s }, { u":0"_s, u"DSI"_s + QChar(0) } };
        const TurnedOutput earlier { u":0"_s, u"DSI-1"_s, 0, 3 };
        QVERIFY(WriteTurnedOutput(Path(), earlier));
        for (const auto& [display, output] : cases) {
            QVERIFY2(!WriteTurnedOutput(Path(), { display, output, 0, 1 }), qPrintable(output));
            QCOMPARE(ReadTurnedOutput(Path()), earlier);
        }
    }

    void anythingButAWholeNoteIsNone()
    {
        const QByteArray first = "quillory turned output 1\n";
        for (const QByteArray& content : { QByteArray(), first + ":0\nDSI-1\n0\n",
                 first + ":0\nDSI-1\n0\n1", "quillory turned output 2\n:0\nDSI-1\n0\n1\n"_ba,
                 first + ":0\nDSI-1\n0\n5\n", first + ":0\nDSI-1\n\n1\n", first + ":0\n\n0\n1\n",
                 first + ":0\nDSI-1\n0\n1\nmore\n",
                 first + ':' + QByteArray(8192, '0') + "\nDSI-1\n0\n1\n" }) {
            WriteFileBytes(Path(), content);
            QVERIFY2(!ReadTurnedOutput(Path()), content.constData());
        }
    }

private:
    QTemporaryDir m_folder;

    QString Path() const { return m_folder.filePath(u"turned-output"_s); }
};

} // namespace

QUILLORY_TEST(QCoreApplication, TurnedOutputTest)
#include "turned_output_test.moc"
