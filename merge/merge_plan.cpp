// SPDX-License-Identifier: MIT
#include "merge/merge_plan.h"

#include "merge/cell_merge.h"
#include "merge/list_merge.h"
#include "merge/row_merge.h"
#include "values/column_type.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <tuple>
#include <utility>

namespace Quillory {

namespace {

using Kind = MergeNote::Kind;

/// What all lists of a merge are planned by.
struct PlanContext
{
    Volume& mine;
    Volume& theirs;
    /// Null if it is not known.
    Volume* base;
    Precedence precedence;
    /// What the merged contents are called by; new origins follow from it.
    quint64 seed = 0;
};

QString NameOf(const RowValues& values)
{
    const PropertyValue* name = FindProperty(values, PropName);
    return name == nullptr ? QString() : std::get<QString>(name->value);
}

/// Plans one list.
class ListPlanner
{
public:
    ListPlanner(const PlanContext& context, const ListMatch& match)
        : m_context(context)
        , m_match(match)
    {
        const ListContents& source = match.mine == nullptr ? *match.theirs : *match.mine;
        m_plan.definition = source.definition;
        m_plan.definition.MapName = match.target.first;
        for (size_t i = 0; i < match.target.second.size(); ++i)
            m_plan.definition.columns[i].id = match.target.second[i];
        if (match.mine != nullptr) {
            m_plan.record = match.mine->record;
            m_plan.isRemade = KeyOf(match.mine->definition) != match.target;
            m_mine.emplace(context.mine, match.mine->definition);
        }
        if (match.theirs != nullptr)
            m_theirs.emplace(context.theirs, match.theirs->definition);
        if (match.base != nullptr)
            m_base.emplace(*context.base, match.base->definition);
    }

    [[nodiscard]] Result<void> Decide()
    {
        if (m_match.theirs == nullptr)
            return DecideMineAlone();
        return m_match.mine == nullptr ? DecideTheirsAlone() : DecideBoth();
    }
    [[nodiscard]] bool HasWork() const
    {
        const bool isNew = m_plan.record == kNoObject && m_isWanted;
        return isNew || m_plan.isRemoved || m_plan.isRemade || m_plan.isDefinitionChanged
            || !m_plan.rows.empty();
    }
    [[nodiscard]] ListPlan& Plan() { return m_plan; }
    [[nodiscard]] std::vector<MergeNote>& Notes() { return m_notes; }

private:
    const PlanContext& m_context;
    const ListMatch& m_match;
    ListPlan m_plan;
    std::vector<MergeNote> m_notes;
    /// Of a list that this side lacks.
    bool m_isWanted = false;
    std::optional<RowReader> m_mine;
    std::optional<RowReader> m_theirs;
    std::optional<RowReader> m_base;

    MergeNote& Tell(Kind kind, const QString& row = {})
    {
        m_notes.push_back({ kind, m_plan.definition.Name, row, {}, {}, {}, false });
        return m_notes.back();
    }

    Result<void> DecideMineAlone()
    {
        if (m_match.base == nullptr)
            return {};
        m_plan.isRemoved = !HasNews(*m_match.mine, *m_match.base);
        Tell(m_plan.isRemoved ? Kind::ListWent : Kind::ListKept);
        return {};
    }

    Result<void> DecideTheirsAlone()
    {
        m_isWanted = m_match.base == nullptr || HasNews(*m_match.theirs, *m_match.base);
        if (!m_isWanted)
            return {};
        Tell(m_match.base == nullptr ? Kind::ListCame : Kind::ListKept).wasDeletedHere = true;
        for (const RowMark& mark : m_match.theirs->rows)
            QUILLORY_TRY(AddTheirs(mark.row, mark.origin));
        return {};
    }

    Result<void> DecideBoth()
    {
        DecideSettings();
        std::vector<RowMark> theirs = m_match.theirs->rows;
        if (m_match.isJoined) {
            Tell(Kind::ListsJoined);
            QUILLORY_TRY(JoinEqualRows(theirs));
        }
        const auto base
            = m_match.base == nullptr ? std::span<const RowMark>() : std::span(m_match.base->rows);
        for (const RowDecision& decision : DecideRows(m_match.mine->rows, theirs, base))
            QUILLORY_TRY(Carry(decision));
        return {};
    }

    void DecideSettings()
    {
        const RowValues mine = SettingsOf(m_match.mine->definition);
        const RowValues theirs = SettingsOf(m_match.theirs->definition);
        std::optional<RowValues> base;
        if (m_match.base != nullptr)
            base = SettingsOf(m_match.base->definition);
        const MixedRow mixed = MixRow(mine, theirs, base ? &*base : nullptr, m_context.precedence);
        m_plan.isDefinitionChanged = !std::ranges::equal(mixed.values, mine, IsSame);
        ApplySettings(m_plan.definition, mixed.values);
        for (const SettledValue& settled : mixed.settled)
            TellOf(settled, { {}, SettingName(settled.column) }, mixed.values, mine, theirs);
    }

