// SPDX-License-Identifier: MIT
#include "app/data_file_opener.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"

#include <QQueue>

#include <functional>
#include <optional>

namespace {

using OpenOutcome = DataFileOpener::Outcome;

/// A start whose questions are answered from a list, and what came of it.
class Start
{
public:
    QString Path(const QString& name = u"data.idb"_s) const { return m_folder.filePath(name); }
    void Run()
    {
        DataFileOpener opener(
            m_catalogue, settings, Path(u"copies"_s), Answering(), [this](OpenOutcome end) {
                outcome = end;
                ++ends;
            });
        opener.Start();
    }
    /// Ends the program as far as the data file goes.
    void End() { static_cast<void>(m_volume.Unmount()); }
    bool IsOpen() const { return m_volume.IsMounted(); }

    Settings settings;
    QQueue<MessageAnswer> answers;
    QString chosen;
    std::function<void()> beforeAnswer;

    QStringList shown;
    std::optional<OpenOutcome> outcome;
    int ends = 0;

private:
    QTemporaryDir m_folder;
    DataVolume m_volume;
    ListCatalogue m_catalogue { m_volume };

    DataFileOpener::Prompts Answering()
    {
        return {
            [this](const auto& then) {
                shown << u"welcome"_s;
                then();
            },
            [this](const auto& then) {
                shown << u"chooser"_s;
                then(chosen);
            },
            [this](const QString& text, MessageIcon, MessageButtons buttons, const auto& then) {
                shown << text.section(u' ', 0, 4);
                if (beforeAnswer)
                    beforeAnswer();
                then(buttons == MessageButtons::Ok ? MessageAnswer::Ok : answers.dequeue());
            },
        };
    }
};

const QString kNoFile = u"The data file cannot be"_s;
const QString kNoFolder = u"Quillory is unable to open"_s;
const QString kFailure = u"Unable to open data file."_s;

class DataFileOpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartMakesTheChosenFile()
    {
        Start start;
        start.chosen = start.Path();
        start.Run();
        QCOMPARE(start.shown, QStringList({ u"welcome"_s, u"chooser"_s }));
        QCOMPARE(start.outcome, OpenOutcome::Opened);
        QCOMPARE(start.settings.DbPath, start.Path());
        QVERIFY(QFile::exists(start.Path()));

        start.End();
        start.shown.clear();
        start.Run();
        QCOMPARE(start.shown, QStringList());
        QVERIFY(start.IsOpen());
        QCOMPARE(start.ends, 2);
    }

    void anExistingFileChosenAtTheFirstStartIsOpenedAsItIs()
    {
        Start start;
        start.chosen = start.Path();
        MakeLists(start.Path(), { u"Pantry"_s });
        start.Run();
        QCOMPARE(start.outcome, OpenOutcome::Opened);
        start.End();
        QCOMPARE(ListsIn(start.Path()), u"Pantry 0"_s);
    }

    void theJournalOfAnotherFileIsPutAsideAndTold()
    {
        Start start;
        start.settings.DbPath = start.Path();
        MakeLists(start.Path(), { u"Pantry"_s });
        WriteFileBytes(start.Path(u"data.idb-journal"_s), "a letter");
        start.Run();
        QCOMPARE(start.shown, QStringList { u"Beside the data file lay"_s });
        QCOMPARE(start.outcome, OpenOutcome::Opened);
        const QStringList aside
            = QFileInfo(start.Path()).dir().entryList({ u"data.idb-journal*"_s });
        QCOMPARE(aside.size(), 1);
        QVERIFY(aside.front().startsWith(u"data.idb-journal.left-"_s));
        QCOMPARE(FileBytes(start.Path(aside.front())), "a letter"_ba);
    }

    void choosingNothingEndsTheProgram()
    {
        Start start;
        start.Run();
        QCOMPARE(start.outcome, OpenOutcome::NothingChosen);
        QCOMPARE(start.settings.DbPath, QString());
    }

    void aFileThatIsNoDataFileIsRefusedAndForgotten()
    {
        Start start;
        const QByteArray content(5000, 'x');
        WriteFileBytes(start.Path(u"letter.txt"_s), content);
        start.chosen = start.Path(u"letter.txt"_s);
        start.Run();
        QCOMPARE(start.shown.last(), kFailure);
        QCOMPARE(start.outcome, OpenOutcome::Failed);
        QCOMPARE(start.settings.DbPath, QString());

        // As the data file of earlier starts it stays named: it may be mended.
        start.settings.DbPath = start.chosen;
        start.Run();
        QCOMPARE(start.settings.DbPath, start.chosen);
        QCOMPARE(FileBytes(start.chosen), content);
    }

    void aPathTooLongToBeRememberedIsRefused()
    {
        Start start;
        const QString folder = start.Path(QString(200, u'f'));
        QVERIFY(QDir().mkpath(folder));
        start.chosen = folder + u'/' + QString(100, u'x');
        start.Run();
        QCOMPARE(start.shown.last(), kFailure);
        QCOMPARE(start.settings.DbPath, QString());
        QVERIFY(!QFile::exists(start.chosen));
    }

    void aMissingFileIsAskedAbout()
    {
        for (const QList<MessageAnswer>& answers :
            { QList { MessageAnswer::Yes }, { MessageAnswer::No, MessageAnswer::Yes },
                { MessageAnswer::No, MessageAnswer::Cancel } }) {
            const bool isMade = answers.last() == MessageAnswer::Yes;
            Start start;
            start.settings.DbPath = start.Path();
            start.answers.append(answers);
            start.Run();
            QCOMPARE(start.shown, QStringList(answers.size(), kNoFile));
            QCOMPARE(start.outcome, isMade ? OpenOutcome::Opened : OpenOutcome::Failed);
            QCOMPARE(QFile::exists(start.Path()), isMade);
            QCOMPARE(start.settings.DbPath, start.Path());
        }
    }

    void aMissingFolderIsLookedForAgain()
    {
        Start start;
        start.settings.DbPath = start.Path(u"card/data.idb"_s);
        start.answers.append({ MessageAnswer::Retry, MessageAnswer::Retry, MessageAnswer::Yes });
        start.beforeAnswer = [&start] {
            if (start.shown.size() == 2)
                QVERIFY(QDir().mkpath(start.Path(u"card"_s)));
        };
        start.Run();
        QCOMPARE(start.shown, QStringList({ kNoFolder, kNoFolder, kNoFile }));
        QCOMPARE(start.outcome, OpenOutcome::Opened);

        Start cancelled;
        cancelled.settings.DbPath = cancelled.Path(u"card/data.idb"_s);
        cancelled.answers.append(MessageAnswer::Cancel);
        cancelled.Run();
        QCOMPARE(cancelled.outcome, OpenOutcome::Failed);
        QVERIFY(!QFile::exists(cancelled.settings.DbPath));
    }
};

} // namespace

QUILLORY_TEST(QCoreApplication, DataFileOpenerTest)

#include "data_file_opener_test.moc"
