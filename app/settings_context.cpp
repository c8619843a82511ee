// SPDX-License-Identifier: MIT
#include "app/settings_context.h"

namespace Quillory {

ValueContext ContextOf(const Settings& settings)
{
    ValueContext context = ValueContext::FromEnvironment();
    if (settings.codePage) {
        context.userLocale.codePage = *settings.codePage;
        context.systemLocale.codePage = *settings.codePage;
    }
    return context;
}

} // namespace Quillory
