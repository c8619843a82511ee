#pragma once

#include <QIcon>

namespace Quillory {

constexpr int kListIconCount = 43;

/// The icon of a list by its index, drawn from vectors in the colour of the text it stands by; the
/// first one for an index outside the set.
[[nodiscard]] QIcon ListIcon(int index);
/// The boxes of checkbox columns.
[[nodiscard]] QIcon CheckboxIcon(bool isChecked);
[[nodiscard]] QIcon ApplicationIcon();

} // namespace Quillory
