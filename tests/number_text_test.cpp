// SPDX-License-Identifier: MIT
#include "platform/leading_number.h"
#include "platform/number_text.h"
#include "tests/test_program.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace Quillory {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

} // namespace

class NumberTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoDecimalsAreRoundedExactly_data();
    void twoDecimalsAreRoundedExactly();
    void twoDecimalsAgreeWithExactArithmetic();
    void numbersTakeTheFormOfTheLocale_data();
    void numbersTakeTheFormOfTheLocale();
    void numbersAreReadInTheFormOfTheLocale_data();
    void numbersAreReadInTheFormOfTheLocale();
    void aFormLongerThanItsRoomIsRefused_data();
    void aFormLongerThanItsRoomIsRefused();
    void wholeNumbersAreReadFromTheStart_data();
    void wholeNumbersAreReadFromTheStart();
    void numbersAreReadFromTheStart_data();
    void numbersAreReadFromTheStart();
    void numbersGoThroughTheCodePage_data();
    void numbersGoThroughTheCodePage();
};

void NumberTextTest::twoDecimalsAreRoundedExactly_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("an even half goes up") << 0.125 << u"0.13"_s;
    QTest::newRow("an odd half goes up") << 0.625 << u"0.63"_s;
    QTest::newRow("a negative half goes down") << -0.125 << u"-0.13"_s;
    QTest::newRow("1.005 is below the half") << 1.005 << u"1.00"_s;
    QTest::newRow("2.675 is below the half") << 2.675 << u"2.67"_s;
    QTest::newRow("a carry") << 999.995 << u"1000.00"_s;
    QTest::newRow("a whole number") << 3.0 << u"3.00"_s;
    QTest::newRow("a negative fraction") << -0.5 << u"-0.50"_s;
    QTest::newRow("a sign without digits") << -0.001 << u"-0.00"_s;
    QTest::newRow("minus zero") << -0.0 << u"-0.00"_s;
    QTest::newRow("the smallest") << std::numeric_limits<double>::denorm_min() << u"0.00"_s;
    QTest::newRow("16 digits") << 999999999999999.875 << u"999999999999999.88"_s;
    QTest::newRow("17 digits") << 1125899906842624.25 << u"1125899906842624.30"_s;
    QTest::newRow("a half beyond 2^51") << 2251799813685248.5 << u"2251799813685248.50"_s;
    QTest::newRow("2^53") << 9007199254740992.0 << u"9007199254740992.00"_s;
    QTest::newRow("17 whole digits") << 12345678901234568.0 << u"12345678901234568.00"_s;
    QTest::newRow("zeros after 17 digits") << 1e23 << u"99999999999999992000000.00"_s;
    QTest::newRow("infinity") << kInfinity << u"1.#J"_s;
    QTest::newRow("minus infinity") << -kInfinity << u"-1.#J"_s;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << u"1.#R"_s;
}

void NumberTextTest::twoDecimalsAreRoundedExactly()
{
    QFETCH(const double, value);
    QFETCH(const QString, text);
    QCOMPARE(TwoDecimals(value), text);
}

void NumberTextTest::twoDecimalsAgreeWithExactArithmetic()
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

