// SPDX-License-Identifier: MIT
#include "store/settings.h"
#include "tests/file_bytes.h"
#include "tests/test_program.h"

#include <QTemporaryDir>

#include <tuple>

namespace {

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadAgain()
    {
        const QString path = Path(u"new/folder/quillory.conf"_s);
        Settings written;
        written.DbPath = u"/home/käthe/Lists, \"old\" ; 100% \\ 備.idb"_s;
        written.Options.set(kReadOnlyOption).set(31);
        written.ListOrientation = kLandscapeLeftHanded;
        written.windowGeometry = QByteArray("\0\1\xff geometry", 12);
        written.lastList = u"@Käse, \"备\""_s;
        WriteSettings(path, written);

        Settings read;
        ReadSettings(path, read);
        QCOMPARE(read.DbPath, written.DbPath);
        QCOMPARE(read.lastList, written.lastList);
        QCOMPARE(read.Options, written.Options);
        QCOMPARE(read.ListOrientation, written.ListOrientation);
        QCOMPARE(read.windowGeometry, written.windowGeometry);
        QVERIFY(FileBytes(path).contains("Version=100\n"));
        constexpr auto kOthers = QFileDevice::Permissions(0x77);
        for (const QString& made : { path, Path(u"new/folder"_s), Path(u"new"_s) })
            QCOMPARE(QFile::permissions(made) & kOthers, QFileDevice::Permissions());
    }

    void damagedAndForeignValuesReadAsDefaults()
    {
        const QByteArray longest(260, 'a');
        const std::tuple<QByteArray, QByteArray, quint32, quint32> cases[] { { "", "", 0, 1 },
            { QByteArray(5000, '\xfe'), "", 0, 1 },
            { "[General]\nOptions=yes\nListOrientation=left\nDbPath=/a\n", "/a", 0, 1 },
            { "[General]\nOptions=4294967296\nListOrientation=-4\n", "", 0, 1 },
            { "[General]\nOptions=1, 2\nDbPath=/a, /b\n", "", 0, 1 },
            { "[General]\nOptions=4294967295\nListOrientation=7\n", "", 0xFFFFFFFF, 7 },
            { "[General]\nDbPath=" + longest + '\n', longest, 0, 1 },
            { "[General]\nDbPath=" + longest + "a\n", "", 0, 1 } };
        for (const auto& [content, dataFile, options, orientation] : cases) {
            const QString path = Path(u"damaged.conf"_s);
            WriteFileBytes(path, content);
            Settings settings;
            settings.Options.set(kLandscapeOption);
            ReadSettings(path, settings);
            QCOMPARE(settings.DbPath, QString::fromLatin1(dataFile));
            QCOMPARE(static_cast<quint32>(settings.Options.to_ulong()), options);
            QCOMPARE(settings.ListOrientation, orientation);
        }
    }

    void withoutAFileTheOptionsInMemoryStay()
    {
        Settings settings;
        settings.DbPath = u"/old"_s;
        settings.Options.set(kAlternateColourOption);
        ReadSettings(Path(u"none.conf"_s), settings);
        QVERIFY(settings.Options.test(kAlternateColourOption));
        QCOMPARE(settings.DbPath, QString());
    }

    void noughtToNineCopiesAreKept()
    {
        for (const auto& [text, count] :
            { std::pair { "0", 0 }, { "9", 9 }, { "10", 3 }, { "-1", 3 } }) {
            const QString path = Path(QString::fromLatin1(text));
            WriteFileBytes(path, QByteArray("[General]\nKeptCopies=") + text);
            Settings settings;
            ReadSettings(path, settings);
            QCOMPARE(settings.keptCopies, count);
        }
    }

private:
    QTemporaryDir m_folder;

    QString Path(const QString& name) const { return m_folder.filePath(name); }
};

} // namespace

QUILLORY_TEST(QCoreApplication, SettingsTest)

#include "settings_test.moc"
