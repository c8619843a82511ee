// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Quillory {

/// A set of SQLite's storage classes (integer, float, text, blob, null): a bit for each, at the
/// position that is SQLite's number for it.
using ValueClasses = quint8;

/// The classes that may stand in a column so declared, nothing at all among them; every class for
/// what is no column of a table, which has no declaration (null).
[[nodiscard]] ValueClasses ClassesOfDeclaration(const char* declaration);

/// Whether a value of the class `number` is in the set. To be asked before the value is read:
/// asking SQLite for the text of a number converts it in place, which frees what was read before.
[[nodiscard]] constexpr bool IsAmong(int number, ValueClasses classes)
{
    return (classes >> number & 1) != 0;
}

} // namespace Quillory
