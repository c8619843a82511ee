// SPDX-License-Identifier: MIT
#include "propdb/detail/value_class.h"

#include <sqlite3.h>

#include <array>
#include <initializer_list>

namespace Quillory {

namespace {

constexpr ValueClasses Bits(std::initializer_list<int> numbers)
{
    int bits = 1 << SQLITE_NULL;
    for (const int number : numbers)
        bits |= 1 << number;
    return static_cast<ValueClasses>(bits);
}

struct Declaration
{
    const char* name;
    ValueClasses classes;
};

constexpr std::array kDeclarations {
    Declaration { "INTEGER", Bits({ SQLITE_INTEGER }) },
    Declaration { "TEXT", Bits({ SQLITE_TEXT }) },
    Declaration { "BLOB", Bits({ SQLITE_BLOB }) },
    // The one for fractions.
    Declaration { "ANY", Bits({ SQLITE_INTEGER, SQLITE_FLOAT }) },
};

} // namespace

ValueClasses ClassesOfDeclaration(const char* declaration)
{
    for (const Declaration& known : kDeclarations) {
        if (sqlite3_stricmp(declaration, known.name) == 0)
            return known.classes;
    }
    return Bits({ SQLITE_INTEGER, SQLITE_FLOAT, SQLITE_TEXT, SQLITE_BLOB });
}

} // namespace Quillory
