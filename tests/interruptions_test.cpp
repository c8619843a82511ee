// SPDX-License-Identifier: MIT
#include "desktop/end_requests.h"
#include "tests/limit.h"
#include "tests/main_frame_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QSessionManager>
#include <QTimer>

#include <optional>

namespace {

/// What the desktop says at the end of its session, where a test has none.
struct Desktop
{
    bool mayAsk = false;
    int refusals = 0;
} desktop;

/// A full disk, for the rest of a test.
std::optional<NoRoom> fullDisk;

} // namespace

bool QSessionManager::allowsInteraction()
{
    return desktop.mayAsk;
}

void QSessionManager::cancel()
{
    ++desktop.refusals;
}

namespace {

/// What is met before the interruption does what it is for.
enum class Before
{
    Nothing,
    /// Whether input may be lost.
    Question,
    /// What was open is answered first.
    Answer,
};

/// What takes the keys.
enum class Keys
{
    Page,
    /// A line's editor: what is typed there is taken over.
    EditorInPlace,
    /// Something in front of the window.
    InFront,
};

struct FrontCase
{
    const char* name;
    /// For whatever ends the pages.
    Before before;
    Keys keys;
    /// What opens it.
    QString steps;
};

const std::array kFronts {
    FrontCase { "the lists", Before::Nothing, Keys::Page, u"see Pantry, Zoo"_s },
    FrontCase { "a list", Before::Nothing, Keys::Page, u"tap Pantry"_s },
    FrontCase { "a page", Before::Nothing, Keys::Page, u"tap Menu; tap Options..."_s },
    FrontCase { "a page with input", Before::Question, Keys::Page, u"tap New; type X"_s },
    FrontCase {
        "a page over input", Before::Question, Keys::Page, u"tap New; type X; tap allIcons"_s },
    FrontCase { "a Find with input", Before::Question, Keys::Page,
        u"tap Pantry; tap Menu; tap Find...; type X"_s },
    FrontCase { "an editor in place", Before::Nothing, Keys::EditorInPlace,
        u"tap Menu; tap Rename List; type X"_s },
    FrontCase { "a menu", Before::Nothing, Keys::InFront, u"tap Menu"_s },
    FrontCase { "a menu of a list", Before::Nothing, Keys::InFront, u"tap Pantry; tap Menu"_s },
    FrontCase { "a context menu", Before::Nothing, Keys::InFront, u"hold Pantry"_s },
    FrontCase { "colours over input", Before::Question, Keys::InFront,
        u"tap Menu; tap List Properties...; tap Options; tap warnOnCount; tap countColour"_s },
    FrontCase { "a calendar", Before::Nothing, Keys::InFront,
        u"tap Pantry; tap New; tap Expiry Date; tap openCalendar"_s },
    FrontCase { "a drop-down list", Before::Nothing, Keys::InFront,
        u"tap Pantry; tap Menu; tap Find...; tap fieldBox"_s },
    FrontCase { "a question", Before::Answer, Keys::InFront, u"tap Menu; tap Delete List..."_s },
    FrontCase {
        "the file dialog", Before::Answer, Keys::InFront, u"tap Menu; tap Export List..."_s },
};

enum class Effect
{
    StaysOpen,
    /// The same, but that what is typed in place is taken over.
    Saves,
    EndsPages,
    /// The same where the keys reach the window.
    EndsPagesByKey,
    /// The same where there is something to ask or to wait for first.
    EndsPagesIfNeeded,
};

struct InterruptionCase
{
    const char* name;
    void (*happen)(FrameErrand& errand);
    Effect effect;
    bool (*isDone)(const FrameErrand& errand);
    /// What there is to tell of it at the end.
    QStringList told {};
};

/// Nothing is left that would keep the process alive.
bool IsGone(const FrameErrand& /*errand*/)
{
    const auto windows = QApplication::topLevelWidgets();
    return std::none_of(
        windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
}

bool IsZooOpen(const FrameErrand& errand)
{
    return errand.pages->Top()->Title() == u"Zoo" && errand.pages->Depth() == 2
        && QApplication::activePopupWidget() == nullptr;
}

bool IsVisible(const FrameErrand& errand)
{
    return errand.frame->isVisible();
}

template <int kSignal> void Raise(FrameErrand& /*errand*/)
{
    raise(kSignal);
    QCoreApplication::processEvents();
}

template <bool kMayAsk> void EndSession(FrameErrand& /*errand*/)
{
    desktop.mayAsk = kMayAsk;
    Q_EMIT qGuiApp->commitDataRequest(*qGuiApp->findChild<QSessionManager*>());
}

void Start(FrameErrand& errand)
{
    errand.frame->TakeStartRequest({});
}

/// A write fails, or finds no file, which comes out at the end if not before.
template <void (*kLose)(FrameErrand& errand)> void CloseAfter(FrameErrand& errand)
{
    kLose(errand);
    errand.frame->close();
}

void RemoveFile(FrameErrand& errand)
{
    QVERIFY(QFile::remove(errand.DataPath()));
}

void ReplaceFile(FrameErrand& errand)
{
    const QString other = errand.DataPath() + u".other"_s;
    MakeLists(other, {});
    errand.ReplaceDataFile(other);
}

/// With the card that it lies on.
void RemoveFolder(FrameErrand& errand)
{
    QVERIFY(QDir(QFileInfo(errand.DataPath()).path()).removeRecursively());
}

void FillDisk(FrameErrand& /*errand*/)
{
    fullDisk.emplace();
}

const std::array kInterruptions {
    InterruptionCase {
        "closing", [](FrameErrand& errand) { errand.frame->close(); }, Effect::EndsPages, IsGone },
    InterruptionCase { "Ctrl+Q",
        [](FrameErrand& errand) {
            QTest::keyClick(errand.frame->windowHandle(), Qt::Key_Q, Qt::ControlModifier);
        },
        Effect::EndsPagesByKey, IsGone },
    InterruptionCase { "SIGTERM", Raise<SIGTERM>, Effect::EndsPages, IsGone },
    InterruptionCase { "SIGINT", Raise<SIGINT>, Effect::EndsPages, IsGone },
    InterruptionCase { "SIGHUP", Raise<SIGHUP>, Effect::EndsPages, IsGone },
    InterruptionCase { "the session's end", EndSession<true>, Effect::EndsPagesIfNeeded, IsGone },
    InterruptionCase {
        "the session's end without a question", EndSession<false>, Effect::Saves, IsVisible },
    InterruptionCase { "a start", Start, Effect::StaysOpen, IsVisible },
    InterruptionCase { "a start with a list",
        [](FrameErrand& errand) {
            errand.frame->TakeStartRequest({ u"Zoo"_s, {} });
        },
        Effect::EndsPages, IsZooOpen },
    InterruptionCase { "the file gone", CloseAfter<RemoveFile>, Effect::EndsPages, IsGone,
        { u"The data file is no longer in its place. What it held is kept as a copy; \"quillory restore\" lists the copies."_s } },
    InterruptionCase { "the folder gone", CloseAfter<RemoveFolder>, Effect::EndsPages, IsGone,
        { u"The data file is no longer in its place. No copy could be kept of it."_s } },
    InterruptionCase { "the file replaced", CloseAfter<ReplaceFile>, Effect::EndsPages, IsGone,
        { u"Another file was put in the place of the data file. The old one is kept as a copy; \"quillory restore\" lists the copies."_s } },
    InterruptionCase { "a failed write", CloseAfter<FillDisk>, Effect::EndsPages, IsGone,
        { u"The change could not be saved."_s, u"No copy of the data file could be kept."_s } },
    InterruptionCase { "other colours",
        [](FrameErrand&) { QApplication::setPalette(QPalette(Qt::black)); }, Effect::StaysOpen,
        IsVisible },
    InterruptionCase { "another font",
        [](FrameErrand&) {
            QFont font = QApplication::font();
            font.setPointSizeF(font.pointSizeF() + 1);
            QApplication::setFont(font);
        },
        Effect::StaysOpen, IsVisible },
    InterruptionCase { "a turned screen",
        [](FrameErrand& errand) { errand.frame->resize(640, 360); }, Effect::StaysOpen, IsVisible },
};

/// What comes of an interruption.
enum ComesOfIt
{
    AtOnce,
    AsksFirst,
    AfterTheAnswer,
    StaysOpen,
    IsTakenOver,
};

ComesOfIt WhatComesOf(const InterruptionCase& what, const FrontCase& over)
{
    const bool isPassed = what.effect == Effect::StaysOpen || what.effect == Effect::Saves
        || (what.effect == Effect::EndsPagesByKey && over.keys == Keys::InFront)
        || (what.effect == Effect::EndsPagesIfNeeded && over.before == Before::Nothing);
    if (!isPassed)
        return static_cast<ComesOfIt>(over.before);
    const bool isSession = what.effect == Effect::Saves || what.effect == Effect::EndsPagesIfNeeded;
    return isSession && over.keys == Keys::EditorInPlace ? IsTakenOver : StaysOpen;
}

/// What stands in front and what is typed there.
QString Seen(const FrameErrand& errand)
{
    QStringList seen { errand.pages->Top()->objectName() };
    for (const QWidget* front :
        { QApplication::activePopupWidget(), QApplication::activeModalWidget() })
        seen << (front == nullptr ? u"-"_s : front->objectName());
    for (const auto* edit : errand.pages->Top()->findChildren<QLineEdit*>())
        seen << edit->text();
    return seen.join(u' ');
}

} // namespace

class InterruptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_endRequests = CatchEndRequests(); }

    void cleanup()
    {
        fullDisk.reset();
        desktop = {};
    }

    void eachIsMetWhateverIsOpen_data()
    {
        const Table<int, int> columns;
        constexpr std::array kOutcomes { "at once", "asks first", "after the answer", "stays open",
            "what is typed is taken over" };
        for (size_t i = 0; i < kInterruptions.size(); ++i) {
            for (size_t j = 0; j < kFronts.size(); ++j) {
                const char* outcome = kOutcomes.at(WhatComesOf(kInterruptions[i], kFronts[j]));
                QTest::addRow("%s over %s: %s", kInterruptions[i].name, kFronts[j].name, outcome)
                    << static_cast<int>(i) << static_cast<int>(j);
            }
        }
    }

    void eachIsMetWhateverIsOpen()
    {
        const auto [interruption, front] = Table<int, int>::Row();
        const InterruptionCase& what = kInterruptions.at(static_cast<size_t>(interruption));
        const FrontCase& over = kFronts.at(static_cast<size_t>(front));
        const ComesOfIt outcome = WhatComesOf(what, over);
        FrameErrand errand;
        ListFixture full;
        full.MakeFullList(u"Pantry"_s);
        full.data->Unmount();
        QVERIFY(QFile::copy(full.Path(), errand.DataPath()));
        Start(errand, what, { u"Zoo"_s });
        Act(over.steps);
        const QString seen = Seen(errand);
        what.happen(errand);
        const bool isMetLater = outcome == AsksFirst || outcome == AfterTheAnswer;
        QCOMPARE(desktop.refusals, isMetLater && what.effect == Effect::EndsPagesIfNeeded ? 1 : 0);
        if (outcome == AsksFirst) {
            Act(u"see Do you want to discard what you have entered?; tap Yes"_s);
        } else if (outcome != AtOnce) {
            QCoreApplication::processEvents();
            QVERIFY(IsVisible(errand) && (outcome != AfterTheAnswer || !what.isDone(errand)));
            if (outcome == IsTakenOver)
                Act(u"see X, Zoo"_s);
            else
                QCOMPARE(Seen(errand), seen);
            const QWidget* box = QApplication::activeModalWidget();
            QVERIFY(box == nullptr || box->isActiveWindow());
            if (outcome != AfterTheAnswer)
                return;
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        }
        QCOMPARE(ToldUntilDone(errand, what), what.told);
        // What it held is kept, and the one in its place left alone.
        if (what.happen == CloseAfter<RemoveFile> || what.happen == CloseAfter<ReplaceFile>)
            QVERIFY(errand.NewestCopy().endsWith(u" 0, Zoo 0"_s));
        if (what.happen == CloseAfter<ReplaceFile>)
            QCOMPARE(ListsIn(errand.DataPath()), QString());
    }

    void workIsDoneFirst()
    {
        QList<const InterruptionCase*> passed;
        for (const InterruptionCase& what : kInterruptions) {
            const bool isPassed = what.effect == Effect::StaysOpen || what.effect == Effect::Saves
                || what.effect == Effect::EndsPagesByKey;
            if (isPassed)
                passed << &what;
            else
                MeetInImport({ &what });
        }
        MeetInImport(passed);
    }

