// SPDX-License-Identifier: MIT
#pragma once

#include "tests/faults/fault_run.h"
#include "tests/faults/system_calls.h"

#include <random>
#include <vector>

namespace Quillory {

/// Writes down what changes the files of a folder, in order.
class Recorder : public CallWatcher
{
public:
    struct Event
    {
        SystemCall call;
        /// The bytes that call.bytes no longer leads to.
        QByteArray bytes;
        /// How many steps were acknowledged before it.
        size_t acknowledged = 0;
    };

    void AfterCall(const SystemCall& call) override;
    void Acknowledge() { ++m_acknowledged; }

    [[nodiscard]] const std::vector<Event>& Events() const { return m_events; }

private:
    std::vector<Event> m_events;
    size_t m_acknowledged = 0;
};

/// What a power cut may do to changes that no sync has covered.
enum class Loss
{
    Everything,
    Nothing,
    /// Files have their bytes, but names are as they were at the last sync of the folder.
    Names,
    /// Names are there, but what was written to the files is not.
    Bytes,
    /// The newest changes, from a random one on.
    Tail,
    /// Random writes.
    RandomWrites,
    /// Random sectors of random writes.
    RandomSectors,
    /// As above, and one write was under way: its lost sectors hold junk.
    JunkSectors,
};
constexpr int kLossCount = 8;

/// A medium as it is between the syncs: what is safe, and what is still on its way.
class Disk
{
public:
    /// Holds these files, all of them safe.
    explicit Disk(const Files& files);

    void Apply(const Recorder::Event& event);
    /// The files that are found after a power cut.
    [[nodiscard]] Files AfterPowerCut(Loss loss, std::mt19937& random) const;

private:
    struct Change
    {
        CallKind kind {};
        int file = 0;
        QByteArray bytes;
        qint64 place = 0;
        QByteArray name;
        QByteArray target;
    };

    using Names = std::map<QByteArray, int>;
    std::vector<QByteArray> m_safeBytes;
    Names m_safeNames;
    /// The names as the running program sees them.
    Names m_names;
    std::vector<Change> m_pending;

    void MakeSafe(int file);
    void MakeNamesSafe();
    static void ApplyToNames(const Change& change, Names& names);
    static void ApplyToBytes(const Change& change, QByteArray& bytes);
    static void ApplySectors(
        const Change& change, QByteArray& bytes, bool isJunkLeft, std::mt19937& random);
};

} // namespace Quillory