    /// Takes the rows out of `theirs` that mine has as well, under other origins. The origins are
    /// those of the side whose list the joined one is told by.
    Result<void> JoinEqualRows(std::vector<RowMark>& theirs)
    {
        std::vector<bool> isPaired(theirs.size());
        for (const RowPair& pair : PairEqualRows(m_match.mine->rows, theirs)) {
            isPaired[pair.theirs] = true;
            if (!m_plan.isRemade)
                continue;
            const ObjectId row = m_match.mine->rows[pair.mine].row;
            QUILLORY_TRY_VALUE(auto values, m_mine->Read(row));
            AddChange(RowChange::What::Change, row, theirs[pair.theirs].origin, std::move(values));
        }
        size_t place = 0;
        std::erase_if(theirs, [&](const RowMark&) { return isPaired[place++]; });
        return {};
    }

    Result<void> Carry(const RowDecision& decision)
    {
        switch (decision.fate) {
        case RowFate::Comes:
        case RowFate::ComesBack:
            return TakeTheirs(decision);
        case RowFate::Goes:
        case RowFate::Stays:
            return LookAtMine(decision);
        case RowFate::Mixes:
            break;
        }
        return Mix(decision);
    }

    Result<void> TakeTheirs(const RowDecision& decision)
    {
        QUILLORY_TRY(AddTheirs(decision.theirs, decision.origin));
        const bool isBack = decision.fate == RowFate::ComesBack;
        Tell(isBack ? Kind::RowKept : Kind::RowCame, NameOf(m_plan.rows.back().values))
            .wasDeletedHere
            = isBack;
        return {};
    }

    Result<void> LookAtMine(const RowDecision& decision)
    {
        QUILLORY_TRY_VALUE(const auto values, m_mine->Read(decision.mine));
        const bool isGoing = decision.fate == RowFate::Goes;
        Tell(isGoing ? Kind::RowWent : Kind::RowKept, NameOf(values));
        if (isGoing)
            AddChange(RowChange::What::Remove, decision.mine, decision.origin, {});
        return {};
    }

    Result<void> Mix(const RowDecision& decision)
    {
        QUILLORY_TRY_VALUE(const auto mine, m_mine->Read(decision.mine));
        QUILLORY_TRY_VALUE(const auto theirs, m_theirs->Read(decision.theirs));
        std::optional<RowValues> base;
        if (decision.base != kNoObject) {
            QUILLORY_TRY_VALUE(base, m_base->Read(decision.base));
        }
        MixedRow mixed = MixRow(mine, theirs, base ? &*base : nullptr, m_context.precedence);
        const QString name = NameOf(mixed.values);
        for (const SettledValue& settled : mixed.settled)
            TellOf(settled, { name, m_plan.definition.columns[settled.column].name }, mixed.values,
                mine, theirs);
        if (!std::ranges::equal(mixed.values, mine, IsSame))
            AddChange(
                RowChange::What::Change, decision.mine, decision.origin, std::move(mixed.values));
        if (!mixed.copy)
            return {};
        Tell(Kind::RowCopied, name);
        const Origin origin = OriginOfCopy(decision.origin, *mixed.copy);
        AddChange(RowChange::What::Add, kNoObject, origin, std::move(*mixed.copy));
        return {};
    }

    /// The same on whichever devices the same text was decided against, so that the copy is one,
    /// unless there is that copy already.
    [[nodiscard]] Origin OriginOfCopy(Origin row, const RowValues& copy) const
    {
        auto origin = static_cast<quint64>(row);
        for (const PropertyValue& value : copy) {
            if (const auto* text = std::get_if<QString>(&value.value))
                origin = StableHash(text->toUtf8(), origin);
        }
        const auto isTaken = [&origin](const ListContents& list) {
            return std::ranges::binary_search(
                list.rows, static_cast<Origin>(origin), {}, &RowMark::origin);
        };
        if (isTaken(*m_match.mine) || isTaken(*m_match.theirs))
            origin = StableHash(origin, m_context.seed);
        return static_cast<Origin>(origin);
    }

