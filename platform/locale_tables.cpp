// SPDX-License-Identifier: MIT
#include "platform/locale_tables.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Quillory {

namespace {

constexpr char16_t kNoBreakSpace = 0x00A0;

/// The first row of a language is its main one.
constexpr std::array kLocaleRows {
    LocaleRow { u"en_US", u"M/d/yyyy", u'.', u',' },
    LocaleRow { u"en_GB", u"dd/MM/yyyy", u'.', u',' },
    LocaleRow { u"en_IE", u"dd/MM/yyyy", u'.', u',' },
    LocaleRow { u"en_CA", u"dd/MM/yyyy", u'.', u',' },
    LocaleRow { u"en_AU", u"d/MM/yyyy", u'.', u',' },
    LocaleRow { u"en_NZ", u"d/MM/yyyy", u'.', u',' },
    LocaleRow { u"en_ZA", u"yyyy/MM/dd", u'.', u',' },
    LocaleRow { u"en_IN", u"dd-MM-yyyy", u'.', u',', Grouping::Indian },
    LocaleRow { u"de_DE", u"dd.MM.yyyy", u',', u'.' },
    LocaleRow { u"de_AT", u"dd.MM.yyyy", u',', u'.' },
    LocaleRow { u"de_CH", u"dd.MM.yyyy", u'.', u'\'' },
    LocaleRow { u"fr_FR", u"dd/MM/yyyy", u',', kNoBreakSpace },
    LocaleRow { u"fr_BE", u"d/MM/yyyy", u',', u'.' },
    LocaleRow { u"fr_CA", u"yyyy-MM-dd", u',', kNoBreakSpace },
    LocaleRow { u"fr_CH", u"dd.MM.yyyy", u'.', u'\'' },
    LocaleRow { u"it_IT", u"dd/MM/yyyy", u',', u'.' },
    LocaleRow { u"it_CH", u"dd.MM.yyyy", u'.', u'\'' },
    LocaleRow { u"es_ES", u"dd/MM/yyyy", u',', u'.' },
    LocaleRow { u"es_MX", u"dd/MM/yyyy", u'.', u',' },
    LocaleRow { u"pt_PT", u"dd-MM-yyyy", u',', u'.' },
    LocaleRow { u"pt_BR", u"d/M/yyyy", u',', u'.' },
    LocaleRow { u"nl_NL", u"d-M-yyyy", u',', u'.' },
    LocaleRow { u"nl_BE", u"d/MM/yyyy", u',', u'.' },
    LocaleRow { u"sv_SE", u"yyyy-MM-dd", u',', kNoBreakSpace },
    LocaleRow { u"da_DK", u"dd-MM-yyyy", u',', u'.' },
    LocaleRow { u"nb_NO", u"dd.MM.yyyy", u',', kNoBreakSpace },
    LocaleRow { u"fi_FI", u"d.M.yyyy", u',', kNoBreakSpace },
    LocaleRow { u"is_IS", u"d.M.yyyy", u',', u'.' },
    LocaleRow { u"pl_PL", u"yyyy-MM-dd", u',', kNoBreakSpace },
    LocaleRow { u"cs_CZ", u"d.M.yyyy", u',', kNoBreakSpace },
    LocaleRow { u"sk_SK", u"d. M. yyyy", u',', kNoBreakSpace },
    LocaleRow { u"hu_HU", u"yyyy. MM. dd.", u',', kNoBreakSpace },
    LocaleRow { u"ro_RO", u"dd.MM.yyyy", u',', u'.' },
    LocaleRow { u"ru_RU", u"dd.MM.yyyy", u',', kNoBreakSpace },
    LocaleRow { u"uk_UA", u"dd.MM.yyyy", u',', kNoBreakSpace },
    LocaleRow { u"hr_HR", u"d.M.yyyy", u',', u'.', Grouping::Threes, 2 },
    LocaleRow { u"sl_SI", u"d.M.yyyy", u',', u'.' },
    LocaleRow { u"bg_BG", u"dd.M.yyyy 'г.'", u',', kNoBreakSpace },
    LocaleRow { u"el_GR", u"d/M/yyyy", u',', u'.' },
    LocaleRow { u"tr_TR", u"dd.MM.yyyy", u',', u'.' },
    LocaleRow { u"he_IL", u"dd/MM/yyyy", u'.', u',' },
    LocaleRow { u"ar_EG", u"dd/MM/yyyy", u'.', u',', Grouping::Threes, 3 },
    LocaleRow { u"hi_IN", u"dd-MM-yyyy", u'.', u',', Grouping::Indian },
    LocaleRow { u"th_TH", u"d/M/yyyy", u'.', u',' },
    LocaleRow { u"ja_JP", u"yyyy/MM/dd", u'.', u',' },
    LocaleRow { u"ko_KR", u"yyyy-MM-dd", u'.', u',' },
    LocaleRow { u"zh_CN", u"yyyy-M-d", u'.', u',' },
    LocaleRow { u"zh_TW", u"yyyy/M/d", u'.', u',' },
    LocaleRow { u"zh_HK", u"d/M/yyyy", u'.', u',' },
    LocaleRow { u"lt_LT", u"yyyy.MM.dd", u',', u'.' },
    LocaleRow { u"lv_LV", u"yyyy.MM.dd.", u',', kNoBreakSpace },
    LocaleRow { u"et_EE", u"d.MM.yyyy", u',', kNoBreakSpace },
};

struct MonthRow
{
    std::u16string_view language;
    std::u16string_view names;
};

constexpr std::array kMonthRows {
    MonthRow { u"en", u"Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec" },
    MonthRow { u"de", u"Jan Feb Mrz Apr Mai Jun Jul Aug Sep Okt Nov Dez" },
    MonthRow { u"fr", u"janv. févr. mars avr. mai juin juil. août sept. oct. nov. déc." },
    MonthRow { u"es", u"ene feb mar abr may jun jul ago sep oct nov dic" },
};

struct CodePageRow
{
    std::u16string_view language;
    int codePage;
};

/// The pages of languages that need no script to tell.
constexpr std::array kCodePageRows {
    CodePageRow { u"pl", 1250 },
    CodePageRow { u"cs", 1250 },
    CodePageRow { u"sk", 1250 },
    CodePageRow { u"hu", 1250 },
    CodePageRow { u"ro", 1250 },
    CodePageRow { u"hr", 1250 },
    CodePageRow { u"sl", 1250 },
    CodePageRow { u"sq", 1250 },
    CodePageRow { u"ru", 1251 },
    CodePageRow { u"uk", 1251 },
    CodePageRow { u"be", 1251 },
    CodePageRow { u"bg", 1251 },
    CodePageRow { u"mk", 1251 },
    CodePageRow { u"kk", 1251 },
    CodePageRow { u"ky", 1251 },
    CodePageRow { u"tt", 1251 },
    CodePageRow { u"mn", 1251 },
    CodePageRow { u"el", 1253 },
    CodePageRow { u"tr", 1254 },
    CodePageRow { u"he", 1255 },
    CodePageRow { u"ar", 1256 },
    CodePageRow { u"fa", 1256 },
    CodePageRow { u"ur", 1256 },
    CodePageRow { u"et", 1257 },
    CodePageRow { u"lv", 1257 },
    CodePageRow { u"lt", 1257 },
    CodePageRow { u"vi", 1258 },
    CodePageRow { u"th", 874 },
    CodePageRow { u"ja", 932 },
    CodePageRow { u"ko", 949 },
};

/// The pages of languages that are written in more than one script.
std::optional<int> CodePageByScript(const LocaleName& name)
{
    if (name.language == u"sr") {
        return name.script == u"Latn" ? 1250 : 1251;
    }
    if (name.language == u"bs") {
        return name.script == u"Cyrl" ? 1251 : 1250;
    }
    if (name.language == u"az" || name.language == u"uz") {
        return name.script == u"Cyrl" ? 1251 : 1254;
    }
    if (name.language == u"zh") {
        const bool isTraditional = name.script == u"Hant"
            || (name.script.isEmpty()
                && (name.territory == u"TW" || name.territory == u"HK" || name.territory == u"MO"));
        return isTraditional ? 950 : 936;
    }
    return std::nullopt;
}

QString ScriptOfModifier(QStringView modifier)
{
    if (modifier == u"latin") {
        return u"Latn"_s;
    }
    return modifier == u"cyrillic" ? u"Cyrl"_s : QString();
}

} // namespace

