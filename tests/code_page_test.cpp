// SPDX-License-Identifier: MIT
#include "platform/code_page.h"
#include "platform/locale_profile.h"
#include "tests/test_program.h"

#include <tuple>
#include <utility>

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
    void bytesDecodeAsThePlatformDecodesThem()
    {
        const std::tuple<int, const char*, QStringView> cases[] { { 1252, "818D8F909D",
                                                                      u"\x81\x8D\x8F\x90\x9D" },
            { 1252, "8092", u"\u20AC\u2019" }, { 1250, "8183889098", u"\x81\x83\x88\x90\x98" },
            { 1250, "B3F1", u"łń" }, { 1251, "98", u"\x98" }, { 1251, "CFF0", u"Пр" },
            { 1253, "AAD2FF", u"\uF8F9\uF8FA\uF8FB" }, { 1254, "DDFD", u"İı" },
            { 1255, "CAD9DADBDCDDDEDF", u"\u05BA\uF88D\uF88E\uF88F\uF890\uF891\uF892\uF893" },
            { 1255, "FBFCFF", u"\uF894\uF895\uF896" }, { 1257, "A1A5", u"\uF8FC\uF8FD" },
            { 874, "DBDCDDDEFCFDFEFF", u"\uF8C1\uF8C2\uF8C3\uF8C4\uF8C5\uF8C6\uF8C7\uF8C8" },
            // Single bytes, pairs, and pairs that are broken or cut: by a blank, a NUL or the end.
            { 932, "80A0FDFEFF5C7EB1", u"\x80\uF8F0\uF8F1\uF8F2\uF8F3\\~\uFF71" },
            { 932, "816087408140", u"\uFF5E\u2460\u3000" }, { 932, "61812062", u"a\u30FBb" },
            { 932, "6181", u"a\u30FB" }, { 936, "80FF", u"\u20AC\uF8F5" },
            { 936, "D6D0B9FA", u"中国" }, { 936, "61812062", u"a?b" }, { 936, "61D6", u"a?" },
            { 936, "D60061", QStringView(u"?\0a", 3) }, { 949, "80FF", u"\x80\uF8F7" },
            { 949, "8141B0A1", u"\uAC02\uAC00" }, { 949, "B0", u"?" },
            { 950, "80FF", u"\x80\uF8F8" }, { 950, "A145A4A4", u"\u2027中" },
            { 950, "A12061", u"?a" } };
        for (const auto& [page, hex, text] : cases)
            QCOMPARE(Decoded(*CodePage::For(page), QByteArray::fromHex(hex)), text);
    }

    void everyPageThatThereIsKeepsAscii()
    {
        QByteArray ascii;
        for (int byte = 0; byte < 0x80; ++byte)
            ascii.append(static_cast<char>(byte));
        for (const int page :
            { 874, 932, 936, 949, 950, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258 })
            QCOMPARE(Decoded(*CodePage::For(page), ascii), QString::fromLatin1(ascii));
        for (const int page : { 0, 65001 })
            QVERIFY(!CodePage::For(page));
    }

    void theLocaleChoosesThePage()
    {
        const std::pair<int, const char*> cases[] {
            { 1252, " C C.UTF-8 POSIX en_US.UTF-8 de_CH pt_BR hi_IN xx_YY" },
            { 1250, "pl_PL.UTF-8 hu_HU sr_RS@latin sr-Latn-RS" },
            { 1251, "ru_RU.KOI8-R uk_UA sr_RS az_Cyrl_AZ" }, { 1253, "el_GR" },
            { 1254, "tr_TR az_AZ" }, { 1255, "he_IL" }, { 1256, "ar_EG fa_IR" }, { 1257, "lt_LT" },
            { 1258, "vi_VN" }, { 874, "th_TH" }, { 932, "ja_JP.UTF-8" }, { 936, "zh_CN zh_SG" },
            { 949, "ko_KR" }, { 950, "zh_TW zh_HK zh-Hant" }
        };
        for (const auto& [page, locales] : cases) {
            for (const QString& locale : QString::fromLatin1(locales).split(u' '))
                QVERIFY2(LocaleProfile::For(locale).codePage == page, qPrintable(locale));
        }
    }

    void theEnvironmentChoosesByCategory()
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
};

QUILLORY_TEST(QCoreApplication, CodePageTest)
#include "code_page_test.moc"
