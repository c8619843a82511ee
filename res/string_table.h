#pragma once

#include <QString>

namespace Quillory {

/// The text of the string table under a number, in the language of the program; empty if there is
/// none under it.
[[nodiscard]] QString LoadString(int id);

} // namespace Quillory