LocaleName ParseLocaleName(QStringView name)
{
    const qsizetype at = name.indexOf(u'@');
    const QStringView modifier = at < 0 ? QStringView() : name.mid(at + 1);
    QStringView base = at < 0 ? name : name.left(at);
    const qsizetype dot = base.indexOf(u'.');
    base = dot < 0 ? base : base.left(dot);

    QStringList parts = base.toString().replace(u'-', u'_').split(u'_');
    LocaleName result { parts.takeFirst().toLower(), ScriptOfModifier(modifier), {} };
    if (!parts.isEmpty() && parts.first().size() == 4) {
        const QString script = parts.takeFirst().toLower();
        result.script = script.left(1).toUpper() + script.mid(1);
    }
    if (!parts.isEmpty()) {
        result.territory = parts.first().toUpper();
    }
    if (result.language == u"no") {
        result.language = u"nb"_s;
    } else if (result.language == u"iw") {
        result.language = u"he"_s;
    }
    return result;
}

const LocaleRow* FindLocaleRow(const LocaleName& name)
{
    QString wanted = name.language + u'_' + name.territory;
    if (name.territory.isEmpty() && name.language == u"zh" && name.script == u"Hant") {
        wanted = u"zh_TW"_s;
    }
    const auto* const row
        = std::find_if(kLocaleRows.begin(), kLocaleRows.end(), [&](const LocaleRow& candidate) {
              return name.territory.isEmpty() ? QStringView(candidate.name).startsWith(wanted)
                                              : QStringView(candidate.name) == wanted;
          });
    return row == kLocaleRows.end() ? nullptr : row;
}

std::optional<std::array<QString, 12>> ShortMonthNames(QStringView language)
{
    const auto* const row
        = std::find_if(kMonthRows.begin(), kMonthRows.end(), [language](const MonthRow& candidate) {
              return QStringView(candidate.language) == language;
          });
    if (row == kMonthRows.end()) {
        return std::nullopt;
    }
    std::array<QString, 12> names;
    const auto words = QStringView(row->names).split(u' ');
    std::transform(words.begin(), words.end(), names.begin(),
        [](QStringView word) { return word.toString(); });
    return names;
}

int CodePageNumber(const LocaleName& name)
{
    if (const auto byScript = CodePageByScript(name)) {
        return *byScript;
    }
    constexpr int kWestern = 1252;
    const auto* const row = std::find_if(kCodePageRows.begin(), kCodePageRows.end(),
        [language = QStringView(name.language)](
            const CodePageRow& candidate) { return QStringView(candidate.language) == language; });
    return row == kCodePageRows.end() ? kWestern : row->codePage;
}

} // namespace Quillory
