// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/page.h"

namespace Quillory {

class IconGrid;

/// Lets an icon be chosen; ends with Ok on a tap on one.
class IconGridPage : public Page
{
    Q_OBJECT

public:
    explicit IconGridPage(int selected, QWidget* parent = nullptr);

    /// The icon that was tapped; the one it began with while none was.
    [[nodiscard]] int Icon() const { return m_icon; }

private:
    int m_icon;
};

} // namespace Quillory
