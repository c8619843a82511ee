// SPDX-License-Identifier: MIT
#include "app/application.h"
#include "tests/limit.h"
#include "tests/main_frame_errand.h"
#include "tests/test_program.h"

#include <QSignalSpy>
#include <QTableView>

#include <malloc.h>
#include <new>

namespace {

/// The address space that this process has now, in bytes.
quint64 AddressSpace()
{
    malloc_trim(0);
    QFile status(u"/proc/self/statm"_s);
    constexpr quint64 kPage = 4096;
    return status.open(QIODevice::ReadOnly)
        ? status.readAll().split(' ').value(0).toULongLong() * kPage
        : 0;
}

/// Needs more than there is for whatever it hears of.
class Insatiable : public QObject
{
protected:
    void customEvent(QEvent* /*event*/) override { throw std::bad_alloc(); }
};

} // namespace

class OutOfMemoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsToldEachTimeButOnceForAll()
    {
        Insatiable insatiable;
        QEvent event(QEvent::User);
        const QSignalSpy told(
            qobject_cast<Application*>(QCoreApplication::instance()), &Application::MemoryRanOut);
        for (int times = 1; times <= 2; ++times) {
            QCoreApplication::sendEvent(&insatiable, &event);
            QCoreApplication::sendEvent(&insatiable, &event);
            QCoreApplication::processEvents();
            QCOMPARE(told.count(), times);
        }
    }

    void aCommandThatNeedsMoreEndsAndTheRestGoesOn()
    {
        constexpr int kRows = 200'000;
        FrameErrand errand({ u"Pantry"_s });
        auto* app = qobject_cast<Application*>(QCoreApplication::instance());
        connect(app, &Application::MemoryRanOut, errand.frame.get(), &MainFrame::TellOutOfMemory);
        errand.Import(QByteArray("Tea\t3\r\n").repeated(kRows));
        errand.PressOk();
        errand.PressOk();
        int told = 0;
        for (quint64 kilobytes = 0; kilobytes < 4096; kilobytes += 128) {
            {
                const Limit little(RLIMIT_AS, AddressSpace() + kilobytes * 1024);
                errand.Tap(0);
            }
            QCoreApplication::processEvents();
            while (QApplication::activeModalWidget() != nullptr) {
                errand.Answer(QMessageBox::Ok);
                told += errand.question == u"Out of memory!" ? 1 : 0;
            }
            errand.ComeBack();
            while (errand.pages->Depth() > 1)
                errand.PressOk();
        }
        QVERIFY(told > 0);
        errand.Tap(0);
        QCOMPARE(errand.pages->Top()->findChild<QTableView*>()->model()->rowCount(), kRows);
        QVERIFY(errand.frame->close());
        errand.frame.reset();
        QCOMPARE(ListsIn(errand.DataPath()), u"Pantry %1"_s.arg(kRows));
    }
};

QUILLORY_TEST(Quillory::Application, OutOfMemoryTest)
#include "out_of_memory_test.moc"
