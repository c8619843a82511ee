// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/page.h"

namespace Quillory {

/// The help text, scrolled to one of its anchors.
class HelpPage : public Page
{
    Q_OBJECT

public:
    explicit HelpPage(const QString& anchor, QWidget* parent = nullptr);
};

} // namespace Quillory
