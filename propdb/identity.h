// SPDX-License-Identifier: MIT
#pragma once

#include "propdb/property_value.h"

#include <QByteArrayView>

#include <vector>

namespace Quillory {

/// A state of a volume's contents, drawn at random by each mount that changes them: two volumes
/// that have it in their histories were one file then.
enum class StateId : quint64
{
};

/// The contents of a volume after one of its commits. Whoever copies a file while it is in use has
/// it at some revision of its state, and others may come.
struct FileVersion
{
    StateId state {};
    /// Commits of changed contents since the state was drawn, that commit included.
    quint32 revision = 0;

    // The linter takes the zero that comparisons end in for a pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const FileVersion&, const FileVersion&) = default;
};

/// Where the contents of a volume come from: each state at its latest revision that is in them,
/// oldest first. Empty for a volume that nobody has put anything into.
class History
{
public:
    static constexpr size_t kMostStates = 64;

    History() = default;
    explicit History(std::vector<FileVersion> versions);

    [[nodiscard]] const std::vector<FileVersion>& Versions() const { return m_versions; }
    /// What the contents are now; revision 0 of no state where the history is empty.
    [[nodiscard]] FileVersion Latest() const;
    /// Whether all that was there at `version` went into these contents. True of no state.
    [[nodiscard]] bool Covers(const FileVersion& version) const;
    /// Whether both contents were one file once.
    [[nodiscard]] bool HasStateOf(const History& other) const;
    /// Whether all that went into both of the others went into these contents.
    [[nodiscard]] bool CoversCommon(const History& one, const History& other) const;
    /// The history of contents that hold all of both, and are `merged` now: the newest of both, the
    /// same whichever comes first.
    [[nodiscard]] static History Join(
        const History& one, const History& other, const FileVersion& merged);

    friend bool operator==(const History&, const History&) = default;

private:
    std::vector<FileVersion> m_versions;
};

/// 64 bits that depend on the bytes and the seed alone, on every machine: files hold such numbers.
[[nodiscard]] quint64 StableHash(QByteArrayView bytes, quint64 seed);
/// The same of two numbers, in their order.
[[nodiscard]] quint64 StableHash(quint64 first, quint64 second);
/// The origin of a record that was stored without one.
[[nodiscard]] Origin DerivedOrigin(QStringView database, ObjectId record);

/// Draws origins: seeded at random once, then a few instructions each.
class OriginSource
{
public:
    OriginSource();
    [[nodiscard]] Origin Draw();

private:
    quint64 m_counter;
};

/// Drawn at random.
[[nodiscard]] StateId DrawState();

} // namespace Quillory
