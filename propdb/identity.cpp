// SPDX-License-Identifier: MIT
#include "propdb/identity.h"

#include <QRandomGenerator>
#include <QtEndian>

#include <xxhash.h>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace Quillory {

namespace {

/// Of a version by its state: how many states are newer than it, in the history that knows it as
/// one of its newest.
struct Rank
{
    size_t age = 0;
    quint32 revision = 0;
};

void AddRanks(const History& history, std::map<StateId, Rank>& ranks)
{
    const auto& versions = history.Versions();
    for (size_t i = 0; i < versions.size(); ++i) {
        const size_t age = versions.size() - i;
        const auto [found, isNew] = ranks.try_emplace(versions[i].state, Rank { age, 0 });
        found->second.age = std::min(found->second.age, age);
        found->second.revision = std::max(found->second.revision, versions[i].revision);
    }
}

} // namespace

History::History(std::vector<FileVersion> versions)
    : m_versions(std::move(versions))
{
    if (m_versions.size() > kMostStates)
        m_versions.erase(
            m_versions.begin(), m_versions.end() - static_cast<std::ptrdiff_t>(kMostStates));
}

FileVersion History::Latest() const
{
    return m_versions.empty() ? FileVersion {} : m_versions.back();
}

bool History::Covers(const FileVersion& version) const
{
    return version == FileVersion {} || std::ranges::any_of(m_versions, [&](const auto& own) {
        return own.state == version.state && own.revision >= version.revision;
    });
}

bool History::HasStateOf(const History& other) const
{
    return std::ranges::any_of(m_versions, [&other](const FileVersion& version) {
        return other.Covers({ version.state, 0 });
    });
}

bool History::CoversCommon(const History& one, const History& other) const
{
    return std::ranges::all_of(one.m_versions, [&](const FileVersion& version) {
        const auto same = std::ranges::find(other.m_versions, version.state, &FileVersion::state);
        return same == other.m_versions.end()
            || Covers({ version.state, std::min(version.revision, same->revision) });
    });
}

History History::Join(const History& one, const History& other, const FileVersion& merged)
{
    std::map<StateId, Rank> ranks;
    AddRanks(one, ranks);
    AddRanks(other, ranks);
    ranks.erase(merged.state);
    std::vector<std::pair<Rank, StateId>> ordered;
    ordered.reserve(ranks.size());
    for (const auto& [state, rank] : ranks)
        ordered.emplace_back(rank, state);
    std::ranges::stable_sort(
        ordered, [](const auto& a, const auto& b) { return a.first.age > b.first.age; });
    std::vector<FileVersion> versions;
    versions.reserve(ordered.size() + 1);
    for (const auto& [rank, state] : ordered)
        versions.push_back({ state, rank.revision });
    versions.push_back(merged);
    return History(std::move(versions));
}

quint64 StableHash(QByteArrayView bytes, quint64 seed)
{
    return XXH3_64bits_withSeed(bytes.data(), static_cast<size_t>(bytes.size()), seed);
}

quint64 StableHash(quint64 first, quint64 second)
{
    std::array<char, sizeof(quint64)> bytes {};
    qToBigEndian(first, bytes.data());
    return StableHash(QByteArrayView(bytes.data(), bytes.size()), second);
}

Origin DerivedOrigin(QStringView database, ObjectId record)
{
    const quint64 hash
        = StableHash(database.toString().toUtf8(), quint64 { static_cast<quint32>(record) });
    return static_cast<Origin>(hash == 0 ? 1 : hash);
}

OriginSource::OriginSource()
    : m_counter(QRandomGenerator::system()->generate64())
{ }

Origin OriginSource::Draw()
{
    // A counter in steps of an odd number, well mixed, gives each number once: SplitMix64.
    quint64 mixed = m_counter += 0x9E3779B97F4A7C15;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    mixed ^= mixed >> 31;
    return static_cast<Origin>(mixed == 0 ? 1 : mixed);
}

StateId DrawState()
{
    return static_cast<StateId>(QRandomGenerator::system()->generate64());
}

} // namespace Quillory
