// SPDX-License-Identifier: MIT
#include "tests/main_frame_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTextBrowser>
#include <QTimer>

#include <sys/stat.h>

class MainFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstStartMakesTheDataFile()
    {
        FrameErrand errand;
        errand.chosenPath.clear();
        errand.Start();
        Act(u"at Welcome to Quillory; tap OK; see fileNameEdit: Quillory.idb"_s);
        QVERIFY(!QFile::exists(errand.DataPath()));
        FrameErrand::GiveFile(errand.DataPath());
        QVERIFY(QFile::exists(errand.DataPath()));
        Act(u"at nothing; see nothing"_s);
        errand.Restart();
        Act(u"at nothing; see nothing"_s);
    }

    void errandsEndAsTheyAreWritten_data()
    {
        const Table<QString> add;
        const QString all
            = QString::fromUtf8(FileBytes(QStringLiteral(QUILLORY_TEST_FOLDER "/errands.txt")));
        for (const QString& errand : all.split(u"\n\n"_s))
            add(qPrintable(errand.section(u'\n', 0, 0)), errand.trimmed());
    }

    /// After its title an errand names its lists ("lists") and goes on by steps of a person, starts
    /// anew ("restart"), and what the file holds at the end ("holds").
    void errandsEndAsTheyAreWritten()
    {
        const auto [text] = Table<QString>::Row();
        const QStringList lines = text.split(u'\n');
        FrameErrand errand(lines[1].split(u' ', Qt::SkipEmptyParts).sliced(1));
        for (const QString& line : lines.sliced(2)) {
            if (line == u"restart")
                errand.Restart();
            else if (line.startsWith(u"holds "))
                QCOMPARE(errand.ListsAtEnd(), line.sliced(6));
            else
                Act(line);
            if (QTest::currentTestFailed())
                return;
        }
    }

    void everySecondLineHasAColourOfItsOwnIfWanted()
    {
        FrameErrand errand(u"Pantry"_s, "Tea\t1\r\nSalt\t2\r\nOil\t3\r\n");
        const auto isStriped = [&errand] {
            const auto* view = errand.pages->Top()->findChild<QTableView*>();
            const QImage image = view->viewport()->grab().toImage();
            const auto ground
                = [&](int line) { return image.pixel(2, view->rowViewportPosition(line) + 2); };
            return ground(1) != ground(2);
        };
        QVERIFY(!isStriped());
        Act(u"tap OK; tap Menu; tap Options...; tap alternateColour; tap OK; tap Pantry"_s);
        QVERIFY(isStriped());
    }

    void aLaterStartOpensTheListItNames()
    {
        FrameErrand errand;
        errand.MakeLists({ u"Attic"_s, u"Pantry"_s });
        errand.Start(u"Attic"_s);
        Act(u"at Attic"_s);
        QCOMPARE(errand.frame->windowTitle(), u"Attic – Quillory"_s);
        QCOMPARE(errand.frame->TakeStartRequest({ u"Cellar"_s, {} }), StartAnswer::UnknownList);
        Act(u"at Attic"_s);
        QCOMPARE(errand.frame->TakeStartRequest({ u"Pantry"_s, {} }), StartAnswer::Done);
        Act(u"at Pantry; tap OK; on Pantry"_s);
        QCOMPARE(errand.frame->TakeStartRequest({ {}, {}, true }), StartAnswer::Done);
        Act(u"at New Inventory List; type Shed"_s);
        // What is entered is not lost to a second one.
        QCOMPARE(errand.frame->TakeStartRequest({ {}, {}, true }), StartAnswer::Done);
        Act(u"see Do you want to discard what you have entered?; tap Yes"_s);
        Act(u"at New Inventory List; see listName: ; tap Cancel; see Attic, Pantry"_s);
        // One that comes while the data file is asked for waits for it.
        FrameErrand first;
        MakeLists(first.DataPath(), { u"Pantry"_s });
        // Wherever the window is, it comes to the front with the keyboard.
        QWidget other;
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        errand.frame->showMinimized();
        errand.frame->TakeStartRequest({});
        QVERIFY(!errand.frame->isMinimized() && QTest::qWaitForWindowActive(errand.frame.get()));
        other.close();
        errand.frame.reset();
        first.Start();
        QCOMPARE(first.frame->TakeStartRequest({ u"Pantry"_s, {} }), StartAnswer::Done);
        Act(u"tap OK; at Pantry"_s);
    }

    void theSelectedListIsExported()
    {
        FrameErrand errand({ u"Pantry"_s });
        Act(u"tap Menu; tap Export List..."_s);
        auto* dialog = errand.frame->findChild<QFileDialog*>();
        QVERIFY(dialog != nullptr);
        dialog->setDirectory(QFileInfo(errand.DataPath()).path());
        dialog->selectFile(u"pantry"_s);
        const QString path = QFileInfo(errand.DataPath()).dir().filePath(u"pantry.txt"_s);
        WriteFileBytes(path, "another's");
        for (const QString& answer : { u"tap No"_s, u"tap Yes"_s }) {
            QCOMPARE(FileBytes(path), "another's"_ba);
            QTimer::singleShot(0, dialog, [answer] { Act(answer); });
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        }
        QTRY_COMPARE(FileBytes(path), "\xff\xfe"_ba);
        // The list is free for other commands again.
        Act(u"tap Pantry; at Pantry"_s);
    }

    void landscapeLastsAsLongAsTheListIsShown()
    {
        FrameErrand errand({ u"Pantry"_s });
        errand.frame->resize(300, 500);
        Act(u"tap Menu; tap Options...; tap landscape; tap OK"_s);
        // One that is wide already, or has no room to become so, stays as it is.
        const QSize screen = errand.frame->screen()->availableSize();
        for (const auto& [size, shown] :
            { std::pair { QSize(300, 500), QSize(500, 300) }, { QSize(600, 400), QSize(600, 400) },
                { screen + QSize(0, 100), screen + QSize(0, 100) } }) {
            errand.frame->resize(size);
            Act(u"tap Pantry; at Pantry"_s);
            QCOMPARE(errand.frame->size(), shown);
            Act(u"tap OK; at nothing"_s);
            QCOMPARE(errand.frame->size(), size);
        }
        errand.frame->resize(420, 500);
        errand.Restart();
        QCOMPARE(errand.frame->size(), QSize(420, 500));
    }

    void anImportAsksForTheOrderAndShowsTheRows()
    {
        FrameErrand errand({ u"Pantry"_s });
        for (const QString& end : { u"tap Cancel; see Pantry"_s,
                 u"tap OK; at Pantry; see Salt, Tea; see Quantity: 5, 3"_s }) {
            errand.Import("3\tTea\r\n5\tSalt\r\nno end");
            Act(u"at Import Column Order; tap Move Down; "_s + end);
        }
    }

    void anImportTellsOfDatesThatOtherCountriesReadOtherwise()
    {
        FrameErrand errand(QStringList {});
        Act(u"tap New; type Medicines; tap Columns; tap Menu; tap Add Expiry Date Column; tap OK"_s);
        errand.Import("10/5/2026\tTea\r\n");
        Act(u"tap OK; see Dates such as 10/5/2026 were read in the form M/d/yyyy.; tap OK; see 10/5/2026"_s);
    }

    void aPipeIsNoTextFile()
    {
        FrameErrand errand({ u"Pantry"_s });
        const QString pipe = QFileInfo(errand.DataPath()).path() + u"/pipe.txt"_s;
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        // Whoever opens one end waits for the other.
        errand.ChooseFileFor(u"Export List..."_s, pipe);
        Act(u"see The file could not be written: It is no plain file.; tap OK; see Pantry"_s);
        errand.ChooseFileFor(u"Import List..."_s, pipe);
        Act(u"tap OK; see Import is completed with errors. Data may not be imported properly.; "
            "tap OK; at Pantry"_s);
    }

    void aNameMayHoldTheMarkOfTheToolkit()
    {
        const FrameErrand errand({ u"[*]"_s });
        Act(u"tap [*]"_s);
        QCOMPARE(errand.frame->windowHandle()->title(), u"[*] – Quillory"_s);
    }

    void linesPartWhatStandsBesideEachOther()
    {
        const FrameErrand errand({ u"Pantry"_s });
        Act(u"size 1000x600; tap Pantry"_s);
        const QImage picture = errand.pages->grab().toImage();
        const QPointer<Page> top = errand.pages->Top();
        // The line of the open list leads back to it, as it is.
        Act(u"beside tap Pantry; at Pantry"_s);
        QVERIFY(top != nullptr);
        const int edge = errand.pages->findChild<QWidget*>(u"paneEdge"_s)->x();
        const int header = top->findChild<QWidget*>(u"header"_s)->height();
        const int keys = top->findChild<QWidget*>(u"softKeys"_s)->y();
        for (const auto& [line, beside] : { std::pair(QPoint(edge, 300), QPoint(1, 0)),
                 { { edge + 300, header - 1 }, { 0, 1 } }, { { edge + 300, keys }, { 0, 1 } } })
            QVERIFY(picture.pixel(line) != picture.pixel(line - beside)
                && picture.pixel(line) != picture.pixel(line + beside));
    }

    void columnsLieAsTheyWereLeft()
    {
        FrameErrand errand(u"Pantry"_s, "Tea\t1\r\n");
        const auto header = [&errand] {
            return errand.pages->Top()->findChild<QTableView*>()->horizontalHeader();
        };
        const auto drag = [&header](const QPoint& from, const QPoint& to) {
            QTest::mousePress(header()->viewport(), Qt::LeftButton, {}, from);
            QTest::mouseMove(header()->viewport(), (from + to) / 2);
            QTest::mouseMove(header()->viewport(), to);
            QTest::mouseRelease(header()->viewport(), Qt::LeftButton, {}, to);
        };
        const int end = header()->sectionSize(0) - 1;
        drag({ end, 10 }, { 150, 10 });
        drag({ 170, 10 }, { 10, 10 });
        const QList<int> left { header()->sectionSize(0), header()->visualIndex(0) };
        QCOMPARE(left, (QList { 151, 1 }));
        errand.Restart();
        Act(u"tap Pantry; at Pantry"_s);
        QCOMPARE((QList { header()->sectionSize(0), header()->visualIndex(0) }), left);
    }

    void helpOpensAtThePageItWasAskedFrom()
    {
        const FrameErrand errand(QStringList {});
        for (const auto& [steps, anchor] : { std::pair { u"press F1"_s, u"Main_Contents"_s },
                 { u"tap New; tap ?"_s, u"newlist"_s } }) {
            Act(steps);
            const auto* text = errand.pages->Top()->findChild<QTextBrowser*>();
            QVERIFY(text != nullptr);
            QCOMPARE(text->source().fragment(), anchor);
            QTRY_VERIFY(text->verticalScrollBar()->value() > 0);
            Act(u"tap OK"_s);
        }
    }
};

QUILLORY_TEST(QApplication, MainFrameTest)
#include "main_frame_test.moc"
