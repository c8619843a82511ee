// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Quillory {

constexpr int kListIconCount = 43;

/// The number itself, or that of the plain list where there is no such icon.
[[nodiscard]] int KnownIcon(int index);
/// The drawing of an icon, in black lines, as the name of a resource.
[[nodiscard]] QString ListIconFile(int index);

} // namespace Quillory
