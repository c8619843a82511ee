// SPDX-License-Identifier: MIT
#include "merge/list_merge.h"

#include "merge/cell_merge.h"
#include "merge/row_merge.h"

#include <algorithm>
#include <array>
#include <set>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

enum Setting : quint16
{
    NameSetting,
    IconSetting,
    CountWarning,
    ExpiryWarning,
    WarnStart,
    CountColour,
    ExpiryColour,
};

PropertyValue SettingValue(Setting setting, ValueType type, PropertyVariant value)
{
    return { MakePropertyId(setting, type), 0, std::move(value) };
}

const ListContents* FindIn(const FileContents* contents, const ListKey& key)
{
    if (contents == nullptr)
        return nullptr;
    const auto found = contents->lists.find(key);
    return found == contents->lists.end() ? nullptr : &found->second;
}

/// Names and types of columns, which are drawn anew for each list.
bool HaveEqualColumns(const InventoryList& a, const InventoryList& b)
{
    return std::ranges::equal(
        a.columns, b.columns, [](const ColumnDefinition& one, const ColumnDefinition& other) {
            return one.name == other.name && one.kind == other.kind;
        });
}

bool IsAlone(const ListMatch& match)
{
    return match.base == nullptr && (match.mine == nullptr || match.theirs == nullptr);
}

bool CanJoin(const ListMatch& match, const ListMatch& other)
{
    if (!IsAlone(match) || !IsAlone(other) || (match.mine == nullptr) == (other.mine == nullptr))
        return false;
    const InventoryList& list = (match.mine == nullptr ? match.theirs : match.mine)->definition;
    const InventoryList& joined = (other.mine == nullptr ? other.theirs : other.mine)->definition;
    return list.Name == joined.Name && HaveEqualColumns(list, joined);
}

/// Makes one of any two that can be joined. They stand in the order of their keys, of which the
/// lesser is taken.
void JoinLists(std::vector<ListMatch>& matches)
{
    for (size_t i = 0; i < matches.size(); ++i) {
        const auto rest = matches.begin() + static_cast<std::ptrdiff_t>(i) + 1;
        const auto found = std::find_if(rest, matches.end(),
            [&](const ListMatch& other) { return CanJoin(matches[i], other); });
        if (found == matches.end())
            continue;
        matches[i].mine = matches[i].mine == nullptr ? found->mine : matches[i].mine;
        matches[i].theirs = matches[i].theirs == nullptr ? found->theirs : matches[i].theirs;
        matches[i].isJoined = true;
        matches.erase(found);
    }
}

/// Two lists that drew the same map name and other columns are told apart.
void PartMapNames(std::vector<ListMatch>& matches)
{
    constexpr qsizetype kStem = 16;
    constexpr quint64 kNumbers = 1'000'000'000;
    std::set<QString> names;
    for (ListMatch& match : matches) {
        QString& name = match.target.first;
        for (quint64 turn = 0; !names.insert(name).second; ++turn)
            name = name.left(kStem) + QString::number(StableHash(name.toUtf8(), turn) % kNumbers);
    }
}

} // namespace

std::vector<ListMatch> MatchLists(
    const FileContents& mine, const FileContents& theirs, const FileContents* base)
{
    std::set<ListKey> keys;
    for (const FileContents* side : { &mine, &theirs }) {
        for (const auto& [key, list] : side->lists)
            keys.insert(key);
    }
    std::vector<ListMatch> matches;
    matches.reserve(keys.size());
    for (const ListKey& key : keys)
        matches.push_back(
            { FindIn(&mine, key), FindIn(&theirs, key), FindIn(base, key), key, false });
    JoinLists(matches);
    PartMapNames(matches);
    return matches;
}

RowValues SettingsOf(const InventoryList& list)
{
    return {
        SettingValue(NameSetting, CEVT_LPWSTR, list.Name),
        SettingValue(IconSetting, CEVT_I4, qint32 { list.TableIcon }),
        SettingValue(CountWarning, CEVT_BOOL, (list.TableOption & kWarnOnCount) != 0),
        SettingValue(ExpiryWarning, CEVT_BOOL, (list.TableOption & kWarnOnExpiry) != 0),
        SettingValue(WarnStart, CEVT_I4, list.TableWarnStart),
        SettingValue(CountColour, CEVT_I4, static_cast<qint32>(list.TableWarnColour)),
        SettingValue(ExpiryColour, CEVT_I4, static_cast<qint32>(list.TableExpiryColour)),
    };
}

void ApplySettings(InventoryList& list, const RowValues& settings)
{
    const auto number
        = [&settings](Setting setting) { return std::get<qint32>(settings[setting].value); };
    list.Name = std::get<QString>(settings[NameSetting].value);
    list.TableIcon = static_cast<qint16>(number(IconSetting));
    const quint32 others = list.TableOption & ~(kWarnOnCount | kWarnOnExpiry);
    list.TableOption = others | (std::get<bool>(settings[CountWarning].value) ? kWarnOnCount : 0)
        | (std::get<bool>(settings[ExpiryWarning].value) ? kWarnOnExpiry : 0);
    list.TableWarnStart = number(WarnStart);
    list.TableWarnColour = static_cast<quint32>(number(CountColour));
    list.TableExpiryColour = static_cast<quint32>(number(ExpiryColour));
}

QString SettingName(size_t setting)
{
    static const std::array names { u"name of the list"_s, u"icon"_s, u"warning of counts"_s,
        u"warning of expiry"_s, u"count to warn at"_s, u"colour of counts"_s,
        u"colour of expiry"_s };
    return names.at(setting);
}

bool HasNews(const ListContents& side, const ListContents& base)
{
    const auto settings = SettingsOf(side.definition);
    return !std::ranges::equal(settings, SettingsOf(base.definition), IsSame)
        || HasNews(std::span<const RowMark>(side.rows), base.rows);
}

} // namespace Quillory
