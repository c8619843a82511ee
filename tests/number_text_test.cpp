// SPDX-License-Identifier: MIT
#include "platform/leading_number.h"
#include "platform/number_text.h"
#include "tests/test_program.h"

#include <limits>
#include <tuple>
#include <utility>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

} // namespace

class NumberTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoDecimalsAreRoundedExactly()
    {
        const std::pair<double, const char*> cases[] {
            // Halves go away from zero; 1.005 and 2.675 are below theirs.
            { 0.125, "0.13" }, { 0.625, "0.63" }, { -0.125, "-0.13" }, { 1.005, "1.00" },
            { 2.675, "2.67" }, { 999.995, "1000.00" }, { 3.0, "3.00" }, { -0.5, "-0.50" },
            { -0.001, "-0.00" }, { -0.0, "-0.00" },
            { std::numeric_limits<double>::denorm_min(), "0.00" },
            // After 17 digits come zeros.
            { 999999999999999.875, "999999999999999.88" },
            { 1125899906842624.25, "1125899906842624.30" },
            { 2251799813685248.5, "2251799813685248.50" },
            { 9007199254740992.0, "9007199254740992.00" },
            { 12345678901234568.0, "12345678901234568.00" }, { 1e23, "99999999999999992000000.00" },
            { kInfinity, "1.#J" }, { -kInfinity, "-1.#J" },
            { std::numeric_limits<double>::quiet_NaN(), "1.#R" }
        };
        for (const auto& [value, text] : cases)
            QCOMPARE(TwoDecimals(value), QLatin1StringView(text));
    }

    void twoDecimalsAgreeWithExactArithmetic()
    {
        // All eighths are exact, and so are their hundredths in whole numbers: n/8 = 12.5 n / 100.
        for (qint64 n = 0; n < 40'000; ++n) {
            const qint64 eighths = n * n * n;
            const qint64 hundredths = (eighths * 25 + 1) / 2;
            const QString expected = QString::number(hundredths / 100) + u'.'
                + QString::number(hundredths % 100).rightJustified(2, u'0');
            QCOMPARE(TwoDecimals(static_cast<double>(eighths) / 8), expected);
        }
    }

    void numbersTakeTheFormOfTheLocale()
    {
        const std::tuple<QStringView, QStringView, QStringView> cases[] {
            { u"en_US", u"2353", u"2,353.00" }, { u"en_US", u"-2353", u"-2,353.00" },
            { u"en_US", u"-353", u"-353.00" }, { u"en_US", u"2353.1", u"2,353.10" },
            { u"en_US", u"2353.111", u"2,353.11" }, { u"en_US", u"2353.119", u"2,353.12" },
            // No numbers are refused, and so are those of another form.
            { u"en_US", u"23,53", u"" }, { u"en_US", u" 0.1", u"" }, { u"en_US", u"0-", u"" },
            { u"en_US", u"--", u"" }, { u"en_US", u"0..", u"" }, { u"en_US", u"1.#J", u"" },
            { u"en_US", u"nan", u"" },
            // A carry can make a group; leading zeros go, one comes, minus zero stays.
            { u"en_US", u"0.995", u"1.00" }, { u"en_US", u"999999.995", u"1,000,000.00" },
            { u"en_US", u"000235", u"235.00" }, { u"en_US", u".5", u"0.50" },
            { u"en_US", u"-0.00", u"-0.00" },
            // Separators, groups of two and four digits, and places of the minus.
            { u"fr_FR", u"-12345", u"-12\u00A0345,00" },
            { u"de_DE", u"1234567.89", u"1.234.567,89" },
            { u"de_CH", u"1234567.89", u"1'234'567.89" },
            { u"pl_PL", u"1234.50", u"1\u00A0234,50" }, { u"es_ES", u"1234.50", u"1.234,50" },
            { u"sv_SE", u"-0.50", u"-0,50" }, { u"hi_IN", u"123456789.00", u"12,34,56,789.00" },
            { u"hi_IN", u"999.00", u"999.00" }, { u"en_IN", u"-1234567.891", u"-12,34,567.89" },
            { u"nl_NL", u"100.00", u"100,00" }, { u"hr_HR", u"-1234567.891", u"- 1.234.567,89" },
            { u"ar_EG", u"-1234567.891", u"1,234,567.89-" },
            { u"fr_CH", u"-1234567.891", u"-1'234'567.89" },
            { u"fr_BE", u"-1234567.891", u"-1.234.567,89" }
        };
        for (const auto& [locale, plain, text] : cases) {
            const LocaleProfile profile = LocaleProfile::For(locale.toString());
            QCOMPARE(FormatNumber(plain, profile).value_or(QString()), text);
            // What is written is read again as the same number.
            if (!text.isEmpty())
                QCOMPARE(
                    FormatNumber(PlainNumber(text, profile).value_or(QString()), profile), text);
        }
    }

    void numbersAreReadInTheFormOfTheLocale()
    {
        const std::pair<QStringView, QStringList> cases[] { // After the locale.
            { u"1234.5",
                { u"en_US 1234.5"_s, u"en_US 1,234.5"_s, u"de_DE 1234,5"_s, u"fr_FR 1 234,5"_s } },
            { u"-1234",
                { u"en_US -1234"_s, u"ar_EG 1,234-"_s, u"ar_EG -1,234"_s, u"hr_HR - 1.234"_s } },
            { u"",
                { u"en_US 12,34"_s, u"en_US 1234,5"_s, u"de_DE 1234.5"_s, u"en_US 1.2.3"_s,
                    u"en_US -"_s, u"en_US --1"_s, u"en_US 3 Eggs"_s, u"en_US .5"_s, u"en_US ,234"_s,
                    u"en_US 1e3"_s, u"ar_EG -1-"_s, u"en_US "_s } }
        };
        for (const auto& [plain, texts] : cases) {
            for (const QString& text : texts) {
                const LocaleProfile profile = LocaleProfile::For(text.section(u' ', 0, 0));
                const auto read = PlainNumber(text.section(u' ', 1), profile);
                QVERIFY2(read.value_or(QString()) == plain, qPrintable(text));
            }
        }
    }

    void aFormLongerThanItsRoomIsRefused()
    {
        const std::tuple<QString, int, int> cases[] { { u"en_US"_s, 192, 258 },
            { u"en_US"_s, 193, 0 }, { u"hi_IN"_s, 171, 258 }, { u"hi_IN"_s, 172, 0 } };
        for (const auto& [locale, digits, length] : cases) {
            const QString plain = QString(digits, u'7') + u".00"_s;
            const LocaleProfile profile = LocaleProfile::For(locale);
            QCOMPARE(FormatNumber(plain, profile).value_or(QString()).size(), length);
            QCOMPARE(FormatNumber(u'-' + plain, profile).has_value(), length > 0);
            QVERIFY(!FormatNumber(u"1234", profile, 2));
        }
    }

    void wholeNumbersAreReadFromTheStart()
    {
        const std::pair<qint32, const char*> cases[] { { 12, "12| \t\n\v\f\r 12|12abc" },
            { 5, "+5" }, { -5, "-5" },
            { 0, "abc||--5|+-5|- 5|0x10|4294967296|\u00A012|\uFF11\uFF12" },
            { 2147483647, "2147483647|-2147483649" },
            { std::numeric_limits<qint32>::min(), "-2147483648" }, { -1, "4294967295" },
            { 1, "1e3|1,234|1.9" }, { 7, "007" }, { 1410065407, "9999999999" } };
        for (const auto& [number, texts] : cases) {
            for (const QString& text : QString::fromUtf8(texts).split(u'|'))
                QVERIFY2(LeadingInteger(text) == number, qPrintable(text));
        }
    }

    void numbersAreReadFromTheStart()
    {
        const std::pair<double, const char*> cases[] { { 12.1, "12.1" }, { -13.721, "-13.721" },
            { 2.1e11, ".21e12" }, { 214.353, "214353e-3" }, { 1210, "12.1d2|12.1D+2" },
            { 0,
                "00.|.00|0e13|0e99999999999999999999|INF|NAN|  d10|0.1D-4736|"
                "1d-9999999999999999999|0x10|- 1|.|-||--1" },
            { 1, "1e|1e+|1,5" }, { 1.5, "1.5.2| +1.5 " },
            { std::numeric_limits<double>::max(), "1.7976931348623157e+308" },
            { kInfinity, "1.7976931348623159e+308" }, { -kInfinity, "-1d9999999999999999999" },
            { 1e300, "0.00000000000000000001e320" }, { 5, "5." } };
        for (const auto& [number, texts] : cases) {
            for (const QByteArray& text : QByteArray(texts).split('|'))
                QCOMPARE(LeadingNumber(text.constData()), number);
        }
    }

    void numbersGoThroughTheCodePage()
    {
        const QString wide = u"\uFF0D\uFF11\uFF0E\uFF15"_s;
        const std::tuple<QString, int, double> cases[] { { wide, 1252, -1.5 }, { wide, 874, -1.5 },
            // Wide digits are no digits in Japanese, and end a number in Korean.
            { wide, 932, 0.0 }, { u"1\uFF12"_s, 949, 1.0 },
            // A minus sign is one in few pages, a no-break space is no blank.
            { u"\u22125"_s, 1250, -5.0 }, { u"\u22125"_s, 1251, 0.0 }, { u"\u00A05"_s, 1252, 0.0 },
            // A strange character ends a number, as do 63 units.
            { u"1\u4E002"_s, 1252, 1.0 }, { QString(62, u' ') + u"12"_s, 1252, 1.0 } };
        for (const auto& [text, codePage, number] : cases)
            QCOMPARE(LeadingNumberInCodePage(text, codePage), number);
    }
};

QUILLORY_TEST(QCoreApplication, NumberTextTest)
#include "number_text_test.moc"
