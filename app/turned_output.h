// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace Quillory {

/// Quarter turns of a picture from upright, counter-clockwise: 0 to 3.
using QuarterTurns = int;

/// The turns that the code of a landscape display asks for.
[[nodiscard]] QuarterTurns TurnsOf(quint32 listOrientation);

/// An output of the X server that this program has turned and not yet turned back.
struct TurnedOutput
{
    /// The X server, as the environment names it.
    QString display;
    QString output;
    /// How the output stood, and how the program turned it.
    QuarterTurns before = 0;
    QuarterTurns after = 0;

    friend bool operator==(const TurnedOutput&, const TurnedOutput&) = default;
};

/// Puts the note of a turned output on the medium, in place of an earlier one. False if that cannot
/// be done; an earlier one stays then.
[[nodiscard]] bool WriteTurnedOutput(const QString& path, const TurnedOutput& turned);

/// The note in a file; none if there is no file, or anything but one whole note in it.
[[nodiscard]] std::optional<TurnedOutput> ReadTurnedOutput(const QString& path);

} // namespace Quillory
