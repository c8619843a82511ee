// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace Quillory {

/// Gives a window and everything in it the program's look: flat, hairlines, one accent. All colours
/// are roles of the palette, so that they follow the desktop. So does the font, but it is never
/// smaller than the least size of letters.
void ApplyWindowStyle(QWidget* window);

} // namespace Quillory
