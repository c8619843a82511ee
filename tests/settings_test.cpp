// SPDX-License-Identifier: MIT
#include "app/settings.h"
#include "tests/file_bytes.h"
#include "tests/test_program.h"

#include <QTemporaryDir>

using namespace Quillory;
using namespace Qt::StringLiterals;

namespace {

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadAgain();
    void damagedAndForeignValuesReadAsDefaults_data();
    void damagedAndForeignValuesReadAsDefaults();
    void withoutAFileTheOptionsInMemoryStay();
    void noughtToNineCopiesAreKept();

private:
    QTemporaryDir m_folder;

    QString Path(const QString& name) const { return m_folder.filePath(name); }
};

void SettingsTest::whatIsWrittenIsReadAgain()
{
    const QString path = Path(u"new/folder/quillory.conf"_s);
    Settings written;
    written.DbPath = u"/home/käthe/Lists, \"old\" ; 100% \\ 備.idb"_s;
    written.Options.set(kReadOnlyOption).set(31);
    written.ListOrientation = kLandscapeLeftHanded;
    written.windowGeometry = QByteArray("\0\1\xff geometry", 12);
    WriteSettings(path, written);

    Settings read;
    ReadSettings(path, read);
    QCOMPARE(read.DbPath, written.DbPath);
    QCOMPARE(read.Options, written.Options);
    QCOMPARE(read.ListOrientation, written.ListOrientation);
    QCOMPARE(read.windowGeometry, written.windowGeometry);
    QVERIFY(FileBytes(path).contains("Version=100\n"));
}

void SettingsTest::damagedAndForeignValuesReadAsDefaults_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("path");
    QTest::addColumn<quint32>("options");
    QTest::addColumn<quint32>("orientation");
    const auto pathOf = [](int length) { return QByteArray(length, 'a'); };

    QTest::newRow("empty file") << ""_ba << QString() << 0U << 1U;
    QTest::newRow("no text at all") << QByteArray(5000, '\xfe') << QString() << 0U << 1U;
    QTest::newRow("words for numbers")
        << "[General]\nOptions=yes\nListOrientation=left\nDbPath=/a\n"_ba << u"/a"_s << 0U << 1U;
    QTest::newRow("too large and negative")
        << "[General]\nOptions=4294967296\nListOrientation=-4\n"_ba << QString() << 0U << 1U;
    QTest::newRow("lists for values")
        << "[General]\nOptions=1, 2\nDbPath=/a, /b\n"_ba << QString() << 0U << 1U;
    QTest::newRow("largest number") << "[General]\nOptions=4294967295\nListOrientation=7\n"_ba
                                    << QString() << 0xFFFFFFFFU << 7U;
    QTest::newRow("longest path") << "[General]\nDbPath=" + pathOf(260) + '\n'
                                  << QString::fromLatin1(pathOf(260)) << 0U << 1U;
    QTest::newRow("path too long") << "[General]\nDbPath=" + pathOf(261) + '\n'
                                   << QString() << 0U << 1U;
}

void SettingsTest::damagedAndForeignValuesReadAsDefaults()
{
    QFETCH(QByteArray, content);
    const QString path = Path(u"damaged.conf"_s);
    WriteFileBytes(path, content);
    Settings settings;
    settings.Options.set(kLandscapeOption);
    ReadSettings(path, settings);
    QTEST(settings.DbPath, "path");
    QTEST(static_cast<quint32>(settings.Options.to_ulong()), "options");
    QTEST(settings.ListOrientation, "orientation");
}

void SettingsTest::withoutAFileTheOptionsInMemoryStay()
{
    Settings settings;
    settings.DbPath = u"/old"_s;
    settings.Options.set(kAlternateColourOption);
    ReadSettings(Path(u"none.conf"_s), settings);
    QVERIFY(settings.Options.test(kAlternateColourOption));
    QCOMPARE(settings.DbPath, QString());
}

void SettingsTest::noughtToNineCopiesAreKept()
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

} // namespace

QUILLORY_TEST(QCoreApplication, SettingsTest)

#include "settings_test.moc"
