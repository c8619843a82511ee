// SPDX-License-Identifier: MIT
#pragma once

#include "res/list_icon.h"

#include <QIcon>

namespace Quillory {

/// The icon of a list by its index, drawn from vectors: in a colour of its own on a light ground,
/// in the colour of text on a dark one and where it is selected. The first one for an index
/// outside the set.
[[nodiscard]] QIcon ListIcon(int index);
/// What the icon shows, in a word.
[[nodiscard]] QString ListIconName(int index);
/// The boxes of checkbox columns.
[[nodiscard]] QIcon CheckboxIcon(bool isChecked);
[[nodiscard]] QIcon ApplicationIcon();

} // namespace Quillory
