// SPDX-License-Identifier: MIT
#include "desktop/screen_keyboard.h"
#include "tests/finger.h"
#include "tests/test_program.h"

#include <QApplication>
#include <QDBusServer>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// The phone's side: notes what it is asked for.
class Shell : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "sm.puri.OSK0")

public:
    QString asked;

public Q_SLOTS:
    void SetVisible(bool isVisible) { asked += isVisible ? u'+' : u'-'; }
};

} // namespace

class ScreenKeyboardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itComesToFieldsThatAreTouched()
    {
        QDBusServer server;
        Shell shell;
        connect(&server, &QDBusServer::newConnection, this, [&shell](QDBusConnection peer) {
            peer.registerObject(u"/sm/puri/OSK0"_s, &shell, QDBusConnection::ExportAllSlots);
        });
        const QDBusConnection bus = QDBusConnection::connectToPeer(server.address(), u"shell"_s);
        QTRY_VERIFY(bus.isConnected());
        const ScreenKeyboard keyboard(bus);
        QWidget window;
        QVBoxLayout column(&window);
        QPushButton button;
        QLineEdit first;
        QLineEdit second;
        QLineEdit constant;
        constant.setReadOnly(true);
        for (QWidget* widget : std::array<QWidget*, 4> { &button, &first, &second, &constant })
            column.addWidget(widget);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto asksBy = [&shell](const auto& act, const QString& wanted) {
            shell.asked.clear();
            act();
            // Further calls would have come by then.
            QTest::qWait(30);
            return shell.asked == wanted;
        };
        const auto tap = [](QWidget& widget) { Finger(widget).Tap(widget.rect().center()); };
        const auto click = [](QWidget& widget) {
            QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                widget.mapTo(widget.window(), widget.rect().center()));
        };
        QVERIFY(asksBy([&] { click(first); }, u""_s));
        QVERIFY(asksBy([&] { QTest::keyClick(&first, Qt::Key_Tab); }, u""_s));
        QVERIFY(asksBy([&] { tap(button); }, u""_s));
        QVERIFY(asksBy([&] { tap(first); }, u"+"_s));
        QVERIFY(asksBy([&] { tap(first); }, u"+"_s));
        QVERIFY(asksBy([&] { QTest::keyClick(&first, Qt::Key_Tab); }, u""_s));
        QVERIFY(asksBy([&] { tap(second); }, u"+"_s));
        QVERIFY(asksBy([&] { tap(button); }, u"-"_s));
        QVERIFY(asksBy([&] { QTest::keyClick(&button, Qt::Key_Tab); }, u""_s));
        QVERIFY(asksBy([&] { tap(constant); }, u""_s));
        QVERIFY(asksBy([&] { tap(second); }, u"+"_s));
        QVERIFY(asksBy([&] { window.hide(); }, u"-"_s));
        QDBusConnection::disconnectFromPeer(u"shell"_s);
    }
};

QUILLORY_TEST(QApplication, ScreenKeyboardTest)
#include "screen_keyboard_test.moc"
