// SPDX-License-Identifier: MIT
#pragma once

#include "store/totals.h"
#include "widgets/page.h"

namespace Quillory {

/// The totals of a list, a line each.
class SummaryPage : public Page
{
    Q_OBJECT

public:
    explicit SummaryPage(const std::vector<ColumnTotal>& totals, QWidget* parent = nullptr);
};

} // namespace Quillory
