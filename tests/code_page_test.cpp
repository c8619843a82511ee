// SPDX-License-Identifier: MIT
#include "platform/code_page.h"
#include "platform/locale_profile.h"
#include "tests/test_program.h"

using namespace Qt::StringLiterals;

namespace Quillory {

namespace {

QString Decoded(const CodePage& page, const QByteArray& bytes)
{
    std::u16string units(static_cast<std::size_t>(bytes.size()), u'\0');
    const qsizetype count = page.Decode(bytes, units.data());
    return QStringView(units).first(count).toString();
}

} // namespace

class CodePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bytesDecodeAsThePlatformDecodesThem_data();
    void bytesDecodeAsThePlatformDecodesThem();
    void everyPageKeepsAscii_data();
    void everyPageKeepsAscii();
    void otherNumbersAreNoPages();
    void theLocaleChoosesThePage_data();
    void theLocaleChoosesThePage();
    void theEnvironmentChoosesByCategory();
};

void CodePageTest::bytesDecodeAsThePlatformDecodesThem_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto add = [](const char* name, int page, const char* hex, QStringView text) {
        QTest::newRow(name) << page << QByteArray::fromHex(hex) << text.toString();
    };
    add("1252 undefined", 1252, "818D8F909D", u"\x81\x8D\x8F\x90\x9D");
    add("1252 euro and quote", 1252, "8092", u"\u20AC\u2019");
    add("1250 undefined", 1250, "8183889098", u"\x81\x83\x88\x90\x98");
    add("1250 letters", 1250, "B3F1", u"łń");
    add("1251 undefined", 1251, "98", u"\x98");
    add("1251 letters", 1251, "CFF0", u"Пр");
    add("1253 undefined", 1253, "AAD2FF", u"\uF8F9\uF8FA\uF8FB");
    add("1254 letters", 1254, "DDFD", u"İı");
    add("1255 undefined", 1255, "CAD9DADBDCDDDEDF",
        u"\u05BA\uF88D\uF88E\uF88F\uF890\uF891\uF892\uF893");
    add("1255 end", 1255, "FBFCFF", u"\uF894\uF895\uF896");
    add("1257 undefined", 1257, "A1A5", u"\uF8FC\uF8FD");
    add("874 undefined", 874, "DBDCDDDEFCFDFEFF",
        u"\uF8C1\uF8C2\uF8C3\uF8C4\uF8C5\uF8C6\uF8C7\uF8C8");
    add("932 single bytes", 932, "80A0FDFEFF5C7EB1", u"\x80\uF8F0\uF8F1\uF8F2\uF8F3\\~\uFF71");
    add("932 pairs", 932, "816087408140", u"\uFF5E\u2460\u3000");
    add("932 a broken pair is one dot", 932, "61812062", u"a\u30FBb");
    add("932 a cut pair", 932, "6181", u"a\u30FB");
    add("936 single bytes", 936, "80FF", u"\u20AC\uF8F5");
    add("936 pairs", 936, "D6D0B9FA", u"中国");
    add("936 a broken pair is one mark", 936, "61812062", u"a?b");
    add("936 a cut pair", 936, "61D6", u"a?");
    add("936 a pair cut by a NUL", 936, "D60061", QStringView(u"?\0a", 3));
    add("949 single bytes", 949, "80FF", u"\x80\uF8F7");
    add("949 pairs", 949, "8141B0A1", u"\uAC02\uAC00");
    add("949 a cut pair", 949, "B0", u"?");
    add("950 single bytes", 950, "80FF", u"\x80\uF8F8");
    add("950 pairs", 950, "A145A4A4", u"\u2027中");
    add("950 a broken pair is one mark", 950, "A12061", u"?a");
}

void CodePageTest::bytesDecodeAsThePlatformDecodesThem()
{
    QFETCH(const int, page);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    const auto codePage = CodePage::For(page);
    QVERIFY(codePage);
    QCOMPARE(Decoded(*codePage, bytes), text);
}

void CodePageTest::everyPageKeepsAscii_data()
{
    QTest::addColumn<int>("page");
    for (const int page :
        { 874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258 }) {
        QTest::newRow(qPrintable(QString::number(page))) << page;
    }
}

void CodePageTest::everyPageKeepsAscii()
{
    QFETCH(const int, page);
    QByteArray ascii;
    for (int byte = 0; byte < 0x80; ++byte) {
        ascii.append(static_cast<char>(byte));
    }
    const auto codePage = CodePage::For(page);
    QVERIFY(codePage);
    QCOMPARE(Decoded(*codePage, ascii), QString::fromLatin1(ascii));
}

void CodePageTest::otherNumbersAreNoPages()
{
    QVERIFY(!CodePage::For(0));
    QVERIFY(!CodePage::For(65001));
}

void CodePageTest::theLocaleChoosesThePage_data()
{
    QTest::addColumn<int>("page");
    const auto add = [](int page, const char* locales) {
        for (const QByteArray& locale : QByteArray(locales).split(' '))
            QTest::newRow(locale.constData()) << page;
    };
    add(1252, " C C.UTF-8 POSIX en_US.UTF-8 de_CH pt_BR hi_IN xx_YY");
    add(1250, "pl_PL.UTF-8 hu_HU sr_RS@latin sr-Latn-RS");
    add(1251, "ru_RU.KOI8-R uk_UA sr_RS az_Cyrl_AZ");
    add(1253, "el_GR");
    add(1254, "tr_TR az_AZ");
    add(1255, "he_IL");
    add(1256, "ar_EG fa_IR");
    add(1257, "lt_LT");
    add(1258, "vi_VN");
    add(874, "th_TH");
    add(932, "ja_JP.UTF-8");
    add(936, "zh_CN zh_SG");
    add(949, "ko_KR");
    add(950, "zh_TW zh_HK zh-Hant");
}

void CodePageTest::theLocaleChoosesThePage()
{
    QFETCH(const int, page);
    QCOMPARE(LocaleProfile::For(QString::fromLatin1(QTest::currentDataTag())).codePage, page);
}

void CodePageTest::theEnvironmentChoosesByCategory()
{
    qputenv("LC_ALL", "");
    qputenv("LC_TIME", "sv_SE.UTF-8");
    qputenv("LC_NUMERIC", "de_CH.UTF-8");
    qunsetenv("LC_CTYPE");
    qputenv("LANG", "pl_PL.UTF-8");
    const LocaleProfile mixed = EnvironmentLocaleProfile();
    QCOMPARE(mixed.shortDatePicture, u"yyyy-MM-dd"_s);
    QCOMPARE(mixed.groupSeparator, QChar(u'\''));
    QCOMPARE(mixed.codePage, 1250);

    qputenv("LC_ALL", "de");
    const LocaleProfile german = EnvironmentLocaleProfile();
    QCOMPARE(german.shortDatePicture, u"dd.MM.yyyy"_s);
    QCOMPARE(german.decimalSeparator, QChar(u','));
    QCOMPARE(german.codePage, 1252);
}

} // namespace Quillory

QUILLORY_TEST(QCoreApplication, Quillory::CodePageTest)
#include "code_page_test.moc"
