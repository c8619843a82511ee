// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Quillory {

/// What must hold for every input; where it does not, the input is kept as one that breaks it.
inline void Require(bool isTrue, const char* what)
{
    if (!isTrue)
        qFatal("broken: %s", what);
}

} // namespace Quillory
