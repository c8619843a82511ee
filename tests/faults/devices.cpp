// SPDX-License-Identifier: MIT
#include "tests/faults/device.h"
#include "tests/faults/fault_run.h"
#include "tests/file_bytes.h"

#include <QTimeZone>

#include <array>
#include <cstdio>
#include <memory>
#include <random>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

constexpr int kDevices = 3;

/// One history of three devices that begin with one file.
class Household
{
public:
    Household(const QString& folder, quint32 seed)
        : m_random(seed)
        , m_now(QDate(2026, 6, 15), QTime(12, 0), QTimeZone::utc())
    {
        for (int i = 0; i < kDevices; ++i)
            m_devices[static_cast<size_t>(i)]
                = std::make_unique<Device>(folder + u"/device-%1"_s.arg(i),
                    i == 0 ? Device::Room::Enough : Device::Room::Short, m_deeds);
        Tick();
        On(0).Run(Drawing(), [] {});
        for (int i = 1; i < kDevices; ++i)
            WriteFileBytes(On(i).Path(), FileBytes(On(0).Path()));
    }

    /// What was wrong; empty if nothing.
    QString Live()
    {
        for (int step = 0; step < 10 && m_wrong.isEmpty(); ++step)
            Step();
        // All goes to the first device, and from there to all.
        for (int i = kDevices - 1; i > 0; --i)
            Bring(i, i - 1);
        for (int i = 1; i < kDevices; ++i)
            Bring(i - 1, i);
        if (m_wrong.isEmpty())
            JudgeEnd();
        return m_wrong;
    }
    [[nodiscard]] const Deeds& Done() const { return m_deeds; }

private:
    std::mt19937 m_random;
    QDateTime m_now;
    Deeds m_deeds;
    std::array<std::unique_ptr<Device>, kDevices> m_devices;
    /// What each version held when it was first seen.
    std::map<FileVersion, QByteArray> m_seen;
    QString m_wrong;

    Device& On(int device) { return *m_devices[static_cast<size_t>(device)]; }
    Device::Draw Drawing()
    {
        return [this](size_t limit) { return m_random() % limit; };
    }
    int Some() { return static_cast<int>(m_random() % kDevices); }
    void Tick()
    {
        m_now = m_now.addSecs(60);
        for (const auto& device : m_devices)
            device->SetClock(m_now);
    }

    void Step()
    {
        Tick();
        const int device = Some();
        const int other = (device + 1 + static_cast<int>(m_random() % (kDevices - 1))) % kDevices;
        switch (m_random() % 8) {
        case 0:
            return Send(other, device);
        case 1:
            return MergeSent(device, other);
        case 2:
            return Bring(other, device);
        case 3:
            return MergeAtOnce(device, other);
        case 4:
            m_wrong = On(device).RunAndBeReplaced(Drawing(), FileBytes(On(other).Path()));
            return Look(device);
        default:
            break;
        }
        // Another device can be sent what lies there amid a run.
        On(device).Run(Drawing(), [&] {
            if (m_random() % 4 == 0)
                Send(device, other);
        });
    }

    void Send(int from, int to)
    {
        m_deeds.trace << u"%1 is sent to %2"_s.arg(from).arg(to);
        WriteFileBytes(On(to).Inbox(from), FileBytes(On(from).Path()));
    }
    void MergeSent(int device, int from)
    {
        if (QFile::exists(On(device).Inbox(from)))
            m_wrong = On(device).Merge(On(device).Inbox(from));
        Look(device);
    }
    void Bring(int from, int to)
    {
        if (!m_wrong.isEmpty())
            return;
        Tick();
        Send(from, to);
        MergeSent(to, from);
    }
    void MergeAtOnce(int one, int other)
    {
        Send(one, other);
        Send(other, one);
        MergeSent(one, other);
        if (m_wrong.isEmpty())
            MergeSent(other, one);
    }

    /// One version is one content, wherever it was made.
    void Look(int device)
    {
        if (!m_wrong.isEmpty())
            return;
        const DeviceContents found = ReadDevice(On(device).Path());
        const auto [seen, isNew] = m_seen.try_emplace(found.version, found.dump);
        if (!isNew && seen->second != found.dump)
            m_wrong = u"two devices call different contents the same:\n%1\n\n%2"_s.arg(
                QString::fromUtf8(seen->second), QString::fromUtf8(found.dump));
    }

    void JudgeEnd()
    {
        const DeviceContents end = ReadDevice(On(0).Path());
        for (int i = 1; i < kDevices; ++i) {
            const DeviceContents found = ReadDevice(On(i).Path());
            if (found.dump != end.dump || found.version != end.version)
                m_wrong = u"all have merged and are not equal:\n%1\n\n%2"_s.arg(
                    QString::fromUtf8(end.dump), QString::fromUtf8(found.dump));
        }
        const QString text = QString::fromUtf8(end.dump);
        for (const QString& written : m_deeds.standing) {
            if (!text.contains(written) && !m_deeds.told.contains(written))
                m_wrong = u"“%1” is lost and nothing was told\n%2"_s.arg(written, text);
        }
        JudgeRows(end);
    }

    void JudgeRows(const DeviceContents& end)
    {
        std::set<Origin> origins;
        for (const auto& [mark, row] : end.rows) {
            if (!origins.insert(row.first).second)
                m_wrong = u"%1: two rows of one origin"_s.arg(mark);
            if (m_deeds.wasGuessed)
                continue;
            const bool isDeleted = m_deeds.deletedRows.contains(mark);
            if (isDeleted && !m_deeds.changedRows.contains(mark) && !HasListCome())
                m_wrong = u"%1 was deleted, changed by nobody, and is there"_s.arg(mark);
            const bool isOne = m_deeds.copiedRows.empty();
            if (isOne && end.rows.count(mark) > 1)
                m_wrong = mark + u" is there twice"_s;
            if (isOne && !isDeleted && row.second != m_deeds.counts.at(mark))
                m_wrong = u"%1 counts %2 and should count %3"_s.arg(mark)
                              .arg(row.second)
                              .arg(m_deeds.counts.at(mark));
        }
    }
    /// A list that stays brings rows back that were deleted with it.
    [[nodiscard]] bool HasListCome() const
    {
        return std::ranges::any_of(
            m_deeds.trace, [](const QString& line) { return line.startsWith(u"  2 "); });
    }
};

} // namespace

void MergeDevices(FaultRun& run)
{
    int guessed = 0;
    for (int i = 0; i < run.Runs(); ++i) {
        run.Clear();
        Household household(QFile::decodeName(run.Folder()), run.Seed() + static_cast<quint32>(i));
        const QString wrong = household.Live();
        run.Count();
        guessed += household.Done().wasGuessed ? 1 : 0;
        if (!wrong.isEmpty())
            run.Blame(u"history %1: "_s.arg(i) + wrong,
                { { "trace.txt", household.Done().trace.join(u'\n').toUtf8() } });
    }
    std::printf("%d of them with a merge whose base was not the latest or not known\n", guessed);
    // Where the base is never known the strictest of the questions are never asked.
    if (guessed > run.Runs() * 3 / 4)
        run.Blame(u"the base was missing in %1 histories"_s.arg(guessed), {});
}

} // namespace Quillory
