// SPDX-License-Identifier: MIT
#include "platform/date_picture.h"
#include "platform/date_reader.h"
#include "tests/test_program.h"
#include "tests/vectors.h"

namespace {

QString DateText(QDate date, const LocaleProfile& locale)
{
    std::u16string text;
    AppendDateText(text, date, locale);
    return QString::fromStdU16String(text);
}

} // namespace

class DateReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreReadInTheOrderOfTheLocale()
    {
        CheckVectors(u"dates"_s, [](const Vector& row) {
            const LocaleProfile locale = LocaleProfile::For(row["locale"]);
            QString asked;
            const Clock clock = [&] {
                asked = u" by the clock"_s;
                return LocalTime { QDate(row["year"].toInt(), 6, 15), QTime(12, 0) };
            };
            const auto day = ReadDate(row["text"], locale, clock);
            return (day ? day->toString(Qt::ISODate) : u"refused"_s) + asked;
        });
    }

    void everyLocaleReadsItsOwnShortForm()
    {
        CheckVectors(u"short_dates"_s, [](const Vector& row) {
            const LocaleProfile locale = LocaleProfile::For(row["locale"]);
            for (QDate each(1601, 1, 1); each.year() < 9000; each = each.addDays(1009)) {
                const QString text = DateText(each, locale);
                if (ReadDate(text, locale, {}) != each)
                    return text + u" is read as another day"_s;
            }
            return DateText(QDate::fromString(row["day"], Qt::ISODate), locale);
        });
    }

    void picturesOfUnknownLocalesAreFollowed()
    {
        CheckVectors(u"date_pictures"_s, [](const Vector& row) {
            LocaleProfile locale = LocaleProfile::For(u"en_US"_s);
            locale.shortDatePicture = row["picture"];
            const auto day = ReadDateByPicture(
                row["text"], locale.shortDatePicture, DigitCount::AsWritten, locale);
            return DateText(QDate(2024, 1, 5), locale) + u" | "_s
                + (day ? day->toString(Qt::ISODate) : u"refused"_s);
        });
    }
};

QUILLORY_TEST(QCoreApplication, DateReaderTest)
#include "date_reader_test.moc"
