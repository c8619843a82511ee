// SPDX-License-Identifier: MIT
#include "tests/list_fixture.h"
#include "tests/test_program.h"
#include "tests/vectors.h"
#include "values/file_date.h"
#include "values/typed_date.h"
#include "values/value_text.h"

#include <limits>
#include <optional>
#include <tuple>
#include <utility>

namespace {

constexpr PropertyId kTextColumn = MakePropertyId(1, CEVT_LPWSTR);
constexpr PropertyId kCheckbox = MakePropertyId(2, CEVT_BOOL);
constexpr PropertyId kPriceColumn = MakePropertyId(3, CEVT_R8);
constexpr PropertyId kInteger = MakePropertyId(4, CEVT_I4);
constexpr PropertyId kDateColumn = MakePropertyId(5, CEVT_FILETIME);

/// Prices as in the United States, dates written as in Germany.
ValueContext Context()
{
    ValueContext context = TestContext();
    context.systemLocale = LocaleProfile::For(u"de_DE"_s);
    return context;
}

FileTime DayTime(int year, int month, int day)
{
    return DateToFileTime(QDate(year, month, day)).value();
}

constexpr FileTime kEndOfFileTimes { quint64(1) << 63 };

} // namespace

class ValueTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileTimesCountFrom1601()
    {
        const std::pair<QDate, quint64> cases[] { { { 1899, 12, 30 }, 94353120000000000 },
            { { 1900, 1, 1 }, 94354848000000000 }, { { 1601, 1, 1 }, 0 },
            { { 1970, 1, 1 }, 116444736000000000 }, { { 1980, 1, 1 }, 119600064000000000 },
            { { 2000, 1, 1 }, 125911584000000000 }, { { 2024, 2, 29 }, 133536384000000000 },
            { { 9999, 12, 31 }, 2650466880000000000 } };
        for (const auto& [date, ticks] : cases) {
            QCOMPARE(DateToFileTime(date).value().ticks, ticks);
            QCOMPARE(FileTimeToDate({ ticks }), date);
            QCOMPARE(FileTimeToDate({ ticks + 863'999'999'999 }), date);
        }
    }

    void datesAreReadAsPeopleTypeThem()
    {
        CheckVectors(u"typed_dates"_s, [](const Vector& row) {
            ValueContext context = TestContext();
            context.userLocale = LocaleProfile::For(row["locale"]);
            context.clock = [] { return LocalTime { QDate(2026, 6, 15), QTime(12, 0) }; };
            const QString today = row["locale"] == u"de_DE" ? u"heute"_s : u"today"_s;
            const auto day = ReadTypedDate(row["text"], today, context);
            return day ? day->toString(Qt::ISODate) : u"none"_s;
        });
    }

    void daysOutsideTheFileTimesHaveNone()
    {
        QVERIFY(!DateToFileTime(QDate(1600, 12, 31)));
        QVERIFY(!DateToFileTime(QDate(100, 1, 1)));
        QVERIFY(!DateToFileTime(QDate()));
        QVERIFY(!FileTimeToDate(kEndOfFileTimes));
        QVERIFY(FileTimeToDate({ kEndOfFileTimes.ticks - 1 }));
        QVERIFY(!FileTimeToDate({ std::numeric_limits<quint64>::max() }));
    }

    void dateNumbersCarryTheTimeOfDay()
    {
        const std::tuple<LocalTime, quint64, double> cases[] { { { { 2002, 5, 1 }, { 12, 0 } },
                                                                   0x01C1F107B82B6000, 37377.5 },
            // Milliseconds do not count. Before day zero hours count down.
            { { { 2002, 7, 26 }, { 11, 55, 32, 123 } }, 0x01C2349B580716B0,
                37463 + (11 * 3600 + 55 * 60 + 32) / 86400.0 },
            { { { 1899, 12, 25 }, { 6, 0 } }, 94349016000000000, -5.25 },
            { { { 1601, 1, 1 }, { 0, 0 } }, 0, -109205.0 } };
        for (const auto& [time, ticks, number] : cases) {
            QCOMPARE(LocalTimeToFileTime(time).value().ticks, ticks);
            QCOMPARE(FileTimeToDateNumber({ ticks }), number);
        }
    }

    void everyDestinationHasItsText()
    {
        const std::tuple<PropertyValue, QString, QString, QString> cases[] {
            { { kTextColumn, 0, u"A\tb"_s }, u"A\tb"_s, u"A\tb"_s, u"A\tb"_s },
            { { kInteger, 0, -12345 }, u"-12345"_s, u"-12345"_s, u"-12345"_s },
            { { kInteger, 0, std::numeric_limits<qint32>::min() }, u"-2147483648"_s,
                u"-2147483648"_s, u"-2147483648"_s },
            { { kPriceColumn, 0, 1234.5 }, u"1,234.50"_s, u"1,234.50"_s, u"1234.50"_s },
            { { kPriceColumn, 0, -0.5 }, u"-0.50"_s, u"-0.50"_s, u"-0.50"_s },
            { { kPriceColumn, 0, std::numeric_limits<double>::infinity() }, u"1.#J"_s, u"1.#J"_s,
                u"1.#J"_s },
            { { kCheckbox, 0, true }, {}, u"Checked"_s, u"Y"_s },
            { { kCheckbox, 0, false }, {}, u"Unchecked"_s, u"N"_s },
            { { kDateColumn, 0, DayTime(2024, 1, 5) }, u"05.01.2024"_s, u"05.01.2024"_s,
                u"05.01.2024"_s },
            // A file time without a day.
            { { kDateColumn, 0, kEndOfFileTimes }, {}, {}, {} }
        };
        const ValueContext context = Context();
        for (const auto& [value, cell, edit, exported] : cases) {
            QCOMPARE(FormatCellText(&value, value.id, context), cell);
            QCOMPARE(FormatEditText(&value, value.id, context), edit);
            QCOMPARE(FormatExportText(value, context), exported);
        }
    }

    void aMissingValueIsEmptyOrUnchecked()
    {
        const ValueContext context = Context();
        for (const PropertyId column :
            { kTextColumn, kInteger, kPriceColumn, kDateColumn, kCheckbox }) {
            QCOMPARE(FormatCellText(nullptr, column, context), QString());
            QCOMPARE(FormatEditText(nullptr, column, context),
                column == kCheckbox ? u"Unchecked"_s : QString());
        }
    }

    void pricesThatFitNoFormArePlain()
    {
        const ValueContext context = Context();
        const PropertyValue price { kPriceColumn, 0, 1e50 };
        QCOMPARE(FormatCellText(&price, kPriceColumn, context).count(u','), 16);
        QCOMPARE(FormatEditText(&price, kPriceColumn, context), FormatExportText(price, context));
        const PropertyValue huge { kPriceColumn, 0, 1e300 };
        QCOMPARE(FormatCellText(&huge, kPriceColumn, context), FormatExportText(huge, context));
        QCOMPARE(FormatEditText(&huge, kPriceColumn, context).size(), 63);
        QCOMPARE(FormatExportText(huge, context).size(), 304);
    }

    void typedTextsAndImportedFieldsBecomeValues()
    {
        const std::tuple<PropertyId, QString, PropertyVariant, PropertyVariant> cases[] {
            // Letters end a number, no digits are 0.
            { kInteger, u"12abc"_s, 12, 12 }, { kInteger, {}, 0, 0 },
            { kPriceColumn, u"free"_s, 0.0, 0.0 },
            // Every comma is a point where typed.
            { kPriceColumn, u"12,5"_s, 12.5, 12.0 }, { kPriceColumn, u"1,234.50"_s, 1.234, 1.0 },
            // "Unchecked" counts where typed, "N" where imported.
            { kCheckbox, u"Checked"_s, true, true }, { kCheckbox, u"Unchecked"_s, false, true },
            { kCheckbox, u"N"_s, true, false }, { kCheckbox, u"n"_s, true, true },
            { kCheckbox, {}, true, true },
            // A date is in the user's locale, a time alone is day zero, any other day is nothing.
            { kDateColumn, u"2/1/2024"_s, DayTime(2024, 2, 1), DayTime(2024, 2, 1) },
            { kDateColumn, u"10:30"_s, DayTime(1899, 12, 30), DayTime(1899, 12, 30) },
            { kDateColumn, u"2/30/2024"_s, {}, {} }, { kDateColumn, u"12/31/1600"_s, {}, {} },
            { kDateColumn, {}, {}, {} }, { kTextColumn, u" Tea "_s, u" Tea "_s, u" Tea "_s },
            // A text ends at the first NUL.
            { kTextColumn, u"N\0o"_s, u"N"_s, u"N"_s }, { kCheckbox, u"N\0o"_s, true, false }
        };
        const auto holds = [](const std::optional<PropertyValue>& value, PropertyId id,
                               const PropertyVariant& expected) {
            return value ? value->id == id && value->value == expected
                         : std::holds_alternative<std::monostate>(expected);
        };
        for (const auto& [column, text, typed, imported] : cases) {
            QVERIFY2(
                holds(ParseValueText(column, text, Context()), column, typed), qPrintable(text));
            QVERIFY2(holds(ParseImportText(column, text, Context()), column, imported),
                qPrintable(text));
        }
    }

    void columnTypesAreStoredAsPropertyTypes()
    {
        for (int type = 0; type < kColumnTypeCount; ++type) {
            const auto columnType = static_cast<ColumnType>(type);
            QCOMPARE(ColumnTypeOf(MakePropertyId(10123, StorageType(columnType))), columnType);
        }
        QCOMPARE(ColumnTypeOf(PropertyId {}), ColumnType::String);
        QCOMPARE(static_cast<quint32>(PropName), 0x2711001FU);
        QCOMPARE(static_cast<quint32>(PropCount), 0x27120003U);
        QCOMPARE(static_cast<quint32>(PropExpiryDate), 0x27180040U);
    }
};

QUILLORY_TEST(QCoreApplication, ValueTextTest)
#include "value_text_test.moc"