void NumberTextTest::numbersTakeTheFormOfTheLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("text");
    const auto add = [](const char* name, QStringView locale, QStringView plain, QStringView text) {
        QTest::newRow(name) << locale.toString() << plain.toString() << text.toString();
    };
    add("four digits are grouped", u"en_US", u"2353", u"2,353.00");
    add("a negative one", u"en_US", u"-2353", u"-2,353.00");
    add("three digits are not grouped", u"en_US", u"-353", u"-353.00");
    add("one decimal is filled up", u"en_US", u"2353.1", u"2,353.10");
    add("a third decimal below 5", u"en_US", u"2353.111", u"2,353.11");
    add("a third decimal above 5", u"en_US", u"2353.119", u"2,353.12");
    add("a comma is refused", u"en_US", u"23,53", u"");
    add("a blank is refused", u"en_US", u" 0.1", u"");
    add("a late sign is refused", u"en_US", u"0-", u"");
    add("two signs are refused", u"en_US", u"--", u"");
    add("two points are refused", u"en_US", u"0..", u"");
    add("a carry into the whole part", u"en_US", u"0.995", u"1.00");
    add("a carry makes a group", u"en_US", u"999999.995", u"1,000,000.00");
    add("leading zeros go", u"en_US", u"000235", u"235.00");
    add("one zero comes", u"en_US", u".5", u"0.50");
    add("minus zero stays", u"en_US", u"-0.00", u"-0.00");
    add("infinity is refused", u"en_US", u"1.#J", u"");
    add("words are refused", u"en_US", u"nan", u"");
    add("French blanks", u"fr_FR", u"-12345", u"-12\u00A0345,00");
    add("German points", u"de_DE", u"1234567.89", u"1.234.567,89");
    add("Swiss apostrophes", u"de_CH", u"1234567.89", u"1'234'567.89");
    add("Polish blanks", u"pl_PL", u"1234.50", u"1\u00A0234,50");
    add("Spanish groups of four digits", u"es_ES", u"1234.50", u"1.234,50");
    add("a plain Swedish minus", u"sv_SE", u"-0.50", u"-0,50");
    add("Indian groups", u"hi_IN", u"123456789.00", u"12,34,56,789.00");
    add("a small Indian number", u"hi_IN", u"999.00", u"999.00");
    add("Indian English", u"en_IN", u"-1234567.891", u"-12,34,567.89");
    add("Dutch", u"nl_NL", u"100.00", u"100,00");
    add("a Croatian minus", u"hr_HR", u"-1234567.891", u"- 1.234.567,89");
    add("an Arabic minus", u"ar_EG", u"-1234567.891", u"1,234,567.89-");
    add("Swiss French", u"fr_CH", u"-1234567.891", u"-1'234'567.89");
    add("Belgian French", u"fr_BE", u"-1234567.891", u"-1.234.567,89");
}

void NumberTextTest::numbersTakeTheFormOfTheLocale()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, plain);
    QFETCH(const QString, text);
    const LocaleProfile profile = LocaleProfile::For(locale);
    QCOMPARE(FormatNumber(plain, profile).value_or(QString()), text);
    // What is written is read again as the same number.
    if (!text.isEmpty())
        QCOMPARE(FormatNumber(PlainNumber(text, profile).value_or(QString()), profile), text);
}

void NumberTextTest::numbersAreReadInTheFormOfTheLocale_data()
{
    QTest::addColumn<QString>("plain");
    const auto add = [](const char* plain, const QStringList& texts) {
        for (const QString& text : texts)
            QTest::newRow(qPrintable(text)) << QString::fromLatin1(plain);
    };
    // After the locale.
    add("1234.5", { u"en_US 1234.5"_s, u"en_US 1,234.5"_s, u"de_DE 1234,5"_s, u"fr_FR 1 234,5"_s });
    add("-1234", { u"en_US -1234"_s, u"ar_EG 1,234-"_s, u"ar_EG -1,234"_s, u"hr_HR - 1.234"_s });
    add("",
        { u"en_US 12,34"_s, u"en_US 1234,5"_s, u"de_DE 1234.5"_s, u"en_US 1.2.3"_s, u"en_US -"_s,
            u"en_US --1"_s, u"en_US 3 Eggs"_s, u"en_US .5"_s, u"en_US ,234"_s, u"en_US 1e3"_s,
            u"ar_EG -1-"_s, u"en_US "_s });
}

void NumberTextTest::numbersAreReadInTheFormOfTheLocale()
{
    QFETCH(const QString, plain);
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    const LocaleProfile profile = LocaleProfile::For(text.section(u' ', 0, 0));
    QCOMPARE(PlainNumber(text.section(u' ', 1), profile).value_or(QString()), plain);
}

void NumberTextTest::aFormLongerThanItsRoomIsRefused_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("digits");
    QTest::addColumn<int>("length");
    QTest::newRow("192 digits in threes fit") << u"en_US"_s << 192 << 258;
    QTest::newRow("193 digits in threes do not") << u"en_US"_s << 193 << 0;
    QTest::newRow("171 digits in twos fit") << u"hi_IN"_s << 171 << 258;
    QTest::newRow("172 digits in twos do not") << u"hi_IN"_s << 172 << 0;
}

