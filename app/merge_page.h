// SPDX-License-Identifier: MIT
#pragma once

#include "merge/merge_plan.h"
#include "values/value_text.h"
#include "widgets/page.h"

namespace Quillory {

/// What came of bringing two versions of the data file together: list by list, what came, what went
/// and what was decided, in sentences; and first, if it was not known what both come from, what
/// follows from that.
class MergePage : public Page
{
    Q_OBJECT

public:
    explicit MergePage(
        const MergePlan& plan, const ValueContext& context, QWidget* parent = nullptr);
};

} // namespace Quillory
