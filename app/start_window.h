// SPDX-License-Identifier: MIT
#pragma once

namespace Quillory {

/// Runs the window until it is closed, or hands the call over to the program that runs already; the
/// process's exit code. Takes the arguments of main().
[[nodiscard]] int RunWindow(int argumentCount, char** argumentValues);

} // namespace Quillory
