// SPDX-License-Identifier: MIT
#pragma once

class QTableView;

namespace Quillory {

/// Makes a table one of whole lines, as every list of the program looks: one line selected, lines
/// of one height with hairlines between them, no frame, a quiet header, no line numbers.
void DressLineView(QTableView* view);

} // namespace Quillory
