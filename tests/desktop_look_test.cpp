// SPDX-License-Identifier: MIT
#include "desktop/desktop_look.h"
#include "tests/test_program.h"

#include <QApplication>
#include <QDBusServer>
#include <QDBusVariant>

namespace {

/// The desktop's side: what it prefers, by the names of settings.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    QHash<QString, uint> settings;

    void Change(const QString& key, uint number)
    {
        settings[key] = number;
        Q_EMIT SettingChanged(u"org.freedesktop.appearance"_s, key, QDBusVariant(number));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& /*group*/, const QString& key)
    {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(settings[key])));
    }

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);
};

} // namespace

class DesktopLookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itFollowsTheDesktopInWhatIsNotFixed()
    {
        const QString scheme = u"color-scheme"_s;
        const QString contrast = u"contrast"_s;
        QDBusServer server;
        Portal portal;
        connect(&server, &QDBusServer::newConnection, this, [&portal](QDBusConnection peer) {
            peer.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
                QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
        });
        const QDBusConnection bus = QDBusConnection::connectToPeer(server.address(), u"portal"_s);
        QTRY_VERIFY(bus.isConnected());
        const auto isSeen = [](ColourScheme wanted, bool isHighContrast) {
            const QColor text = PaletteOf(wanted, isHighContrast).color(QPalette::Text);
            return QTest::qWaitFor(
                [&text] { return QApplication::palette().color(QPalette::Text) == text; });
        };
        portal.settings[scheme] = 1;
        {
            const DesktopLook look(bus, {});
            QVERIFY(isSeen(ColourScheme::Dark, false));
            portal.Change(scheme, 2);
            QVERIFY(isSeen(ColourScheme::Light, false));
            // What is none of it comes before what is.
            Q_EMIT portal.SettingChanged(u"another"_s, scheme, QDBusVariant(1U));
            portal.Change(u"accent-color"_s, 1);
            portal.Change(contrast, 1);
            QVERIFY(isSeen(ColourScheme::Light, true));
        }
        portal.settings.clear();
        const DesktopLook look(bus, ColourScheme::Light);
        QVERIFY(isSeen(ColourScheme::Light, false));
        portal.Change(scheme, 1);
        portal.Change(contrast, 1);
        QVERIFY(isSeen(ColourScheme::Light, true));
        QDBusConnection::disconnectFromPeer(u"portal"_s);
    }
};

QUILLORY_TEST(QApplication, DesktopLookTest)
#include "desktop_look_test.moc"