private:
    int m_endRequests = -1;
    int m_rows = 200'000;

    /// Starts on these lists and on one more that is deleted, so that there is a change.
    void Start(FrameErrand& errand, const InterruptionCase& what, const QStringList& lists) const
    {
        const bool needsChange = !what.told.isEmpty();
        errand.MakeLists(needsChange ? QStringList { u"Attic"_s } + lists : lists);
        errand.Start();
        MeetEndRequests(m_endRequests, *errand.frame,
            [&frame = *errand.frame] { return frame.LetSessionEnd(); });
        if (needsChange)
            Act(kDeleteList);
    }

    /// What each box says until then, but for numbers.
    static QStringList ToldUntilDone(FrameErrand& errand, const InterruptionCase& what)
    {
        QStringList told;
        const auto isDone = [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told << box->text().section(u'\n', 0, 0).section(u" Error:"_s, 0, 0);
                QTest::keyClick(box, Qt::Key_Escape);
            }
            return what.isDone(errand) && QApplication::activeModalWidget() == nullptr;
        };
        return QTest::qWaitFor(isDone) ? told : QStringList { u"never done"_s } + told;
    }

    /// All of them within one import: the window stays, or the only one is met afterwards.
    void MeetInImport(const QList<const InterruptionCase*>& all)
    {
        // Until it takes so long that it shows how far it is.
        constexpr int kMostRows = 6'400'000;
        while (m_rows <= kMostRows && !IsMetInImport(all))
            m_rows *= 2;
        QVERIFY(m_rows <= kMostRows);
    }

    /// False where so many rows were imported before anything could
    /// come between.
    bool IsMetInImport(const QList<const InterruptionCase*>& all)
    {
        const InterruptionCase& what = *all.front();
        FrameErrand errand;
        Start(errand, what, { u"Pantry"_s, u"Zoo"_s });
        errand.Import(QByteArray("Tea\t3\r\n").repeated(m_rows));
        bool isWithin = false;
        bool isVisible = false;
        QTimer timer;
        timer.setSingleShot(true);
        timer.callOnTimeout([&] {
            isWithin = true;
            for (const InterruptionCase* each : all)
                each->happen(errand);
            isVisible = IsVisible(errand) && !IsZooOpen(errand);
        });
        timer.start(0);
        QTest::mouseClick(errand.pages->Top()->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
        timer.stop();
        if (!isWithin)
            return false;
        const bool losesFile = !what.told.isEmpty();
        const QStringList due
            = (losesFile
                      ? QStringList { u"Import is completed with errors. Data may not be imported properly."_s }
                      : QStringList())
            + what.told;
        const QStringList told = all.size() == 1 ? ToldUntilDone(errand, what) : QStringList();
        const bool isMet = isVisible && told == due && (all.size() == 1 || IsVisible(errand));
        errand.frame.reset();
        cleanup();
        if (!isMet
            || (!losesFile && ListsIn(errand.DataPath()) != u"Pantry %1, Zoo 0"_s.arg(m_rows)))
            QTest::qFail(what.name, __FILE__, __LINE__);
        return true;
    }
};

QUILLORY_TEST(QApplication, InterruptionsTest)
#include "interruptions_test.moc"
