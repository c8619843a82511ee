// SPDX-License-Identifier: MIT
#include "res/list_icon.h"

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadListIconResources()
{
    Q_INIT_RESOURCE(list_icons);
}

namespace Quillory {

using namespace Qt::StringLiterals;

int KnownIcon(int index)
{
    return index >= 0 && index < kListIconCount ? index : 0;
}

QString ListIconFile(int index)
{
    LoadListIconResources();
    return u":/icons/list_%1.svg"_s.arg(KnownIcon(index), 2, 10, QLatin1Char('0'));
}

} // namespace Quillory
