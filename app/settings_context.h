// SPDX-License-Identifier: MIT
#pragma once

#include "app/settings.h"
#include "values/value_text.h"

namespace Quillory {

/// The context of the environment with what the settings override of it: window and command line
/// read and write texts alike.
[[nodiscard]] ValueContext ContextOf(const Settings& settings);

} // namespace Quillory
