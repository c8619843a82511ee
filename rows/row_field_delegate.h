// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/line_delegate.h"

namespace Quillory {

/// Draws the lines of a row editor: names quietly, values in the colour of text, the current line
/// on a tint of the accent, so that the control in it stays the brightest place.
class RowFieldDelegate : public LineDelegate
{
    Q_OBJECT

public:
    using LineDelegate::LineDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
};

} // namespace Quillory
