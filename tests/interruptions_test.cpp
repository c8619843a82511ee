// SPDX-License-Identifier: MIT
#include "tests/main_frame_errand.h"
#include "tests/table.h"
#include "tests/test_program.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTimer>

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

struct FrontCase
{
    const char* name;
    /// For whatever ends the pages.
    Before before;
    void (*open)(FrameErrand& errand);
};

/// A command, of a list's page if that is opened first, and a letter typed then if there is one.
template <Command kCommand, bool kIsInList = false, char kLetter = 0> void Do(FrameErrand& errand)
{
    if (kIsInList)
        errand.Tap(0);
    errand.Choose(kCommand);
    if (kLetter != 0)
        QTest::keyClick(errand.frame->windowHandle(), kLetter);
}

void OpenContextMenu(FrameErrand& errand)
{
    const QPoint place = errand.view->visualRect(errand.view->currentIndex()).center();
    QContextMenuEvent event(
        QContextMenuEvent::Mouse, place, errand.view->viewport()->mapToGlobal(place));
    QApplication::sendEvent(errand.view->viewport(), &event);
}

void OpenColours(FrameErrand& errand)
{
    errand.Choose(Command::ListProperties);
    errand.pages->Top()->findChild<QTabBar*>()->setCurrentIndex(1);
    errand.Press(u"warnOnCount"_s);
    errand.Press(u"countColour"_s);
}

void OpenCalendar(FrameErrand& errand)
{
    Do<Command::New, true>(errand);
    for (int field = 0; field < Expiry; ++field)
        QTest::keyClick(errand.frame->windowHandle(), Qt::Key_Down);
    errand.Press(u"openCalendar"_s);
}

void OpenDropDown(FrameErrand& errand)
{
    Do<Command::Find, true>(errand);
    errand.pages->Top()->findChild<QComboBox*>(u"fieldBox"_s)->showPopup();
}

const std::array kFronts {
    FrontCase { "the lists", Before::Nothing, [](FrameErrand&) {} },
    FrontCase { "a list", Before::Nothing, [](FrameErrand& errand) { errand.Tap(0); } },
    FrontCase { "a page", Before::Nothing, Do<Command::Options> },
    FrontCase { "a page with input", Before::Question, Do<Command::New, false, 'X'> },
    FrontCase { "a Find with input", Before::Question, Do<Command::Find, true, 'X'> },
    FrontCase { "an editor in place", Before::Nothing, Do<Command::Rename, false, 'X'> },
    FrontCase {
        "a menu", Before::Nothing, [](FrameErrand& errand) { errand.Press(u"rightKey"_s); } },
    FrontCase { "a menu of a list", Before::Nothing,
        [](FrameErrand& errand) {
            errand.Tap(0);
            errand.Press(u"rightKey"_s);
        } },
    FrontCase { "a context menu", Before::Nothing, OpenContextMenu },
    FrontCase { "colours over input", Before::Question, OpenColours },
    FrontCase { "a calendar", Before::Nothing, OpenCalendar },
    FrontCase { "a drop-down list", Before::Nothing, OpenDropDown },
    FrontCase { "a question", Before::Answer, Do<Command::Delete> },
    FrontCase { "the file dialog", Before::Answer, Do<Command::Export> },
};

struct InterruptionCase
{
    const char* name;
    void (*happen)(FrameErrand& errand);
    bool endsPages;
    bool (*isDone)(const FrameErrand& errand);
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

const std::array kInterruptions {
    InterruptionCase {
        "closing", [](FrameErrand& errand) { errand.frame->close(); }, true, IsGone },
    InterruptionCase { "a start", [](FrameErrand& errand) { errand.frame->TakeStartRequest({}); },
        false, IsVisible },
    InterruptionCase { "a start with a list",
        [](FrameErrand& errand) {
            errand.frame->TakeStartRequest({ u"Zoo"_s, {} });
        },
        true, IsZooOpen },
    InterruptionCase { "other colours and letters",
        [](FrameErrand&) {
            QApplication::setPalette(QPalette(Qt::black));
            QFont font = QApplication::font();
            font.setPointSizeF(font.pointSizeF() + 1);
            QApplication::setFont(font);
        },
        false, IsVisible },
    InterruptionCase { "a turned screen",
        [](FrameErrand& errand) { errand.frame->resize(640, 360); }, false, IsVisible },
};

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
    void eachIsMetWhateverIsOpen_data()
    {
        const Table<int, int> columns;
        constexpr std::array kOutcomes { "at once", "asks first", "after the answer" };
        for (size_t i = 0; i < kInterruptions.size(); ++i) {
            for (size_t j = 0; j < kFronts.size(); ++j) {
                const char* outcome = kInterruptions[i].endsPages
                    ? kOutcomes.at(static_cast<size_t>(kFronts[j].before))
                    : "stays open";
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
        FrameErrand errand;
        ListFixture full;
        full.MakeFullList(u"Pantry"_s);
        full.data->Unmount();
        QVERIFY(QFile::copy(full.Path(), errand.DataPath()));
        errand.MakeLists({ u"Zoo"_s });
        errand.Start();
        over.open(errand);
        const QString seen = Seen(errand);
        what.happen(errand);
        if (!what.endsPages) {
            QCoreApplication::processEvents();
            QCOMPARE(Seen(errand), seen);
            QVERIFY(what.isDone(errand));
            return;
        }
        if (over.before == Before::Question) {
            errand.Answer(QMessageBox::Yes);
            QVERIFY(errand.question.contains(u"discard"_s));
        } else if (over.before == Before::Answer) {
            QCoreApplication::processEvents();
            QVERIFY(!what.isDone(errand));
            QCOMPARE(Seen(errand), seen);
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        }
        QTRY_VERIFY(what.isDone(errand));
    }

    void workIsDoneFirst()
    {
        // Until it takes so long that it shows how far it is.
        constexpr int kMostRows = 6'400'000;
        int rows = 400'000;
        for (const size_t i : { 0U, 2U }) {
            while (rows <= kMostRows && !IsMetAfterImport(kInterruptions.at(i), rows))
                rows *= 2;
        }
        QVERIFY(rows <= kMostRows);
    }

private:
    /// False where so many rows were imported before anything could come between.
    static bool IsMetAfterImport(const InterruptionCase& what, int rows)
    {
        FrameErrand errand({ u"Pantry"_s, u"Zoo"_s });
        errand.Import(QByteArray("Tea\t3\r\n").repeated(rows));
        bool isWithin = false;
        bool isDoneWithin = false;
        QTimer timer;
        timer.setSingleShot(true);
        timer.callOnTimeout([&] {
            isWithin = true;
            what.happen(errand);
            isDoneWithin = what.isDone(errand);
        });
        timer.start(0);
        errand.PressOk();
        timer.stop();
        if (!isWithin)
            return false;
        const bool isDone = !isDoneWithin && QTest::qWaitFor([&] { return what.isDone(errand); });
        errand.frame.reset();
        if (!isDone || ListsIn(errand.DataPath()) != u"Pantry %1, Zoo 0"_s.arg(rows))
            QTest::qFail(what.name, __FILE__, __LINE__);
        return true;
    }
};

QUILLORY_TEST(QApplication, InterruptionsTest)
#include "interruptions_test.moc"
