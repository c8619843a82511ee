// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace Quillory {

/// Gives the application letters that are large enough where the desktop's are not. Called before
/// there is a window this saves it from being dressed twice.
void EnlargeLetters();

/// Gives a window and everything in it the program's look: flat, hairlines, one accent. All colours
/// are roles of the palette, so that they follow the desktop. So does the font, but it is never
/// smaller than the least size of letters.
void ApplyWindowStyle(QWidget* window);

} // namespace Quillory
