// SPDX-License-Identifier: MIT
#include "platform/code_page.h"
#include "platform/locale_profile.h"
#include "tests/test_program.h"
#include "tests/vectors.h"

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
        CheckVectors(u"code_pages"_s, [](const Vector& row) {
            const auto bytes = QByteArray::fromHex(row["bytes"].toLatin1());
            return Decoded(*CodePage::For(row["page"].toInt()), bytes);
        });
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
        CheckVectors(u"locale_code_pages"_s, [](const Vector& row) {
            return QString::number(LocaleProfile::For(row["locale"]).codePage);
        });
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
