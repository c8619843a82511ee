// SPDX-License-Identifier: MIT
#include "propdb/result.h"

#include <QDebug>

namespace Quillory {

void EndForWantOfFailure()
{
    qFatal("a function has given back neither a value nor a failure");
}

} // namespace Quillory
