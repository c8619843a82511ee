// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Quillory {

/// Classes of stored values: a bit for each, at the place of SQLite's number for it.
using ValueClasses = quint8;

/// The classes that may stand in a column so declared, nothing at all among them; every class for
/// what is no column of a table, which has no declaration (null).
[[nodiscard]] ValueClasses ClassesOfDeclaration(const char* declaration);

/// Whether a value of SQLite's class `number` may stand there. To be asked before the value: asking
/// for the text of a number turns it into one, which reads as any other and frees what was there.
[[nodiscard]] constexpr bool IsAmong(int number, ValueClasses classes)
{
    return (classes >> number & 1) != 0;
}

} // namespace Quillory