    struct Place
    {
        QString row;
        QString column;
    };
    void TellOf(const SettledValue& settled, const Place& place, const RowValues& merged,
        const RowValues& mine, const RowValues& theirs)
    {
        if (settled.how == Settlement::Mine)
            return;
        const bool isMineGone
            = settled.how == Settlement::Theirs || settled.how == Settlement::TheirsDecided;
        const Kind kind = settled.how == Settlement::Theirs ? Kind::ValueCame
            : settled.how == Settlement::Added              ? Kind::CountsAdded
            : settled.how == Settlement::Limited            ? Kind::CountsLimited
                                                            : Kind::ValueDecided;
        MergeNote& note = Tell(kind, place.row);
        note.column = place.column;
        note.kept = merged[settled.column];
        note.other = (isMineGone ? mine : theirs)[settled.column];
    }

    Result<void> AddTheirs(ObjectId row, Origin origin)
    {
        QUILLORY_TRY_VALUE(auto values, m_theirs->Read(row));
        AddChange(RowChange::What::Add, kNoObject, origin, std::move(values));
        return {};
    }

    void AddChange(RowChange::What what, ObjectId row, Origin origin, RowValues values)
    {
        for (size_t i = 0; i < values.size(); ++i)
            values[i].id = m_plan.definition.columns[i].id;
        m_plan.rows.push_back({ what, row, origin, std::move(values) });
    }
};

quint64 SeedOf(const FileVersion& version, quint64 seed)
{
    return StableHash(
        quint64 { version.revision }, StableHash(static_cast<quint64>(version.state), seed));
}

/// What both devices call the merged contents: it follows from what is merged, and from the base
/// where that leaves something open.
FileVersion MergedVersion(const History& mine, const History& theirs, quint64 seed)
{
    const auto [lesser, greater] = std::minmax({ mine.Latest(), theirs.Latest() });
    return { static_cast<StateId>(SeedOf(greater, SeedOf(lesser, seed))), 1 };
}

Kinship KinshipOf(const History& mine, const History& theirs, bool hasBase)
{
    if (mine.Covers(theirs.Latest()))
        return Kinship::Known;
    if (theirs.Covers(mine.Latest()))
        return Kinship::Newer;
    return hasBase ? Kinship::Apart : Kinship::Unrelated;
}

Result<void> PlanLists(
    const PlanContext& context, const std::vector<ListMatch>& matches, MergePlan& plan)
{
    for (const ListMatch& match : matches) {
        ListPlanner planner(context, match);
        QUILLORY_TRY(planner.Decide());
        if (planner.HasWork())
            plan.lists.push_back(std::move(planner.Plan()));
        std::ranges::move(planner.Notes(), std::back_inserter(plan.notes));
    }
    std::ranges::stable_sort(plan.notes, [](const MergeNote& a, const MergeNote& b) {
        return std::tie(a.list, a.row) < std::tie(b.list, b.row);
    });
    return {};
}

} // namespace

Result<MergePlan> PlanMerge(Volume& mine, Volume& theirs, Volume* base)
{
    MergePlan plan;
    QUILLORY_TRY_VALUE(plan.history, mine.ReadHistory());
    QUILLORY_TRY_VALUE(const History other, theirs.ReadHistory());
    plan.kinship = KinshipOf(plan.history, other, base != nullptr);
    if (plan.kinship == Kinship::Known)
        return plan;
    QUILLORY_TRY_VALUE(const FileContents here, ReadContents(mine));
    QUILLORY_TRY_VALUE(const FileContents there, ReadContents(theirs));
    if (plan.kinship == Kinship::Newer) {
        plan.history = there.history;
        plan.isBaseExact = true;
        const PlanContext context { mine, theirs, &mine, { false, true }, 0 };
        QUILLORY_TRY(PlanLists(context, MatchLists(here, there, &here), plan));
        return plan;
    }
    FileContents before;
    if (base != nullptr) {
        QUILLORY_TRY_VALUE(before, ReadContents(*base));
        const FileVersion version = before.history.Latest();
        if (version == FileVersion {} || !here.history.Covers(version)
            || !there.history.Covers(version))
            return ErrorNumber::InvalidParameter;
    }
    const bool isExact
        = base != nullptr && before.history.CoversCommon(here.history, there.history);
    plan.isBaseExact = isExact;
    const quint64 seed = isExact ? 0 : SeedOf(before.history.Latest(), 1);
    const FileVersion merged = MergedVersion(here.history, there.history, seed);
    plan.history = History::Join(here.history, there.history, merged);
    const bool isMineGreater = here.history.Latest() > there.history.Latest();
    const PlanContext context { mine, theirs, base, { isMineGreater, isExact },
        static_cast<quint64>(merged.state) };
    const FileContents* known = base == nullptr ? nullptr : &before;
    QUILLORY_TRY(PlanLists(context, MatchLists(here, there, known), plan));
    return plan;
}

} // namespace Quillory
