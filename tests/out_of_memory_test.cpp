// SPDX-License-Identifier: MIT
#include "desktop/application.h"
#include "tests/limit.h"
#include "tests/main_frame_errand.h"
#include "tests/test_program.h"

#include <QMessageBox>
#include <QSignalSpy>
#include <QTableView>
#include <QTreeView>

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
        FrameErrand errand(u"Pantry"_s, QByteArray("Tea\t3\r\n").repeated(kRows));
        auto* app = qobject_cast<Application*>(QCoreApplication::instance());
        connect(app, &Application::MemoryRanOut, errand.frame.get(), &MainFrame::TellOutOfMemory);
        Act(u"tap OK"_s);
        const auto* view = errand.pages->findChild<QTreeView*>();
        const QPoint line = view->visualRect(view->model()->index(0, 0)).center();
        int told = 0;
        for (quint64 kilobytes = 0; kilobytes < 4096; kilobytes += 128) {
            {
                const Limit little(RLIMIT_AS, AddressSpace() + kilobytes * 1024);
                QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, line);
            }
            QCoreApplication::processEvents();
            while (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told += box->text() == u"Out of memory!" ? 1 : 0;
                Act(u"tap OK"_s);
            }
            // What is closed is there until events are handled: the next list needs memory of its
            // own.
            while (errand.pages->Depth() > 1)
                QTest::mouseClick(
                    errand.pages->Top()->findChild<QWidget*>(u"ok"_s), Qt::LeftButton);
        }
        QVERIFY(told > 0);
        Act(u"tap Pantry; at Pantry"_s);
        QCOMPARE(errand.pages->Top()->findChild<QTableView*>()->model()->rowCount(), kRows);
        QCOMPARE(errand.ListsAtEnd(), u"Pantry %1"_s.arg(kRows));
    }
};

QUILLORY_TEST(Quillory::Application, OutOfMemoryTest)
#include "out_of_memory_test.moc"
