// SPDX-License-Identifier: MIT
#include "platform/date_picture.h"
#include "platform/date_reader.h"
#include "tests/test_program.h"

#include <tuple>
#include <utility>

namespace {

Clock ClockOfYear(int year)
{
    return [year] { return LocalTime { QDate(year, 6, 15), QTime(12, 0) }; };
}

QString DateText(QDate date, const LocaleProfile& locale)
{
    std::u16string text;
    AppendDateText(text, date, locale);
    return QString::fromStdU16String(text);
}

/// Texts, parted by '|', and the day that each is read as in 2026; no day where it is refused.
struct DateCase
{
    const char* locale;
    const char* day;
    QStringView texts;
};

constexpr DateCase kDateCases[] = {
    { "en_US", "1970-01-02",
        u"1/2/1970|1-2-1970|1 2 1970|2 January, 1970|2 Jan 1970|2/Jan/1970|2-Jan-1970|2 Jan 70" },
    { "en_US", "1970-01-13", u"13-1-1970|1970-1-13" },
    { "en_US", "2011-06-30", u"6/30/2011 01:20:34|6/30/2011 01:20:34 PM|6/30/2011\u30001:20:34" },
    { "en_US", "2013-05-14", u"2013-05-14 02:04:12" },
    { "en_US", "2026-01-02",
        u"1 2|Jan 2|2 Jan|1//2|10:30 1/2|10:30:15 1/2|1/2 10:30|10am 1/2|1/2 10 PM" },
    { "en_US", "2026-01-14", u"14 1|1 14" }, { "en_US", "1930-02-01", u"30 2|2 30" },
    { "en_US", "1935-01-01", u"Jan 35|35/Jan" }, { "en_US", "2003-01-02", u"1 2 3" },
    { "en_US", "2014-02-03", u"14 2 3|2 3 14" }, { "en_US", "2003-02-14", u"2 14 3" },
    { "en_US", "1932-02-03", u"32 2 3" }, { "en_US", "2000-01-01", u"1 1 0" },
    { "en_US", "2029-12-31", u"12 31 29" }, { "en_US", "1930-01-01", u"1 1 30" },
    { "en_US", "1950-01-01", u"1 1 50" }, { "en_US", "1999-12-31", u"12 31 99" },
    { "en_US", "0100-01-01", u"1 1 100" }, { "en_US", "2000-05-14", u"0/5/14" },
    { "en_US", "2029-02-01", u"29 Feb 01|29Feb01" },
    { "en_US", "2024-01-31", u"2024-01-31|2024-31-01" },
    { "en_US", "2024-01-02",
        u" 1 / 2 / 2024 |1,2,2024|January 2, 2024|JAN 2 2024|1/2/2024 10:30|10:30 "
        u"1/2/2024|1,,2,,2024|"
        u"10:30:15 1/2/2024|10am 1/2/2024|1/2/2024 10p" },
    { "en_US", "2024-02-29", u"2/29/2024" }, { "en_US", "2024-01-01", u"1/2024|Jan 2024" },
    { "en_US", "2005-01-24", u"5 Jan 24" }, { "en_US", "2024-01-05", u"24 5 Jan" },
    { "en_US", "1899-12-30", u"10:30|1.2.24|1 am|12a|12p|13 pm|23:59:59" },
    { "en_US", "9999-12-31", u"12/31/9999|31 Dec 9999" },
    { "en_US", "",
        u"2013-05-14 02:04:12.017000000|02.01.1970|32 49|0 49|1 2 3 4|1;2;3|True|0|2/29/2023|"
        u"2/30/2024|2/30/24|13/13/2024|13/2024|Sept 5 2024|1/2/2024 25:30|1/2/2024 10|31.01.2024|"
        u"12abc|a|20240131|1/2/3/4|1/2/|-1/2/2024|1/2/10000|2024-01-31T10:30:00|"
        u"Monday, January 1, 2024||  |\u0661/\u0662/2024|1//2/3|4294967297/2/2024|/1/2|,1 2|"
        u"10:30 a|1 am pm|am 1|1/2 10:30:15|10:30 1 2am|1 10:30 2|1:2:3:4|10: |1 2 10: |24:00|0:60|"
        u"0:0:60|Jan:5|Jan 32 5|5 32 Jan|Jan 2 Feb" },
    { "en_GB", "2024-02-01", u"1/2/2024" }, { "en_GB", "2024-01-13", u"1/13/2024" },
    { "en_GB", "1930-12-31", u"31/12/30" }, { "en_GB", "1930-02-24", u"30/2/24" },
    { "en_GB", "2024-01-05", u"5 Jan 24" }, { "en_GB", "2029-02-01", u"29 Feb 01" },
    { "en_GB", "2024-12-01", u"12/2024" }, { "en_GB", "2003-12-24", u"24 12 3" },
    { "en_GB", "2026-02-01", u"1 2" }, { "en_GB", "2005-01-13", u"1 13 5" },
    { "en_GB", "2024-05-13", u"24 13 5" }, { "en_GB", "2024-01-31", u"2024-01-31" },
    { "en_GB", "", u"31/4/2024|1.2.2024" },
    { "de_DE", "1970-01-02", u"02.01.1970|02.01.1970 00:00:00" },
    { "de_DE", "1970-02-13", u"02.13.1970|02-13-1970" }, { "de_DE", "2020-01-11", u"2020-01-11" },
    { "de_DE", "2173-10-14", u"2173-10-14" }, { "de_DE", "2026-08-27", u"27.8|27/8|27-08" },
    { "de_DE", "2024-01-01", u"1. Januar 2024" },
    { "de_DE", "2024-03-02", u"2. März 2024|2. Mrz 2024" }, { "de_DE", "2024-05-01", u"1. Mai 24" },
    { "de_DE", "2026-10-30", u"10.30" },
    { "de_DE", "", u"27.8.|January 2 2024|1.2.2024 10.30|30.2.2024" },
    { "es_ES", "2024-09-02", u"2 sep 2024" }, { "es_ES", "", u"02.01.1970" },
    { "fr_FR", "2024-01-31", u"31/01/2024" }, { "fr_FR", "2024-01-02", u"2 janvier 2024" },
    { "fr_FR", "2024-02-02", u"2 févr. 2024" }, { "fr_FR", "1989-07-14", u"14/7/89" },
    { "fr_FR", "", u"02.01.1970|2 fevrier 2024|2 fév 2024|1er mai 2024" },
    { "sv_SE", "2024-01-31", u"2024-01-31|24-01-31|31/1/2024" },
    { "sv_SE", "2024-01-02", u"1/2/2024|2 jan 2024" }, { "sv_SE", "2026-01-02", u"1-2" },
    { "sv_SE", "2024-01-13", u"2024-13-01" }, { "sv_SE", "2005-01-13", u"1 13 5" },
    { "sv_SE", "2005-01-24", u"5 jan 24" }, { "sv_SE", "", u"den 2 januari 2024|2023-02-29" },
    { "ja_JP", "2024-01-31", u"2024/01/31|31/1/2024|2024年1月31日" },
    { "ja_JP", "2010-11-12", u"10/11/12" }, { "ja_JP", "2024-01-05", u"2024年01月05日" },
    { "ja_JP", "", u"2024.1.31|H16/1/2|2024年001月5日" },
    { "hu_HU", "", u"2024. 1. 5.|02024. 01. 05." },
    // The Buddhist year of a day that has a short form; else the year is as it stands.
    { "th_TH", "9999-12-31", u"31/12/10542" }, { "th_TH", "2100-01-05", u"5/1/2100" },
    { "vi_VN", "2024-01-05", u"5 Tháng 1 2024" }, { "vi_VN", "2024-12-05", u"5 tháng 12 2024" }
};

} // namespace

class DateReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreReadInTheOrderOfTheLocale()
    {
        for (const auto& [locale, day, texts] : kDateCases) {
            const LocaleProfile profile = LocaleProfile::For(QString::fromLatin1(locale));
            for (const QString& text : texts.toString().split(u'|')) {
                const auto read = ReadDate(text, profile, ClockOfYear(2026));
                const QString name = read.value_or(QDate()).toString(Qt::ISODate);
                QVERIFY2(name == QLatin1StringView(day),
                    qPrintable(u"%1 in %2 is %3"_s.arg(text, profile.shortDatePicture, name)));
            }
        }
    }

    void aMissingYearIsTheClocks()
    {
        const LocaleProfile locale = LocaleProfile::For(u"en_US"_s);
        QCOMPARE(ReadDate(u"2/29", locale, ClockOfYear(2028)), QDate(2028, 2, 29));
        QCOMPARE(ReadDate(u"2/29", locale, ClockOfYear(2026)), QDate(2029, 2, 1));
    }

    void theClockIsNotAskedWhereTheYearIsThere()
    {
        const LocaleProfile locale = LocaleProfile::For(u"en_US"_s);
        int asked = 0;
        const Clock clock = [&asked] {
            ++asked;
            return LocalTime { QDate(2026, 1, 1), QTime(0, 0) };
        };
        for (const QStringView text :
            { u"3/14/2027", u"2027-03-14", u"14 Mar 2027", u"13/13/2027" }) {
            (void)ReadDate(text, locale, clock);
        }
        QCOMPARE(asked, 0);
    }

    void everyLocaleReadsItsOwnShortForm()
    {
        const std::pair<QString, QString> cases[] { { u"en_US"_s, u"1/5/2024"_s },
            { u"en_AU"_s, u"5/01/2024"_s }, { u"en_IN"_s, u"05-01-2024"_s },
            { u"de_CH"_s, u"05.01.2024"_s }, { u"pt_BR"_s, u"5/1/2024"_s },
            { u"nl_NL"_s, u"5-1-2024"_s }, { u"sv_SE"_s, u"2024-01-05"_s },
            { u"sk_SK"_s, u"5. 1. 2024"_s }, { u"hu_HU"_s, u"2024. 01. 05."_s },
            { u"hr_HR"_s, u"5.1.2024"_s }, { u"bg_BG"_s, u"05.1.2024 г."_s },
            { u"lv_LV"_s, u"2024.01.05."_s }, { u"th_TH"_s, u"5/1/2567"_s },
            { u"ja_JP"_s, u"2024/01/05"_s }, { u"zh_CN"_s, u"2024-1-5"_s },
            { u"zh_HK"_s, u"5/1/2024"_s }, { u"ar_EG"_s, u"05/01/2024"_s },
            // In no table: today's picture with a whole year.
            { u"es_AR"_s, u"5/1/2024"_s } };
        for (const auto& [name, text] : cases) {
            const LocaleProfile locale = LocaleProfile::For(name);
            QCOMPARE(DateText(QDate(2024, 1, 5), locale), text);
            for (QDate each(1601, 1, 1); each.year() < 9000; each = each.addDays(1009))
                QCOMPARE(ReadDate(DateText(each, locale), locale, ClockOfYear(2026)), each);
        }
    }

    void picturesOfUnknownLocalesAreFollowed()
    {
        const std::tuple<QString, QString, QString> cases[] {
            { u"d 'de' MMM yyyy"_s, u"5 de Jan 2024"_s, u"5 de jan 2024"_s },
            { u"dd' day 'MMMM yyyy"_s, u"05 day January 2024"_s, u"05 day Jan 2024"_s },
            { u"d''M''yyyy"_s, u"5'1'2024"_s, u"5''1''2024"_s },
            // The century would be a guess.
            { u"d.M.yy"_s, u"5.1.24"_s, u"5.1.2024"_s }
        };
        for (const auto& [picture, written, refused] : cases) {
            LocaleProfile locale = LocaleProfile::For(u"en_US"_s);
            locale.shortDatePicture = picture;
            const QDate day(2024, 1, 5);
            QCOMPARE(DateText(day, locale), written);
            const auto read = [&locale](const QString& text) {
                return ReadDateByPicture(
                    text, locale.shortDatePicture, DigitCount::AsWritten, locale);
            };
            QCOMPARE(read(written).value_or(QDate()), written.endsWith(u"2024") ? day : QDate());
            QVERIFY2(!read(refused), qPrintable(refused));
        }
    }

    void datesBefore1601HaveNoShortForm()
    {
        const LocaleProfile locale = LocaleProfile::For(u"en_US"_s);
        QCOMPARE(DateText(QDate(1601, 1, 1), locale), u"1/1/1601"_s);
        QCOMPARE(DateText(QDate(1600, 12, 31), locale), QString());
        QCOMPARE(DateText(QDate(), locale), QString());
    }
};

QUILLORY_TEST(QCoreApplication, DateReaderTest)
#include "date_reader_test.moc"
