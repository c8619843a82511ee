// SPDX-License-Identifier: MIT
#pragma once

#include "app/turned_output.h"

#include <optional>

namespace Quillory {

/// How the output so named stands. None where the program's windows are on no X server with
/// RandR 1.3, or the output is not there or shows nothing.
[[nodiscard]] std::optional<QuarterTurns> TurnsOfOutput(const QString& name);

/// Turns an output that stands `from` so that it stands `to`, and makes the screen as large as its
/// outputs need. False, with everything as it was, if the output does not stand `from` or cannot
/// stand `to`, or would then cover a part of another one.
[[nodiscard]] bool TurnOutput(const QString& name, QuarterTurns from, QuarterTurns to);

} // namespace Quillory
