// SPDX-License-Identifier: MIT
#pragma once

#include "cli/command_line.h"

namespace Quillory {

/// Runs the window until it is closed, or hands the call over to the program that runs already; the
/// process's exit code. Takes the arguments of main(), and what was read from them.
[[nodiscard]] int RunWindow(int argumentCount, char** argumentValues, const WindowCall& call);

} // namespace Quillory
