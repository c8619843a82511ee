// SPDX-License-Identifier: MIT
#include "tests/faults/disk.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Quillory {

namespace {

constexpr qint64 kSectorSize = 512;

QByteArray NameOf(const QByteArray& path)
{
    return path.mid(path.lastIndexOf('/') + 1);
}

bool IsAboutNames(CallKind kind)
{
    return kind == CallKind::Create || kind == CallKind::Remove || kind == CallKind::Rename;
}

} // namespace

void Recorder::AfterCall(const SystemCall& call)
{
    if (!call.IsMutating())
        return;
    const QByteArray bytes
        = call.kind == CallKind::Write ? QByteArray(call.bytes, call.size) : QByteArray();
    m_events.push_back({ call, bytes, m_acknowledged });
}

Disk::Disk(const Files& files)
{
    for (const auto& [name, bytes] : files) {
        m_safeNames[name] = static_cast<int>(m_safeBytes.size());
        m_safeBytes.push_back(bytes);
    }
    m_names = m_safeNames;
}

void Disk::ApplyToNames(const Change& change, Names& names)
{
    if (change.kind == CallKind::Create) {
        names[change.name] = change.file;
        return;
    }
    const auto found = names.find(change.name);
    if (found == names.end())
        return;
    if (change.kind == CallKind::Rename)
        names[change.target] = found->second;
    names.erase(change.name);
}

void Disk::ApplyToBytes(const Change& change, QByteArray& bytes)
{
    if (change.kind == CallKind::Truncate) {
        bytes.resize(change.place);
        return;
    }
    const qint64 end = change.place + change.bytes.size();
    if (bytes.size() < end)
        bytes.append(end - bytes.size(), '\0');
    std::memcpy(bytes.data() + change.place, change.bytes.constData(),
        static_cast<size_t>(change.bytes.size()));
}

void Disk::ApplySectors(
    const Change& change, QByteArray& bytes, bool isJunkLeft, std::mt19937& random)
{
    if (change.kind == CallKind::Truncate)
        return ApplyToBytes(change, bytes);
    const qint64 end = change.place + change.bytes.size();
    for (qint64 begin = change.place; begin < end;) {
        const qint64 sectorEnd = std::min((begin / kSectorSize + 1) * kSectorSize, end);
        Change sector = change;
        sector.place = begin;
        sector.bytes = change.bytes.mid(begin - change.place, sectorEnd - begin);
        const bool isKept = random() % 2 == 0;
        if (!isKept && isJunkLeft)
            sector.bytes.fill(static_cast<char>(random()));
        if (isKept || isJunkLeft)
            ApplyToBytes(sector, bytes);
        begin = sectorEnd;
    }
}

void Disk::MakeSafe(int file)
{
    std::erase_if(m_pending, [&](const Change& change) {
        if (IsAboutNames(change.kind) || change.file != file)
            return false;
        ApplyToBytes(change, m_safeBytes[static_cast<size_t>(file)]);
        return true;
    });
}

void Disk::MakeNamesSafe()
{
    std::erase_if(m_pending, [&](const Change& change) {
        if (!IsAboutNames(change.kind))
            return false;
        ApplyToNames(change, m_safeNames);
        return true;
    });
}

void Disk::Apply(const Recorder::Event& event)
{
    const SystemCall& call = event.call;
    if (call.kind == CallKind::SyncFolder)
        return MakeNamesSafe();
    const QByteArray name = NameOf(call.path);
    Change change { call.kind, 0, event.bytes, 0, name, NameOf(call.target) };
    if (call.kind == CallKind::Create) {
        change.file = static_cast<int>(m_safeBytes.size());
        m_safeBytes.emplace_back();
    } else {
        const auto found = m_names.find(name);
        if (found == m_names.end())
            qFatal("%s changes and was never made", name.constData());
        change.file = found->second;
    }
    if (call.kind == CallKind::Sync)
        return MakeSafe(change.file);
    change.place = call.kind == CallKind::Truncate ? call.size : call.offset;
    if (IsAboutNames(call.kind))
        ApplyToNames(change, m_names);
    m_pending.push_back(std::move(change));
}

Files Disk::AfterPowerCut(Loss loss, std::mt19937& random) const
{
    const bool keepsNames = loss == Loss::Nothing || loss == Loss::Bytes;
    const bool losesNames = loss == Loss::Everything || loss == Loss::Names;
    const size_t count = m_pending.size();
    // Changes of names reach the medium in their order.
    const size_t cut = count == 0 ? 0 : random() % (count + 1);
    const size_t junk = count == 0 ? 0 : random() % count;
    const size_t namesEnd = keepsNames ? count : losesNames ? 0 : cut;
    std::vector<QByteArray> contents = m_safeBytes;
    Names names = m_safeNames;
    for (size_t i = 0; i < count; ++i) {
        const Change& change = m_pending[i];
        if (IsAboutNames(change.kind)) {
            if (i < namesEnd)
                ApplyToNames(change, names);
            continue;
        }
        QByteArray& bytes = contents[static_cast<size_t>(change.file)];
        const bool isSectors = loss == Loss::RandomSectors || loss == Loss::JunkSectors;
        const bool isKept = loss == Loss::Nothing || loss == Loss::Names
            || (loss == Loss::Tail && i < cut) || (loss == Loss::RandomWrites && random() % 2 == 0);
        if (isSectors)
            ApplySectors(change, bytes, loss == Loss::JunkSectors && i == junk, random);
        else if (isKept)
            ApplyToBytes(change, bytes);
    }
    Files files;
    for (const auto& [name, file] : names)
        files[name] = contents[static_cast<size_t>(file)];
    return files;
}

} // namespace Quillory
