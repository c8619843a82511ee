// SPDX-License-Identifier: MIT
#include "platform/locale_profile.h"

#include "platform/locale_tables.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Quillory {

namespace {

constexpr int kBuddhistYearOffset = 543;

QString QtLocaleName(const LocaleName& name)
{
    QStringList parts { name.language };
    if (!name.script.isEmpty()) {
        parts.append(name.script);
    }
    if (!name.territory.isEmpty()) {
        parts.append(name.territory);
    }
    return parts.join(u'_');
}

/// A picture whose year has all its digits.
QString WithWholeYear(QString picture)
{
    if (!picture.contains(u"yyy"_s)) {
        picture.replace(u"yy"_s, u"yyyy"_s);
    }
    return picture;
}

/// The letters of a picture outside of quotes, and its marks, in their order.
QString PlainPart(const QString& picture)
{
    QString plain;
    bool isQuoted = false;
    for (const QChar unit : picture) {
        if (unit == u'\'') {
            isQuoted = !isQuoted;
        } else if (!isQuoted) {
            plain.append(unit);
        }
    }
    return plain;
}

DateOrder OrderOf(const QString& plainPicture)
{
    const auto* const first = std::find_if(plainPicture.cbegin(), plainPicture.cend(),
        [](QChar unit) { return unit == u'd' || unit == u'M' || unit == u'y'; });
    if (first == plainPicture.cend() || *first == u'M') {
        return DateOrder::MonthDayYear;
    }
    return *first == u'd' ? DateOrder::DayMonthYear : DateOrder::YearMonthDay;
}

QChar DateSeparatorOf(const QString& plainPicture)
{
    const auto* const mark = std::find_if(plainPicture.cbegin(), plainPicture.cend(),
        [](QChar unit) { return unit.isPunct() || unit.isSymbol(); });
    return mark == plainPicture.cend() ? QChar(u'/') : *mark;
}

/// Short names without the dot that today's data end many of them with.
QString ShortMonthName(const QLocale& locale, int month)
{
    QString name = locale.standaloneMonthName(month, QLocale::ShortFormat);
    return name.endsWith(u'.') ? name.chopped(1) : name;
}

void SetNames(LocaleProfile& profile, const QLocale& locale, const LocaleName& name)
{
    for (int month = 1; month <= 12; ++month) {
        const auto index = static_cast<std::size_t>(month - 1);
        profile.monthNames.at(index) = locale.standaloneMonthName(month, QLocale::LongFormat);
        profile.shortMonthNames.at(index) = ShortMonthName(locale, month);
    }
    if (const auto names = ShortMonthNames(name.language)) {
        profile.shortMonthNames = *names;
    }
    profile.amText = locale.amText();
    profile.pmText = locale.pmText();
}

QChar FirstUnit(const QString& text, QChar otherwise)
{
    return text.isEmpty() ? otherwise : text.front();
}

void SetForms(LocaleProfile& profile, const QLocale& locale, const LocaleRow* row)
{
    if (row == nullptr) {
        profile.shortDatePicture = WithWholeYear(locale.dateFormat(QLocale::ShortFormat));
        profile.decimalSeparator = FirstUnit(locale.decimalPoint(), u'.');
        profile.groupSeparator = FirstUnit(locale.groupSeparator(), u',');
        return;
    }
    profile.shortDatePicture = QStringView(row->shortDatePicture).toString();
    profile.decimalSeparator = row->decimalSeparator;
    profile.groupSeparator = row->groupSeparator;
    profile.negativeForm = row->negativeForm;
    if (row->grouping == Grouping::Indian) {
        profile.grouping = { 3, 2 };
    }
}

/// The value of the variable that decides a category; an empty one counts as not set.
QString CategoryLocale(const char* category)
{
    for (const char* const variable : { "LC_ALL", category, "LANG" }) {
        QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty()) {
            return value;
        }
    }
    return {};
}

} // namespace

LocaleProfile LocaleProfile::For(const QString& localeName)
{
    LocaleName name = ParseLocaleName(localeName);
    QLocale locale(QtLocaleName(name));
    LocaleProfile profile;
    profile.codePage = CodePageNumber(name);
    if (locale.language() == QLocale::C) {
        name = { u"en"_s, {}, u"US"_s };
        locale = QLocale(QLocale::English, QLocale::UnitedStates);
    }
    profile.name = QtLocaleName(name);
    SetNames(profile, locale, name);
    SetForms(profile, locale, FindLocaleRow(name));
    const QString plainPicture = PlainPart(profile.shortDatePicture);
    profile.dateOrder = OrderOf(plainPicture);
    profile.dateSeparator = DateSeparatorOf(plainPicture);
    if (name.language == u"ja") {
        profile.longDatePicture = u"yyyy年M月d日"_s;
    } else if (name.language == u"th") {
        profile.yearOffset = kBuddhistYearOffset;
    }
    return profile;
}

LocaleProfile EnvironmentLocaleProfile()
{
    LocaleProfile profile = LocaleProfile::For(CategoryLocale("LC_TIME"));
    const LocaleProfile numbers = LocaleProfile::For(CategoryLocale("LC_NUMERIC"));
    profile.decimalSeparator = numbers.decimalSeparator;
    profile.groupSeparator = numbers.groupSeparator;
    profile.grouping = numbers.grouping;
    profile.negativeForm = numbers.negativeForm;
    profile.codePage = LocaleProfile::For(CategoryLocale("LC_CTYPE")).codePage;
    return profile;
}

} // namespace Quillory