void NumberTextTest::aFormLongerThanItsRoomIsRefused()
{
    QFETCH(const QString, locale);
    QFETCH(const int, digits);
    QFETCH(const int, length);
    const QString plain = QString(digits, u'7') + u".00"_s;
    const LocaleProfile profile = LocaleProfile::For(locale);
    QCOMPARE(FormatNumber(plain, profile).value_or(QString()).size(), length);
    QCOMPARE(FormatNumber(u'-' + plain, profile).has_value(), length > 0);
    QVERIFY(!FormatNumber(u"1234", profile, 2));
}

void NumberTextTest::wholeNumbersAreReadFromTheStart_data()
{
    QTest::addColumn<qint32>("number");
    const auto add = [](qint32 number, const char* texts) {
        for (const QByteArray& text : QByteArray(texts).split('|'))
            QTest::newRow(text.constData()) << number;
    };
    add(12, "12| \t\n\v\f\r 12|12abc");
    add(5, "+5");
    add(-5, "-5");
    add(0, "abc||--5|+-5|- 5|0x10|4294967296|\u00A012|\uFF11\uFF12");
    add(2147483647, "2147483647|-2147483649");
    add(std::numeric_limits<qint32>::min(), "-2147483648");
    add(-1, "4294967295");
    add(1, "1e3|1,234|1.9");
    add(7, "007");
    add(1410065407, "9999999999");
}

void NumberTextTest::wholeNumbersAreReadFromTheStart()
{
    QFETCH(const qint32, number);
    QCOMPARE(LeadingInteger(QString::fromUtf8(QTest::currentDataTag())), number);
}

void NumberTextTest::numbersAreReadFromTheStart_data()
{
    QTest::addColumn<double>("number");
    const auto add = [](double number, const char* texts) {
        for (const QByteArray& text : QByteArray(texts).split('|'))
            QTest::newRow(text.constData()) << number;
    };
    add(12.1, "12.1");
    add(-13.721, "-13.721");
    add(2.1e11, ".21e12");
    add(214.353, "214353e-3");
    add(1210, "12.1d2|12.1D+2");
    add(0,
        "00.|.00|0e13|0e99999999999999999999|INF|NAN|  d10|0.1D-4736|1d-9999999999999999999|"
        "0x10|- 1|.|-||--1");
    add(1, "1e|1e+|1,5");
    add(1.5, "1.5.2| +1.5 ");
    add(std::numeric_limits<double>::max(), "1.7976931348623157e+308");
    add(kInfinity, "1.7976931348623159e+308");
    add(-kInfinity, "-1d9999999999999999999");
    add(1e300, "0.00000000000000000001e320");
    add(5, "5.");
}

void NumberTextTest::numbersAreReadFromTheStart()
{
    QFETCH(const double, number);
    QCOMPARE(LeadingNumber(QTest::currentDataTag()), number);
}

void NumberTextTest::numbersGoThroughTheCodePage_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("codePage");
    QTest::addColumn<double>("number");
    const QString wide = u"\uFF0D\uFF11\uFF0E\uFF15"_s;
    QTest::newRow("wide digits in a page of single bytes") << wide << 1252 << -1.5;
    QTest::newRow("wide digits in Thai") << wide << 874 << -1.5;
    QTest::newRow("wide digits in Japanese") << wide << 932 << 0.0;
    QTest::newRow("wide digits end a Korean number") << u"1\uFF12"_s << 949 << 1.0;
    QTest::newRow("a minus sign in 1250") << u"\u22125"_s << 1250 << -5.0;
    QTest::newRow("a minus sign in 1251") << u"\u22125"_s << 1251 << 0.0;
    QTest::newRow("a no-break space is no blank") << u"\u00A05"_s << 1252 << 0.0;
    QTest::newRow("a strange character ends it") << u"1\u4E002"_s << 1252 << 1.0;
    QTest::newRow("63 units are read") << QString(62, u' ') + u"12"_s << 1252 << 1.0;
}

void NumberTextTest::numbersGoThroughTheCodePage()
{
    QFETCH(const QString, text);
    QFETCH(const int, codePage);
    QFETCH(const double, number);
    QCOMPARE(LeadingNumberInCodePage(text, codePage), number);
}

} // namespace Quillory

QUILLORY_TEST(QCoreApplication, Quillory::NumberTextTest)
#include "number_text_test.moc"
