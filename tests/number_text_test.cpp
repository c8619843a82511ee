// SPDX-License-Identifier: MIT
#include "platform/leading_number.h"
#include "platform/number_text.h"
#include "tests/test_program.h"
#include "tests/vectors.h"

#include <tuple>

namespace {

/// As many digits as tell the number from its neighbours.
QString Shortest(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace

class NumberTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twoDecimalsAreRoundedExactly()
    {
        CheckVectors(u"two_decimals"_s,
            [](const Vector& row) { return TwoDecimals(row["value"].toDouble()); });
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
        CheckVectors(u"number_forms"_s, [](const Vector& row) {
            const LocaleProfile locale = LocaleProfile::For(row["locale"]);
            const auto text = FormatNumber(row["plain"], locale);
            if (text
                && FormatNumber(PlainNumber(*text, locale).value_or(QString()), locale) != text)
                return *text + u", and is not read again"_s;
            return text.value_or(QString());
        });
    }

    void numbersAreReadInTheFormOfTheLocale()
    {
        CheckVectors(u"number_readings"_s, [](const Vector& row) {
            return PlainNumber(row["text"], LocaleProfile::For(row["locale"])).value_or(QString());
        });
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
        CheckVectors(u"whole_numbers"_s,
            [](const Vector& row) { return QString::number(LeadingInteger(row["text"])); });
    }

    void numbersAreReadFromTheStart()
    {
        CheckVectors(u"leading_numbers"_s,
            [](const Vector& row) { return Shortest(LeadingNumber(row["text"].toStdString())); });
    }

    void numbersGoThroughTheCodePage()
    {
        CheckVectors(u"numbers_in_code_pages"_s, [](const Vector& row) {
            return Shortest(LeadingNumberInCodePage(row["text"], row["page"].toInt()));
        });
    }
};

QUILLORY_TEST(QCoreApplication, NumberTextTest)
#include "number_text_test.moc"
